// A plot of transmission and return that is small enough to stand beside entries.
#pragma once

#include <string>

#include "display/PlotFrame.h"
#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr Scale previewScale{0, 0, 5400, 3200};  // twips: at this size its texts are as large as the window's

// The frame of the plot within that scale.
inline constexpr PlotBox previewFrame{560, 300, 4680, 2560};

// Draws frame, grid, scale and traces into an emptied canvas, over the axis and with the scale of the setup. `places`
// keeps what was computed for the frequencies. Throws NumericFault when the scale has no height or the axis no width.
void DrawPreview(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas);

// Draws the empty frame with the reason why there is nothing to show.
void DrawNoPreview(const std::string& reason, Canvas& canvas);

}  // namespace quilm
