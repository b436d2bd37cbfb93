// The lines of a test signal's spectrum behind the network.
#pragma once

#include <vector>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

struct WaveLine {
  f32 LineAmp = 0;    // times the amplitude of the signal
  f32 LinePhase = 0;  // degrees
};

inline constexpr int squareLinesEnd = 512;  // no line of the squarewave from here on
inline constexpr int burstLines = 256;      // at each side of the carrier

// The odd lines 1, 3, 5, ... of a squarewave between -1 and 1: line n is 1/n times as large in the signal, which is
// left to the sum, and 4 / Pi, which is in the amplitude. The list ends with the sixth line in a row whose amplitude is
// below 0.001, and with line 511 at the latest. `SquareFreq` is the fundamental in Hz. Changes nothing of the design.
// Throws NumericFault like ResponseAtLines, and when an amplitude leaves the range of 32 bits.
std::vector<WaveLine> SquarewaveLines(const DesignRecord& record, f32 SquareFreq);

struct BurstLines {
  WaveLine carrier;
  std::vector<WaveLine> lower;  // 1..burstLines below the carrier, from index 0
  std::vector<WaveLine> upper;
};

// The lines of a carrier that a squarewave switches on and off (Hz both). Their amplitudes taper by (1 - n / 1000)^2,
// which takes the ringing of the finite sum away. A lower line at exactly 0 Hz is 0. Throws likewise.
BurstLines LinesOfBurst(const DesignRecord& record, f32 SquareFreq, f32 CarrierFreq);

}  // namespace quilm
