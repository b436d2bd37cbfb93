// What waves are measured with: a long network that lets all lines of a signal through.
#pragma once

#include "core/DesignRecord.h"
#include "core/ElementTypes.h"

namespace quilm {

inline constexpr f32 squareFreq = 1e6F;
inline constexpr f32 carrierFreq = 300e6F;

// A lowpass of 43 stages and 1 GHz: a squarewave of 1 MHz has all its 256 lines.
inline DesignRecord WideLowpass() {
  constexpr f64 width = 1e9;
  constexpr f64 ohms = 50;
  DesignRecord record;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = static_cast<f32>(ohms);
  record.Qind[1] = 200;
  record.Qcap[1] = 1000;
  record.Width = static_cast<f32>(width);
  record.Stages = stagesLimit;
  for (int s = 1; s <= stagesLimit; ++s) {
    Stage& stage = record.stage[s];
    stage.ElementType = s % 2 == 1 ? ShuntC : SeriesL;
    stage.Cval.value = s % 2 == 1 ? static_cast<f32>(2 / (2 * Pi * width * ohms)) : 0;
    stage.Lval.value = s % 2 == 0 ? static_cast<f32>(2 * ohms / (2 * Pi * width)) : 0;
  }
  return record;
}

}  // namespace quilm
