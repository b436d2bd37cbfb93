#include "support/NgspiceNetlist.h"

#include <iomanip>
#include <sstream>

namespace quilm {

namespace {

template <class... Pieces>
std::string Text(const Pieces&... pieces) {
  std::ostringstream out;
  out << std::setprecision(17);
  (out << ... << pieces);
  return out.str();
}

}  // namespace

NgspiceNetlist::NgspiceNetlist(const Network& network, f64 lossFrequency)
    : network_(network), lossFrequency_(lossFrequency) {
  Add("ladder");
  Add("V1 src 0 AC 1");
  Part('R', "src", "n0", network.Rsource[1]);
  for (int s = 1; s <= network.Stages; ++s) Write(s);
  Part('R', Output(), "0", network.Rload[1]);
}

std::string NgspiceNetlist::Node(int s) { return std::string("n").append(std::to_string(s)); }

void NgspiceNetlist::Part(char kind, const std::string& a, const std::string& b, f64 value) {
  Add(Text(kind, ++parts_, ' ', a, ' ', b, ' ', value));
}

std::string NgspiceNetlist::Between() { return std::string("m").append(std::to_string(++nodes_)); }

void NgspiceNetlist::Inductor(const std::string& a, const std::string& b, f64 L) {
  const std::string middle = Between();
  Part('L', a, middle, L);
  Part('R', middle, b, 2 * Pi * lossFrequency_ * L / network_.Qind[1]);
}

void NgspiceNetlist::Capacitor(const std::string& a, const std::string& b, f64 C) {
  Part('C', a, b, C);
  Part('R', a, b, network_.Qcap[1] / (2 * Pi * lossFrequency_ * C));
}

void NgspiceNetlist::Line(const std::string& a, const std::string& b, const std::string& c, const std::string& d,
                          const LineValue& line) {
  Add(Text('T', ++parts_, ' ', a, ' ', b, ' ', c, ' ', d, " Z0=", line.impedance, " F=", line.freq,
           " NL=", static_cast<f64>(line.degrees) / 360));
}

// The far end of a stub: shorted, or left open.
void NgspiceNetlist::Stub(const std::string& a, const std::string& b, const LineValue& line, bool open) {
  const std::string far = Between();
  const std::string back = open ? Between() : far;
  Line(a, b, far, back, line);
  Part('R', far, "0", 1e15);
  if (open) Part('R', far, back, 1e15);
}

void NgspiceNetlist::Transform(const std::string& a, const std::string& b, f64 n) {
  const std::string sense = Between();
  Add(Text('E', ++parts_, ' ', a, ' ', sense, ' ', b, " 0 ", n));
  const std::string meter = Text("Vs", ++parts_);
  Add(Text(meter, ' ', sense, " 0 0"));
  Add(Text('F', ++parts_, " 0 ", b, ' ', meter, ' ', n));
}

void NgspiceNetlist::Couple(const std::string& a, const std::string& b, const CoupledValue& coil) {
  const int first = parts_ + 1;
  Part('L', a, "0", coil.primary);
  Part('L', b, "0", coil.secondary);
  Add(Text('K', ++parts_, " L", first, " L", first + 1, ' ', coil.k));
}

void NgspiceNetlist::Chain(const std::string& a, const std::string& b, const Stage& stage, const Element& element) {
  std::string from = a;
  std::size_t left = element.slots.size();
  for (const Slot& slot : element.slots) {
    const std::string to = --left == 0 ? b : Between();
    const f64 value = slot.value(stage);
    if (slot.code == SlotCode::Inductance) Inductor(from, to, value);
    if (slot.code == SlotCode::Capacitance) Capacitor(from, to, value);
    if (slot.code == SlotCode::Resistance) Part('R', from, to, value);
    from = to;
  }
}

void NgspiceNetlist::Tank(const std::string& a, const std::string& b, const Stage& stage, const Element& element) {
  Inductor(a, b, stage.Lval.value);
  Capacitor(a, b, stage.Cval.value);
  Part('R', a, b, 1e11);
  if (element.Has(SlotCode::Resistance)) Part('R', a, b, stage.Rval.value);
}

void NgspiceNetlist::WriteElement(const Stage& stage, const Element& element, const std::string& a,
                                  const std::string& b) {
  switch (element.joint) {
    case Joint::Chain:
      return Chain(a, b, stage, element);
    case Joint::Parallel:
      return Tank(a, b, stage, element);
    case Joint::Line:
      return Line(a, "0", b, "0", stage.TLval);
    case Joint::ShortStub:
      return Stub(a, b, stage.TLval, false);
    case Joint::OpenStub:
      return Stub(a, b, stage.TLval, true);
    case Joint::Transformer:
      return Transform(a, b, stage.XfmrVal.value);
    case Joint::Coupled:
      return Couple(a, b, stage.CoupledVal);
    case Joint::Reactance:
      throw Fault("no netlist for " + std::string(element.name));
  }
}

void NgspiceNetlist::Write(int s) {
  const Stage& stage = network_.stage[s];
  const Element* element = FindElement(stage.ElementType);
  if (element == nullptr) throw Fault("no netlist for type " + std::to_string(stage.ElementType));
  if (element->placement != Placement::Shunt) return WriteElement(stage, *element, Node(s - 1), Node(s));
  WriteElement(stage, *element, Node(s - 1), "0");
  Add(Text("Vs", ++parts_, ' ', Node(s - 1), ' ', Node(s), " 0"));
}

}  // namespace quilm
