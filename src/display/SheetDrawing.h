// What is done with the plot as a whole: choose one, draw it anew, add traces. The pages of the plot and of the tools
// that work on it call these, and need not know one another.
#pragma once

#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

class Session;

// The present plot of the session's design, in the sheet's colours, with the limit areas that it shows.
PlotSetup SetupOf(const Session& session);

// Draws a whole plot of any of the twelve codes into an emptied canvas. Throws Fault for other codes, NumericFault when
// a scale has no height, the sweep no width or a chart no reference.
void DrawSheet(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// Draws the traces of the plot alone, over what the canvas holds. Throws like DrawSheet.
void AddTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// Makes an empty sheet of it, without an entry in progress and with the first colours.
void ClearSheet(PlotSheet& sheet);

// Makes the plot of a code the one on display: ends an entry of limits, puts the colours back to the first ones and
// draws it.
void ChoosePlot(Session& session, i16 code);

// Draws the present plot with the last sweep on the session's sheet, with what is shown of limits and markers and with
// an entry of limits that is in progress, and takes the traces of a run away. Holds
// LossBottom at -0.3 or below before. A failure is shown to the user; what was drawn until then stays.
void RedrawPlot(Session& session, PlotDress dress = PlotDress::Usual);

// The same with the nominal trace and the envelope of the trials and of the nominal sweep in the traces' stead.
void RedrawWithExtremes(Session& session);

// Adds these over what the canvas holds; the envelope 2 pixels wide, in a report as all traces there. `last` is the
// sweep's last point. Throws like DrawSheet.
void AddExtremes(PlotSetup setup, const Responses& responses, int last, AxisPlaces& places, Canvas& canvas);

// Adds the traces of some responses in the sheet's colours to a canvas that shows the present plot: the sheet's
// picture, or the layer over it. Throws like DrawSheet.
void AddTraces(Session& session, const ResponseSpans& responses, Canvas& canvas);

}  // namespace quilm
