// The ladder of the measurements of runs: 21 stages of inductors and capacitors, 2,050 points, steps of 5 per cent, and
// two limit areas that it cannot meet, so that no run ends early.
#pragma once

#include <array>
#include <random>

#include "support/RandomLadder.h"

namespace quilm {

inline constexpr int trialStages = 21;
inline constexpr int trialPoints = 2050;

inline DesignRecord TrialLadder() {
  constexpr std::array<i16, 8> types = {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, trialStages, types);
  for (int s = 1; s <= record.Stages; ++s) record.stage[s].Lval.tolerance = record.stage[s].Cval.tolerance = 5;
  record.LimitsShown = 1;
  record.LimitCount[1] = 2;
  record.LimitShape[1][1] = 1;  // a floor of 0 dB up to 100 MHz
  record.LimitStart[1][1] = 0.01F;
  record.LimitStop[1][1] = 1e8F;
  record.LimitShape[2][1] = 6;  // a ceiling between two frequencies
  record.LimitStart[2][1] = 1e6F;
  record.LimitStop[2][1] = 1e7F;
  record.LimitBottom[2][1] = -300;
  record.DelayTop = 1e-4F;
  record.LossBottom = -60;
  record.VSWRTop = 5;
  record.ImpedanceTop = 100;
  record.NrXints = 10;
  record.NrYints = 6;
  record.PlotCode = 1;
  record.Family = 11;
  record.NetworkEdited = 1;
  return record;
}

}  // namespace quilm
