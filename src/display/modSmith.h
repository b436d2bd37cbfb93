// The two round plots: the input reflection on a Smith chart (plot code 11) and the transmission in polar form (12),
// each with a small rectangular plot in its corner.
#pragma once

#include <vector>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "core/SmithView.h"
#include "display/modPlot.h"

namespace quilm {

inline constexpr i16 smithCode = 11;
inline constexpr i16 polarCode = 12;
inline constexpr f32 largestZoom = 16;

// The input reflection at sweep point i against Rstandard, or the transmission as a complex amplitude: u the real part,
// w the imaginary one. A reference impedance of 0 throws NumericFault.
struct Phasor {
  f64 u = 0;
  f64 w = 0;
};
Phasor InputReflection(const DesignRecord& record, const Responses& responses, int i);
Phasor Transmission(const Responses& responses, int i);

// Draws the whole plot of code 11 or 12 into an emptied canvas. Throws NumericFault when Rstandard is 0, the sweep has
// no width or the transmission's scale no height.
void DrawChart(const DesignRecord& record, const Responses& responses, i16 plotCode, const SmithView& view,
               const TraceColors& colors, Canvas& canvas);

// Where sweep point i stands on the chart's traces, the round one first. A point that lies outside the chart's bounds
// is left out, as the trace leaves it out. Throws like DrawChart.
std::vector<Point> ChartPoints(const DesignRecord& record, const Responses& responses, i16 plotCode,
                               const SmithView& view, int i);

}  // namespace quilm
