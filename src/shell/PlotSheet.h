// The plot as it stands: the sheet that the Plot page shows, and that every tool draws on. The session holds it; its
// routines are those of display/SheetDrawing.h.
//
// Which plot it is, the scales and whether limits and markers are shown belong to the design (PlotScales,
// LimitsAndMarkers), how the charts are looked at to the session (SmithView).
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/AxisPlaces.h"
#include "shell/LiveLayer.h"
#include "shell/Picture.h"

namespace quilm {

struct Responses;

struct TraceColors {
  Color TraceColor1 = colorBlue;
  Color TraceColor2 = colorRed;
};

// The entry of limit areas with the mouse (display/LimitEntry.h).
struct LimitEntry {
  // The first of the two clicks that a band takes.
  struct Click {
    Point at;
    f32 frequency = 0;  // Hz
  };

  i16 LimitEntryPlot = 0;    // the plot that the areas are for, 0 while none are entered
  i16 LimitShapeChoice = 0;  // 1..9, 0 while none is chosen
  std::string prompt = {};   // that the plot shows meanwhile
  std::optional<Click> first = {};
};

// What lies over the plot of earlier responses (files/modOverlays.h).
struct Overlays {
  i16 OverlayShown = 0;      // 1 from the first one that is fetched until all are hidden
  std::vector<int> fetched;  // those that the picture shows, in the order in which they were fetched
};

// Of a run's traces the last ones are kept for a window that changes its size: 250 trials of two traces over the
// longest sweep, 8 MB.
inline constexpr std::size_t keptRunPoints = std::size_t{1} << 20;

struct PlotSheet {
  Picture picture;                // the plot as it was last drawn as a whole, with what was added to it
  LiveLayer live{keptRunPoints};  // the traces of a run over it, taken away when the plot is drawn anew
  TraceColors colors;             // of the traces drawn next
  LimitEntry limitEntry;          // ended by the choice of a plot
  Overlays overlays;              // a plot that is drawn anew has none
  AxisPlaces places;              // of the frequencies drawn last

  // What the picture's traces show, for drawing them again on paper: a run or a tuning step that lies over them may
  // have swept anew since. Null before the first plot.
  std::shared_ptr<const Responses> shown;
  bool extremesShown = false;  // the picture has the envelope of tolerance trials, too
};

}  // namespace quilm
