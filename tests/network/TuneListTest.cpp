#include "network/TuneList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "core/Fault.h"
#include "core/Network.h"

namespace quilm {
namespace {

using K = TuneKind;

Network NetworkOf(std::initializer_list<i16> types) {
  Network network;
  for (const i16 type : types) network.stage[++network.Stages].ElementType = type;
  network.Rsource[1] = 50;
  network.Rload[1] = 75;
  network.Qind[1] = 100;
  network.Qcap[1] = 1000;
  return network;
}

std::vector<std::pair<int, K>> PlacesOf(const TuneList& list) {
  std::vector<std::pair<int, K>> places;
  for (const TuneItem& item : list) places.emplace_back(item.TuneStage, item.kind);
  return places;
}

TuneItem ItemOf(const Network& network, K kind) {
  for (const TuneItem& item : ItemsForTuning(network, 0)) {
    if (item.kind == kind) return item;
  }
  throw Fault("no such item");
}

struct ItemsOfType {
  i16 type;
  std::vector<K> items;
};

// Every element type with what it offers.
const ItemsOfType offered[] = {
    {SeriesL, {K::Inductor}},
    {ShuntL, {K::Inductor}},
    {SeriesC, {K::Capacitor}},
    {ShuntC, {K::Capacitor}},
    {SeriesSLC, {K::Inductor, K::Capacitor, K::Pair}},
    {ShuntSLC, {K::Inductor, K::Capacitor, K::Pair}},
    {SeriesPLC, {K::Inductor, K::Capacitor, K::Pair}},
    {ShuntPLC, {K::Inductor, K::Capacitor, K::Pair}},
    {SeriesR, {K::Resistor}},
    {ShuntR, {K::Resistor}},
    {TransLine, {K::LineLength, K::LineImpedance}},
    {SeriesShortStub, {K::LineLength, K::LineImpedance}},
    {SeriesOpenStub, {K::LineLength, K::LineImpedance}},
    {ShuntShortStub, {K::LineLength, K::LineImpedance}},
    {ShuntOpenStub, {K::LineLength, K::LineImpedance}},
    {Transformer, {K::TurnsRatio}},
    {SeriesReactance, {}},
    {ShuntReactance, {}},
    {CoupledInductors, {K::Primary, K::Secondary, K::Coupling}},
    {ShuntRLC, {K::Inductor, K::Capacitor, K::Pair, K::Resistor}},
    {SeriesRLC, {K::Inductor, K::Capacitor, K::Pair, K::Resistor}},
    {0, {}},
};

TEST(ItemsForTuning, EveryTypeOffersItsValuesInOrder) {
  for (const auto& [type, items] : offered) {
    std::vector<std::pair<int, K>> expected;
    for (const K kind : items) expected.emplace_back(2, kind);
    for (const K kind : {K::Source, K::Load, K::InductorQ, K::CapacitorQ}) expected.emplace_back(0, kind);
    EXPECT_EQ(PlacesOf(ItemsForTuning(NetworkOf({0, type}), 0)), expected) << "type " << type;
  }
}

TEST(ItemsOfStages, HasTheSameWithoutPairsTerminationsAndQ) {
  for (const auto& [type, items] : offered) {
    std::vector<std::pair<int, K>> expected;
    for (const K kind : items) {
      if (kind != K::Pair) expected.emplace_back(2, kind);
    }
    EXPECT_EQ(PlacesOf(ItemsOfStages(NetworkOf({0, type}))), expected) << "type " << type;
  }
}

// Four values a stage, and the four of the whole network.
TEST(ItemsForTuning, TheLongestNetworkHas176) {
  Network network;
  network.Stages = stagesLimit;
  for (int s = 1; s <= stagesLimit; ++s) network.stage[s].ElementType = SeriesRLC;
  EXPECT_EQ(ItemsForTuning(network, 0).size(), 176U);
}

TEST(ItemsForTuning, StagesComeInOrder) {
  const std::vector<std::pair<int, K>> expected = {{1, K::Capacitor}, {2, K::Inductor}, {3, K::Capacitor},
                                                   {0, K::Source},    {0, K::Load},     {0, K::InductorQ},
                                                   {0, K::CapacitorQ}};
  EXPECT_EQ(PlacesOf(ItemsForTuning(NetworkOf({ShuntC, SeriesL, ShuntC}), 0)), expected);
}

TEST(ItemsForTuning, EachStepIsReadWhereItRests) {
  Network network = NetworkOf({SeriesRLC, TransLine, Transformer, CoupledInductors});
  network.stage[1].Lval.tolerance = 1;
  network.stage[1].Cval.tolerance = 2;
  network.stage[1].Rval.tolerance = 3;
  network.stage[2].TLval.degreesTolerance = 4;
  network.stage[2].TLval.impedanceTolerance = 5;
  network.stage[3].XfmrVal.tolerance = 6;
  network.stage[4].CoupledVal.primaryTolerance = 7;
  network.stage[4].CoupledVal.secondaryTolerance = 8;
  network.stage[4].CoupledVal.kTolerance = 9;
  network.Rsource[2] = 10;
  network.Rload[2] = 11;
  network.Qind[2] = 12;
  network.Qcap[2] = 13;
  const TuneList expected = {{1, K::Inductor, 1},   {1, K::Capacitor, 2},  {1, K::Pair, 3},
                             {1, K::Resistor, 3},   {2, K::LineLength, 4}, {2, K::LineImpedance, 5},
                             {3, K::TurnsRatio, 6}, {4, K::Primary, 7},    {4, K::Secondary, 8},
                             {4, K::Coupling, 9},   {0, K::Source, 10},    {0, K::Load, 11},
                             {0, K::InductorQ, 12}, {0, K::CapacitorQ, 13}};
  EXPECT_EQ(ItemsForTuning(network, 0), expected);
}

TEST(ItemsForTuning, ACouplingWithoutAStepTakesTheOneGivenElseOne) {
  Network network = NetworkOf({CoupledInductors});
  EXPECT_EQ(ItemsForTuning(network, 2.5F)[2].TuneStep, 2.5F);
  EXPECT_EQ(ItemsForTuning(network, 0)[2].TuneStep, 1);
  EXPECT_EQ(ItemsForTuning(network, 2.5F)[0].TuneStep, 0);
  network.stage[1].CoupledVal.kTolerance = 3;
  EXPECT_EQ(ItemsForTuning(network, 2.5F)[2].TuneStep, 3);
}

TEST(ItemsOfStages, ACouplingWithoutAStepHasNone) {
  EXPECT_EQ(ItemsOfStages(NetworkOf({CoupledInductors}))[2].TuneStep, 0);
}

TEST(StoreStep, ReadsBackWhatWasStored) {
  const Network before =
      NetworkOf({SeriesL, ShuntC, SeriesSLC, SeriesRLC, TransLine, Transformer, CoupledInductors, ShuntR});
  for (std::size_t i = 0; i < ItemsForTuning(before, 0).size(); ++i) {
    Network network = before;
    const TuneItem item = ItemsForTuning(network, 0)[i];
    StoreStep(network, item, 3.7F);
    EXPECT_EQ(ItemsForTuning(network, 0)[i].TuneStep, 3.7F) << i;
  }
}

TEST(StoreStep, EachPartOfAPairTakesHalf) {
  Network network = NetworkOf({ShuntPLC});
  StoreStep(network, ItemOf(network, K::Pair), 5);
  EXPECT_EQ(network.stage[1].Lval.tolerance, 2.5F);
  EXPECT_EQ(network.stage[1].Cval.tolerance, 2.5F);
}

TEST(StoreStepOfAll, FillsEveryStepOfEveryStageAndNoOther) {
  Network network = NetworkOf({SeriesL, ShuntC});
  StoreStepOfAll(network, 5);
  for (int s = 1; s <= 2; ++s) {
    Stage expected;
    expected.ElementType = network.stage[s].ElementType;
    expected.Lval.tolerance = expected.Cval.tolerance = expected.Rval.tolerance = 5;
    expected.TLval.degreesTolerance = expected.TLval.impedanceTolerance = 5;
    expected.XfmrVal.tolerance = 5;
    expected.CoupledVal.primaryTolerance = expected.CoupledVal.secondaryTolerance = expected.CoupledVal.kTolerance = 5;
    EXPECT_EQ(network.stage[s], expected);
  }
  EXPECT_EQ(network.stage[3], Stage{});
  EXPECT_EQ(network.Rsource[2], 0);
}

TEST(ClearPlacesBehind, BlanksFourPlacesWithAStepOfTurns) {
  Network network = NetworkOf({SeriesL, ShuntC});
  for (int s = 3; s <= stageBound; ++s) network.stage[s].Lval.value = 1;
  Stage blank;
  blank.XfmrVal.tolerance = 2;
  ClearPlacesBehind(network);
  for (int s = 3; s <= 6; ++s) EXPECT_EQ(network.stage[s], blank) << s;
  EXPECT_EQ(network.stage[7].Lval.value, 1);
  EXPECT_EQ(network.stage[2].ElementType, ShuntC);
}

TEST(ClearPlacesBehind, EndsAtTheLastPlace) {
  Network network;
  network.Stages = stagesLimit;
  ClearPlacesBehind(network);
  EXPECT_EQ(network.stage[46].XfmrVal.tolerance, 2);
  EXPECT_EQ(network.stage[43], Stage{});
}

// 1 / 1.05 in 32 bits.
TEST(TuneMultiplier, IsAFactorAndItsReciprocal) {
  EXPECT_EQ(TuneMultiplier(K::Inductor, 5, StepWay::Up), 1.05F);
  EXPECT_EQ(TuneMultiplier(K::Inductor, 5, StepWay::Down), 0.952380952F);
  EXPECT_EQ(TuneMultiplier(K::CapacitorQ, 100, StepWay::Up), 2);
  EXPECT_EQ(TuneMultiplier(K::CapacitorQ, 100, StepWay::Down), 0.5F);
}

TEST(TuneMultiplier, OfALineIsTheDegreesThatComeOff) {
  EXPECT_EQ(TuneMultiplier(K::LineLength, 5, StepWay::Up), -5);
  EXPECT_EQ(TuneMultiplier(K::LineLength, 5, StepWay::Down), 5);
}

// A network with each item at 8, except the terminations and Q.
Network Eights() {
  Network network = NetworkOf({SeriesRLC, TransLine, Transformer, CoupledInductors});
  for (int s = 1; s <= network.Stages; ++s) {
    for (const Slot& slot : SlotsOf(network.stage[s].ElementType)) slot.value(network.stage[s]) = 8;
  }
  return network;
}

TEST(ApplyStep, MovesItsValueAlone) {
  struct Case {
    K kind;
    f32& (*value)(Network&);
    f32 expected;
  };
  const Case cases[] = {
      {K::Inductor, [](Network& n) -> f32& { return n.stage[1].Lval.value; }, 4},
      {K::Capacitor, [](Network& n) -> f32& { return n.stage[1].Cval.value; }, 4},
      {K::Resistor, [](Network& n) -> f32& { return n.stage[1].Rval.value; }, 4},
      {K::LineImpedance, [](Network& n) -> f32& { return n.stage[2].TLval.impedance; }, 4},
      {K::TurnsRatio, [](Network& n) -> f32& { return n.stage[3].XfmrVal.value; }, 4},
      {K::Primary, [](Network& n) -> f32& { return n.stage[4].CoupledVal.primary; }, 4},
      {K::Secondary, [](Network& n) -> f32& { return n.stage[4].CoupledVal.secondary; }, 4},
      {K::Coupling, [](Network& n) -> f32& { return n.stage[4].CoupledVal.k; }, 4},
      {K::Source, [](Network& n) -> f32& { return n.Rsource[1]; }, 25},
      {K::Load, [](Network& n) -> f32& { return n.Rload[1]; }, 37.5F},
      {K::InductorQ, [](Network& n) -> f32& { return n.Qind[1]; }, 50},
      {K::CapacitorQ, [](Network& n) -> f32& { return n.Qcap[1]; }, 500},
  };
  for (const Case& each : cases) {
    Network network = Eights();
    ApplyStep(network, ItemOf(network, each.kind), 0.5F);
    Network expected = Eights();
    each.value(expected) = each.expected;
    EXPECT_EQ(network, expected) << static_cast<int>(each.kind);
  }
}

// sqrt(L C) = 8 before and after.
TEST(ApplyStep, APairKeepsItsResonance) {
  Network network = Eights();
  ApplyStep(network, ItemOf(network, K::Pair), 2);
  EXPECT_EQ(network.stage[1].Lval.value, 16);
  EXPECT_EQ(network.stage[1].Cval.value, 4);
}

TEST(ApplyStep, ALineGoesByDegrees) {
  Network network = Eights();
  network.stage[2].TLval.degrees = 90;
  const TuneItem item = ItemOf(network, K::LineLength);
  ApplyStep(network, item, TuneMultiplier(K::LineLength, 5, StepWay::Up));
  EXPECT_EQ(network.stage[2].TLval.degrees, 95);
  for (int i = 0; i < 20; ++i) ApplyStep(network, item, TuneMultiplier(K::LineLength, 5, StepWay::Down));
  EXPECT_EQ(network.stage[2].TLval.degrees, -5);
  EXPECT_EQ(network.stage[2].TLval.freq, 8);
}

// Each of the four roundings errs by half a unit of the last place at most: the multipliers and the products.
TEST(ApplyStep, UpThenDownReturnsWithinTwoUnitsOfTheLastPlace) {
  constexpr unsigned seed = 7;
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  std::uniform_real_distribution<f32> exponent(-13, 6);
  std::uniform_real_distribution<f32> percent(0.01F, 100);
  constexpr f32 rounded[] = {0.01F, 1, 2, 5, 10, 50, 100};
  for (int trial = 0; trial < 100000; ++trial) {
    Network network = NetworkOf({SeriesSLC});
    const f32 L = network.stage[1].Lval.value = std::pow(10.0F, exponent(random));
    const f32 C = network.stage[1].Cval.value = std::pow(10.0F, exponent(random));
    const f32 step = trial % 2 == 0 ? rounded[random() % std::size(rounded)] : percent(random);
    const TuneItem item = ItemOf(network, trial % 3 == 0 ? K::Inductor : K::Pair);
    const bool upFirst = trial % 5 != 0;
    for (const StepWay way : {upFirst ? StepWay::Up : StepWay::Down, upFirst ? StepWay::Down : StepWay::Up}) {
      ApplyStep(network, item, TuneMultiplier(item.kind, step, way));
    }
    const auto units = [](f32 now, f32 before) {
      return std::fabs(now - before) / (std::nextafter(before, std::numeric_limits<f32>::infinity()) - before);
    };
    ASSERT_LE(units(network.stage[1].Lval.value, L), 2) << L << " by " << step;
    ASSERT_LE(units(network.stage[1].Cval.value, C), 2) << C << " by " << step;
  }
}

TEST(ApplyStep, WhatLeavesTheRangeOfNumbersIsRefused) {
  Network network = NetworkOf({SeriesSLC});
  network.stage[1].Lval.value = 3e38F;
  network.stage[1].Cval.value = 1e-45F;
  network.Qind[1] = 3e38F;
  const Network before = network;
  EXPECT_THROW(ApplyStep(network, ItemOf(network, K::Inductor), 2), NumericFault);
  EXPECT_THROW(ApplyStep(network, ItemOf(network, K::Capacitor), 0.5F), NumericFault);
  EXPECT_THROW(ApplyStep(network, ItemOf(network, K::Pair), 2), NumericFault);
  EXPECT_THROW(ApplyStep(network, ItemOf(network, K::InductorQ), 2), NumericFault);
  EXPECT_EQ(network, before);
}

TEST(ApplyStep, AValueOfZeroStaysZero) {
  Network network = NetworkOf({SeriesL});
  ApplyStep(network, ItemOf(network, K::Inductor), 2);
  EXPECT_EQ(network.stage[1].Lval.value, 0);
}

}  // namespace
}  // namespace quilm
