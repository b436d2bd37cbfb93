// The readout under the mouse: every response at one sweep point, and a mark on each trace.
#pragma once

#include "core/RecordFwd.h"
#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

// Whether the pointer, in the plot's scale, calls for a readout.
bool InReadoutFrame(f32 x, f32 y);

// The sweep point under a pointer in the frame, 0 to the last point of the sweep. It is linear in x for both kinds of
// sweep, as their points lie evenly on the frame. Throws a BoundFault for a point that the responses do not hold.
i16 CursorIndex(const SweepSettings& sweep, f32 x);

// Draws headings, values and marks of a point of the responses over a plot. The marks are drawn in exclusive or, so
// that they disturb no trace; a mark that has no place, for want of a scale, is left out.
void DrawReadout(const PlotSetup& setup, const ResponseSpans& responses, std::size_t index, Canvas& canvas);

}  // namespace quilm
