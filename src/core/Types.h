// The number types of the program. What the design record keeps in 32 bits is declared f32: rounding through
// 32 bits at each store is part of the program's behaviour, so no host may evaluate in wider registers.
#pragma once

#include <cfloat>
#include <cstdint>

namespace quilm {

using f32 = float;
using f64 = double;
using i16 = std::int16_t;
using i32 = std::int32_t;

static_assert(FLT_EVAL_METHOD == 0, "32-bit and 64-bit arithmetic must round at each operation");

// 4 arctan(1), computed and never typed in.
extern const f64 Pi;

}  // namespace quilm
