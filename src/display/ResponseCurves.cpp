#include "display/ResponseCurves.h"

#include <cmath>

#include "core/NumericFault.h"
#include "core/Responses.h"
#include "core/Sweep.h"

namespace quilm {

namespace {

constexpr f64 degreesPerRadian = 57.29578;

// The array that holds a quantity; empty for one that none holds.
std::span<const f32> HeldBy(const ResponseSpans& r, Quantity quantity) {
  switch (quantity) {
    case Quantity::Transmission:
    case Quantity::TransmissionTimes10:
      return r.trans;
    case Quantity::Return:
      return r.returnLoss;
    case Quantity::Angle:
      return r.angle;
    case Quantity::Delay:
      return r.delay;
    case Quantity::VSWR:
      return r.vswr;
    case Quantity::Zin:
      return r.zin;
    case Quantity::ZinAngle:
      return r.zinAngle;
    case Quantity::Real:
    case Quantity::Imaginary:
      break;
  }
  return {};
}

bool IsDerived(Quantity quantity) { return quantity == Quantity::Real || quantity == Quantity::Imaginary; }

f64 DerivedValue(const ResponseSpans& r, Quantity quantity, std::size_t i) {
  const f64 radians = r.zinAngle[i] / degreesPerRadian;
  return r.zin[i] * (quantity == Quantity::Real ? std::cos(radians) : std::sin(radians));
}

}  // namespace

int LastPoint(const SweepSettings& sweep) { return ToI16(static_cast<f64>(sweep.NrIntervals)); }

ResponseSpans SpansOf(const Responses& r, int last) {
  if (last < 0 || last > responseBound) throw BoundFault();
  const auto points = [last](const ResponseArray& array) {
    return std::span<const f32>(array.data(), static_cast<std::size_t>(last) + 1);
  };
  return {points(r.RespFreq),   points(r.RespTrans), points(r.RespAngle), points(r.RespDelay),
          points(r.RespReturn), points(r.RespVSWR),  points(r.RespZin),   points(r.RespZinAngle)};
}

ResponseSpans ExtremesOf(const Responses& r, int last, ExtremeSelect which, const PlotScales& scales,
                         std::vector<f32>& relative) {
  ResponseSpans spans = SpansOf(r, last);
  if (which == ExtremeSelect::None) return spans;
  const bool max = which == ExtremeSelect::Max;
  const auto points = [&spans](const ResponseArray& array) {
    return std::span<const f32>(array.data(), spans.Count());
  };
  spans.trans = points(max ? r.MaxTrans : r.MinTrans);
  spans.angle = points(max ? r.MaxAngle : r.MinAngle);
  spans.delay = points(max ? r.MaxDelay : r.MinDelay);
  spans.returnLoss = points(max ? r.MaxReturn : r.MinReturn);
  spans.vswr = points(max ? r.MaxVSWR : r.MinVSWR);
  spans.zin = points(max ? r.MaxZin : r.MinZin);
  spans.zinAngle = points(max ? r.MaxZinAngle : r.MinZinAngle);
  if (scales.RelativeMode != 1) return spans;
  relative.clear();
  for (const f32 trans : spans.trans) relative.push_back(static_cast<f32>(static_cast<f64>(trans) - r.TransPeak));
  spans.trans = relative;
  return spans;
}

f64 ValueOf(const ResponseSpans& responses, Quantity quantity, std::size_t point) {
  return IsDerived(quantity) ? DerivedValue(responses, quantity, point) : HeldBy(responses, quantity)[point];
}

Curve CurveOf(const ResponseSpans& responses, Quantity quantity, std::vector<f64>& derived) {
  if (!IsDerived(quantity)) return {responses.freq, HeldBy(responses, quantity)};
  derived.resize(responses.Count());
  for (std::size_t i = 0; i < derived.size(); ++i) derived[i] = DerivedValue(responses, quantity, i);
  return {responses.freq, std::span<const f64>(derived)};
}

}  // namespace quilm
