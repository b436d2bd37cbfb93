#include "display/PlotFrame.h"

#include <algorithm>
#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

namespace {

f64 Quotient(f64 part, f64 whole) {
  if (whole == 0) throw NumericFault("Division by zero");
  return part / whole;
}

}  // namespace

int LastPoint(const DesignRecord& record) { return ToI16(static_cast<f64>(record.NrIntervals)); }

f64 SweepFraction(const DesignRecord& record, f32 frequency) {
  const f64 f = frequency;
  const f64 start = record.Fstart;
  const f64 stop = record.Fstop;
  if (record.SweepMode == 1) return Quotient(f - start, stop - start);
  return Quotient(std::log(f) - std::log(start), std::log(stop) - std::log(start));
}

f32 FrameX(const DesignRecord& record, f32 frequency, const PlotBox& box) {
  return static_cast<f32>(SweepFraction(record, frequency) * static_cast<f64>(box.width) + static_cast<f64>(box.left));
}

f32 FrameY(const ValueScale& scale, f64 value, const PlotBox& box) {
  const f64 top = scale.top;
  const f64 height = top - static_cast<f64>(scale.bottom);
  const f64 y = static_cast<f64>(box.top) - Quotient(value - top, height) * static_cast<f64>(box.height);
  return std::clamp(static_cast<f32>(y), box.top, box.Bottom());
}

}  // namespace quilm
