#include "schematic/DesignData.h"

#include <algorithm>
#include <cmath>

#include "core/ElementCatalogue.h"
#include "core/NumberText.h"
#include "core/Topology.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr const char* none = "(None)";

using Formatter = std::string (*)(f32);

std::string Text(f32 value, Formatter format) { return Trimmed(format(value)); }

std::optional<PartRange> RangeOf(const DesignRecord& record, SlotCode part) {
  std::optional<PartRange> range;
  for (int s = 1; s <= record.Stages; ++s) {
    for (const Slot& slot : SlotsOf(record.stage[s].ElementType)) {
      const f32 value = std::fabs(slot.value(record.stage[s]));
      if (slot.code != part || value == 0) continue;
      if (!range) range = PartRange{value, value};
      range->largest = std::max(range->largest, value);
      range->smallest = std::min(range->smallest, value);
    }
  }
  return range;
}

std::string RatioText(const std::optional<PartRange>& range) {
  return range ? Text(range->largest / range->smallest, FormatValue) : none;
}

// The stopband's edge follows from the prototype where there is one: an even order has it as a result.
f32 CauerStopband(const DesignRecord& record) {
  if (!(record.FstopNorm > 0)) return record.Fstopband;
  return StopbandEdge(record.Topology, record.Width, record.FstopNorm);
}

// Cauer data of the lowpass that the design is made of.
void AddStopband(std::vector<std::string>& rows, const DesignRecord& record) {
  if (record.Family != familyCauer) return;
  const f32 edge = CauerStopband(record);
  if (edge > 0) rows.push_back("Cauer LP stopband freq:  " + Text(edge, FormatFrequency));
  if (record.Astop > 0) rows.push_back("Cauer LP stopband depth:  " + Text(record.Astop, FormatValue));
}

DataGroup EntryGroup(const DesignRecord& record) {
  std::vector<std::string> rows;
  if (record.Width > 0) rows.push_back("Bandwidth:  " + Text(record.Width, FormatFrequency));
  if (record.Fcenter > 0) rows.push_back("Center:  " + Text(record.Fcenter, FormatFrequency));
  const std::string family = FamilyName(record.Family);
  if (!family.empty()) rows.push_back("Family:  " + family);
  if (record.Family != familyManual) {
    constexpr int decimals = 7;
    if (record.Apass > 0) {
      rows.push_back("Passband ripple:  " + ShortText(RoundedTo(record.Apass, decimals), LeadingZero::Drop));
    }
    AddStopband(rows, record);
  }
  return {"Design data:", rows};
}

DataGroup Extremes(const DesignRecord& record) {
  const auto capacitors = CapacitorRange(record);
  const auto inductors = InductorRange(record);
  return {"",
          {"Largest capacitor: " + (capacitors ? Text(capacitors->largest, FormatCapacitance) : none),
           "Smallest capacitor: " + (capacitors ? Text(capacitors->smallest, FormatCapacitance) : none),
           "Largest inductor: " + (inductors ? Text(inductors->largest, FormatInductance) : none),
           "Smallest inductor: " + (inductors ? Text(inductors->smallest, FormatInductance) : none)}};
}

}  // namespace

std::optional<PartRange> CapacitorRange(const DesignRecord& record) { return RangeOf(record, SlotCode::Capacitance); }

std::optional<PartRange> InductorRange(const DesignRecord& record) { return RangeOf(record, SlotCode::Inductance); }

std::string CapacitorRatioText(const DesignRecord& record) {
  return "Capacitors: " + RatioText(CapacitorRange(record));
}

std::string InductorRatioText(const DesignRecord& record) { return "Inductors: " + RatioText(InductorRange(record)); }

std::vector<DataGroup> DesignData(const DesignRecord& record) {
  if (!(record.Width > 0 || record.Fcenter > 0 || record.Apass > 0 || record.Family != familyNone)) return {};
  return {EntryGroup(record),
          {"Q values:",
           {"Inductors: " + Text(record.Qind[1], FormatValue), "Capacitors: " + Text(record.Qcap[1], FormatValue)}},
          {"Maximum / minimum ratios:", {CapacitorRatioText(record), InductorRatioText(record)}},
          Extremes(record)};
}

void DrawDesignData(const DesignRecord& record, f32 left, f32 top, Canvas& canvas) {
  constexpr f32 columnPitches[] = {3600, 2100, 2900, 2900};
  constexpr f32 rowPitch = 270;
  constexpr f32 size = 9;  // points
  canvas.ForeColor = colorBlack;
  canvas.FontSize = size;
  f32 x = left;
  std::size_t column = 0;
  for (const DataGroup& group : DesignData(record)) {
    canvas.FontBold = true;
    if (!group.heading.empty()) canvas.PrintAt(x, top, group.heading);
    canvas.FontBold = false;
    f32 y = top;
    for (const std::string& row : group.rows) canvas.PrintAt(x, y += rowPitch, row);
    x += columnPitches[column++];
  }
}

}  // namespace quilm
