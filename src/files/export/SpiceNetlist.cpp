#include "files/export/SpiceNetlist.h"

#include <algorithm>
#include <string>

#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"
#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "files/export/CardText.h"
#include "files/export/SpiceTexts.h"

namespace quilm {

namespace {

constexpr int nodeIn = 1;
constexpr f32 commonOfSubcircuit = 1000;
constexpr f64 turn = 6.2831853;  // the series loss is defined with 2 Pi in eight digits
constexpr f32 leastSeriesLoss = 0.0001F;
constexpr f32 mostParallelLoss = 1E+7F;

// Print positions.
constexpr std::size_t atFirst = 8;
constexpr std::size_t atSecond = 14;
constexpr std::size_t atValue = 20;  // and the third node of a line
constexpr std::size_t atFourth = 26;
constexpr std::size_t atComment = 32;  // and the impedance of a line
constexpr std::size_t atCommonOfCoil = 13;

std::string Plain(f32 value) { return Trimmed(NumText(value)); }
std::string Digits(int number) { return std::to_string(number); }

// A value text as files hold it.
std::string Inductance(f32 henries) { return SpiceFix(SpiceInductance(henries)); }
std::string Capacitance(f32 farads) { return SpiceFix(SpiceCapacitance(farads)); }
std::string Resistance(f32 ohms) { return SpiceFix(SpiceResistance(ohms)); }
std::string QResistor(f32 ohms) { return SpiceFix(SpiceQResistor(ohms)); }
std::string Frequency(f32 hertz) { return SpiceFix(SpiceFrequency(hertz)); }

// "I" and "J" bear the same name: readers of the files know it so.
const char* TopologyText(std::string_view topology) {
  constexpr const char* names[] = {"Capacitor-input LPF",
                                   "Inductor-input LPF",
                                   "Nodal capacitor-coupled BPF",
                                   "Nodal inductor-coupled BPF",
                                   "Shunt-input geometrically-symmetrical BPF",
                                   "Series-input geometrically-symmetrical BPF",
                                   "Mesh-capacitor-coupled BPF",
                                   "Cauer-topology BPF",
                                   "Capacitor-input HPF",
                                   "Capacitor-input HPF",
                                   "Series-input Bandstop",
                                   "Shunt-input Bandstop",
                                   "Manually-entered circuit"};
  if (topology.size() != 1 || topology[0] < 'A' || topology[0] > 'M') return nullptr;
  return names[topology[0] - 'A'];
}

// An L, C and R side by side have no cards, nor has what is no element. The line runs through.
bool HasCards(const Element* element) {
  if (element == nullptr || element->joint == Joint::Reactance) return false;
  return element->joint != Joint::Parallel || !element->Has(SlotCode::Resistance);
}

// By how many nodes a stage moves the line on.
int Advance(const Stage& stage) {
  const Element* element = FindElement(stage.ElementType);
  if (!HasCards(element) || element->placement == Placement::Shunt) return 0;
  return element->joint == Joint::Chain ? static_cast<int>(element->slots.size()) : 1;
}

class Writer {
 public:
  Writer(const DesignRecord& record, SpiceFileKind kind)
      : record_(record), kind_(kind), common_(kind == SpiceFileKind::SUB ? commonOfSubcircuit : 0) {}

  // Fails with a Fault at the card that it has come to.
  void Write(std::string_view date) {
    Fq_ = SpiceReferenceFrequency(record_);
    if (kind_ == SpiceFileKind::CIR) {
      WriteDeckHead(date);
    } else {
      WriteSubcircuitHead(date);
    }
    for (k_ = 1; k_ <= record_.Stages; ++k_) WriteStage(record_.stage[k_]);
    if (kind_ == SpiceFileKind::CIR) {
      WriteDeckEnd();
    } else {
      out_.Line(".ENDS Filter");
    }
  }

  std::string Take() { return out_.Take(); }

  // Where a fault came up, in words.
  std::string Place() const { return k_ >= 1 && k_ <= record_.Stages ? " in stage " + Digits(k_) : std::string(); }

 private:
  int Ground() const { return static_cast<int>(common_); }
  int Inner() const { return 10 * k_; }

  void WriteDeckHead(std::string_view date);
  void WriteDesign();
  void WriteSweep();
  void WriteDeckEnd();
  void WriteSubcircuitHead(std::string_view date);

