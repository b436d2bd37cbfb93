// The kernel for 256-bit vectors; this file alone is compiled for them.

#if defined(__x86_64__)

#include "analysis/KernelBody.h"
#include "analysis/KernelVariants.h"

namespace quilm {

namespace {

struct Avx2 {};

}  // namespace

void EvaluateAvx2(const Ladder& ladder, const StageRange& stages, const f32* frequencies, std::size_t count,
                  Figures* figures) {
  EvaluateAll<Avx2, 8>(ladder, stages, frequencies, count, figures);
}

}  // namespace quilm

#endif
