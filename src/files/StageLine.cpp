#include "files/StageLine.h"

#include <algorithm>

namespace quilm {

namespace {

constexpr f32 shortestStub = 1E-06F;  // degrees

using Line = std::vector<StageNumber>;

// The tolerances of plain parts stood in the first layout of the file; all others were appended later.
void AddColumn(Line& line, StageColumn column, bool optionalTolerances) {
  for (const Slot& slot : SlotsIn(column)) line.push_back({slot.value});
  for (const Slot& slot : SlotsIn(column)) {
    if (slot.tolerance) line.push_back({slot.tolerance, optionalTolerances});
  }
}

}  // namespace

std::vector<StageNumber> StageLine(i16 elementType) {
  const auto has = [elementType](SlotCode slot) { return HasSlot(elementType, slot); };
  Line line;
  if (has(SlotCode::Inductance) || has(SlotCode::Capacitance)) {
    AddColumn(line, StageColumn::L, false);
    AddColumn(line, StageColumn::C, false);
  }
  if (has(SlotCode::Resistance)) AddColumn(line, StageColumn::R, false);
  if (has(SlotCode::LineLength)) AddColumn(line, StageColumn::Line, true);
  if (has(SlotCode::TurnsRatio)) AddColumn(line, StageColumn::Turns, true);
  if (has(SlotCode::Coupling)) AddColumn(line, StageColumn::Coupled, true);
  return line;
}

void HoldStubLength(Stage& stage) {
  if (stage.ElementType != SeriesOpenStub && stage.ElementType != ShuntShortStub) return;
  stage.TLval.degrees = std::max(stage.TLval.degrees, shortestStub);
}

}  // namespace quilm
