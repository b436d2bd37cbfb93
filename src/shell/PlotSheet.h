// The plot as it stands: the sheet that the Plot page shows, and that every tool draws on. The session holds it; its
// routines are those of display/SheetDrawing.h.
//
// Which plot it is, the scales and whether limits and markers are shown belong to the design (PlotScales,
// LimitsAndMarkers), how the charts are looked at to the session (SmithView).
#pragma once

#include "core/AxisPlaces.h"
#include "shell/Picture.h"

namespace quilm {

struct TraceColors {
  Color TraceColor1 = colorBlue;
  Color TraceColor2 = colorRed;
};

// The entry of a limit area with the mouse.
struct LimitEntry {
  i16 LimitEntryPlot = 0;    // the plot that the area is for, 0 while none is entered
  i16 LimitShapeChoice = 0;  // 1..9
};

struct PlotSheet {
  Picture picture;        // the plot as it was last drawn as a whole, with what was added to it
  TraceColors colors;     // of the traces drawn next
  LimitEntry limitEntry;  // ended by the choice of a plot
  AxisPlaces places;      // of the frequencies drawn last
};

}  // namespace quilm
