#include "core/ElementCatalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace quilm {
namespace {

using Codes = std::vector<SlotCode>;

Codes CodesOf(std::span<const Slot> slots) {
  Codes codes;
  for (const Slot& slot : slots) codes.push_back(slot.code);
  return codes;
}

const Codes inductor = {SlotCode::Inductance};
const Codes capacitor = {SlotCode::Capacitance};
const Codes resistor = {SlotCode::Resistance};
const Codes pair = {SlotCode::Inductance, SlotCode::Capacitance};
const Codes allParts = {SlotCode::Inductance, SlotCode::Capacitance, SlotCode::Resistance};
const Codes line = {SlotCode::LineLength, SlotCode::LineFrequency, SlotCode::LineImpedance};
const Codes coils = {SlotCode::PrimaryInductance, SlotCode::SecondaryInductance, SlotCode::Coupling};

struct Fact {
  Placement placement;
  Joint joint;
  Codes slots;
};

TEST(ElementCatalogue, EachTypeIsWhatItsNameSays) {
  const std::map<std::string_view, Fact> facts = {
      {"SeriesL", {Placement::Series, Joint::Chain, inductor}},
      {"ShuntL", {Placement::Shunt, Joint::Chain, inductor}},
      {"SeriesC", {Placement::Series, Joint::Chain, capacitor}},
      {"ShuntC", {Placement::Shunt, Joint::Chain, capacitor}},
      {"SeriesSLC", {Placement::Series, Joint::Chain, pair}},
      {"ShuntSLC", {Placement::Shunt, Joint::Chain, pair}},
      {"SeriesPLC", {Placement::Series, Joint::Parallel, pair}},
      {"ShuntPLC", {Placement::Shunt, Joint::Parallel, pair}},
      {"SeriesR", {Placement::Series, Joint::Chain, resistor}},
      {"ShuntR", {Placement::Shunt, Joint::Chain, resistor}},
      {"TransLine", {Placement::Through, Joint::Line, line}},
      {"SeriesShortStub", {Placement::Series, Joint::ShortStub, line}},
      {"SeriesOpenStub", {Placement::Series, Joint::OpenStub, line}},
      {"ShuntShortStub", {Placement::Shunt, Joint::ShortStub, line}},
      {"ShuntOpenStub", {Placement::Shunt, Joint::OpenStub, line}},
      {"Transformer", {Placement::Through, Joint::Transformer, {SlotCode::TurnsRatio}}},
      {"SeriesReactance", {Placement::Series, Joint::Reactance, {}}},
      {"ShuntReactance", {Placement::Shunt, Joint::Reactance, {}}},
      {"CoupledInductors", {Placement::Through, Joint::Coupled, coils}},
      {"ShuntRLC", {Placement::Shunt, Joint::Chain, allParts}},
      {"SeriesRLC", {Placement::Series, Joint::Parallel, allParts}},
  };
  EXPECT_EQ(Elements().size(), facts.size());
  for (const Element& element : Elements()) {
    const auto fact = facts.find(element.name);
    ASSERT_NE(fact, facts.end()) << element.name;
    EXPECT_EQ(element.placement, fact->second.placement) << element.name;
    EXPECT_EQ(element.joint, fact->second.joint) << element.name;
    EXPECT_EQ(CodesOf(element.slots), fact->second.slots) << element.name;
  }
}

TEST(ElementCatalogue, TheCodesOneToTwentyOneStandInOrder) {
  i16 code = 0;
  for (const Element& element : Elements()) {
    EXPECT_EQ(element.code, ++code) << element.name;
    EXPECT_EQ(FindElement(code), &element);
  }
  EXPECT_EQ(code, 21);
  EXPECT_EQ(FindElement(SeriesRLC)->name, "SeriesRLC");
  EXPECT_EQ(FindElement(Transformer)->name, "Transformer");
}

TEST(ElementCatalogue, ACodeBeyondTheCatalogueHasNoValues) {
  for (const i16 code : std::initializer_list<i16>{-32768, -1, 0, 22, 32767}) {
    EXPECT_EQ(FindElement(code), nullptr) << code;
    EXPECT_TRUE(SlotsOf(code).empty()) << code;
    EXPECT_FALSE(HasSlot(code, SlotCode::Inductance)) << code;
  }
}

TEST(ElementCatalogue, NoTwoTypesAreAlike) {
  std::set<std::tuple<Placement, Joint, Codes>> kinds;
  for (const Element& element : Elements()) {
    kinds.insert({element.placement, element.joint, CodesOf(element.slots)});
  }
  EXPECT_EQ(kinds.size(), Elements().size());
}

// Column by column as files and scripts count them.
std::vector<f32*> NumbersOf(Stage& s) {
  return {&s.Lval.value,
          &s.Lval.tolerance,
          &s.Cval.value,
          &s.Cval.tolerance,
          &s.Rval.value,
          &s.Rval.tolerance,
          &s.TLval.degrees,
          &s.TLval.freq,
          &s.TLval.impedance,
          &s.TLval.degreesTolerance,
          &s.TLval.impedanceTolerance,
          &s.XfmrVal.value,
          &s.XfmrVal.tolerance,
          &s.CoupledVal.primary,
          &s.CoupledVal.secondary,
          &s.CoupledVal.k,
          &s.CoupledVal.primaryTolerance,
          &s.CoupledVal.secondaryTolerance,
          &s.CoupledVal.kTolerance};
}

TEST(ElementCatalogue, TheColumnsReachEveryNumberOfAStageInTheOrderOfFiles) {
  Stage stage;
  std::vector<f32*> reached;
  for (const StageColumn column :
       {StageColumn::L, StageColumn::C, StageColumn::R, StageColumn::Line, StageColumn::Turns, StageColumn::Coupled}) {
    for (const Slot& slot : SlotsIn(column)) reached.push_back(&slot.value(stage));
    for (const Slot& slot : SlotsIn(column)) {
      if (slot.tolerance) reached.push_back(&slot.tolerance(stage));
    }
  }
  EXPECT_EQ(reached, NumbersOf(stage));
}

TEST(ElementCatalogue, WhatIsWrittenThroughASlotIsReadThroughIt) {
  Stage stage;
  f32 number = 0;
  for (const Slot& slot : AllSlots()) {
    slot.value(stage) = ++number;
    if (slot.tolerance) slot.tolerance(stage) = -number;
  }
  const Stage& written = stage;
  number = 0;
  for (const Slot& slot : AllSlots()) {
    EXPECT_EQ(slot.value(written), ++number) << slot.name;
    if (slot.tolerance) {
      EXPECT_EQ(slot.tolerance(written), -number) << slot.name;
    }
  }
}

TEST(ElementCatalogue, OnlyTheFrequencyOfALineHasNoTolerance) {
  for (const Slot& slot : AllSlots()) {
    EXPECT_EQ(static_cast<bool>(slot.tolerance), slot.code != SlotCode::LineFrequency) << slot.name;
  }
}

TEST(ElementCatalogue, TheSlotsStandInTheOrderOfTheirCodes) {
  ASSERT_EQ(AllSlots().size(), 10U);
  for (std::size_t i = 0; i < AllSlots().size(); ++i) EXPECT_EQ(static_cast<std::size_t>(AllSlots()[i].code), i);
}

TEST(ElementCatalogue, EachSlotReadsInItsUnit) {
  const std::map<SlotCode, std::string> texts = {
      {SlotCode::Inductance, "100uH"}, {SlotCode::Capacitance, "100pF"},       {SlotCode::Resistance, "1.5k"},
      {SlotCode::LineLength, "1.5k"},  {SlotCode::LineFrequency, "1.5k "},     {SlotCode::LineImpedance, "1.5k"},
      {SlotCode::TurnsRatio, "1.5k"},  {SlotCode::PrimaryInductance, "100uH"}, {SlotCode::SecondaryInductance, "100uH"},
      {SlotCode::Coupling, "1.5k"},
  };
  for (const Slot& slot : AllSlots()) {
    const std::string& text = texts.at(slot.code);
    EXPECT_EQ(slot.format(text == "100uH" ? 1e-4F : text == "100pF" ? 1e-10F : 1500), text) << slot.name;
  }
}

}  // namespace
}  // namespace quilm
