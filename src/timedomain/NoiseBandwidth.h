// The noise bandwidth: how wide a filter with upright edges would be that passes as much power of white noise at the
// same peak, B = (integral of |H(f)|^2 df) / (largest |H(f)|^2).
#pragma once

#include <optional>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// Frequencies in Hz.
struct NoiseSweep {
  f32 NoiseStart = 0;
  f32 NoiseStop = 0;   // above the start
  i32 NoiseSteps = 0;  // 1 or more
};

struct NoiseBand {
  f32 NoisePeak = 0;      // the largest ratio of power, 1 where all available power reaches the load
  f32 NoisePeakFreq = 0;  // where it was found first
  f32 NoiseLow01 = 0;     // the first and the last frequency at which power is more than 0.1 % of the peak
  f32 NoiseHigh01 = 0;
  f32 NoiseLow1 = 0;  // more than 1 %
  f32 NoiseHigh1 = 0;
  f32 NoiseBandwidth = 0;

  // Whether there is power at the very end of the sweep, which then ends too early.
  bool EndsEarly(f32 NoiseStop) const { return NoiseHigh01 > 0.99F * NoiseStop; }
};

// Integrates by the midpoint rule, in one call of the engine. Nothing where no power comes through at all. Changes
// nothing of the design. Throws NumericFault when the frequency of the inductors' Q does not exist.
std::optional<NoiseBand> ComputeNoiseBandwidth(const DesignRecord& record, const NoiseSweep& sweep);

// Whether a network passes direct current as far as its kinds of elements say; a bandpass or a highpass has something
// in the line or to common that does not.
bool LooksLikeLowpass(const Network& network);

}  // namespace quilm
