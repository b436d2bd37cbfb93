// The plot of a modulation response.
#pragma once

#include <string>

#include "shell/Canvas.h"
#include "timedomain/Modulation.h"

namespace quilm {

struct ModulationPlot {
  const Modulation& response;
  const ModulationEntries& entries;  // as the response was computed with them
  f32 ModCarrier;                    // Hz
  i16 lineWidth;                     // of the curve, pixels
  std::string title;                 // of the design, for paper
};

// Draws it into an emptied canvas. What lies below the bottom, a response of 0 included, rides along the frame's edge.
// Throws NumericFault when the bottom is 0.
void DrawModulation(const ModulationPlot& plot, Canvas& canvas);

}  // namespace quilm
