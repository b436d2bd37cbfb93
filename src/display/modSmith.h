// The two round plots: the input reflection on a Smith chart (plot code 11) and the transmission in polar form (12),
// each with a small rectangular plot in its corner.
#pragma once

#include <vector>

#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr i16 smithCode = 11;
inline constexpr i16 polarCode = 12;
inline constexpr f32 largestZoom = 16;

// A reflection or a transmission as a complex amplitude: u the real part, w the imaginary one.
struct Phasor {
  f64 u = 0;
  f64 w = 0;
};

// The input reflection at a point against a reference in ohms. A reference of 0 throws NumericFault.
Phasor InputReflection(const ResponseSpans& responses, f32 reference, std::size_t point);

// The transmission at a point.
Phasor Transmission(const ResponseSpans& responses, std::size_t point);

// Draws the whole plot of code 11 or 12 into an emptied canvas. `places` keeps what was computed for the frequencies.
// Throws NumericFault when the reference is 0, the sweep has no width or the transmission's scale no height.
void DrawChart(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// The title of the chart, above it. There is no room for it beside the progress of a run.
void PrintChartTitle(const PlotSetup& setup, Canvas& canvas);

// Draws the traces alone, the round one and those of the corner, over what the canvas holds. Throws like DrawChart.
void DrawChartTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// The round one alone: of the responses no more is used than the frequencies and the two that it is made of, impedance
// with its angle, or transmission with its. Throws NumericFault when the reference of the Smith chart is 0.
void DrawRoundTrace(const PlotSetup& setup, const ResponseSpans& responses, Canvas& canvas);

// Where a point of the responses stands on the chart's traces, the round one first. A point that lies outside the
// chart's bounds is left out, as the trace leaves it out. Throws like DrawChart.
std::vector<Point> ChartPoints(const PlotSetup& setup, const ResponseSpans& responses, std::size_t point);

}  // namespace quilm
