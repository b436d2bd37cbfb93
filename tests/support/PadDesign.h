// A resistor of 50 ohms in the line between 50 ohms and 50 ohms, whose figures are known by heart: of the source's
// available power 4/9 reach the load at all frequencies, 3.52183 dB down; the input is 100 ohms, against 50 ohms a
// return of 1/3 or -9.54243 dB and a VSWR of 2. Swept from 1 to 100 MHz in 20 logarithmic intervals, with round scales.
#pragma once

#include "core/DesignRecord.h"
#include "core/ElementTypes.h"

namespace quilm {

inline void MakePad(DesignRecord& record) {
  record.Stages = 1;
  record.stage[1].ElementType = SeriesR;
  record.stage[1].Rval.value = 50;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  record.SweepMode = 2;
  record.Fstart = 1e6F;
  record.Fstop = 1e8F;
  record.NrIntervals = 20;
  record.NrXints = 4;
  record.NrYints = 6;
  record.LossBottom = -60;
  record.DelayTop = 1e-6F;
  record.VSWRTop = 4;
  record.ImpedanceTop = 200;
}

// A capacitor of 1 nF to common behind it, for a delay.
inline void AddCapacitorToPad(DesignRecord& record) {
  record.Stages = 2;
  record.stage[2].ElementType = ShuntC;
  record.stage[2].Cval.value = 1e-9F;
}

}  // namespace quilm
