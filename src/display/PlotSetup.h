// Everything that decides about a plot but the responses.
#pragma once

#include <string>

#include "core/PlotScales.h"
#include "core/SmithView.h"
#include "display/HorizontalAxis.h"
#include "shell/PlotSheet.h"

namespace quilm {

struct PlotSetup {
  HorizontalAxis axis;
  PlotScales scales;  // with the code of the plot
  TraceColors colors;
  SmithView chart;         // of the charts alone
  f32 reference = 0;       // ohms, of the charts' input reflection
  std::string title = {};  // of the design, for paper
};

}  // namespace quilm
