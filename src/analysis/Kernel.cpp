#include "analysis/Kernel.h"

#include <algorithm>

#include "analysis/KernelBody.h"
#include "analysis/KernelVariants.h"

namespace quilm {

namespace {

EvaluateRange* VariantOf(VectorWidth width) {
#if defined(__x86_64__)
  if (width == VectorWidth::Bits512) return EvaluateAvx512;
  if (width == VectorWidth::Bits256) return EvaluateAvx2;
#else
  static_cast<void>(width);
#endif
  return EvaluateBaseline;
}

VectorWidth Widest() {
  for (const VectorWidth width : {VectorWidth::Bits512, VectorWidth::Bits256}) {
    if (HasVectors(width)) return width;
  }
  return VectorWidth::Baseline;
}

void Run(EvaluateRange* variant, const Ladder& ladder, std::span<const f32> frequencies, std::span<Figures> figures) {
  if (ladder.failsEverywhere) {
    std::fill(figures.begin(), figures.end(), Figures{});
    return;
  }
  const CompiledStage* first = ladder.stages.data();
  variant(ladder, {first, first + ladder.stages.size()}, frequencies.data(), frequencies.size(), figures.data());
}

}  // namespace

bool HasVectors(VectorWidth width) {
  if (width == VectorWidth::Baseline) return true;
#if defined(__x86_64__)
  if (width == VectorWidth::Bits256) return __builtin_cpu_supports("avx2");
  return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq");
#else
  return false;
#endif
}

void Evaluate(const Ladder& ladder, std::span<const f32> frequencies, std::span<Figures> figures) {
  static EvaluateRange* const variant = VariantOf(Widest());
  Run(variant, ladder, frequencies, figures);
}

void EvaluateWith(VectorWidth width, const Ladder& ladder, std::span<const f32> frequencies,
                  std::span<Figures> figures) {
  Run(VariantOf(width), ladder, frequencies, figures);
}

Figures EvaluateOne(const Ladder& ladder, f32 frequency) {
  Figures figures;
  Run(EvaluateSingle, ladder, {&frequency, 1}, {&figures, 1});
  return figures;
}

}  // namespace quilm
