// The responses as curves: values over frequencies, as views of the arrays that hold them.
#pragma once

#include <span>
#include <variant>
#include <vector>

#include "core/PlotScales.h"
#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// What a trace shows.
enum class Quantity { Transmission, TransmissionTimes10, Return, Angle, Delay, VSWR, Zin, ZinAngle, Real, Imaginary };

// Responses point by point over one list of frequencies: those of a sweep, its extremes, or what a file holds. All
// spans are of the same length; units as in Responses.
struct ResponseSpans {
  std::span<const f32> freq;
  std::span<const f32> trans;
  std::span<const f32> angle;
  std::span<const f32> delay;
  std::span<const f32> returnLoss;
  std::span<const f32> vswr;
  std::span<const f32> zin;
  std::span<const f32> zinAngle;

  std::size_t Count() const { return freq.size(); }
};

// The index of the sweep's last point. Throws NumericFault when the number of intervals is no 16-bit number.
int LastPoint(const SweepSettings& sweep);

// The responses at points 0..last. Throws BoundFault when there are no such points.
ResponseSpans SpansOf(const Responses& responses, int last);

// Which of the responses a plot shows: those of the last sweep, or the extremes over several.
enum class ExtremeSelect : i16 { None = 0, Max = 1, Min = 2 };

// The extremes at points 0..last in place of the responses. They are absolute, so that a relative display has the peak
// subtracted from the transmission, which goes into `relative`. Throws like SpansOf.
ResponseSpans ExtremesOf(const Responses& responses, int last, ExtremeSelect which, const PlotScales& scales,
                         std::vector<f32>& relative);

// The quantity at a point, 0..Count() - 1. Real and imaginary part are not rounded to 32 bits.
f64 ValueOf(const ResponseSpans& responses, Quantity quantity, std::size_t point);

// Values over frequencies (or times), of the same number. Views: who makes a curve keeps the arrays.
struct Curve {
  std::span<const f32> frequencies;
  std::variant<std::span<const f32>, std::span<const f64>> values;
};

// The curve of a quantity. What the responses do not hold themselves is computed into `derived`, which the curve then
// views.
Curve CurveOf(const ResponseSpans& responses, Quantity quantity, std::vector<f64>& derived);

}  // namespace quilm
