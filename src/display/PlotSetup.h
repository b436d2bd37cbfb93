// Everything that decides about a plot but the responses.
#pragma once

#include <string>
#include <vector>

#include "core/LimitArea.h"
#include "core/PlotScales.h"
#include "core/SmithView.h"
#include "display/HorizontalAxis.h"
#include "display/Markers.h"
#include "shell/PlotSheet.h"

namespace quilm {

// What of a plot is drawn, and how.
enum class PlotDress {
  Usual,
  WithoutTraces,  // frame, grid and scales alone
  UnderCount,     // the top row is that of a count of trials
  UnderProgress,  // the rows above the frame, and some room to its left, are those of a run's progress
};

struct PlotSetup {
  HorizontalAxis axis;
  PlotScales scales;  // with the code of the plot
  TraceColors colors;
  SmithView chart;         // of the charts alone
  f32 reference = 0;       // ohms, of the charts' input reflection
  std::string title = {};  // of the design, for paper
  PlotDress dress = PlotDress::Usual;
  bool inReport = false;                    // on a sheet that has a title, tables and a foot of its own
  std::vector<LimitArea> areas = {};        // that the plot shows
  std::vector<MarkerReading> markers = {};  // that it tells of
};

}  // namespace quilm
