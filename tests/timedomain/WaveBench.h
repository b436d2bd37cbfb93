// Networks whose waves are known by heart.
#pragma once

#include "core/DesignRecord.h"
#include "core/ElementTypes.h"

namespace quilm {

inline DesignRecord Between50Ohms() {
  DesignRecord record;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = record.Qcap[1] = 1e7F;
  record.Width = 1e6F;
  return record;
}

// A single stage of one value.
inline DesignRecord WithStage(i16 type, PartValue Stage::*part, f32 value) {
  DesignRecord record = Between50Ohms();
  record.Stages = 1;
  record.stage[1].ElementType = type;
  (record.stage[1].*part).value = value;
  return record;
}

// 100 ohms in the line: half the voltage at every frequency, without any phase.
inline DesignRecord Pad() { return WithStage(SeriesR, &Stage::Rval, 100); }

// A line of 50 ohms: nothing is lost, and all frequencies are late by so many degrees of 1 kHz.
inline DesignRecord DelayLine(f32 degrees) {
  DesignRecord record = Between50Ohms();
  record.Stages = 1;
  record.stage[1].ElementType = TransLine;
  record.stage[1].TLval = {.degrees = degrees, .freq = 1000, .impedance = 50};
  return record;
}

}  // namespace quilm
