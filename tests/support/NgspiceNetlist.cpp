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

NgspiceNetlist::NgspiceNetlist(const DesignRecord& record, f64 lossFrequency)
    : record_(record), lossFrequency_(lossFrequency) {
  Add("ladder");
  Add("V1 src 0 AC 1");
  Part('R', "src", "n0", record.Rsource[1]);
  for (int s = 1; s <= record.Stages; ++s) Write(s);
  Part('R', Output(), "0", record.Rload[1]);
}

std::string NgspiceNetlist::Node(int s) { return std::string("n").append(std::to_string(s)); }

void NgspiceNetlist::Part(char kind, const std::string& a, const std::string& b, f64 value) {
  Add(Text(kind, ++parts_, ' ', a, ' ', b, ' ', value));
}

std::string NgspiceNetlist::Between() { return std::string("m").append(std::to_string(++nodes_)); }

void NgspiceNetlist::Inductor(const std::string& a, const std::string& b, f64 L) {
  const std::string middle = Between();
  Part('L', a, middle, L);
  Part('R', middle, b, 2 * Pi * lossFrequency_ * L / record_.Qind[1]);
}

void NgspiceNetlist::Capacitor(const std::string& a, const std::string& b, f64 C) {
  Part('C', a, b, C);
  Part('R', a, b, record_.Qcap[1] / (2 * Pi * lossFrequency_ * C));
}

void NgspiceNetlist::Tank(const std::string& a, const std::string& b, const Stage& stage) {
  Inductor(a, b, stage.Lval.value);
  Capacitor(a, b, stage.Cval.value);
  Part('R', a, b, 1e11);
}

void NgspiceNetlist::SeriesPair(const std::string& a, const std::string& b, const Stage& stage) {
  const std::string middle = Between();
  Inductor(a, middle, stage.Lval.value);
  Capacitor(middle, b, stage.Cval.value);
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

bool NgspiceNetlist::WriteShunt(const Stage& stage, const std::string& a) {
  switch (stage.ElementType) {
    case ShuntL:
      Inductor(a, "0", stage.Lval.value);
      return true;
    case ShuntC:
      Capacitor(a, "0", stage.Cval.value);
      return true;
    case ShuntSLC:
      SeriesPair(a, "0", stage);
      return true;
    case ShuntPLC:
      Tank(a, "0", stage);
      return true;
    case ShuntR:
      Part('R', a, "0", stage.Rval.value);
      return true;
    case ShuntShortStub:
      Stub(a, "0", stage.TLval, false);
      return true;
    case ShuntOpenStub:
      Stub(a, "0", stage.TLval, true);
      return true;
    case ShuntRLC: {
      const std::string middle = Between();
      Part('R', a, middle, stage.Rval.value);
      SeriesPair(middle, "0", stage);
      return true;
    }
    default:
      return false;
  }
}

void NgspiceNetlist::WriteSeries(const Stage& stage, const std::string& a, const std::string& b) {
  switch (stage.ElementType) {
    case SeriesL:
      return Inductor(a, b, stage.Lval.value);
    case SeriesC:
      return Capacitor(a, b, stage.Cval.value);
    case SeriesSLC:
      return SeriesPair(a, b, stage);
    case SeriesPLC:
      return Tank(a, b, stage);
    case SeriesR:
      return Part('R', a, b, stage.Rval.value);
    case TransLine:
      return Line(a, "0", b, "0", stage.TLval);
    case SeriesShortStub:
      return Stub(a, b, stage.TLval, false);
    case SeriesOpenStub:
      return Stub(a, b, stage.TLval, true);
    case Transformer:
      return Transform(a, b, stage.XfmrVal.value);
    case CoupledInductors:
      return Couple(a, b, stage.CoupledVal);
    case SeriesRLC:
      Tank(a, b, stage);
      return Part('R', a, b, stage.Rval.value);
    default:
      throw Fault("no netlist for type " + std::to_string(stage.ElementType));
  }
}

void NgspiceNetlist::Write(int s) {
  const Stage& stage = record_.stage[s];
  if (WriteShunt(stage, Node(s - 1))) {
    Add(Text("Vs", ++parts_, ' ', Node(s - 1), ' ', Node(s), " 0"));
  } else {
    WriteSeries(stage, Node(s - 1), Node(s));
  }
}

}  // namespace quilm
