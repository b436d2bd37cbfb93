// The frame of the rectangular plots, and how places along the axis and values map onto it.
#pragma once

#include <span>
#include <vector>

#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

// A rectangle in user scale that holds a plot; y grows downward.
struct PlotBox {
  f32 left;
  f32 top;
  f32 width;
  f32 height;
  constexpr f32 Right() const { return left + width; }
  constexpr f32 Bottom() const { return top + height; }
};

inline constexpr PlotBox plotFrame{2000, 1000, 9000, 6000};

// What a plot's picture shows around the frame: scales, labels and footers. It fills the room that it has, from 4:3 to
// 21:9.
inline constexpr Scale plotScale{700, 380, 11500, 7560, {1, 4.0F / 3, 21.0F / 9}};

// The same of the charts. A unit of x is 4/3 as long as one of y, on the screen and on paper, so that with the usual
// aspect of 0.75 a chart is a true circle.
inline constexpr Scale chartScale{900, 380, 10600, 7560, {4.0F / 3, 0, 0}};

// Both with the room that the progress of a run takes, above the frame and to its left.
inline constexpr Scale plotProgressScale{0, 330, 12200, 7610, plotScale.shape};
inline constexpr Scale chartProgressScale{0, 330, 11500, 7610, chartScale.shape};

// A vertical scale by its values at the top and the bottom of the frame.
struct ValueScale {
  f32 top = 0;
  f32 bottom = 0;
};

// The x of a place along the axis, 0 at its start and 1 at its stop (see HorizontalAxis); not held within the frame.
f32 FrameX(f64 fraction, const PlotBox& box = plotFrame);

// The y of a value in a frame, held within it: a trace rides along the edge where it leaves the scale. Throws
// NumericFault when the scale has no height.
f32 FrameY(const ValueScale& scale, f64 value, const PlotBox& box = plotFrame);

// The places of the points of a curve, held within the frame on all sides: what lies before or behind the axis stands
// on its edge. `fractions` and `values` are of the same length. Throws like FrameY.
std::vector<Point> FramePoints(std::span<const f64> fractions, const ValueScale& scale, std::span<const f32> values,
                               const PlotBox& box = plotFrame);
std::vector<Point> FramePoints(std::span<const f64> fractions, const ValueScale& scale, std::span<const f64> values,
                               const PlotBox& box = plotFrame);

}  // namespace quilm
