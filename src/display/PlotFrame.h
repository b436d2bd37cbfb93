// The frame of the rectangular plots, and how frequencies and values map onto it.
#pragma once

#include "core/DesignRecord.h"
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

// What a plot's picture shows around the frame: scales, labels and footers.
inline constexpr Scale plotScale{700, 380, 11500, 7560};

// A vertical scale by its values at the top and the bottom of the frame.
struct ValueScale {
  f32 top = 0;
  f32 bottom = 0;
};

// The index of the sweep's last point. Throws NumericFault when the number of intervals is no 16-bit number.
int LastPoint(const DesignRecord& record);

// How far along the sweep a frequency lies, 0 at Fstart and 1 at Fstop, by difference or by logarithm. Throws
// NumericFault when the sweep has no width.
f64 SweepFraction(const DesignRecord& record, f32 frequency);

// The x of a frequency in a frame.
f32 FrameX(const DesignRecord& record, f32 frequency, const PlotBox& box = plotFrame);

// The y of a value in a frame, held within it: a trace rides along the edge where it leaves the scale. Throws
// NumericFault when the scale has no height.
f32 FrameY(const ValueScale& scale, f64 value, const PlotBox& box = plotFrame);

}  // namespace quilm
