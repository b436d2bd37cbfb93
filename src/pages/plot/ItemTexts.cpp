#include "pages/plot/ItemTexts.h"

#include "core/Network.h"
#include "core/modGeneral.h"
#include "schematic/StageLabels.h"
#include "shell/EntryText.h"

namespace quilm {

namespace {

struct Words {
  std::string before;
  std::string after = {};
};

ItemLine LineOf(const Words& words, const std::string& value, bool negative) {
  return {words.before + value + words.after, negative};
}

std::string FrequencyOf(const Stage& stage) { return EntryText(stage.TLval.freq, FormatFrequency); }

ItemLine StageHeading(i16 stage) { return {"Stage: " + std::to_string(stage)}; }

Words TuneWords(SlotCode slot, i16 number, const Stage& stage) {
  const std::string n = std::to_string(number);
  switch (slot) {
    case SlotCode::Inductance:
      return {"L" + n + ":  "};
    case SlotCode::Capacitance:
      return {"C" + n + ":  "};
    case SlotCode::Resistance:
      return {"R" + n + ":  "};
    case SlotCode::LineLength:
      return {"Length:  ", "deg @ " + FrequencyOf(stage)};
    case SlotCode::LineImpedance:
      return {"Impedance:  "};
    case SlotCode::TurnsRatio:
      return {"Turns ratio N:  ", ":1"};
    case SlotCode::PrimaryInductance:
      return {"Pri. L:  "};
    case SlotCode::SecondaryInductance:
      return {"Sec. L:  "};
    case SlotCode::Coupling:
      return {"Coupling K:  "};
    case SlotCode::LineFrequency:
      break;
  }
  return {};
}

Words StepsizeWords(SlotCode slot, const Stage& stage) {
  switch (slot) {
    case SlotCode::Inductance:
      return {"L: "};
    case SlotCode::Capacitance:
      return {"C: "};
    case SlotCode::Resistance:
      return {"R: "};
    case SlotCode::LineLength:
      return {"Length: ", " degr. @ " + FrequencyOf(stage)};
    case SlotCode::LineImpedance:
      return {"Impedance: "};
    case SlotCode::TurnsRatio:
      return {"Turns ratio N=", ":1"};
    case SlotCode::PrimaryInductance:
      return {"Primary inductance: "};
    case SlotCode::SecondaryInductance:
      return {"Secondary inductance: "};
    case SlotCode::Coupling:
      return {"Coupling coefficient: "};
    case SlotCode::LineFrequency:
      break;
  }
  return {};
}

ItemLine WholeLine(const char* words, f32 value, Formatter format) {
  return LineOf({words}, EntryText(value, format), value < 0);
}

}  // namespace

ItemPlace PlaceOf(const TuneItem& item) {
  using Of = ItemPlace::Of;
  switch (item.kind) {
    case TuneKind::Source:
      return {Of::Source};
    case TuneKind::Load:
      return {Of::Load};
    case TuneKind::InductorQ:
      return {Of::AnyInductor};
    case TuneKind::CapacitorQ:
      return {Of::AnyCapacitor};
    default:
      return {Of::Stage, item.TuneStage};
  }
}

std::vector<ItemLine> TuneLines(const Network& network, const TuneItem& item) {
  switch (item.kind) {
    case TuneKind::Source:
      return {WholeLine("Input term:  ", network.Rsource[1], FormatResistance)};
    case TuneKind::Load:
      return {WholeLine("Output term:  ", network.Rload[1], FormatResistance)};
    case TuneKind::InductorQ:
      return {WholeLine("Inductors Q:  ", network.Qind[1], FormatValue)};
    case TuneKind::CapacitorQ:
      return {WholeLine("Capacitors Q:  ", network.Qcap[1], FormatValue)};
    default:
      break;
  }
  const Stage& stage = network.stage[item.TuneStage];
  std::vector<ItemLine> lines = {StageHeading(item.TuneStage)};
  for (const Slot* slot : SlotsOfItem(item.kind)) {
    const f32 value = slot->value(stage);
    lines.push_back(LineOf(TuneWords(slot->code, item.TuneStage, stage), ValueText(*slot, value), value < 0));
  }
  return lines;
}

std::vector<ItemLine> StepsizeLines(const Network& network, const TuneItem& item) {
  const Stage& stage = network.stage[item.TuneStage];
  std::vector<ItemLine> lines = {StageHeading(item.TuneStage)};
  for (const Slot* slot : SlotsOfItem(item.kind)) {
    const f32 value = slot->value(stage);
    lines.push_back(LineOf(StepsizeWords(slot->code, stage), ValueText(*slot, value), value < 0));
  }
  return lines;
}

std::string NameOfStep(const TuneItem& item) {
  const std::string n = std::to_string(item.TuneStage);
  switch (item.kind) {
    case TuneKind::Inductor:
      return "Tune L" + n;
    case TuneKind::Capacitor:
      return "Tune C" + n;
    case TuneKind::Pair:
      return "Tune L" + n + " and C" + n;
    case TuneKind::Resistor:
      return "Tune R" + n;
    case TuneKind::LineLength:
      return "Tune length of stage " + n;
    case TuneKind::LineImpedance:
      return "Tune impedance of stage " + n;
    case TuneKind::TurnsRatio:
      return "Tune turns ratio of stage " + n;
    case TuneKind::Primary:
      return "Tune primary of stage " + n;
    case TuneKind::Secondary:
      return "Tune secondary of stage " + n;
    case TuneKind::Coupling:
      return "Tune coupling of stage " + n;
    case TuneKind::Source:
      return "Tune input termination";
    case TuneKind::Load:
      return "Tune output termination";
    case TuneKind::InductorQ:
      return "Tune Q of inductors";
    case TuneKind::CapacitorQ:
      break;
  }
  return "Tune Q of capacitors";
}

std::string Spoken(const std::vector<ItemLine>& lines) {
  std::string text;
  for (const ItemLine& line : lines) text += (text.empty() ? "" : ", ") + line.text;
  return text;
}

}  // namespace quilm
