#include "files/ReadDesign.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/LimitArea.h"
#include "core/NumericFault.h"
#include "core/Responses.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "files/LineReader.h"
#include "files/StageLine.h"
#include "network/DesignStanding.h"
#include "network/ManualNetwork.h"

namespace quilm {

namespace {

constexpr f32 smallestRatio = 1.001F;  // of stopband to passband edge
constexpr int mostMarkerWords = 10;
constexpr int mostZeros = 41;
constexpr std::size_t longestTitle = 80;

// Conversion stops at a comma: "1,5" is 1.
f64 PlainNumber(const std::string& word) {
  const f64 value = LeadingNumber(word);
  if (std::isinf(value)) throw NumericFault("Overflow");
  return value;
}

f32 Fitting(f64 value) {
  const f32 rounded = static_cast<f32>(value);
  if (!std::isfinite(rounded)) throw NumericFault("Overflow");
  return rounded;
}

f32 Engineering(std::string word) {
  f32 value = 0;
  ParseEntry(word, value);
  return value;
}

std::string UpperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

class Reader {
 public:
  Reader(std::istream& in, DesignRecord& record) : lines_(in), record_(record) {}

  void ReadAll(FileLayout& layout);

  const std::string& Marker() const { return marker_; }
  const std::string& LastLine() const { return lines_.Last(); }

 private:
  void TakeWords(const char* marker) {
    marker_ = marker;
    words_.Continue(lines_.Take());
  }
  f32 Plain() { return Fitting(PlainNumber(words_.Next())); }
  f64 PlainWhole() { return std::floor(PlainNumber(words_.Next())); }
  f32 Entry() { return Engineering(words_.Next()); }
  bool TakeAnswer() { return UpperCase(lines_.Take()) == "Y"; }

  void Identity();
  void DesignLine();
  void CauerCode(i16 code);
  void Frequencies();
  void Attenuations();
  void Terminations();
  void Qualities();
  void Prototype();
  void Stages();
  void ReadStage(Stage& stage);
  void Sweep();
  void Scales();
  void Limits();
  void LimitsOfPlot(int plot);
  void Markers();
  void Zeros();

