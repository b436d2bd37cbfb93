// The plot of a phase over frequency with the line that fits it best, or of its deviation from that line.
#pragma once

#include <string>

#include "shell/Canvas.h"
#include "timedomain/PhaseLinearity.h"

namespace quilm {

struct LinearityPlot {
  const PhaseLinearity& phase;
  i16 PhasePlotType;       // 1 phase and line, 2 deviation
  f32 PhaseScale;          // degrees
  i16 NrXints;             // intervals across
  i16 lineWidth;           // of the curves, pixels
  std::string title = {};  // of the design, for paper; none on a sheet that has one
};

// Draws it into an emptied canvas. What leaves the scale rides along the frame's edge. Throws NumericFault when there
// is no stepsize, or start and stop are the same.
void DrawLinearity(const LinearityPlot& plot, Canvas& canvas);

}  // namespace quilm
