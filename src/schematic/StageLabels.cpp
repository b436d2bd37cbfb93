#include "schematic/StageLabels.h"

#include <algorithm>
#include <cmath>

#include "core/ElementCatalogue.h"
#include "core/Network.h"
#include "core/NumberText.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr f64 highestLoss = 1e7;  // ohms

// What stands around the value of a slot, the unit that this lacks, and the letters of its part.
struct Around {
  const char* before = "";
  const char* after = "";
  const char* unit = "";
  const char* designator = "";
};

Around AroundOf(SlotCode slot) {
  switch (slot) {
    case SlotCode::Inductance:
      return {.designator = "L"};
    case SlotCode::Capacitance:
      return {.designator = "C"};
    case SlotCode::Resistance:
      return {.unit = ohmSign, .designator = "R"};
    case SlotCode::LineLength:
      return {.after = "deg", .designator = "TL"};
    case SlotCode::LineFrequency:
      return {.before = "@", .unit = "Hz"};
    case SlotCode::LineImpedance:
      return {.before = "Z=", .unit = ohmSign};
    case SlotCode::TurnsRatio:
      return {.before = "N=", .after = ": 1", .designator = "T"};
    case SlotCode::Coupling:
      return {.before = "K=", .designator = "T"};
    default:
      return {};
  }
}

// The parts of which each rail of a balanced network carries a share.
bool IsShared(SlotCode slot) {
  return slot == SlotCode::Inductance || slot == SlotCode::Capacitance || slot == SlotCode::Resistance;
}

void AddLoss(std::vector<LossLabel>& labels, const char* heading, f64 ohms) {
  if (!std::isfinite(ohms)) return;
  labels.push_back({heading, Trimmed(FormatResistance(static_cast<f32>(ohms)))});
}

}  // namespace

std::string FormatSignedResistance(f32 Value) {
  return Value < 0 ? "-" + Trimmed(FormatResistance(-Value)) : FormatResistance(Value);
}

std::string ValueText(const Slot& slot, f32 value) {
  return Trimmed(slot.format == FormatResistance ? FormatSignedResistance(value) : slot.format(value));
}

std::vector<StageLabel> ValueLabels(const Stage& stage, f32 share) {
  std::vector<StageLabel> labels;
  for (const Slot& slot : SlotsOf(stage.ElementType)) {
    const f32 value = (IsShared(slot.code) ? share : 1) * slot.value(stage);
    const Around around = AroundOf(slot.code);
    labels.push_back(
        {around.before + ValueText(slot, value) + around.after, value < 0, around.unit, around.designator});
  }
  return labels;
}

std::vector<std::string> ToleranceLabels(const Stage& stage) {
  std::vector<std::string> labels;
  for (const Slot& slot : SlotsOf(stage.ElementType)) {
    if (!slot.tolerance || !(slot.tolerance(stage) > 0)) continue;
    labels.push_back(std::string(slot.name) + ": " + ShortText(slot.tolerance(stage), LeadingZero::Drop) + "%");
  }
  return labels;
}

std::vector<LossLabel> LossLabels(const Network& network, const Stage& stage, f32 Fq) {
  std::vector<LossLabel> labels;
  const f64 omega = 2 * Pi * f64{Fq};
  if (HasSlot(stage.ElementType, SlotCode::Inductance)) {
    AddLoss(labels, "L-rseries:", omega * f64{stage.Lval.value} / f64{network.Qind[1]});
  }
  if (HasSlot(stage.ElementType, SlotCode::Capacitance)) {
    const f64 ohms = std::fabs(f64{network.Qcap[1]} / (omega * f64{stage.Cval.value}));
    if (ohms <= highestLoss) AddLoss(labels, "C-rshunt:", ohms);
  }
  return labels;
}

bool IsSeriesElement(i16 elementType) {
  const Element* element = FindElement(elementType);
  if (element == nullptr) return false;
  if (element->joint == Joint::Line) return true;
  return element->placement == Placement::Series && element->joint != Joint::Reactance;
}

bool HasNegativeValue(const Stage& stage) {
  return std::ranges::any_of(AllSlots(), [&stage](const Slot& slot) { return slot.value(stage) < 0; });
}

}  // namespace quilm
