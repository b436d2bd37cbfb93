// What a sweep draws from its figures: steps of the phase, delays, extremes. Included once by each implementation (see
// LaneMath.h): plain loops, which the compiler turns into vectors of the including source's processor.
#pragma once

#include "analysis/KernelVariants.h"

namespace quilm {

template <class Target>
[[gnu::always_inline]] inline void TakeSteps(const StepRange& range) {
  const f64* __restrict exact = range.exactAngle;
  const f32* __restrict angle = range.angle;
  const f64* __restrict degreesPerDelay = range.degreesPerDelay;
  f64* __restrict phaseStep = range.phaseStep;
  f32* __restrict delay = range.delay;
  phaseStep[0] = exact[0] - static_cast<f64>(range.angleBefore);
  for (int i = 1; i < range.count; ++i) phaseStep[i] = exact[i] - static_cast<f64>(angle[i - 1]);
  for (int i = 0; i < range.count; ++i) {
    const f64 step = phaseStep[i];
    const f64 turn = step > 180 ? 360.0 : step < -180 ? -360.0 : 0.0;
    phaseStep[i] = step - turn;
    delay[i] = static_cast<f32>(-phaseStep[i] / degreesPerDelay[i]);
  }
}

template <class Target>
[[gnu::always_inline]] inline void Widen(const f32* __restrict value, f32* __restrict high, f32* __restrict low,
                                         int count) {
  for (int i = 0; i < count; ++i) {
    high[i] = value[i] > high[i] ? value[i] : high[i];
    low[i] = value[i] < low[i] ? value[i] : low[i];
  }
}

template <class Target>
[[gnu::always_inline]] inline f32 Largest(const f32* __restrict value, int count) {
  f32 largest = value[0];
  for (int i = 1; i < count; ++i) largest = value[i] > largest ? value[i] : largest;
  return largest;
}

}  // namespace quilm
