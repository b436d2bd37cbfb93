// What rectangular plots are made of, whatever the size of their frame: traces and lines of frequency.
#pragma once

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/PlotFrame.h"
#include "display/PlotKinds.h"
#include "shell/Canvas.h"

namespace quilm {

// Where sweep point i of a quantity stands in the frame. Throws NumericFault when the scale has no height or the sweep
// no width.
Point TracePoint(const DesignRecord& record, const Responses& responses, Quantity quantity, int i,
                 const PlotBox& box = plotFrame);

// The trace from point 0 on; the first point is a line of no length at its place. Throws like TracePoint.
void DrawTrace(const DesignRecord& record, const Responses& responses, Quantity quantity, Color color, Canvas& canvas,
               const PlotBox& box = plotFrame);

struct FrequencyGrid;

// The vertical lines of the grid.
void DrawFrequencyLines(const FrequencyGrid& grid, Canvas& canvas, const PlotBox& box = plotFrame);

}  // namespace quilm