  void Begin(const std::string& name, int n1, int n2);
  void InductorCard(int n1, int n2);
  void CapacitorCard(int n1, int n2);
  void ResistorCard(int n1, int n2);
  void LineCard(int n1, int n2, int n3, int n4, std::size_t fourthColumn = atFourth);
  void PathCard(int n3);
  void CoilCard(int number, int node, const std::string& value, const char* comment);
  void CoupledCards(int n1, int n2, const std::string& primary, const std::string& secondary, const std::string& k);

  int Next();
  void InLine(const Element& element);
  void ToCommon(const Element& element);
  void DampedToCommon();
  void SideBySide(const Element& element);
  void Line(const Element& element);
  void Coupled(const Element& element);
  void WriteStage(const Stage& stage);

  const DesignRecord& record_;
  SpiceFileKind kind_;
  f32 common_;
  CardText out_;
  f32 Fq_ = 0;
  int k_ = 0;  // the stage in hand
  int nodeNow_ = nodeIn + 1;
  i16 Lcount_ = 0;
  i16 Ccount_ = 0;
  i16 Rcount_ = 0;
  i16 Tcount_ = 0;
};

// ---- cards ----------------------------------------------------------------------------------------------------------

void Writer::Begin(const std::string& name, int n1, int n2) {
  out_.Print(name);
  out_.At(atFirst);
  out_.Print(Digits(n1));
  out_.At(atSecond);
  out_.Print(Digits(n2));
  out_.At(atValue);
}

void Writer::InductorCard(int n1, int n2) {
  const f32 henries = record_.stage[k_].Lval.value;
  Begin("L" + Digits(++Lcount_), n1, Inner());
  out_.Line(Inductance(henries));
  const f32 Rser = std::max(SpiceSeriesLoss(record_, Fq_, henries, turn), leastSeriesLoss);
  Begin("R" + Digits(++Rcount_), Inner(), n2);
  out_.Print(QResistor(Rser));
  out_.At(atComment);
  out_.Line(";Qind");
}

void Writer::CapacitorCard(int n1, int n2) {
  const f32 farads = record_.stage[k_].Cval.value;
  Begin("C" + Digits(++Ccount_), n1, n2);
  out_.Line(Capacitance(farads));
  const f32 Rpar = std::min(SpiceParallelLoss(record_, Fq_, farads), mostParallelLoss);
  Begin("Rpar" + Digits(Ccount_), n1, n2);
  out_.Print(QResistor(Rpar));
  out_.At(atComment);
  out_.Line(";Qcap");
}

void Writer::ResistorCard(int n1, int n2) {
  Begin("R" + Digits(++Rcount_), n1, n2);
  out_.Line(Plain(record_.stage[k_].Rval.value));
}

void Writer::LineCard(int n1, int n2, int n3, int n4, std::size_t fourthColumn) {
  const LineValue& line = record_.stage[k_].TLval;
  NumericFaultScope scope;
  const f32 delay = scope.Store(static_cast<f64>(line.degrees) / 360 / static_cast<f64>(line.freq));
  Begin("T" + Digits(++Tcount_), n1, n2);
  out_.Print(Digits(n3));
  out_.At(fourthColumn);
  out_.Print(Digits(n4));
  out_.At(atComment);
  out_.Print("Zo=" + Plain(line.impedance) + " Td=" + Plain(delay));
  out_.Line(line.degrees <= 0 ? " ;observe length" : "");
}

// A simulator needs a path for direct current from every node.
void Writer::PathCard(int n3) {
  out_.Print("R" + Digits(Inner()));
  out_.At(atFirst);
  out_.Print(Digits(n3));
  out_.At(atSecond);
  out_.Print(NumText(common_));
  out_.At(atValue);
  out_.Print("1G");
  out_.At(atComment);
  out_.Line(";path");
  out_.EndLine();
}

void Writer::CoilCard(int number, int node, const std::string& value, const char* comment) {
  out_.Print("L" + Digits(number));
  out_.At(atFirst);
  out_.Print(Digits(node));
  out_.At(atCommonOfCoil);
  out_.Print(NumText(common_));
  out_.At(atValue);
  out_.Print(value);
  out_.At(atComment);
  out_.Line(comment);
}

void Writer::CoupledCards(int n1, int n2, const std::string& primary, const std::string& secondary,
                          const std::string& k) {
  const int a = ++Lcount_;
  CoilCard(a, n1, primary, ";pri");
  const int b = ++Lcount_;
  CoilCard(b, n2, secondary, ";sec");
  out_.Print("K" + Digits(a) + Digits(b));
  out_.At(atFirst);
  out_.Print("L" + Digits(a));
  out_.At(atSecond);
  out_.Print("L" + Digits(b));
  out_.At(atValue);
  out_.Print(k);
  out_.At(atComment);
  out_.Line(";K");
}

// ---- stages ---------------------------------------------------------------------------------------------------------

// Moves the line on by a node.
int Writer::Next() { return ++nodeNow_; }

void Writer::InLine(const Element& element) {
  for (const Slot& slot : element.slots) {
    const int n1 = nodeNow_;
    const int n2 = Next();
    if (slot.code == SlotCode::Inductance) InductorCard(n1, n2);
    if (slot.code == SlotCode::Capacitance) CapacitorCard(n1, n2);
    if (slot.code == SlotCode::Resistance) ResistorCard(n1, n2);
  }
}

// The line does not move on: the inner nodes are those of the next stages, if these have any. Other programs read the
// file so.
void Writer::DampedToCommon() {
  InductorCard(nodeNow_, nodeNow_ + 1);
  ResistorCard(nodeNow_ + 1, nodeNow_ + 2);
  CapacitorCard(nodeNow_ + 2, Ground());
}

void Writer::ToCommon(const Element& element) {
  const bool inductor = element.Has(SlotCode::Inductance);
  const bool capacitor = element.Has(SlotCode::Capacitance);
  const bool resistor = element.Has(SlotCode::Resistance);
  if (inductor && capacitor && resistor) return DampedToCommon();
  const int between = Inner() + 1;
  if (inductor) InductorCard(nodeNow_, capacitor ? between : Ground());
  if (capacitor) CapacitorCard(inductor ? between : nodeNow_, Ground());
  if (resistor) ResistorCard(nodeNow_, Ground());
}

void Writer::SideBySide(const Element& element) {
  const int n1 = nodeNow_;
  const int n2 = element.placement == Placement::Series ? Next() : Ground();
  InductorCard(n1, n2);
  CapacitorCard(n1, n2);
}

void Writer::Line(const Element& element) {
  const int n1 = nodeNow_;
  if (element.joint == Joint::Line) {
    LineCard(n1, Ground(), Next(), Ground(), atFourth - 1);  // a column to the left of the others, as readers know it
    return;
  }
  const bool series = element.placement == Placement::Series;
  const int open = series ? Inner() + 1 : Ground();
  const int n2 = series ? Next() : Ground();
  LineCard(n1, n2, Inner(), element.joint == Joint::OpenStub ? open : Inner());
  PathCard(Inner());
}

void Writer::Coupled(const Element& element) {
  const Stage& stage = record_.stage[k_];
  const int n1 = nodeNow_;
  const int n2 = Next();
  if (element.joint == Joint::Transformer) {
    const f32 ratio = stage.XfmrVal.value;
    CoupledCards(n1, n2, NumText(ratio * ratio), "1", ".999999");
  } else {
    const CoupledValue& coil = stage.CoupledVal;
    CoupledCards(n1, n2, Inductance(coil.primary), Inductance(coil.secondary), NumText(coil.k));
  }
}

void Writer::WriteStage(const Stage& stage) {
  const Element* element = FindElement(stage.ElementType);
  if (!HasCards(element)) return;
  switch (element->joint) {
    case Joint::Chain:
      return element->placement == Placement::Series ? InLine(*element) : ToCommon(*element);
    case Joint::Parallel:
      return SideBySide(*element);
    case Joint::Line:
    case Joint::ShortStub:
    case Joint::OpenStub:
      return Line(*element);
    case Joint::Transformer:
    case Joint::Coupled:
      return Coupled(*element);
    case Joint::Reactance:
      return;
  }
}

// ---- head and end ---------------------------------------------------------------------------------------------------

void Writer::WriteDesign() {
  const std::string& topology = record_.Topology;
  if (const char* name = TopologyText(topology)) out_.Line(std::string("* Topology: ") + name);
  if (topology < "M") {
    if (record_.Order > 0) out_.Line("* Order:" + NumText(record_.Order));
    if (record_.Width > 0) out_.Line("* Fwidth: " + Frequency(record_.Width));
    if (record_.Width != 0 && record_.FstopNorm != 0) {
      const f32 Fstop = topology >= "I" ? record_.Width / record_.FstopNorm : record_.Width * record_.FstopNorm;
      out_.Line("* Fstop: " + Frequency(Fstop));
    }
    if (record_.Fcenter > 0) out_.Line("* Fcenter: " + Frequency(record_.Fcenter));
  }
  const i16 family = record_.Family;
  if (family >= familyButterworth && family <= familyConstantK) out_.Line("* Family: " + FamilyName(family));
  const bool ripple = family == familyChebyshev || family == familyCauer;
  if (ripple && record_.Apass > 0) out_.Line("* Apass: " + SpiceFix(FormatValue(record_.Apass)) + "dB");
  if (family == familyCauer && record_.Astop > 0) {
    out_.Line("* Astop: " + SpiceFix(FormatValue(record_.Astop)) + "dB");
  }
}

void Writer::WriteDeckHead(std::string_view date) {
  out_.Line("* SPICE .CIR file by Quilm");
  out_.Line("* " + std::string(date));
  out_.EndLine();
  WriteDesign();
  out_.EndLine();
  out_.Line("* Excitation:");
  // With this amplitude a lossless matched path reads 0 dB across the load.
  NumericFaultScope scope;
  const f64 load = record_.Rload[1];
  const f32 amplitude = scope.Store((static_cast<f64>(record_.Rsource[1]) + load) / load);
  out_.Print("Vin");
  out_.At(atFirst);
  out_.Print(Digits(nodeIn));
  out_.At(atSecond);
  out_.Line("0     AC    " + Resistance(amplitude));
  out_.EndLine();
  out_.Line("* Input termination:");
  Begin("RS", nodeIn, nodeIn + 1);
  out_.Line(Trimmed(Resistance(record_.Rsource[1])));
  out_.EndLine();
}

void Writer::WriteSweep() {
  const std::string range = NumText(record_.Fstart) + NumText(record_.Fstop);
  if (record_.SweepMode == 1) out_.Line(".AC LIN" + NumText(SpiceCount(record_.NrIntervals)) + range);
  if (record_.SweepMode == 2) out_.Line(".AC DEC" + NumText(SpicePointsPerDecade(record_)) + range);
  out_.EndLine();
}

void Writer::WriteDeckEnd() {
  out_.EndLine();
  out_.Line("* Output termination:");
  out_.Print("RL");
  out_.At(atFirst);
  out_.Print(Digits(nodeNow_));
  out_.At(atSecond);
  out_.Print(NumText(common_));
  out_.At(atValue);
  out_.Line(Trimmed(Resistance(record_.Rload[1])));
  out_.EndLine();
  out_.Line("* Output is at node" + NumText(static_cast<f32>(nodeNow_)));
  out_.EndLine();
  out_.Line("* Analysis:");
  WriteSweep();
  out_.Line(".PROBE");
  out_.EndLine();
  out_.Line(".END");
}

void Writer::WriteSubcircuitHead(std::string_view date) {
  int outputNode = nodeNow_;
  for (int k = 1; k <= record_.Stages; ++k) outputNode += Advance(record_.stage[k]);
  out_.Line("* Subcircuit .SUB file by Quilm");
  out_.Line("* " + std::string(date));
  out_.EndLine();
  out_.Line("* Original terminations:");
  out_.Print("* Input: " + Trimmed(Resistance(record_.Rsource[1])));
  out_.At(atValue);
  out_.Line("Output: " + Trimmed(Resistance(record_.Rload[1])));
  out_.EndLine();
  out_.Line("*               in out common");
  out_.Line(".SUBCKT  Filter  2  " + NumText(static_cast<f32>(outputNode)) + " " + NumText(common_));
}

}  // namespace

ExportText SpiceNetlist(const DesignRecord& record, SpiceFileKind kind, std::string_view date) {
  Writer writer(record, kind);
  ExportText out;
  try {
    writer.Write(date);
  } catch (const Fault& fault) {
    out.failure = fault.what() + writer.Place();
  }
  out.text = writer.Take();
  return out;
}

}  // namespace quilm
