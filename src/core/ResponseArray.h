// One quantity of a sweep, point by point.
#pragma once

#include "core/BoundedArray.h"
#include "core/Types.h"

namespace quilm {

inline constexpr int responseBound = 2049;

// Aligned for the vectors of the sweep.
struct alignas(64) ResponseArray : BoundedArray<f32, 0, responseBound> {};

// The kernel reads whole groups of points: a multiple of this many, of which the last ones are of no consequence.
inline constexpr int sweepPadding = 32;

}  // namespace quilm
