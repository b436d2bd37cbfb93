// Draws the rectangular plots of the responses.
#pragma once

#include "display/PlotKinds.h"
#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

// Draws the whole plot of a code 1..7, 9, 10 or 13 into an emptied canvas: limit areas, grid, scales, labels, traces,
// footers and markers. `places` keeps what was computed for the frequencies. Throws NumericFault when a scale has no
// height or the sweep no width.
void DrawPlot(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// Draws the traces alone, over what the canvas holds. Throws like DrawPlot.
void DrawTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// Draws one of them from its curve alone: of the responses no more is used than its quantity needs.
void DrawTrace(const PlotSetup& setup, const PlotTrace& trace, const ResponseSpans& responses, AxisPlaces& places,
               Canvas& canvas);

// Where sweep point i of the responses stands on each trace, in drawing order. Throws like DrawPlot.
std::vector<Point> TracePoints(const PlotSetup& setup, const ResponseSpans& responses, std::size_t i);

// The side of the frame that a scale stands on.
enum class ScaleSide { Left, Right };

// The labels of a scale in `intervals` steps.
void DrawScale(const ValueScale& scale, f32 intervals, ScaleSide side, Canvas& canvas);

// What a scale or a trace is called, in the row above the frame, so far in from the side of the scale.
void PrintScaleTitle(const std::string& title, Color color, ScaleSide side, Canvas& canvas, f32 inset = 0);

// The horizontal and vertical lines of the grid with the frame, without labels: over traces that have hidden them.
void DrawGridLines(const PlotSetup& setup, Canvas& canvas);

// Empties the canvas for a plot and sets its scale and pen.
void BeginPlot(const Scale& scale, Canvas& canvas);

// The width of a trace's pen, at least 1 pixel.
i16 TraceWidth(const PlotScales& scales);

}  // namespace quilm
