#include "diplexer/DiplexerEntries.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/DesignRecord.h"

namespace quilm {
namespace {

DesignRecord Lowpass() {
  DesignRecord record;
  record.Order = 5;
  record.Apass = 0.5F;
  record.Rsource[1] = 75;
  record.Width = 2e6F;
  record.Fstart = 1e5F;
  record.Fstop = 1e7F;
  return record;
}

DiplexerEntered Entered() {
  return {.order = 4, .ripple = 0.1F, .Z = 50, .crossover = 1e6F, .lower = 9e6F, .upper = 11e6F};
}

Diplexer InMode(i16 mode) {
  Diplexer d;
  d.DipMode = mode;
  return d;
}

TEST(StartDiplexer, TakesWhatTheDesignHas) {
  Diplexer d;
  StartDiplexer(d, Lowpass());
  EXPECT_EQ(d.DipOrder, 5);
  EXPECT_EQ(d.DipRipple, 0.5F);
  EXPECT_EQ(d.DipZ, 75);
  EXPECT_EQ(d.DipZsmall, 0.075F);
  EXPECT_EQ(d.DipMode, 1);
  EXPECT_EQ(d.DipCrossover, 2e6F);
  EXPECT_EQ(d.DipFupper, 2e6F * 1.2F);
  EXPECT_EQ(d.DipFlower, 2e6F);
}

TEST(StartDiplexer, WithoutAWidthTheMiddleOfTheSweepServes) {
  DesignRecord record = Lowpass();
  record.Width = 0.1F;
  Diplexer d;
  StartDiplexer(d, record);
  EXPECT_EQ(d.DipMode, 1);
  EXPECT_NEAR(d.DipCrossover, 1e6F, 1);
  EXPECT_NEAR(d.DipFupper, 1.2e6F, 1);
  EXPECT_NEAR(d.DipFlower, 1e6F / 1.2F, 1);
}

TEST(StartDiplexer, ABandBeginsWithThePairOfBands) {
  DesignRecord record = Lowpass();
  record.Width = 1e6F;
  record.Fcenter = 10e6F;
  Diplexer d;
  StartDiplexer(d, record);
  EXPECT_EQ(d.DipMode, 2);
  EXPECT_EQ(d.DipFlower, 9.5e6F);
  EXPECT_EQ(d.DipFupper, 10.5e6F);
  EXPECT_EQ(d.DipCrossover, 0);
}

TEST(StartDiplexer, ABandThatReachesBelowZeroIsHeldToTheLowestEdge) {
  DesignRecord record = Lowpass();
  record.Width = 3e6F;
  record.Fcenter = 1e6F;
  Diplexer d;
  StartDiplexer(d, record);
  EXPECT_EQ(d.DipFlower, 0.1F);
  EXPECT_EQ(d.DipFupper, 2.5e6F);
}

TEST(StartDiplexer, ABandThatIsTooNarrowIsToldOf) {
  DesignRecord record = Lowpass();
  record.Width = 1e4F;
  record.Fcenter = 10e6F;
  Diplexer d;
  EXPECT_TRUE(StartDiplexer(d, record));
  EXPECT_EQ(d.DipFupper, 1.01F * d.DipFlower);
  EXPECT_FALSE(StartDiplexer(d, record)) << "the next time it stands";
}

TEST(StartDiplexer, LimitsHoldForWhatTheDesignHas) {
  DesignRecord record = Lowpass();
  record.Order = 11;
  record.Apass = 5;
  record.Rsource[1] = 0.5F;
  Diplexer d;
  StartDiplexer(d, record);
  EXPECT_EQ(d.DipOrder, 10);
  EXPECT_EQ(d.DipRipple, 3);
  EXPECT_EQ(d.DipZ, 1);
}

TEST(StartDiplexer, ADesignWithNothingInItGivesTheLowestEntries) {
  DesignRecord record;
  Diplexer d;
  StartDiplexer(d, record);
  EXPECT_EQ(d.DipOrder, 1);
  EXPECT_EQ(d.DipRipple, 0.0001F);
  EXPECT_EQ(d.DipZ, 1);
  EXPECT_EQ(d.DipCrossover, 10);
  EXPECT_EQ(d.DipFlower, 0.1F);
  EXPECT_EQ(d.DipFupper, 1.01F * 0.1F);
}

TEST(StartDiplexer, WhatWasSetUpStays) {
  Diplexer d;
  StartDiplexer(d, Lowpass());
  AcceptDiplexer(d, Entered(), Lowpass());
  DesignRecord other = Lowpass();
  other.Order = 9;
  other.Width = 1e3F;
  other.Fcenter = 1e4F;
  StartDiplexer(d, other);
  EXPECT_EQ(d.DipOrder, 4);
  EXPECT_EQ(d.DipMode, 1);
  EXPECT_EQ(d.DipCrossover, 1e6F);
  EXPECT_EQ(d.DipZ, 50);
}

TEST(AcceptDiplexer, TakesTheEntriesOfItsMode) {
  Diplexer low = InMode(1);
  low.DipFlower = 1e3F;
  low.DipFupper = 2e3F;
  low.DipFrozen = 1;
  EXPECT_FALSE(AcceptDiplexer(low, Entered(), Lowpass()));
  EXPECT_EQ(low.DipCrossover, 1e6F);
  EXPECT_EQ(low.DipFlower, 1e3F);
  EXPECT_EQ(low.DipFrozen, 0);
  EXPECT_EQ(low.DipZsmall, 0.05F);

  Diplexer band = InMode(2);
  DiplexerEntered entered = Entered();
  entered.lower = -9e6F;
  entered.order = -3.9F;
  EXPECT_FALSE(AcceptDiplexer(band, entered, Lowpass()));
  EXPECT_EQ(band.DipFlower, 9e6F) << "of an edge the magnitude counts";
  EXPECT_EQ(band.DipOrder, 3) << "and of an order the whole part of its magnitude";
  EXPECT_EQ(band.DipCrossover, 0);
}

TEST(AcceptDiplexer, LimitsReplaceWhatIsBeyondThem) {
  struct Case {
    f32 order, ripple, Z, crossover;
    i16 heldOrder;
    f32 heldRipple, heldZ, heldCrossover;
  };
  const Case cases[] = {
      {11, 4, 20000, 2e10F, 10, 3, 10000, 1e10F}, {0, 0, 0, 9, 1, 0.0001F, 1, 10},
      {10, 3, 10000, 1e10F, 10, 3, 10000, 1e10F}, {1, 0.0001F, 1, 10, 1, 0.0001F, 1, 10},
      {0.9F, -1, -50, 5, 1, 0.0001F, 1, 10},
  };
  for (const Case& c : cases) {
    Diplexer d = InMode(1);
    AcceptDiplexer(d, {.order = c.order, .ripple = c.ripple, .Z = c.Z, .crossover = c.crossover}, Lowpass());
    EXPECT_EQ(d.DipOrder, c.heldOrder);
    EXPECT_EQ(d.DipRipple, c.heldRipple);
    EXPECT_EQ(d.DipZ, c.heldZ);
    EXPECT_EQ(d.DipCrossover, c.heldCrossover);
  }
}

TEST(AcceptDiplexer, AnOrderAboveTheProgramsIsCutToIt) {
  DesignRecord record = Lowpass();
  record.OrderMax = 7;
  Diplexer d = InMode(1);
  DiplexerEntered entered = Entered();
  entered.order = 9;
  AcceptDiplexer(d, entered, record);
  EXPECT_EQ(d.DipOrder, 7);
}

TEST(AcceptDiplexer, WithoutACrossoverTheWidthOfTheDesignServes) {
  DiplexerEntered entered = Entered();
  entered.crossover = 0;
  Diplexer d = InMode(1);
  AcceptDiplexer(d, entered, Lowpass());
  EXPECT_EQ(d.DipCrossover, 2e6F);
  DesignRecord none = Lowpass();
  none.Width = 0;
  entered.crossover = -1e6F;
  AcceptDiplexer(d, entered, none);
  EXPECT_EQ(d.DipCrossover, 10);
}

TEST(AcceptDiplexer, TheUpperEdgeGivesWay) {
  DiplexerEntered entered = Entered();
  entered.upper = entered.lower;
  Diplexer d = InMode(2);
  EXPECT_TRUE(AcceptDiplexer(d, entered, Lowpass()));
  EXPECT_EQ(d.DipFlower, 9e6F);
  EXPECT_EQ(d.DipFupper, 1.01F * 9e6F);
  // Exactly at the limit nothing has to give way.
  entered.upper = 1.01F * 9e6F;
  EXPECT_FALSE(AcceptDiplexer(d, entered, Lowpass()));
  EXPECT_EQ(d.DipFupper, 1.01F * 9e6F);
}

TEST(AcceptDiplexer, BothEdgesStayBelowTheHighestFrequency) {
  DiplexerEntered entered = Entered();
  entered.lower = 1e10F;
  entered.upper = 1e10F;
  Diplexer d = InMode(2);
  EXPECT_TRUE(AcceptDiplexer(d, entered, Lowpass()));
  EXPECT_EQ(d.DipFupper, 1e10F);
  EXPECT_EQ(d.DipFlower, 1e10F / 1.01F);
}

TEST(DiplexerSummary, NamesWhatWasAccepted) {
  Diplexer d = InMode(1);
  AcceptDiplexer(d, Entered(), Lowpass());
  EXPECT_EQ(DiplexerSummary(d), "Crossover=1M   Passband ripple=0.1   Order=4   System Z=50");
  d.DipMode = 2;
  AcceptDiplexer(d, Entered(), Lowpass());
  EXPECT_EQ(DiplexerSummary(d), "Lower edge=9M   Upper edge=11M   Passband ripple=0.1   Order=4   System Z=50");
}

}  // namespace
}  // namespace quilm
