// Designs and lines for the tests of schematics.
#pragma once

#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"

namespace quilm {

// The values of a stage of its type: 10 uH, 1 nF, 75 ohms, a line of 90 degrees at 1 MHz, coils of 1 uH and 4 uH
// coupled by 0.5.
inline void SetValues(Stage& stage) {
  const i16 type = stage.ElementType;
  if (HasSlot(type, SlotCode::Inductance)) stage.Lval.value = 10e-6F;
  if (HasSlot(type, SlotCode::Capacitance)) stage.Cval.value = 1e-9F;
  if (HasSlot(type, SlotCode::Resistance)) stage.Rval.value = 75;
  if (HasSlot(type, SlotCode::LineLength)) stage.TLval = {90, 1e6F, 75, 0, 0};
  if (HasSlot(type, SlotCode::Coupling)) stage.CoupledVal = {1e-6F, 4e-6F, 0.5F, 0, 0, 0};
}

// Stages of these types between 50 ohms, with Q quoted at 1 MHz.
inline DesignRecord LadderOf(const std::vector<i16>& types) {
  DesignRecord record;
  for (const i16 type : types) {
    Stage& stage = record.stage[++record.Stages];
    stage.ElementType = type;
    SetValues(stage);
  }
  record.Rsource[1] = 50;
  record.Rload[1] = 50;
  record.Qind[1] = 200;
  record.Qcap[1] = 1000;
  record.Width = 1e6F;
  record.SweepMode = 2;
  record.Fstart = 1000;
  record.Fstop = 1e7F;
  record.NrIntervals = 1000;
  return record;
}

// The lines without their ends, CR LF; a line that ends otherwise shows it.
inline std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  while (from < text.size()) {
    const std::size_t end = text.find("\r\n", from);
    lines.push_back(end == std::string::npos ? text.substr(from) + "<no end>" : text.substr(from, end - from));
    from = end == std::string::npos ? text.size() : end + 2;
  }
  return lines;
}

}  // namespace quilm
