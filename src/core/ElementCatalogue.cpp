#include "core/ElementCatalogue.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/modGeneral.h"

namespace quilm {

namespace {

template <auto Part>
constexpr Slot PartSlot(SlotCode code, StageColumn column, std::string_view name, std::string (*format)(f32)) {
  return {code,  column, name, StageField::Of<Part, &PartValue::value>(), StageField::Of<Part, &PartValue::tolerance>(),
          format};
}

template <auto Value, auto Tolerance>
constexpr Slot LineSlot(SlotCode code, std::string_view name, std::string (*format)(f32)) {
  return {code,
          StageColumn::Line,
          name,
          StageField::Of<&Stage::TLval, Value>(),
          StageField::Of<&Stage::TLval, Tolerance>(),
          format};
}

template <auto Value, auto Tolerance>
constexpr Slot CoupledSlot(SlotCode code, std::string_view name, std::string (*format)(f32)) {
  return {code,
          StageColumn::Coupled,
          name,
          StageField::Of<&Stage::CoupledVal, Value>(),
          StageField::Of<&Stage::CoupledVal, Tolerance>(),
          format};
}

constexpr std::array<Slot, 10> allSlots = {{
    PartSlot<&Stage::Lval>(SlotCode::Inductance, StageColumn::L, "L", FormatInductance),
    PartSlot<&Stage::Cval>(SlotCode::Capacitance, StageColumn::C, "C", FormatCapacitance),
    PartSlot<&Stage::Rval>(SlotCode::Resistance, StageColumn::R, "R", FormatResistance),
    LineSlot<&LineValue::degrees, &LineValue::degreesTolerance>(SlotCode::LineLength, "Len", FormatValue),
    {SlotCode::LineFrequency,
     StageColumn::Line,
     "Freq",
     StageField::Of<&Stage::TLval, &LineValue::freq>(),
     {},
     FormatFrequency},
    LineSlot<&LineValue::impedance, &LineValue::impedanceTolerance>(SlotCode::LineImpedance, "Z", FormatResistance),
    PartSlot<&Stage::XfmrVal>(SlotCode::TurnsRatio, StageColumn::Turns, "N", FormatValue),
    CoupledSlot<&CoupledValue::primary, &CoupledValue::primaryTolerance>(SlotCode::PrimaryInductance, "Pri",
                                                                         FormatInductance),
    CoupledSlot<&CoupledValue::secondary, &CoupledValue::secondaryTolerance>(SlotCode::SecondaryInductance, "Sec",
                                                                             FormatInductance),
    CoupledSlot<&CoupledValue::k, &CoupledValue::kTolerance>(SlotCode::Coupling, "K", FormatValue),
}};

// The slots from one code to another, both included.
constexpr std::span<const Slot> Range(SlotCode first, SlotCode last) {
  const auto from = static_cast<std::size_t>(first);
  return std::span(allSlots).subspan(from, static_cast<std::size_t>(last) - from + 1);
}

constexpr auto inductor = Range(SlotCode::Inductance, SlotCode::Inductance);
constexpr auto capacitor = Range(SlotCode::Capacitance, SlotCode::Capacitance);
constexpr auto resistor = Range(SlotCode::Resistance, SlotCode::Resistance);
constexpr auto tuned = Range(SlotCode::Inductance, SlotCode::Capacitance);
constexpr auto damped = Range(SlotCode::Inductance, SlotCode::Resistance);
constexpr auto line = Range(SlotCode::LineLength, SlotCode::LineImpedance);
constexpr auto turns = Range(SlotCode::TurnsRatio, SlotCode::TurnsRatio);
constexpr auto coupled = Range(SlotCode::PrimaryInductance, SlotCode::Coupling);
constexpr std::span<const Slot> nothing;

constexpr std::array<Element, 21> elements = {{
    {SeriesL, "SeriesL", Placement::Series, Joint::Chain, inductor},
    {ShuntL, "ShuntL", Placement::Shunt, Joint::Chain, inductor},
    {SeriesC, "SeriesC", Placement::Series, Joint::Chain, capacitor},
    {ShuntC, "ShuntC", Placement::Shunt, Joint::Chain, capacitor},
    {SeriesSLC, "SeriesSLC", Placement::Series, Joint::Chain, tuned},
    {ShuntSLC, "ShuntSLC", Placement::Shunt, Joint::Chain, tuned},
    {SeriesPLC, "SeriesPLC", Placement::Series, Joint::Parallel, tuned},
    {ShuntPLC, "ShuntPLC", Placement::Shunt, Joint::Parallel, tuned},
    {SeriesR, "SeriesR", Placement::Series, Joint::Chain, resistor},
    {ShuntR, "ShuntR", Placement::Shunt, Joint::Chain, resistor},
    {TransLine, "TransLine", Placement::Through, Joint::Line, line},
    {SeriesShortStub, "SeriesShortStub", Placement::Series, Joint::ShortStub, line},
    {SeriesOpenStub, "SeriesOpenStub", Placement::Series, Joint::OpenStub, line},
    {ShuntShortStub, "ShuntShortStub", Placement::Shunt, Joint::ShortStub, line},
    {ShuntOpenStub, "ShuntOpenStub", Placement::Shunt, Joint::OpenStub, line},
    {Transformer, "Transformer", Placement::Through, Joint::Transformer, turns},
    {SeriesReactance, "SeriesReactance", Placement::Series, Joint::Reactance, nothing},
    {ShuntReactance, "ShuntReactance", Placement::Shunt, Joint::Reactance, nothing},
    {CoupledInductors, "CoupledInductors", Placement::Through, Joint::Coupled, coupled},
    {ShuntRLC, "ShuntRLC", Placement::Shunt, Joint::Chain, damped},
    {SeriesRLC, "SeriesRLC", Placement::Series, Joint::Parallel, damped},
}};

}  // namespace

std::span<const Element> Elements() { return elements; }

const Element* FindElement(i16 elementType) {
  if (elementType < 1 || static_cast<std::size_t>(elementType) > elements.size()) return nullptr;
  return &elements[static_cast<std::size_t>(elementType) - 1];
}

std::span<const Slot> SlotsOf(i16 elementType) {
  const Element* element = FindElement(elementType);
  return element ? element->slots : nothing;
}

bool HasSlot(i16 elementType, SlotCode slot) {
  const Element* element = FindElement(elementType);
  return element && element->Has(slot);
}

std::span<const Slot> AllSlots() { return allSlots; }

std::span<const Slot> SlotsIn(StageColumn column) {
  const auto slots = std::ranges::equal_range(allSlots, column, {}, &Slot::column);
  return {slots.begin(), slots.end()};
}

}  // namespace quilm
