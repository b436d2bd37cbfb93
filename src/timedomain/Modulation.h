// The modulation response: what the filter does to the modulation of a carrier that passes through it, as a detector
// behind it sees it.
#pragma once

#include <vector>

#include "core/RecordFwd.h"
#include "core/StudyEntries.h"
#include "core/Types.h"

namespace quilm {

// How the modulating frequencies are spaced (2 is logarithmic, as in a sweep), and the index of the last one.
inline constexpr i16 ModSweepMode = 2;
inline constexpr i16 ModPoints = 2000;

// Ratios of voltage at each modulating frequency, 1 where all available power reaches the load.
struct Modulation {
  std::vector<f32> ModFreq;      // Hz
  std::vector<f32> ModLower;     // of the lower sideband
  std::vector<f32> ModUpper;     // of the upper one
  std::vector<f32> ModResponse;  // the mean of the two; relative to the largest one where that was asked for
};

// Makes entries such that a plot can be made: the bottom is minus its magnitude, -60 dB for 0; a start below 0.01 Hz is
// 0.01 Hz; a stop at or below the start is ten times the start.
void HoldModulation(ModulationEntries& entries);

// The carrier of a design, Hz: its centre, else its bandwidth, else the geometric mean of its sweep. 0 where the sweep
// has none.
f32 CarrierOf(const DesignRecord& record);

// The response of the design to the modulation of a carrier (Hz, above 0), over entries that were held. A modulating
// frequency above the carrier has its lower sideband below zero, where the ladder is analysed as it stands; one equal
// to it has none. Changes nothing of the design. Throws NumericFault when the frequency of the inductors' Q does not
// exist.
Modulation ComputeModulation(const DesignRecord& record, f32 ModCarrier, const ModulationEntries& entries);

}  // namespace quilm
