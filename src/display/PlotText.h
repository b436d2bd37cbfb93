// Texts on the plots: where they stand, and how large.
#pragma once

#include <string>

#include "shell/Canvas.h"

namespace quilm {

inline constexpr f32 labelSize = 8;  // points
inline constexpr f32 titleSize = 9;
inline constexpr f32 plotTitleRow = 540;  // above the plots
inline constexpr f32 labelRise = 100;     // from the top of a label's line to the place that it names

// The rows under the plots.
inline constexpr f32 footerRow = 7280;
inline constexpr f32 footerLeft = 1301;

// A text that ends at x, with its top at y; it ends there in whatever size it is drawn.
void PrintEndingAt(Canvas& canvas, f32 x, f32 y, const std::string& text);

// A text on a patch of paper of its own, so that lines below it do not strike it through: with its corner at (x, y), or
// about a point.
void PrintOnPatch(Canvas& canvas, f32 x, f32 y, const std::string& text);
void PrintAbout(Canvas& canvas, Point middle, const std::string& text);

// Whether the rows of markers stand below a plot. What else is told there then shares the row of the readout.
enum class BelowPlot { Free, Markers };

// Below the plot, on paper alone: the title of the design, if it has one.
void DrawPaperTitle(const std::string& title, BelowPlot below, Canvas& canvas);

// Below the plot: on the screen the invitation to the readout, on paper the title of the design, if it has one.
void DrawFooters(const std::string& title, BelowPlot below, Canvas& canvas);

}  // namespace quilm
