#include "network/NetworkEdits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/Fault.h"
#include "core/NumericFault.h"

namespace quilm {
namespace {

// A stage whose every value is its own, so that one left behind or mixed up shows.
Stage Numbered(int n) {
  const f32 x = static_cast<f32>(n);
  Stage stage;
  stage.ElementType = static_cast<i16>(1 + n % 8);
  stage.Lval = {x, x + 0.1F};
  stage.Cval = {x + 0.2F, x + 0.3F};
  stage.Rval = {x + 0.4F, x + 0.5F};
  stage.TLval = {x + 0.6F, x + 0.7F, x + 0.8F, x + 0.9F, x + 0.11F};
  stage.XfmrVal = {x + 0.12F, x + 0.13F};
  stage.CoupledVal = {x + 0.14F, x + 0.15F, x + 0.16F, x + 0.17F, x + 0.18F, x + 0.19F};
  return stage;
}

Network Ladder(int stages) {
  Network network;
  network.Stages = static_cast<i16>(stages);
  for (int s = 1; s <= stages; ++s) network.stage[s] = Numbered(s);
  network.Rsource[1] = 50;
  network.Rload[1] = 75;
  network.Rstandard = 60;
  return network;
}

// The numbers of the stages in their new order; 0 for a place without values.
std::vector<int> OrderOf(const Network& network) {
  std::vector<int> order;
  for (int s = 1; s <= network.Stages; ++s) {
    const int n = static_cast<int>(network.stage[s].Lval.value);
    EXPECT_TRUE(n == 0 || network.stage[s] == Numbered(n)) << "stage " << s;
    order.push_back(n);
  }
  return order;
}

using Order = std::vector<int>;

TEST(InsertStage, MovesTheOthersUpWhole) {
  Network network = Ladder(4);
  InsertStage(network, 2);
  EXPECT_EQ(OrderOf(network), (Order{1, 0, 2, 3, 4}));
}

TEST(InsertStage, ThePlaceKeepsTheTypeAndHasNoValues) {
  Network network = Ladder(4);
  InsertStage(network, 3);
  Stage expected;
  expected.ElementType = Numbered(3).ElementType;
  EXPECT_EQ(network.stage[3], expected);
}

TEST(InsertStage, BehindTheLastItAppends) {
  Network network = Ladder(2);
  InsertStage(network, 3);
  EXPECT_EQ(OrderOf(network), (Order{1, 2, 0}));
}

// What lies behind the network means nothing, least of all a type.
TEST(InsertStage, BehindTheLastItHasNoType) {
  Network network = Ladder(2);
  network.stage[3] = Numbered(9);
  InsertStage(network, 3);
  EXPECT_EQ(network.stage[3], Stage{});
}

TEST(AppendStage, FillsTheListToItsBoundBeyondTheLimitOfNetworks) {
  Network network = Ladder(43);
  for (int s = 44; s <= 46; ++s) AppendStage(network, Numbered(s));
  EXPECT_EQ(network.Stages, 46);
  EXPECT_EQ(network.stage[46], Numbered(46));
  const Network full = network;
  EXPECT_THROW(AppendStage(network, Numbered(47)), BoundFault);
  EXPECT_EQ(network, full);
}

TEST(DropLastStage, LeavesNothingOfItsValues) {
  Network network = Ladder(3);
  DropLastStage(network);
  EXPECT_EQ(network.Stages, 2);
  Stage left;
  left.ElementType = Numbered(3).ElementType;
  EXPECT_EQ(network.stage[3], left);
  EXPECT_EQ(network.stage[2], Numbered(2));
}

TEST(DropLastStage, OfNoneIsAFault) {
  Network network = Ladder(0);
  EXPECT_THROW(DropLastStage(network), BoundFault);
}

TEST(CutStages, LeavesFortyThree) {
  Network network = Ladder(46);
  EXPECT_TRUE(CutStages(network));
  EXPECT_EQ(network.Stages, 43);
  EXPECT_FALSE(CutStages(network));
  EXPECT_EQ(network.Stages, 43);
}

Stage Reactance(i16 type, f32 X, f32 F) {
  Stage stage;
  stage.ElementType = type;
  ResolveReactance(stage, X, F);
  return stage;
}

// 50 / (2 Pi 1e6) = 7.957747 uH; 1 / (10 2 Pi 1e6) = 15.91549 nF.
TEST(ResolveReactance, PositiveIsAnInductorAndNegativeACapacitor) {
  const Stage series = Reactance(SeriesReactance, 50, 1e6F);
  EXPECT_EQ(series.ElementType, SeriesL);
  EXPECT_FLOAT_EQ(series.Lval.value, 7.957747e-6F);
  EXPECT_EQ(series.Cval.value, 0);
  const Stage shunt = Reactance(ShuntReactance, 50, 1e6F);
  EXPECT_EQ(shunt.ElementType, ShuntL);
  EXPECT_FLOAT_EQ(shunt.Lval.value, 7.957747e-6F);
  const Stage negative = Reactance(SeriesReactance, -10, 1e6F);
  EXPECT_EQ(negative.ElementType, SeriesC);
  EXPECT_FLOAT_EQ(negative.Cval.value, 15.91549e-9F);
  EXPECT_EQ(negative.Lval.value, 0);
  EXPECT_EQ(Reactance(ShuntReactance, -10, 1e6F).ElementType, ShuntC);
}

TEST(ResolveReactance, BeyondTheRangeOfNumbersItChangesNothing) {
  Stage stage;
  stage.ElementType = SeriesReactance;
  EXPECT_THROW(ResolveReactance(stage, -1e-20F, 1e-20F), NumericFault);
  Stage untouched;
  untouched.ElementType = SeriesReactance;
  EXPECT_EQ(stage, untouched);
}

TEST(InsertStage, IntoAnEmptyListMakesStageOne) {
  Network network;
  InsertStage(network, 1);
  EXPECT_EQ(network.Stages, 1);
}

TEST(InsertStage, TheFortyThirdIsTheLast) {
  Network network = Ladder(42);
  InsertStage(network, 43);
  EXPECT_EQ(network.Stages, 43);
  EXPECT_FALSE(HasRoomFor(network, 1));
  const Network full = network;
  EXPECT_THROW(InsertStage(network, 1), BoundFault);
  EXPECT_EQ(network, full);
}

TEST(InsertStage, APlaceThatIsNotThereIsAFault) {
  Network network = Ladder(2);
  EXPECT_THROW(InsertStage(network, 0), BoundFault);
  EXPECT_THROW(InsertStage(network, 4), BoundFault);
  EXPECT_EQ(network, Ladder(2));
}

TEST(DeleteStage, MovesTheOthersDownWhole) {
  Network network = Ladder(4);
  DeleteStage(network, 2);
  EXPECT_EQ(OrderOf(network), (Order{1, 3, 4}));
}

TEST(DeleteStage, LeavesNothingBehindTheLast) {
  Network network = Ladder(4);
  DeleteStage(network, 4);
  EXPECT_EQ(network, Ladder(3));
}

TEST(DeleteStage, OfTheOnlyOneLeavesNone) {
  Network network = Ladder(1);
  DeleteStage(network, 1);
  EXPECT_EQ(network, Ladder(0));
}

TEST(DeleteStage, TakesBackAnInsert) {
  Network network = Ladder(43);
  DeleteStage(network, 43);
  InsertStage(network, 7);
  DeleteStage(network, 7);
  EXPECT_EQ(network, Ladder(42));
}

TEST(DeleteStage, APlaceThatIsNotThereIsAFault) {
  Network network = Ladder(2);
  EXPECT_THROW(DeleteStage(network, 0), BoundFault);
  EXPECT_THROW(DeleteStage(network, 3), BoundFault);
}

TEST(ClearValues, KeepsTheType) {
  Stage stage = Numbered(5);
  ClearValues(stage);
  Stage expected;
  expected.ElementType = Numbered(5).ElementType;
  EXPECT_EQ(stage, expected);
}

TEST(MoveStagesUp, LeavesBlankPlaces) {
  Network network = Ladder(3);
  MoveStagesUp(network, 2, 2);
  EXPECT_EQ(OrderOf(network), (Order{1, 0, 0, 2, 3}));
  EXPECT_EQ(network.stage[2], Stage{});
  EXPECT_EQ(network.stage[3], Stage{});
}

TEST(MoveStagesUp, NeedsRoom) {
  Network network = Ladder(42);
  EXPECT_THROW(MoveStagesUp(network, 1, 2), BoundFault);
  EXPECT_EQ(network, Ladder(42));
}

TEST(MovePartsUp, TolerancesAndOtherValuesKeepTheirPlaces) {
  Network network = Ladder(2);
  MovePartsUp(network, 1, 1);
  Stage first = Numbered(1);
  first.ElementType = 0;
  first.Lval.value = first.Cval.value = 0;
  Stage second = Numbered(2);
  second.ElementType = Numbered(1).ElementType;
  second.Lval.value = Numbered(1).Lval.value;
  second.Cval.value = Numbered(1).Cval.value;
  Stage third;
  third.ElementType = Numbered(2).ElementType;
  third.Lval.value = Numbered(2).Lval.value;
  third.Cval.value = Numbered(2).Cval.value;
  EXPECT_EQ(network.Stages, 3);
  EXPECT_EQ(network.stage[1], first);
  EXPECT_EQ(network.stage[2], second);
  EXPECT_EQ(network.stage[3], third);
}

TEST(MovePartsUp, OtherTypesTakeAllTheirValuesAlong) {
  Network network = Ladder(3);
  network.stage[2].ElementType = TransLine;
  const Stage line = network.stage[2];
  MovePartsUp(network, 1, 1);
  EXPECT_EQ(network.stage[3], line);
  // The part that takes its place brings its values alone, and finds nothing of the line.
  Stage part;
  part.ElementType = Numbered(1).ElementType;
  part.Lval.value = Numbered(1).Lval.value;
  part.Cval.value = Numbered(1).Cval.value;
  EXPECT_EQ(network.stage[2], part);
}

TEST(MovePartsUp, FillsTheListToItsBound) {
  Network network = Ladder(44);
  MovePartsUp(network, 1, 2);
  EXPECT_EQ(network.Stages, 46);
  EXPECT_EQ(network.stage[46].Lval.value, 44);
  const Network before = network;
  EXPECT_THROW(MovePartsUp(network, 1, 1), BoundFault);
  EXPECT_EQ(network, before);
}

TEST(MovePartsUp, WhatLiesBehindTheNetworkIsNotTakenIn) {
  Network network = Ladder(2);
  network.stage[3] = Numbered(9);
  MovePartsUp(network, 1, 1);
  EXPECT_EQ(network.stage[3].TLval, LineValue{});
  EXPECT_EQ(network.stage[3].Lval.tolerance, 0);
}

TEST(SwapEndForEnd, TurnsStagesAndTerminationsRound) {
  for (const int stages : {4, 5}) {
    Network network = Ladder(stages);
    SwapEndForEnd(network);
    EXPECT_EQ(OrderOf(network), stages == 4 ? (Order{4, 3, 2, 1}) : (Order{5, 4, 3, 2, 1}));
    EXPECT_EQ(network.Rsource[1], 75);
    EXPECT_EQ(network.Rload[1], 50);
  }
}

TEST(SwapEndForEnd, TwiceIsTheSameNetwork) {
  Network network = Ladder(7);
  SwapEndForEnd(network);
  SwapEndForEnd(network);
  EXPECT_EQ(network, Ladder(7));
}

TEST(SwapEndForEnd, ASourceThatCannotBecomeALoadIsRaised) {
  Network network = Ladder(2);
  network.Rsource[1] = 0.009F;
  SwapEndForEnd(network);
  EXPECT_EQ(network.Rload[1], 0.01F);
}

// The step sizes of tuning rest beside the values.
TEST(SwapEndForEnd, StepSizesGoWithTheirTerminations) {
  Network network = Ladder(2);
  network.Rsource[2] = 5;
  network.Rload[2] = 10;
  SwapEndForEnd(network);
  EXPECT_EQ(network.Rsource[2], 10);
  EXPECT_EQ(network.Rload[2], 5);
}

TEST(RaiseSource, RaisesWhatIsTooLowAndNothingElse) {
  Network network = Ladder(2);
  EXPECT_FALSE(RaiseSource(network));
  EXPECT_EQ(network, Ladder(2));
  network.Rsource[1] = 0.01F;
  EXPECT_FALSE(RaiseSource(network));
  network.Rsource[1] = 0;
  EXPECT_TRUE(RaiseSource(network));
  EXPECT_EQ(network.Rsource[1], 0.01F);
}

TEST(ScaleImpedance, RaisesInductorsAndTerminationsAndLowersCapacitors) {
  Network network;
  network.Stages = 2;
  network.stage[1].Lval = {4, 5};
  network.stage[1].Cval = {8, 5};
  network.stage[2].Rval.value = 16;
  network.Rsource[1] = 50;
  network.Rload[1] = 100;
  network.Rstandard = 50;
  ScaleImpedance(network, 2);
  EXPECT_EQ(network.stage[1].Lval, (PartValue{8, 5}));
  EXPECT_EQ(network.stage[1].Cval, (PartValue{4, 5}));
  EXPECT_EQ(network.stage[2].Rval.value, 16);
  EXPECT_EQ(network.Rsource[1], 100);
  EXPECT_EQ(network.Rload[1], 200);
  EXPECT_EQ(network.Rstandard, 100);
}

TEST(ScaleImpedance, NegativePartsStay) {
  Network network = Ladder(1);
  network.stage[1].Lval.value = -3;
  network.stage[1].Cval.value = -5;
  ScaleImpedance(network, 2);
  EXPECT_EQ(network.stage[1].Lval.value, -3);
  EXPECT_EQ(network.stage[1].Cval.value, -5);
}

TEST(ScaleImpedance, NothingHappensWithoutAFactor) {
  for (const f32 factor : {0.0F, -1.0F, std::nanf("")}) {
    Network network = Ladder(3);
    ScaleImpedance(network, factor);
    EXPECT_EQ(network, Ladder(3));
  }
}

TEST(ScaleImpedance, WhatLeavesTheRangeOfNumbersChangesNothing) {
  Network network = Ladder(3);
  EXPECT_THROW(ScaleImpedance(network, 3e38F), NumericFault);
  EXPECT_EQ(network, Ladder(3));
}

TEST(ScaleFrequency, UpDividesAndDownMultiplies) {
  Network network = Ladder(0);
  network.Stages = 1;
  network.stage[1].Lval.value = 6;
  network.stage[1].Cval.value = 12;
  ScaleFrequency(network, 2, Shift::Up);
  EXPECT_EQ(network.stage[1].Lval.value, 3);
  EXPECT_EQ(network.stage[1].Cval.value, 6);
  ScaleFrequency(network, 3, Shift::Down);
  EXPECT_EQ(network.stage[1].Lval.value, 9);
  EXPECT_EQ(network.stage[1].Cval.value, 18);
  EXPECT_EQ(network.Rsource[1], 50);
}

TEST(ScaleFrequency, PartsNotAboveNoughtStay) {
  Network network = Ladder(1);
  network.stage[1].Lval.value = -6;
  network.stage[1].Cval.value = 0;
  ScaleFrequency(network, 2, Shift::Up);
  EXPECT_EQ(network.stage[1].Lval.value, -6);
  EXPECT_EQ(network.stage[1].Cval.value, 0);
}

TEST(ScaleFrequency, AFactorOfNoughtChangesNothing) {
  Network network = Ladder(2);
  EXPECT_THROW(ScaleFrequency(network, 0, Shift::Up), NumericFault);
  EXPECT_EQ(network, Ladder(2));
}

}  // namespace
}  // namespace quilm
