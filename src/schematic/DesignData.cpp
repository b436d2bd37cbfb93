#include "schematic/DesignData.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"
#include "core/NumberText.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr const char* none = "(None)";

using Formatter = std::string (*)(f32);

std::string Text(f32 value, Formatter format) { return Trimmed(format(value)); }

std::optional<PartRange> RangeOf(const Network& network, SlotCode part) {
  std::optional<PartRange> range;
  for (int s = 1; s <= network.Stages; ++s) {
    for (const Slot& slot : SlotsOf(network.stage[s].ElementType)) {
      const f32 value = std::fabs(slot.value(network.stage[s]));
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
void AddStopband(std::vector<DataRow>& rows, const DesignRecord& record, DataFor whom) {
  if (record.Family != familyCauer) return;
  const std::string stopband = whom == DataFor::Page ? "Cauer LP stopband " : "Stopband ";
  const f32 edge = CauerStopband(record);
  if (edge > 0) rows.push_back({stopband + "freq:  " + Text(edge, FormatFrequency), "Hz"});
  if (record.Astop > 0) rows.push_back({stopband + "depth:  " + Text(record.Astop, FormatValue), "dB"});
}

DataGroup EntryGroup(const DesignRecord& record, DataFor whom) {
  std::vector<DataRow> rows;
  if (record.Width > 0) rows.push_back({"Bandwidth:  " + Text(record.Width, FormatFrequency), "Hz"});
  if (record.Fcenter > 0) rows.push_back({"Center:  " + Text(record.Fcenter, FormatFrequency), "Hz"});
  const std::string family = FamilyName(record.Family);
  if (!family.empty()) rows.push_back({"Family:  " + family});
  if (record.Family != familyManual) {
    constexpr int decimals = 7;
    if (record.Apass > 0) {
      rows.push_back({"Passband ripple:  " + ShortText(RoundedTo(record.Apass, decimals), LeadingZero::Drop), "dB"});
    }
    AddStopband(rows, record, whom);
  }
  return {"Design data:", rows};
}

DataGroup Extremes(const Network& network) {
  const auto capacitors = CapacitorRange(network);
  const auto inductors = InductorRange(network);
  return {"",
          {{"Largest capacitor: " + (capacitors ? Text(capacitors->largest, FormatCapacitance) : none)},
           {"Smallest capacitor: " + (capacitors ? Text(capacitors->smallest, FormatCapacitance) : none)},
           {"Largest inductor: " + (inductors ? Text(inductors->largest, FormatInductance) : none)},
           {"Smallest inductor: " + (inductors ? Text(inductors->smallest, FormatInductance) : none)}}};
}

}  // namespace

std::optional<PartRange> CapacitorRange(const Network& network) { return RangeOf(network, SlotCode::Capacitance); }

std::optional<PartRange> InductorRange(const Network& network) { return RangeOf(network, SlotCode::Inductance); }

std::string CapacitorRatioText(const Network& network) { return "Capacitors: " + RatioText(CapacitorRange(network)); }

std::string InductorRatioText(const Network& network) { return "Inductors: " + RatioText(InductorRange(network)); }

std::vector<DataGroup> DesignData(const DesignRecord& record, DataFor whom) {
  if (!(record.Width > 0 || record.Fcenter > 0 || record.Apass > 0 || record.Family != familyNone)) return {};
  return {EntryGroup(record, whom),
          {"Q values:",
           {{"Inductors: " + Text(record.Qind[1], FormatValue)}, {"Capacitors: " + Text(record.Qcap[1], FormatValue)}}},
          {"Maximum / minimum ratios:", {{CapacitorRatioText(record)}, {InductorRatioText(record)}}},
          Extremes(record)};
}

namespace {

constexpr f32 rowPitch = 240;

}  // namespace

f32 DesignDataHeight(const DesignRecord& record) {
  std::size_t rows = 0;
  for (const DataGroup& group : DesignData(record)) rows = std::max(rows, group.rows.size() + 1);
  return rowPitch * static_cast<f32>(rows);
}

void DrawDesignData(const DesignRecord& record, f32 left, f32 top, Canvas& canvas, DataFor whom) {
  constexpr f32 columnPitches[] = {2800, 1700, 2500, 2500};
  constexpr f32 unitGap = 15;
  const PenScope pen(canvas);
  canvas.ForeColor = colorBlack;
  f32 x = left;
  std::size_t column = 0;
  for (const DataGroup& group : DesignData(record, whom)) {
    canvas.FontBold = true;
    if (!group.heading.empty()) canvas.PrintAt(x, top, group.heading);
    canvas.FontBold = false;
    f32 y = top;
    for (const DataRow& row : group.rows) {
      canvas.PrintAt(x, y += rowPitch, row.text);
      if (!row.unit.empty()) canvas.PrintAt(x + canvas.TextWidth(row.text) + unitGap, y, row.unit);
    }
    x += columnPitches[column++];
  }
}

}  // namespace quilm
