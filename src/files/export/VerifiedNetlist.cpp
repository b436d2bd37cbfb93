#include "files/export/VerifiedNetlist.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "analysis/Ladder.h"
#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"
#include "core/NumericFault.h"
#include "files/export/SpiceTexts.h"

namespace quilm {

namespace {

constexpr const char* common = "0";
constexpr f64 openCircuit = 1e11;  // ohms, across every tank, and in place of a capacitor of 0

// The shortest text that reads back as the same 64 bits.
std::string Number(f64 value) {
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

// How a dialect says what differs.
struct Dialect {
  const char* name;
  const char* inductorEnd;     // LTspice gives an inductor 1 mohm unless told otherwise
  const char* shortForAc;      // a resistor to common, as good as none at any frequency but 0
  const char* admittanceName;  // the source whose current is proportional to voltage and frequency
};

constexpr Dialect ngspice = {"ngspice", "", "1 ac=1e-12", "B"};
constexpr Dialect ltspice = {"LTspice", " Rser=0", "1e-12", "G"};

class Writer {
 public:
  Writer(const DesignRecord& record, SpiceDialect dialect)
      : record_(record), ngspice_(dialect == SpiceDialect::Ngspice), dialect_(ngspice_ ? ngspice : ltspice) {
    for (int s = 1; s <= record.Stages; ++s) lineNodes_ += Advances(record.stage[s]) ? 1 : 0;
  }

  void Write(std::string_view date);
  std::string Take() { return std::move(text_); }

 private:
  static bool Advances(const Stage& stage);

  void Line(const std::string& line) { text_ += line + "\r\n"; }
  void Card(const std::string& name, const std::string& a, const std::string& b, const std::string& value) {
    Line(name + " " + a + " " + b + " " + value);
  }
  // A name or node of the stage in hand.
  std::string Own(const std::string& name) const { return name + std::to_string(stage_); }
  std::string LineNode(int index) const;

  void Head(std::string_view date);
  void Source();
  void Sweep();

  void Inductor(const std::string& a, const std::string& b, f64 henries, f64 ohms);
  void Capacitor(const std::string& a, const std::string& b, f64 farads);
  void Resistor(const std::string& a, const std::string& b, f64 ohms);
  void PathForDirectCurrent(const std::string& a, const std::string& b);
  std::string ShortedToCommon();
  void Proportional(const std::string& a, const std::string& b, f64 perRadian);

  f64 LossOf(f64 henries) const;
  void Chain(const Stage& stage, const Element& element, const std::string& a, const std::string& b);
  void Tank(const Stage& stage, const Element& element, const std::string& a, const std::string& b);
  void LineOrStub(const Stage& stage, const Element& element, const std::string& a, const std::string& b);
  void IdealTransformer(const Stage& stage, const std::string& a, const std::string& b);
  void Coils(const Stage& stage, const std::string& a, const std::string& b);
  void WriteStage(const Stage& stage, const Element& element, const std::string& a, const std::string& b);

  const DesignRecord& record_;
  bool ngspice_;
  const Dialect& dialect_;
  std::string text_;
  f32 Fq_ = 0;
  int stage_ = 0;
  int lineNodes_ = 0;  // how often the line moves on
};

bool Writer::Advances(const Stage& stage) {
  const Element* element = FindElement(stage.ElementType);
  return element != nullptr && element->joint != Joint::Reactance && element->placement != Placement::Shunt;
}

std::string Writer::LineNode(int index) const {
  if (index == lineNodes_) return "out";
  return index == 0 ? "in" : "n" + std::to_string(index);
}

// ---- parts ----------------------------------------------------------------------------------------------------------

// No simulator takes a resistor of 0 for what it is.
void Writer::Resistor(const std::string& a, const std::string& b, f64 ohms) {
  if (ohms == 0) {
    Card(Own("Vr"), a, b, "0");
  } else {
    Card(Own("R"), a, b, Number(ohms));
  }
}

void Writer::Inductor(const std::string& a, const std::string& b, f64 henries, f64 ohms) {
  const std::string inner = ohms == 0 ? b : Own("l");
  Card(Own("L"), a, inner, Number(henries) + dialect_.inductorEnd);
  if (ohms != 0) Card(Own("Rl"), inner, b, Number(ohms));
}

std::string Voltage(const std::string& a, const std::string& b) {
  return "v(" + a + (b == common ? "" : "," + b) + ")";
}

// A conductance of so many siemens per rad/s, and a siemens for direct current where the dialect can say so.
void Writer::Proportional(const std::string& a, const std::string& b, f64 perRadian) {
  const std::string name = Own(dialect_.admittanceName);
  if (ngspice_) {
    Card(name, a, b, "I=" + Voltage(a, b) + "*(hertz > 0 ? hertz*" + Number(2 * Pi * perRadian) + " : 1)");
  } else {
    Card(name, a, b, a + " " + b + " Laplace=" + Number(perRadian) + "*sqrt(-s*s)");
    PathForDirectCurrent(a, b);
  }
}

void Writer::Capacitor(const std::string& a, const std::string& b, f64 farads) {
  if (farads == 0) {
    Card(Own("Rc"), a, b, Number(openCircuit));
    return;
  }
  Card(Own("C"), a, b, Number(farads));
  Proportional(a, b, std::fabs(farads / static_cast<f64>(record_.Qcap[1])));
}

void Writer::PathForDirectCurrent(const std::string& a, const std::string& b) {
  if (ngspice_) {
    Card(Own("Bd"), a, b, "I=" + Voltage(a, b) + "*(hertz > 0 ? 0 : 1)");
  } else {
    Card(Own("Rd"), a, b, "1e15");
  }
}

// A node of the stage's own that is as good as common.
std::string Writer::ShortedToCommon() {
  Card(Own("Rd"), Own("d"), common, dialect_.shortForAc);
  return Own("d");
}

// ---- stages ---------------------------------------------------------------------------------------------------------

f64 Writer::LossOf(f64 henries) const {
  return 2 * Pi * static_cast<f64>(Fq_) * henries / static_cast<f64>(record_.Qind[1]);
}

// A single inductor's loss is taken positive, whatever its sign.
void Writer::Chain(const Stage& stage, const Element& element, const std::string& a, const std::string& b) {
  std::string from = a;
  for (const Slot& slot : element.slots) {
    const bool last = &slot == &element.slots.back();
    const std::string to = last ? b : Own(slot.code == SlotCode::Inductance ? "lc" : "cr");
    const f64 value = slot.value(stage);
    const f64 loss = LossOf(value);
    if (slot.code == SlotCode::Inductance) {
      Inductor(from, to, value, element.slots.size() == 1 ? std::fabs(loss) : loss);
    } else if (slot.code == SlotCode::Capacitance) {
      Capacitor(from, to, value);
    } else {
      Resistor(from, to, value);
    }
    from = to;
  }
}

void Writer::Tank(const Stage& stage, const Element& element, const std::string& a, const std::string& b) {
  const f64 henries = stage.Lval.value;
  Inductor(a, b, henries, LossOf(henries));
  Capacitor(a, b, stage.Cval.value);
  Card(Own("Rt"), a, b, Number(openCircuit));
  if (element.Has(SlotCode::Resistance)) Resistor(a, b, stage.Rval.value);
}

// The two ends of a line have no connection but the line, so the far end of a stub may stand on common wherever its
// near end is.
void Writer::LineOrStub(const Stage& stage, const Element& element, const std::string& a, const std::string& b) {
  const f64 delay = LineDelay(stage);
  const f64 impedance = stage.TLval.impedance;
  if (!(delay > 0) || !(impedance > 0)) {
    throw NumericFault("Stage " + std::to_string(stage_) + " is a line whose length or impedance is not above 0");
  }
  const bool through = element.joint == Joint::Line;
  std::string far = b;
  if (element.joint == Joint::ShortStub) far = ShortedToCommon();
  if (element.joint == Joint::OpenStub) {
    far = Own("t");
    if (b != common) PathForDirectCurrent(a, b);
  }
  Line(Own("T") + " " + a + " " + (through ? common : b) + " " + far + " " + common + " Z0=" + Number(impedance) +
       " Td=" + Number(delay));
}

// The primary has n times the voltage of the secondary, which has n times its current: the reciprocal of 1/n, which the
// analysis keeps in 32 bits. (With n itself, decks of many transformers are up to 1E-05 dB off.)
void Writer::IdealTransformer(const Stage& stage, const std::string& a, const std::string& b) {
  const f32 ratio = stage.XfmrVal.value;
  const f32 reciprocal = 1 / ratio;
  Card(Own("E"), a, Own("e"), b + " " + common + " " + Number(ratio));
  Card(Own("V"), Own("e"), common, "0");
  Card(Own("F"), common, b, Own("V") + " " + Number(1 / static_cast<f64>(reciprocal)));
}

void Writer::Coils(const Stage& stage, const std::string& a, const std::string& b) {
  const CoupledValue& coil = stage.CoupledVal;
  Card(Own("Lp"), a, Own("d"), Number(coil.primary) + dialect_.inductorEnd);
  ShortedToCommon();
  Card(Own("Ls"), b, Own("ds"), Number(coil.secondary) + dialect_.inductorEnd);
  Card(Own("Rds"), Own("ds"), common, dialect_.shortForAc);
  Card(Own("K"), Own("Lp"), Own("Ls"), Number(coil.k));
}

void Writer::WriteStage(const Stage& stage, const Element& element, const std::string& a, const std::string& b) {
  switch (element.joint) {
    case Joint::Chain:
      return Chain(stage, element, a, b);
    case Joint::Parallel:
      return Tank(stage, element, a, b);
    case Joint::Line:
    case Joint::ShortStub:
    case Joint::OpenStub:
      return LineOrStub(stage, element, a, b);
    case Joint::Transformer:
      return IdealTransformer(stage, a, b);
    case Joint::Coupled:
      return Coils(stage, a, b);
    case Joint::Reactance:
      return;
  }
}

// ---- head and end ---------------------------------------------------------------------------------------------------

void Writer::Head(std::string_view date) {
  Line(std::string("* Netlist for ") + dialect_.name + " by Quilm");
  Line("* " + std::string(date));
  if (!record_.CircuitTitle.empty()) Line("* " + record_.CircuitTitle);
  Line("* V(out) in dB is the transmission, its phase the transmission angle. For ac analyses only.");
  Line("* Inductors: Q " + Number(record_.Qind[1]) + " at " + Number(Fq_) +
       " Hz, by a constant resistance. Capacitors: Q " + Number(record_.Qcap[1]) + " at every frequency.");
}

// The amplitude takes the power that the source can give for 0 dB.
void Writer::Source() {
  const f64 Rsource = record_.Rsource[1];
  NumericFaultScope scope;
  const f64 amplitude = scope.Checked(2 * std::sqrt(Rsource / static_cast<f64>(record_.Rload[1])));
  Card("Vin", "src", common, "0 AC " + Number(amplitude));
  Card("Rsource", "src", LineNode(0), Number(Rsource));
}

void Writer::Sweep() {
  const f64 Fstart = record_.Fstart;
  const f64 Fstop = record_.Fstop;
  const f64 intervals = std::nearbyint(record_.NrIntervals);
  const bool linear = record_.SweepMode == 1;
  if (!(Fstart >= 0) || !(Fstop > Fstart) || !(intervals >= 1) || (Fstart == 0 && !linear)) {
    Line("* The design has no sweep.");
    return;
  }
  const f64 step = Fstart == 0 ? Fstop / intervals : 0;  // at 0 Hz there is no figure
  const std::string range = Number(Fstart + step) + " " + Number(Fstop);
  if (linear) {
    Line(".ac lin " + Number(step > 0 ? intervals : intervals + 1) + " " + range);
  } else {
    Line(".ac dec " + Number(std::max(1.0, std::nearbyint(intervals / std::log10(Fstop / Fstart)))) + " " + range);
  }
  if (ngspice_) Line(".print ac vdb(out) vp(out)");
}

void Writer::Write(std::string_view date) {
  Fq_ = SpiceReferenceFrequency(record_);
  Head(date);
  if (Compile(record_, Fq_).failsEverywhere) {
    throw NumericFault("The network holds a value of 0 by which its analysis divides");
  }
  Source();
  int node = 0;
  for (stage_ = 1; stage_ <= record_.Stages; ++stage_) {
    const Stage& stage = record_.stage[stage_];
    const Element* element = FindElement(stage.ElementType);
    if (element == nullptr) continue;
    const std::string a = LineNode(node);
    if (Advances(stage)) ++node;
    WriteStage(stage, *element, a, element->placement == Placement::Shunt ? common : LineNode(node));
  }
  Card("Rload", "out", common, Number(record_.Rload[1]));
  Sweep();
  Line(".end");
}

}  // namespace

ExportText VerifiedNetlist(const DesignRecord& record, SpiceDialect dialect, std::string_view date) {
  Writer writer(record, dialect);
  ExportText out;
  try {
    writer.Write(date);
  } catch (const Fault& fault) {
    out.failure = fault.what();
  }
  out.text = writer.Take();
  return out;
}

}  // namespace quilm
