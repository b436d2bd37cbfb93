// Draws waves over a period.
#pragma once

#include <string>

#include "display/PlotFrame.h"
#include "shell/Canvas.h"
#include "timedomain/Waves.h"

namespace quilm {

// What the picture shows around the frame.
inline constexpr Scale waveScale{400, 380, 11800, 7560, plotScale.shape};

// The frame with its grid, a line each 36 degrees and the zero line marked, into an emptied canvas.
void DrawWaveFrame(Canvas& canvas);

// Draws the waves that their signal's type of analysis shows, with a pen so many pixels wide: frame, heading with the
// frequencies, and where there are two waves their names. Waves that are low are marked "LOW AMPLITUDE". `title` is the
// design's, for paper; empty on a sheet that has one.
void PlotWaves(const Waves& waves, i16 lineWidth, const std::string& title, Canvas& canvas);

}  // namespace quilm
