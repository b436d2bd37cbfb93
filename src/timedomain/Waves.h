// How the network passes a periodic test signal. Nothing is stepped through time: a wave is the Fourier sum over the
// lines of the signal's spectrum, each with the network's magnitude, and with its phase or without. The wave without is
// what the same network shows behind a perfect equalizer of its delay.
#pragma once

#include <vector>

#include "core/RecordFwd.h"
#include "core/StudyEntries.h"

namespace quilm {

// The waves over a period of the squarewave and the tenth before it.
struct Waves {
  WaveEntries signal;                          // that they answer
  std::vector<f32> degrees;                    // of the period, from the rising edge: -36..360
  std::vector<f32> WaveNormal, WaveEqualized;  // with the network's phase and without, divided by their peaks
  f32 PeakNormal = 0, PeakEqualized = 0;       // before that; 0 where there is no wave at all
};

// The waves behind the network of the record. A squarewave and the envelope of a burst have a point a degree, and as
// their peak the largest value; a burst has 2,048 points a period, the ones before it at times of their own, and as its
// peak the largest magnitude. `signal.SquareFreq`, and for a burst `CarrierFreq`, are above 0. Changes nothing of the
// design. Throws NumericFault when the network cannot be evaluated or a line leaves the range of 32 bits.
Waves ComputeWaves(const DesignRecord& record, const WaveEntries& signal);

// Whether a wave is so low behind the network that its shape says little.
bool IsLow(f32 peak);

// The waves that the signal's type of analysis shows.
bool ShowsNormal(const WaveEntries& signal);
bool ShowsEqualized(const WaveEntries& signal);

}  // namespace quilm
