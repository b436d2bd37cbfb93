// A small design to optimise and to spread: a Butterworth lowpass of order 3 for 50 ohms and 1 MHz, swept in 100 steps
// from 100 kHz to 10 MHz.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/UniformNumbers.h"

namespace quilm {

// Prototype values 1, 2, 1 (any table of Butterworth filters) at 50 ohms and 2 pi 1 MHz.
inline DesignRecord SmallDesign(f32 stepsize) {
  DesignRecord record;
  record.Stages = 3;
  record.stage[1].ElementType = record.stage[3].ElementType = ShuntC;
  record.stage[1].Cval = record.stage[3].Cval = {3.1830989e-9F, stepsize};
  record.stage[2].ElementType = SeriesL;
  record.stage[2].Lval = {15.915494e-6F, stepsize};
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = 1000;
  record.Qcap[1] = 10000;
  record.Width = 1e6F;
  record.Fstart = 1e5F;
  record.Fstop = 1e7F;
  record.NrIntervals = 100;
  record.SweepMode = 2;
  record.DelayTop = 1e-6F;
  record.LossBottom = -60;
  return record;
}

// An area on the plot of the transmission.
inline void AddArea(DesignRecord& record, f32 shape, f32 start, f32 stop, f32 top, f32 bottom) {
  const int j = ++record.LimitCount[1];
  record.LimitShape[j][1] = shape;
  record.LimitStart[j][1] = start;
  record.LimitStop[j][1] = stop;
  record.LimitTop[j][1] = top;
  record.LimitBottom[j][1] = bottom;
}

// A floor in the passband and a ceiling in the stopband, which the design does not meet: at the last points within
// them, 0.955 MHz and 1.905 MHz, it has -2.45 dB and -16.88 dB, by 10 lg(1 + f^6).
inline void AddGoals(DesignRecord& record) {
  AddArea(record, 5, 1e5F, 9.6e5F, -1.6F, -300);
  AddArea(record, 6, 1.9e6F, 1e7F, 0, -18.5F);
}

class Trials : public testing::Test {
 protected:
  std::unique_ptr<DesignRecord> held = std::make_unique<DesignRecord>(SmallDesign(5));
  DesignRecord& record = *held;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
  UniformNumbers random;
};

}  // namespace quilm
