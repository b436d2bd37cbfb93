// The kernel for any processor of the architecture.

#include "analysis/KernelBody.h"
#include "analysis/KernelVariants.h"

namespace quilm {

namespace {

struct Baseline {};

}  // namespace

void EvaluateBaseline(const Ladder& ladder, const StageRange& stages, const f32* frequencies, std::size_t count,
                      Figures* figures) {
  EvaluateAll<Baseline, 8>(ladder, stages, frequencies, count, figures);
}

void EvaluateSingle(const Ladder& ladder, const StageRange& stages, const f32* frequencies, std::size_t count,
                    Figures* figures) {
  EvaluateAll<Baseline, 1>(ladder, stages, frequencies, count, figures);
}

}  // namespace quilm
