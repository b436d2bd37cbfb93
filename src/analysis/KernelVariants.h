// The kernel, built for several processors. Each gives the same bits.
#pragma once

#include <cstddef>

#include "analysis/Kernel.h"

namespace quilm {

struct StageRange;

using EvaluateRange = void(const Ladder& ladder, const StageRange& stages, const f32* frequencies, std::size_t count,
                           Figures* figures);

EvaluateRange EvaluateBaseline;
EvaluateRange EvaluateSingle;  // one lane
#if defined(__x86_64__)
EvaluateRange EvaluateAvx2;
EvaluateRange EvaluateAvx512;
#endif

}  // namespace quilm
