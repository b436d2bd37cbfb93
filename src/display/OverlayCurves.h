// Earlier responses laid over the present plot.
#pragma once

#include <map>
#include <vector>

#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

// One response as it was kept: values over frequencies (Hz), of the same number and in their unit.
struct StoredCurve {
  std::vector<f32> freq;
  std::vector<f32> value;
};

// By quantity; those that are kept are transmission, return, angle, delay, VSWR, impedance and its angle.
using StoredCurves = std::map<Quantity, StoredCurve>;

// The kept quantities that the plot of a code draws, in the order in which they are asked for. Throws Fault for no
// plot.
std::vector<Quantity> OverlaidQuantities(i16 plotCode);

// Draws the curves with the scales and the axis of the setup over what the canvas holds, each in the colour that the
// quantity has on the plot; on a chart the round trace alone. What lies beside the axis stands on the frame's edge.
// Curves that need two responses go as far as both. `curves` holds what OverlaidQuantities names. Throws NumericFault
// when a scale has no height, the axis no width or a chart no reference.
void DrawOverlay(const PlotSetup& setup, const StoredCurves& curves, Canvas& canvas);

}  // namespace quilm
