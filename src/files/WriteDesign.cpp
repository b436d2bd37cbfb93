#include "files/WriteDesign.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <vector>

#include "core/DesignRecord.h"
#include "core/NumberText.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "files/StageLine.h"

namespace quilm {

namespace {

constexpr f32 highestVSWR = 7;
constexpr std::size_t longestTitle = 80;

class Writer {
 public:
  void Line(const std::string& text) {
    text_ += text;
    text_ += "\r\n";
  }
  void Numbers(std::initializer_list<f32> values) { Numbers(std::span(values.begin(), values.size())); }
  void Numbers(std::span<const f32> values) {
    for (const f32 value : values) text_ += NumText(value);
    Line({});
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

// Packs CauerFlag, CauerType and CauerTop.
i16 CauerCode(const DesignRecord& record) {
  if (record.CauerFlag == 0) return 0;
  const int type = record.CauerType == "B" ? 2 : record.CauerType == "C" ? 3 : 1;
  return static_cast<i16>(record.CauerTop == 1 ? type + 3 : type);
}

void WriteHead(DesignRecord& record, const std::string& date, Writer& out) {
  out.Line("Quilm circuit file " + std::to_string(record.StagesMax));
  out.Line(record.CircuitTitle.size() < 2 ? "Untitled" : FirstCharacters(record.CircuitTitle, longestTitle));
  out.Line(date);
  out.Line("* Added Information:");
  if (record.AddedInfo.size() < 2 || record.AddedInfo.front() == '(') record.AddedInfo = " ";
  out.Line(record.AddedInfo);
}

void WriteEntries(DesignRecord& record, Writer& out) {
  out.Line("* Family, order, stages, topology, Cauer:");
  // A network entered by hand need not have a topology; its letter is "M".
  const std::string topology = record.Topology.empty() ? "M" : record.Topology;
  out.Line(NumText(record.Family) + NumText(record.Order) + NumText(record.Stages) + topology +
           NumText(CauerCode(record)));
  if (IsLowOrHighpass(record.Topology)) record.Fcenter = 0;
  if (record.CauerFlag == 0) record.FstopNorm = 0;
  out.Line("* Width, center, Fstop normalized:");
  out.Numbers({record.Width, record.Fcenter, record.FstopNorm});
  out.Line("* Apass, Astop:");
  out.Numbers({record.Apass, record.Astop});
  out.Line("* Rsource, Rload, Rratio, Rstandard:");
  out.Numbers({record.Rsource[1], record.Rload[1], record.Rratio, record.Rstandard});
  out.Line("* Qind, Qcap:");
  out.Numbers({record.Qind[1], record.Qcap[1]});
}

void WritePrototype(const DesignRecord& record, Writer& out) {
  out.Line("* Gj, Hj:");
  if (record.Order < 1) out.Line("* (no normalized values)");
  for (int j = 1; static_cast<f32>(j) <= record.Order; ++j) out.Numbers({record.Gj[j], record.Hj[j]});
}

bool Holds(const DesignRecord& record, std::initializer_list<i16> types) {
  for (int s = 1; s <= record.Stages; ++s) {
    if (std::find(types.begin(), types.end(), record.stage[s].ElementType) != types.end()) return true;
  }
  return false;
}

// An empty place and a form of entry have no line.
void WriteStage(Stage& stage, Writer& out) {
  const std::vector<StageNumber> numbers = StageLine(stage.ElementType);
  if (numbers.empty()) return;
  HoldStubLength(stage);
  std::vector<f32> line = {static_cast<f32>(stage.ElementType)};
  for (const StageNumber& number : numbers) line.push_back(number.field(stage));
  out.Numbers(line);
}

void WriteStages(DesignRecord& record, Writer& out) {
  out.Line("* Element type, L, Ltolerance, C, Ctolerance");
  if (Holds(record, {SeriesR, ShuntR})) out.Line("*            or  R, Rtolerance:");
  if (Holds(record, {TransLine})) out.Line("*            or  TLdegrees, TLfreq, TLimpedance:");
  if (Holds(record, {Transformer})) out.Line("*            or turns ratio, pri to sec:");
  for (int s = 1; s <= record.Stages; ++s) WriteStage(record.stage[s], out);
}

// The last field of the sweep line: a step for a linear sweep, a number of intervals for a logarithmic one.
std::string SweepField(const DesignRecord& record) {
  if (record.SweepMode == 1) {
    // Below 8 intervals the step is written as 0, which every reader of the format takes for 4 intervals.
    return NumText(record.NrIntervals >= 8 ? (record.Fstop - record.Fstart) / record.NrIntervals : 0.0F);
  }
  if (record.SweepMode == 2) return record.NrIntervals <= 10 ? NumText(i16{10}) : NumText(record.NrIntervals);
  return NumText(i16{8});
}

void WriteSweepAndScales(const DesignRecord& record, Writer& out) {
  out.Line("* Lin or log, Fstart, Fstop, Fstep or NrIntervals:");
  const i16 mode = record.RelativeMode == 1 ? static_cast<i16>(-record.SweepMode) : record.SweepMode;
  out.Line(NumText(mode) + NumText(record.Fstart) + NumText(record.Fstop) + SweepField(record));
  out.Line("* Graph scales:");
  // The second field is a constant that readers skip.
  out.Numbers({record.LossBottom, 0, record.DelayBottom, record.DelayTop, std::min(record.VSWRTop, highestVSWR),
               record.ImpedanceTop, static_cast<f32>(record.NrXints), record.NrYints});
}

constexpr std::array<const char*, plotTypes> plotNames = {"transmission plot", "return plot", "transmission angle plot",
                                                          "group delay plot",  "VSWR plot",   "input impedance plot"};

// Rows are counted, then numbered from 1 to the count: a gap in the table loses the rows behind it. The numbering is
// the format's, and its other readers count on it.
void WriteLimitsOfPlot(const DesignRecord& record, int plot, Writer& out) {
  const int count = record.LimitCount[plot];
  out.Line(std::to_string(count) + " limits for " + plotNames[static_cast<std::size_t>(plot - 1)] +
           (count > 0 ? ":" : ""));
  for (int j = 1; j <= count; ++j) {
    if (!(record.LimitShape[j][plot] > 0)) continue;
    std::string row;
    for (const auto* table :
         {&record.LimitShape, &record.LimitStart, &record.LimitStop, &record.LimitTop, &record.LimitBottom}) {
      row += NumText((*table)[j][plot]) + "  ";
    }
    out.Line(row);
  }
}

void WriteLimits(DesignRecord& record, Writer& out) {
  bool any = false;
  for (int plot = 1; plot <= plotTypes; ++plot) {
    i16 count = 0;
    for (int j = 1; j <= limitsPerPlot; ++j) count = static_cast<i16>(count + (record.LimitShape[j][plot] > 0 ? 1 : 0));
    record.LimitCount[plot] = count;
    any = any || count > 0;
  }
  out.Line("* Limits Y/N:");
  out.Line(any ? "Y" : "N");
  if (!any) return;
  out.Line("* Limits shape/start/stop/top/bottom:");
  for (int plot = 1; plot <= plotTypes; ++plot) WriteLimitsOfPlot(record, plot, out);
}

void WriteMarkersAndZeros(const DesignRecord& record, Writer& out) {
  std::string markers;
  for (const f32 freq : record.MarkerFreq) {
    if (freq > 0) markers += NumText(freq);
  }
  out.Line("* Markers Y/N:");
  out.Line(markers.empty() ? "N" : "Y");
  if (!markers.empty()) {
    out.Line("* Marker frequencies:");
    out.Line(markers);
  }
  out.Line("* M-derived zeros Y/N:");
  out.Line(record.Family == familyMderived ? "Y" : "N");
  if (record.Family != familyMderived) return;
  out.Line("* Data:");
  const auto& zeros = record.MderivedZero;
  out.Numbers({zeros[1], zeros[2], zeros[3], zeros[4], zeros[5]});
}

}  // namespace

std::string DesignText(DesignRecord& record, const std::string& date) {
  Writer out;
  WriteHead(record, date, out);
  WriteEntries(record, out);
  WritePrototype(record, out);
  WriteStages(record, out);
  WriteSweepAndScales(record, out);
  WriteLimits(record, out);
  WriteMarkersAndZeros(record, out);
  return out.Take();
}

int StageWithoutLine(const Network& network) {
  for (int s = 1; s <= network.Stages; ++s) {
    if (StageLine(network.stage[s].ElementType).empty()) return s;
  }
  return 0;
}

}  // namespace quilm
