// The scales of the plots as the responses ask for them.
#pragma once

#include "core/PlotScales.h"
#include "display/ResponseCurves.h"

namespace quilm {

// Sets the scales from the responses: LossBottom from the lowest transmission, the tops from the highest delay, VSWR (7
// at most) and impedance. A response that never falls below 0 dB leaves LossBottom at 0.
void AutoScale(PlotScales& scales, const ResponseSpans& responses);

// Holds LossBottom at -0.3 or below before a plot of PlotCode with a transmission or return scale.
void HoldLossBottom(PlotScales& scales);

}  // namespace quilm
