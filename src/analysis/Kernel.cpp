#include "analysis/Kernel.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "analysis/KernelVariants.h"
#include "core/ResponseArray.h"

namespace quilm {

namespace {

constexpr std::array<VectorWidth, 3> widestFirst = {VectorWidth::Bits512, VectorWidth::Bits256, VectorWidth::Baseline};

std::string_view NameOf(VectorWidth width) {
  switch (width) {
    case VectorWidth::Bits512:
      return "512";
    case VectorWidth::Bits256:
      return "256";
    default:
      return "128";
  }
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

VectorWidth WidthFor(const char* wish) {
  const std::string_view name = wish == nullptr ? "" : wish;
  for (const VectorWidth width : widestFirst) {
    if (NameOf(width) == name && HasVectors(width)) return width;
  }
  return *std::find_if(widestFirst.begin(), widestFirst.end(), HasVectors);
}

VectorWidth DefaultWidth() {
  static const VectorWidth width = WidthFor(std::getenv("QUILM_VECTORS"));
  return width;
}

const Kernel& KernelFor(VectorWidth width) {
#if defined(__x86_64__)
  if (width == VectorWidth::Bits512) return kernelAvx512;
  if (width == VectorWidth::Bits256) return kernelAvx2;
#else
  static_cast<void>(width);
#endif
  return kernelBaseline;
}

void Evaluate(const Ladder& ladder, std::span<const f32> frequencies, std::span<Figures> figures, VectorWidth width) {
  std::fill(figures.begin(), figures.end(), Figures{});
  if (ladder.failsEverywhere) return;
  std::array<f64, sweepPadding> w{};
  std::array<f64, sweepPadding> wInverse{};
  for (std::size_t first = 0; first < frequencies.size(); first += sweepPadding) {
    const std::size_t count = std::min<std::size_t>(sweepPadding, frequencies.size() - first);
    for (std::size_t i = 0; i < count; ++i) {
      w[i] = AngularFrequency(frequencies[first + i]);
      wInverse[i] = ReciprocalForKernel(w[i]);
    }
    KernelFor(width).evaluateFigures(RangeOf(ladder, w.data(), wInverse.data(), static_cast<int>(count)),
                                     &figures[first]);
    for (std::size_t i = 0; i < count; ++i) {
      Figures& at = figures[first + i];
      if (at.reached != reachedAll) at = EvaluateSingle(ladder, w[i], wInverse[i]);
    }
  }
}

Figures EvaluateOne(const Ladder& ladder, f32 frequency) {
  if (ladder.failsEverywhere) return {};
  const f64 w = AngularFrequency(frequency);
  return EvaluateSingle(ladder, w, ReciprocalForKernel(w));
}

}  // namespace quilm
