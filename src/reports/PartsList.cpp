#include "reports/PartsList.h"

#include <cmath>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "reports/Report.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// In twips of the sheet.
constexpr LineGrid grid = {.left = 1440, .top = 1400, .pitch = 240, .lines = 55};
constexpr f32 numberWidth = 600;  // from the number of a stage to its values

// How a value is written in the list.
struct ListedSlot {
  SlotCode code;
  std::string_view before;
  std::string_view after;
};

// In the order of the list, which names the capacitor of a stage first. A part that is alone in its stage needs no
// letter: its unit says what it is.
constexpr ListedSlot listedSlots[] = {
    {SlotCode::Capacitance, "C=", ""},
    {SlotCode::Inductance, "L=", ""},
    {SlotCode::Resistance, "R=", ""},
    {SlotCode::LineLength, "Len=", ""},
    {SlotCode::LineFrequency, "@ ", ""},
    {SlotCode::LineImpedance, "Z=", ""},
    {SlotCode::TurnsRatio, "N=", ": 1"},
    {SlotCode::PrimaryInductance, "Lpri=", ""},
    {SlotCode::SecondaryInductance, "Lsec=", ""},
    {SlotCode::Coupling, "K=", ""},
};

bool IsReactiveAlone(const Element& element) {
  return element.slots.size() == 1 && (element.Has(SlotCode::Inductance) || element.Has(SlotCode::Capacitance));
}

const Slot* FindSlot(const Element& element, SlotCode code) {
  for (const Slot& slot : element.slots) {
    if (slot.code == code) return &slot;
  }
  return nullptr;
}

std::string WithGap(const std::string& text) { return text.empty() ? text : text + "   "; }

// The resonance of a stage with both parts.
std::string ResonanceNote(const Element& element, const Stage& stage) {
  if (!element.Has(SlotCode::Inductance) || !element.Has(SlotCode::Capacitance)) return {};
  const f32 L = stage.Lval.value;
  const f32 C = stage.Cval.value;
  if (!(L > 0 && C > 0)) return {};
  constexpr f64 twoPi = 6.28318;  // five places, as lists have always been printed with
  return "(Freq=" + Trimmed(FormatFrequency(static_cast<f32>(1 / (twoPi * std::sqrt(static_cast<f64>(L) * C))))) + ")";
}

// The values of a stage; one that is exactly 0 is not listed.
std::string PartsOf(const Stage& stage) {
  const Element* element = FindElement(stage.ElementType);
  if (element == nullptr) return {};
  std::string text;
  for (const ListedSlot& listed : listedSlots) {
    const Slot* slot = FindSlot(*element, listed.code);
    if (slot == nullptr || slot->value(stage) == 0) continue;
    const std::string value = Trimmed(slot->format(slot->value(stage)));
    text = WithGap(text);
    text += IsReactiveAlone(*element) ? value : std::string(listed.before) + value + std::string(listed.after);
  }
  const std::string note = ResonanceNote(*element, stage);
  return note.empty() ? text : WithGap(text) + note;
}

// A shorter list of families than elsewhere: what was tried as Gaussian to 12 dB is ordered part by part.
std::string ListedFamily(i16 family) {
  constexpr const char* names[] = {"Butterworth", "Chebyshev",  "Cauer",    "Bessel",
                                   "Gaussian",    "Constant-K", "M-Derived"};
  if (family < 1 || family > static_cast<i16>(std::size(names))) return "Arbitrary/manual-entry";
  return names[family - 1];
}

// In full: a list lies on a bench without the program's pictures beside it. Empty for a network that is no topology.
std::string ListedTopology(const std::string& letter) {
  constexpr const char* texts[] = {"Capacitor-input lowpass",
                                   "Inductor-input lowpass",
                                   "Nodal capacitor-coupled bandpass",
                                   "Nodal inductor-coupled bandpass",
                                   "Shunt-input geometrically-symmetrical bandpass",
                                   "Series-input geometrically-symmetrical bandpass",
                                   "Mesh capacitor-coupled bandpass",
                                   "Cauer bandpass",
                                   "Capacitor-input highpass",
                                   "Inductor-input highpass",
                                   "Series-input bandstop",
                                   "Shunt-input bandstop"};
  if (!IsTopologyLetter(letter)) return {};
  return texts[letter[0] - 'A'];
}

void PrintDesignData(Report& report, const DesignRecord& record) {
  const auto line = [&report](const char* heading, f32 value, const std::string& text) {
    if (value > 0) report.Line(heading + Trimmed(text));
  };
  report.Line("Design data:");
  const std::string topology = ListedTopology(record.Topology);
  if (!topology.empty()) report.Line("Topology: " + topology);
  report.Line("Family: " + ListedFamily(record.Family));
  line("Bandwidth: ", record.Width, FormatFrequency(record.Width));
  line("Center freq: ", record.Fcenter, FormatFrequency(record.Fcenter));
  line("Passband ripple: ", record.Apass, FormatValue(record.Apass));
  const f32 stopband = record.FstopNorm * record.Width;
  line("Stopband freq: ", stopband, FormatFrequency(stopband));
  line("Stopband depth: ", record.Astop, Trimmed(FormatValue(record.Astop)) + "dB");
  report.Line("Input termination: " + Trimmed(FormatResistance(record.Rsource[1])));
  report.Line("Output termination: " + Trimmed(FormatResistance(record.Rload[1])));
}

}  // namespace

void PrintParts(const DesignRecord& record, const DateTime& today, Canvas& printer) {
  printer.FontName = "Arial";
  printer.FontSize = 10;
  Report report(printer, grid);
  report.SetFoot({record.DesignFileName, FootLine(today)});
  report.Line("Parts List");
  if (!record.CircuitTitle.empty()) report.Line(record.CircuitTitle);
  report.Skip();
  PrintDesignData(report, record);
  report.Skip();
  report.Line("Components:");
  for (int s = 1; s <= record.Stages; ++s) {
    const std::string columns[] = {std::to_string(s), PartsOf(record.stage[s])};
    report.Line(columns, numberWidth);
  }
  report.End();
}

void PrintPartsList(Session& session) {
  const std::string fault = TryReport(
      session.platform, [&session](Canvas& printer) { PrintParts(session.record, session.platform.Now(), printer); });
  if (!fault.empty()) session.note = "The parts list was not printed: " + fault;
}

}  // namespace quilm
