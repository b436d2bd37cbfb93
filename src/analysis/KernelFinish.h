// What a sweep draws from its figures: steps of the phase, delays, extremes. Included once by each implementation (see
// LaneMath.h).
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

// Vectors of N numbers of 32 bits.
template <class Target, int N>
struct Narrow {
  using V [[gnu::vector_size(4 * N)]] = f32;

  [[gnu::always_inline]] static inline V Load(const f32* from) {
    V v;
    __builtin_memcpy(&v, from, sizeof v);
    return v;
  }
  [[gnu::always_inline]] static inline void Store(V v, f32* to) { __builtin_memcpy(to, &v, sizeof v); }

  [[gnu::always_inline]] static inline void Widen(const ExtremesRange& range, int at) {
    const V value = Load(range.value + at);
    const V high = Load(range.high + at);
    const V low = Load(range.low + at);
    Store(value > high ? value : high, range.high + at);
    Store(value < low ? value : low, range.low + at);
  }
};

// The running sum waits for itself at each point; meanwhile the extremes, which do not need it, fill the processor.
template <class Target, int N>
[[gnu::always_inline]] inline void TakeSums(SumRange& range) {
  using Points = Narrow<Target, N>;
  using Point = Narrow<Target, 1>;
  f64 phase = range.phase;
  typename Points::V largest = typename Points::V{} + range.largest;
  int at = 0;
  for (; at + N <= range.count; at += N) {
    for (int i = at; i < at + N; ++i) {
      phase += range.phaseStep[i];
      range.phaseSum[i] = static_cast<f32>(phase);
    }
    for (const ExtremesRange& extremes : range.extremes) Points::Widen(extremes, at);
    const typename Points::V trans = Points::Load(range.trans + at);
    largest = trans > largest ? trans : largest;
  }
  for (int i = 0; i < N; ++i) range.largest = largest[i] > range.largest ? largest[i] : range.largest;
  for (; at < range.count; ++at) {
    phase += range.phaseStep[at];
    range.phaseSum[at] = static_cast<f32>(phase);
    for (const ExtremesRange& extremes : range.extremes) Point::Widen(extremes, at);
    range.largest = range.trans[at] > range.largest ? range.trans[at] : range.largest;
  }
  range.phase = phase;
}

}  // namespace quilm
