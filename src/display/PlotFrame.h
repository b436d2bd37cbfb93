// The frame of the rectangular plots, and how frequencies and values map onto it.
#pragma once

#include "core/DesignRecord.h"
#include "shell/Canvas.h"

namespace quilm {

// The frame in user scale; y grows downward.
inline constexpr f32 frameLeft = 2000;
inline constexpr f32 frameRight = 11000;
inline constexpr f32 frameTop = 1000;
inline constexpr f32 frameBottom = 7000;
inline constexpr f32 frameWidth = frameRight - frameLeft;
inline constexpr f32 frameHeight = frameBottom - frameTop;

// What a plot's picture shows around the frame: scales, labels and footers.
inline constexpr Scale plotScale{700, 380, 11500, 7560};

// A vertical scale by its values at the top and the bottom of the frame.
struct ValueScale {
  f32 top = 0;
  f32 bottom = 0;
};

// How far along the sweep a frequency lies, 0 at Fstart and 1 at Fstop, by difference or by logarithm. Throws
// NumericFault when the sweep has no width.
f64 SweepFraction(const DesignRecord& record, f32 frequency);

// The x of a frequency in the frame.
f32 FrameX(const DesignRecord& record, f32 frequency);

// The y of a value in the frame, held within it: a trace rides along the edge where it leaves the scale. Throws
// NumericFault when the scale has no height.
f32 FrameY(const ValueScale& scale, f64 value);

}  // namespace quilm
