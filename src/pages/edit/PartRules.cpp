#include "pages/edit/PartRules.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "network/NetworkEdits.h"

namespace quilm {

namespace {

bool IsAtMost0(f32 value) { return value <= 0; }
bool Is0(f32 value) { return value == 0; }
bool IsLessThanResistance(f32 value) { return std::fabs(value) < 0.01F; }
bool IsNoRatio(f32 value) { return value <= 0.0001F || value >= 10000; }
bool IsNoCoupling(f32 value) { return value <= 0.0001F || value >= 1; }
bool IsLowCoupling(f32 value) { return value < 0.0001F; }
bool IsHighCoupling(f32 value) { return value > 1; }

namespace manual {

constexpr std::array parts = {PartRule{ValueBox::Inductance, IsAtMost0, "The inductor value entry is too low"},
                              PartRule{ValueBox::Capacitance, IsAtMost0, "The capacitor value entry is too low"}};
constexpr std::array resistor = {PartRule{ValueBox::Resistance, IsAtMost0, "The resistor value entry is too low"}};
constexpr std::array line = {PartRule{ValueBox::LineLength, IsAtMost0, "The line length entry is too low"},
                             PartRule{ValueBox::LineFrequency, IsAtMost0, "The frequency entry is too low"},
                             PartRule{ValueBox::LineImpedance, IsAtMost0, "The line impedance entry is too low"}};
constexpr std::array turns = {
    PartRule{ValueBox::TurnsRatio, IsNoRatio, "The turns ratio entry is outside the limits of .0001 to 10000"}};
constexpr std::array reactance = {
    PartRule{ValueBox::Reactance, Is0, "The reactance value must not be zero"},
    PartRule{ValueBox::ReactanceFrequency, IsAtMost0, "The normalizing frequency must be greater than zero"}};
constexpr std::array coupled = {
    PartRule{ValueBox::PrimaryInductance, IsAtMost0, "The primary inductance entry is too low"},
    PartRule{ValueBox::SecondaryInductance, IsAtMost0, "The secondary inductance entry is too low"},
    PartRule{ValueBox::Coupling, IsNoCoupling, "The coupling coefficient entry is outside the limits of .0001 and 1"}};
constexpr std::array damped = {PartRule{ValueBox::Capacitance, IsAtMost0, "The capacitance value entry is too low"},
                               PartRule{ValueBox::Inductance, IsAtMost0, "The inductance value entry is too low"},
                               PartRule{ValueBox::Resistance, IsAtMost0, "The resistance value entry is too low"}};

}  // namespace manual

namespace edited {

constexpr std::array parts = {
    PartRule{ValueBox::Inductance, IsAtMost0, "Inductor value is too low and\r\nso has been reset to 1 nanohenry",
             1e-9F},
    PartRule{ValueBox::Capacitance, IsAtMost0, "Capacitor value is too low and\r\nso has been reset to 1 picofarad",
             1e-12F, "1p"}};
// A negative resistor is let through: it is how a gain or an extracted loss is studied.
constexpr std::array resistor = {PartRule{ValueBox::Resistance, IsLessThanResistance,
                                          "Resistor value is too low and\r\nso has been reset to .01 ohms", 0.01F,
                                          ".01"}};
constexpr std::array line = {
    PartRule{ValueBox::LineLength, Is0, "Zero length line is not allowed\r\nso has been reset to one degree", 1, "1"},
    PartRule{ValueBox::LineFrequency, IsAtMost0, "The frequency entry is too low\r\nso has been reset to 100 kHz", 1e5F,
             "100k"},
    PartRule{ValueBox::LineImpedance, IsAtMost0, "The line impedance entry is too low\r\nso has been reset to 5 ohms",
             5, "5"}};
constexpr std::array turns = {
    PartRule{ValueBox::TurnsRatio, IsNoRatio,
             "The turns ratio entry is outside the limits of .0001 to 10000\r\nIt has been reset to 1 (unity).", 1}};
constexpr std::array reactance = {
    PartRule{ValueBox::Reactance, Is0, "Zero reactance value is disallowed"},
    PartRule{ValueBox::ReactanceFrequency, IsAtMost0,
             "The normalizing frequency must be greater than zero\r\nso has been reset to 1 MHz", 1e6F, "1M"}};
constexpr std::array coupled = {
    PartRule{ValueBox::PrimaryInductance, IsAtMost0,
             "The primary inductance entry is too low\r\nso it has been reset to 1 nanohenry", 1e-9F, "1n"},
    PartRule{ValueBox::SecondaryInductance, IsAtMost0,
             "The secondary inductance entry is too low\r\nso has been reset to 1 nanohenry", 1e-9F, "1n"},
    PartRule{ValueBox::Coupling, IsLowCoupling, "The coupling coefficient is too low and\r\nso has been reset to .0001",
             0.0001F, ".0001"},
    PartRule{ValueBox::Coupling, IsHighCoupling,
             "The coupling coefficient is too high and\r\nso has been reset to unit (1)", 1, "1"}};
constexpr std::array damped = {
    PartRule{ValueBox::Inductance, IsAtMost0, "The inductance value reset to 1 nanohenry", 1e-9F},
    PartRule{ValueBox::Capacitance, IsAtMost0, "The capacitor value reset to 1 picofarad", 1e-12F},
    PartRule{ValueBox::Resistance, IsAtMost0, "The resistor value reset to 1 ohm", 1}};

}  // namespace edited

struct RuleSets {
  std::span<const PartRule> parts;
  std::span<const PartRule> resistor;
  std::span<const PartRule> line;
  std::span<const PartRule> turns;
  std::span<const PartRule> reactance;
  std::span<const PartRule> coupled;
  std::span<const PartRule> damped;
};

std::span<const PartRule> RulesFor(const RuleSets& sets, i16 elementType) {
  const Element* element = FindElement(elementType);
  if (element == nullptr) return {};
  if (element->joint == Joint::Reactance) return sets.reactance;
  const bool resistance = element->Has(SlotCode::Resistance);
  const bool inductance = element->Has(SlotCode::Inductance);
  if (resistance) return inductance ? sets.damped : sets.resistor;
  if (element->Has(SlotCode::LineLength)) return sets.line;
  if (element->Has(SlotCode::TurnsRatio)) return sets.turns;
  if (element->Has(SlotCode::Coupling)) return sets.coupled;
  if (!inductance) return sets.parts.subspan(1);
  return element->Has(SlotCode::Capacitance) ? sets.parts : sets.parts.first(1);
}

bool HasBox(std::span<const ValueBox> boxes, ValueBox box) {
  return std::find(boxes.begin(), boxes.end(), box) != boxes.end();
}

// The values of the boxes of a type; 0 elsewhere.
using BoxValues = std::array<f32, valueBoxCount>;

BoxValues ReadAll(i16 elementType, const BoxReader& read) {
  BoxValues values{};
  for (const ValueBox box : BoxesOf(elementType)) values[static_cast<std::size_t>(box)] = read(box);
  return values;
}

f32& Of(BoxValues& values, ValueBox box) { return values[static_cast<std::size_t>(box)]; }

void Store(Stage& stage, BoxValues& values) {
  const std::vector<ValueBox> boxes = BoxesOf(stage.ElementType);
  for (const ValueBox box : boxes) {
    if (const Slot* slot = SlotBehind(box)) slot->value(stage) = Of(values, box);
  }
  if (HasBox(boxes, ValueBox::Reactance)) {
    ResolveReactance(stage, Of(values, ValueBox::Reactance), Of(values, ValueBox::ReactanceFrequency));
  }
}

}  // namespace

std::span<const PartRule> ManualRules(i16 elementType) {
  static constexpr RuleSets sets{manual::parts,     manual::resistor, manual::line,  manual::turns,
                                 manual::reactance, manual::coupled,  manual::damped};
  return RulesFor(sets, elementType);
}

std::span<const PartRule> EditRules(i16 elementType) {
  static constexpr RuleSets sets{edited::parts,     edited::resistor, edited::line,  edited::turns,
                                 edited::reactance, edited::coupled,  edited::damped};
  return RulesFor(sets, elementType);
}

EnteredPart ReadEnteredPart(i16 elementType, const BoxReader& read) {
  EnteredPart part;
  part.stage.ElementType = elementType;
  BoxValues values = ReadAll(elementType, read);
  for (const PartRule& rule : ManualRules(elementType)) {
    if (!rule.fails(Of(values, rule.box))) continue;
    part.refused = &rule;
    return part;
  }
  Store(part.stage, values);
  return part;
}

std::vector<const PartRule*> TakeEditedPart(Stage& stage, const BoxReader& read) {
  std::vector<const PartRule*> corrected;
  BoxValues values = ReadAll(stage.ElementType, read);
  for (const PartRule& rule : EditRules(stage.ElementType)) {
    f32& value = Of(values, rule.box);
    if (!rule.fails(value)) continue;
    corrected.push_back(&rule);
    value = rule.instead;
    if (rule.box == ValueBox::Reactance) return corrected;
  }
  const Element* element = FindElement(stage.ElementType);
  // What is made of neither inductors nor capacitors keeps none of what stood there before.
  if (element != nullptr && (element->Has(SlotCode::LineLength) || element->Has(SlotCode::Coupling))) {
    stage.Lval.value = stage.Cval.value = 0;
  }
  Store(stage, values);
  return corrected;
}

}  // namespace quilm
