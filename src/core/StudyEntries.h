// What was entered and chosen on the pages of the studies. It stays for the run of the program, so that another network
// is looked at with the signal of the last one.
#pragma once

#include "core/Types.h"

namespace quilm {

inline constexpr i16 squareWave = 1;
inline constexpr i16 burstWave = 2;
inline constexpr i16 envelopeWave = 3;  // of the burst

// The transient response. 0 stands for what was never entered.
struct WaveEntries {
  i16 WaveformType = squareWave;
  char AnalysisType = 'N';  // N normal, E delay equalized, B both
  f32 SquareFreq = 0;       // of the squarewave's fundamental, Hz
  f32 CarrierFreq = 0;      // of the burst, Hz
};

// The response to modulation. The carrier comes from the design.
struct ModulationEntries {
  f32 ModFstart = 20;    // lowest modulating frequency, Hz
  f32 ModFstop = 20000;  // highest one, Hz
  f32 ModBottom = -60;   // of the plot, dB
  i16 ModRelative = 0;   // 1: relative to the largest response
};

struct StudyEntries {
  WaveEntries wave;
  ModulationEntries modulation;
  i16 PhasePlotType = 1;  // 1 phase and best-fit line, 2 deviation from the line
};

}  // namespace quilm