  LineReader lines_;
  WordSplitter words_;
  DesignRecord& record_;
  std::string marker_ = "38";
  f64 promisedOrder_ = 0;  // what the design line counts; the record holds what fits
  f64 promisedStages_ = 0;
};

void Reader::Identity() {
  marker_ = "42";
  lines_.Take();  // the header is not examined: there is no version test
  marker_ = "46";
  record_.CircuitTitle = FirstCharacters(lines_.Take(), longestTitle);
  marker_ = "52";
  record_.DesignDate = lines_.Take();
  marker_ = "57";
  record_.AddedInfo = lines_.Take();
  if (record_.AddedInfo.size() < 2 || record_.AddedInfo.front() == '(') record_.AddedInfo = " ";
}

void Reader::DesignLine() {
  TakeWords("63");
  marker_ = "71";
  const i16 family = ToI16(PlainWhole());
  // Family 8 returns as a manual network too: its ladder is what counts.
  record_.Family = family < familyButterworth || family > familyMderived ? i16{familyManual} : family;
  marker_ = "78";
  promisedOrder_ = PlainWhole();
  record_.Order = std::min(Fitting(promisedOrder_), static_cast<f32>(record_.OrderMax));
  marker_ = "86";
  const i16 stages = ToI16(PlainWhole());
  promisedStages_ = stages;
  record_.Stages = std::clamp<i16>(stages, 0, record_.StagesMax);
  marker_ = "101";
  record_.Topology = UpperCase(words_.Next());
  marker_ = "106";
  // A network without a topology was entered by hand; its line is a word short.
  const bool noTopology =
      !record_.Topology.empty() && record_.Topology.find_first_not_of("0123456789.-+") == std::string::npos;
  if (noTopology) {
    record_.Topology = "M";
    CauerCode(0);
    return;
  }
  CauerCode(ToI16(PlainWhole()));
}

void Reader::CauerCode(i16 code) {
  static constexpr const char* marks[] = {"100", "105", "110", "115", "120", "125", "130"};
  record_.CauerFlag = code;
  if (code < 0 || code > 6) return;
  marker_ = marks[code];
  record_.CauerFlag = code == 0 ? 0 : 1;
  record_.CauerType = code == 0 ? "A" : std::string(1, static_cast<char>('A' + (code - 1) % 3));
  record_.CauerTop = code >= 4 ? 1 : 0;
}

void Reader::Frequencies() {
  TakeWords("136");
  record_.Width = Entry();
  record_.Fcenter = Entry();
  record_.FstopNorm = Entry();
  if (IsLowOrHighpass(record_.Topology)) record_.Fcenter = 0;
  record_.FstopNorm = std::max(record_.FstopNorm, smallestRatio);
  if (record_.CauerFlag == 1) record_.Fstopband = StopbandEdge(record_.Topology, record_.Width, record_.FstopNorm);
  if (record_.CauerFlag == 0) record_.FstopNorm = 0;
}

void Reader::Attenuations() {
  TakeWords("178");
  record_.Apass = Entry();
  record_.Astop = Entry();
  if (record_.Family == familyCauer) record_.Apass = std::max(record_.Apass, limitsOf::Apass.lowest);
}

void Reader::Terminations() {
  TakeWords("200");
  record_.Rsource[1] = Entry();
  record_.Rload[1] = Entry();
  record_.Rratio = Entry();
  record_.Rstandard = Entry();
  if (record_.Rstandard == 0) record_.Rstandard = record_.Rsource[1];
}

void Reader::Qualities() {
  TakeWords("232");
  record_.Qind[1] = Entry();
  record_.Qcap[1] = Entry();
}

// All lines that the count promises are taken, also those beyond what a record holds.
void Reader::Prototype() {
  for (f64 j = 1; j <= promisedOrder_; ++j) {
    TakeWords("250");
    const f32 g = Entry();
    const f32 h = Entry();
    if (j > record_.OrderMax) continue;
    record_.Gj[static_cast<int>(j)] = g;
    record_.Hj[static_cast<int>(j)] = h;
  }
}

void Reader::Stages() {
  for (f64 k = 1; k <= promisedStages_; ++k) {
    TakeWords("264");
    if (k <= record_.StagesMax) ReadStage(record_.stage[static_cast<int>(k)]);
  }
}

// A missing word would repeat the one before it, so what older files do not have is not asked for. Of the places of a
// pair the one that the type does not have is dropped.
void Reader::ReadStage(Stage& stage) {
  stage.ElementType = ToI16(Entry());
  for (const StageNumber& number : StageLine(stage.ElementType)) {
    if (!number.optional || words_.More()) number.field(stage) = Plain();
  }
  if (!HasSlot(stage.ElementType, SlotCode::Inductance)) stage.Lval = {};
  if (!HasSlot(stage.ElementType, SlotCode::Capacitance)) stage.Cval = {};
  HoldStubLength(stage);
}

// A count that misses a whole number by a thousandth is that number.
f32 WholeIfNear(f32 count) {
  const f32 whole = std::round(count);
  return std::fabs(count - whole) <= 0.001F ? whole : count;
}

// The number of intervals that a linear sweep's step stands for. The step is written with seven digits.
f32 IntervalsOfStep(f32 span, f32 step) {
  if (!(step > 0)) return limitsOf::NrIntervals.lowest;
  const f32 quotient = Fitting(static_cast<f64>(span) / static_cast<f64>(step));
  return std::min(WholeIfNear(quotient), limitsOf::NrIntervals.highest);
}

void Reader::Sweep() {
  TakeWords("446");
  const i16 mode = ToI16(static_cast<f64>(Plain()));
  record_.RelativeMode = mode < 0 ? 1 : 0;
  record_.AbsoluteMode = mode < 0 ? 0 : 1;
  record_.SweepMode = mode == -32768 ? i16{32767} : static_cast<i16>(std::abs(mode));
  record_.Fstart = Entry();
  record_.Fstop = Entry();
  if (record_.SweepMode == 1) {
    record_.NrIntervals = IntervalsOfStep(record_.Fstop - record_.Fstart, Plain());
  } else if (record_.SweepMode == 2) {
    record_.NrIntervals = limitsOf::NrIntervals.Held(WholeIfNear(Plain()));
  }
}

void Reader::Scales() {
  TakeWords("497");
  record_.LossBottom = -std::fabs(Plain());
  words_.Next();  // two fields that are written and never read
  words_.Next();
  record_.DelayTop = Entry();
  record_.VSWRTop = Entry();
  record_.ImpedanceTop = Entry();
  record_.NrXints = ToI16(static_cast<f64>(Entry()));
  record_.NrYints = std::floor(Entry());
}

void Reader::LimitsOfPlot(int plot) {
  marker_ = "Plot # " + std::to_string(plot) + " - 545";
  const std::string& countLine = lines_.Take();
  marker_ = "Number of limits:" + countLine + " - 545";
  const f64 count = PlainNumber(countLine);
  if (count > limitsPerPlot) throw BoundFault();
  record_.LimitCount[plot] = ToI16(count);
  for (int j = 1; j <= record_.LimitCount[plot]; ++j) {
    marker_ = "552";
    const std::string& row = lines_.Take();
    marker_ = "Limits entire line: " + row + " - 555";
    words_.Continue(row);
    for (auto* table :
         {&record_.LimitShape, &record_.LimitStart, &record_.LimitStop, &record_.LimitTop, &record_.LimitBottom}) {
      (*table)[j][plot] = Plain();
    }
  }
}

void Reader::Limits() {
  marker_ = "529";
  const bool present = TakeAnswer();
  marker_ = "Limits Y/N: " + lines_.Last() + " - 529";
  if (!present) return;
  record_.LimitsShown = 1;
  marker_ = " - 536";
  for (int plot = 1; plot <= plotTypes; ++plot) LimitsOfPlot(plot);
}

// Up to ten words are taken, of which the record keeps eight.
void Reader::Markers() {
  marker_ = "Now read markers - 584";
  if (!TakeAnswer()) return;
  TakeWords("Reading list of marker freqs - 584");
  for (int word = 1; words_.More(); ++word) {
    if (word > mostMarkerWords) throw BoundFault();
    const f32 freq = Entry();
    if (word <= markerCount) record_.MarkerFreq[word] = freq;
  }
}

void Reader::Zeros() {
  marker_ = "M-derived zeros Y/N - 626";
  if (!TakeAnswer()) return;
  TakeWords("Reading list of zeros - 632");
  for (int word = 1; words_.More(); ++word) {
    if (word > mostZeros) throw BoundFault();
    record_.MderivedZero[word] = Entry();
  }
}

void Reader::ReadAll(FileLayout& layout) {
  Identity();
  DesignLine();
  Frequencies();
  Attenuations();
  Terminations();
  Qualities();
  Prototype();
  Stages();
  Sweep();
  Scales();
  Limits();
  marker_ = "568";
  if (lines_.AtEnd()) {
    layout = FileLayout::WithoutMarkers;
    return;
  }
  Markers();
  marker_ = "Finished reading marker freqs - 610";
  if (lines_.AtEnd()) {
    layout = FileLayout::WithoutZeros;
    return;
  }
  Zeros();
}

}  // namespace

void ClearCircuit(DesignRecord& record, Responses& responses) {
  ClearResponses(responses, record.NrIntervals);
  record.stage.Fill({});
  record.NrIntervals = 0;
  record.Rsource.Fill(0);
  record.Rload.Fill(0);
  EraseAllAreas(record);
  record.LimitsShown = 0;
  record.MarkerFreq.Fill(0);
  record.MarkersShown = 0;  // those of a file wait until they are asked for
  record.MderivedZero.Fill(0);
  record.Gj.Fill(0);
  record.Hj.Fill(0);
  record.Apass = record.Astop = record.Width = record.Fcenter = record.Fstopband = 0;
  record.Family = familyNone;
  record.SweepMode = 0;
  record.Order = 0;
  record.Stages = 0;
  record.Rstandard = 0;
  record.NrYints = 6;
  record.DelayTop = 6;
  record.ImpedanceTop = 6;
  record.NrXints = 10;
  record.VSWRTop = 7;
}

ReadOutcome ReadDesign(std::istream& in, DesignRecord& record) {
  ReadOutcome outcome;
  Reader reader(in, record);
  try {
    reader.ReadAll(outcome.layout);
  } catch (const Fault& fault) {
    outcome = {true, outcome.layout, reader.LastLine(), reader.Marker(), fault.what()};
    record.Stages = 0;
  }
  // A file is read as it stands; a hand-made network in it is known by its family.
  ForgetNetwork(record);
  return outcome;
}

}  // namespace quilm
