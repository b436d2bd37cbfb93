// A plot of transmission and return that is small enough to stand beside entries.
#pragma once

#include <string>

#include "display/PlotFrame.h"
#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

// In twips, so that at their natural size the texts are as large as those of the plots.
inline constexpr Scale narrowPreview{0, 0, 5400, 3200};
inline constexpr Scale widePreview{0, 0, 12000, 4500};

// The frame of the plot within such a scale.
constexpr PlotBox PreviewFrame(const Scale& scale) {
  constexpr f32 left = 500;
  constexpr f32 top = 300;
  constexpr f32 right = 160;
  constexpr f32 bottom = 340;
  return {scale.left + left, scale.top + top, scale.width - left - right, scale.height - top - bottom};
}

// Draws frame, grid, scale and traces into the canvas, emptied and with this scale, over the axis and with the dB scale
// of the setup. `places` keeps what was computed for the frequencies. Throws NumericFault when the dB scale has no
// height or the axis no width.
void DrawPreview(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, const Scale& scale,
                 Canvas& canvas);

// Draws the empty frame with the reason why there is nothing to show.
void DrawNoPreview(const std::string& reason, const Scale& scale, Canvas& canvas);

}  // namespace quilm
