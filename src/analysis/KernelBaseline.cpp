// The kernel for any processor of the architecture: two lanes, and one for single points.

#include "analysis/KernelBody.h"

namespace quilm {

namespace {

struct Baseline {};

}  // namespace

const Kernel kernelBaseline = KernelBody<Baseline, 2, 4>::kernel;

Figures EvaluateSingle(const Ladder& ladder, f64 w, f64 wInverse) {
  Figures figures;
  KernelBody<Baseline, 1, 1>::EvaluateFigures(RangeOf(ladder, &w, &wInverse, 1), &figures);
  return figures;
}

void ExponentialsOf(f64* values, int count) {
  using P = Pack<Baseline, 2, 4>;
  for (int i = 0; i < count; i += P::points) Exp(P::Load(values + i)).Store(values + i);
}

}  // namespace quilm
