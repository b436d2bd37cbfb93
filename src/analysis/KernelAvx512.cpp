// The kernel for 512-bit vectors; this file alone is compiled for them.

#if defined(__x86_64__)

#include "analysis/KernelBody.h"
#include "analysis/KernelVariants.h"

namespace quilm {

namespace {

struct Avx512 {};

}  // namespace

void EvaluateAvx512(const Ladder& ladder, const StageRange& stages, const f32* frequencies, std::size_t count,
                    Figures* figures) {
  EvaluateAll<Avx512, 8>(ladder, stages, frequencies, count, figures);
}

}  // namespace quilm

#endif
