#include "network/ImpedanceMatch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <utility>

#include "core/Fault.h"
#include "core/NumericFault.h"
#include "network/NetworkEdits.h"
#include "support/ChainMatrix.h"
#include "support/LosslessLadder.h"

namespace quilm {
namespace {

using Complex = ChainMatrix::Complex;
constexpr f64 tenMegahertz = 1e7;

f32 Omega(f64 frequency) { return static_cast<f32>(2 * Pi * frequency); }

Stage Part(i16 type, f64 L, f64 C) {
  Stage stage;
  stage.ElementType = type;
  stage.Lval.value = static_cast<f32>(L);
  stage.Cval.value = static_cast<f32>(C);
  return stage;
}

DesignRecord Ladder(const std::vector<Stage>& stages, f32 source = 500, f32 load = 500) {
  DesignRecord record;
  for (const Stage& stage : stages) AppendStage(record, stage);
  record.Rsource[1] = source;
  record.Rload[1] = load;
  record.Rstandard = source;
  return record;
}

// The example: 500 ohms, a tank of 0.8 uH and 300 pF, 10 MHz.
DesignRecord Tank() { return Ladder({Part(ShuntPLC, 0.8e-6, 300e-12)}); }
DesignRecord SeriesPair() { return Ladder({Part(SeriesSLC, 0.8e-6, 300e-12)}); }

std::vector<i16> TypesOf(const Network& network) {
  std::vector<i16> types;
  for (int s = 1; s <= network.Stages; ++s) types.push_back(network.stage[s].ElementType);
  return types;
}

using Types = std::vector<i16>;
using Codes = std::vector<i16>;

// The option of a code; one without stages where it is not offered.
MatchOption Offered(const Network& network, MatchSide side, f32 ohms, i16 code, f64 frequency = tenMegahertz) {
  for (const MatchOption& option : MatchOptions(network, side, ohms, Omega(frequency))) {
    if (option.code == code) return option;
  }
  ADD_FAILURE() << "option " << code << " is not offered";
  return {};
}

std::vector<i16> CodesOf(const Network& network, MatchSide side, f32 ohms) {
  std::vector<i16> codes;
  for (const MatchOption& option : MatchOptions(network, side, ohms, Omega(tenMegahertz))) codes.push_back(option.code);
  return codes;
}

DesignRecord With(DesignRecord record, i16 code, f32 ohms, f64 frequency = tenMegahertz) {
  const MatchSide side = code < outputAsItIs ? MatchSide::Input : MatchSide::Output;
  SetMatch(record, Offered(record, side, ohms, code, frequency), ohms);
  return record;
}

// `digits` are the figures as they were worked out by hand, to half of their last place.
void ExpectFigure(f32 value, f64 digits, f64 place) { EXPECT_NEAR(f64{value}, digits, 0.5001 * place); }

void ExpectPart(const Stage& stage, i16 type, f64 L, f64 placeL, f64 C, f64 placeC) {
  EXPECT_EQ(stage.ElementType, type);
  ExpectFigure(stage.Lval.value, L, placeL);
  ExpectFigure(stage.Cval.value, C, placeC);
}

TEST(ImpedanceMatch, TheOptionsOfATankAreThoseWorkedOutByHand) {
  const f64 L = 0.8e-6;
  const f64 C = 300e-12;
  for (const bool input : {true, false}) {
    const MatchSide side = input ? MatchSide::Input : MatchSide::Output;
    const i16 none = AsItIs(side);
    const auto option = [&](int number) { return Offered(Tank(), side, 50, static_cast<i16>(none + number)).stages; };
    const std::vector<Stage> capacitor = option(1);
    ASSERT_EQ(capacitor.size(), 2U);
    ExpectPart(capacitor[0], SeriesC, 0, 0, 106.10e-12, 0.01e-12);
    ExpectPart(capacitor[1], ShuntPLC, L, 1e-13, 204.51e-12, 0.01e-12);
    const std::vector<Stage> capacitiveTap = option(2);
    ASSERT_EQ(capacitiveTap.size(), 3U);
    ExpectPart(capacitiveTap[0], ShuntC, 0, 0, 948.68e-12, 0.01e-12);
    ExpectPart(capacitiveTap[1], SeriesC, 0, 0, 438.74e-12, 0.01e-12);
    ExpectPart(capacitiveTap[2], ShuntL, L, 1e-13, 0, 0);
    const std::vector<Stage> inductor = option(3);
    ASSERT_EQ(inductor.size(), 2U);
    ExpectPart(inductor[0], SeriesL, 2.3873e-6, 0.0001e-6, 0, 0);
    ExpectPart(inductor[1], ShuntPLC, L, 1e-13, 395.49e-12, 0.01e-12);
    const std::vector<Stage> inductiveTap = option(4);
    ASSERT_EQ(inductiveTap.size(), 3U);
    ExpectPart(inductiveTap[0], ShuntL, 252.98e-9, 0.01e-9, 0, 0);
    ExpectPart(inductiveTap[1], SeriesL, 547.02e-9, 0.01e-9, 0, 0);
    ExpectPart(inductiveTap[2], ShuntC, 0, 0, C, 1e-17);
  }
}

TEST(ImpedanceMatch, TheLSectionOfASeriesPairIsThatWorkedOutByHand) {
  const std::vector<Stage> lower = Offered(SeriesPair(), MatchSide::Input, 50, 15).stages;
  ASSERT_EQ(lower.size(), 3U);
  ExpectPart(lower[0], SeriesL, 2.3873e-6, 0.0001e-6, 0, 0);
  ExpectPart(lower[1], ShuntC, 0, 0, 95.493e-12, 0.001e-12);
  EXPECT_EQ(lower[2], SeriesPair().stage[1]);
  // The same two parts turn 500 ohms into 50: there the inductor joins that of the pair.
  DesignRecord low = SeriesPair();
  low.Rsource[1] = 50;
  const std::vector<Stage> higher = Offered(low, MatchSide::Input, 500, 15).stages;
  ASSERT_EQ(higher.size(), 2U);
  ExpectPart(higher[0], ShuntC, 0, 0, 95.493e-12, 0.001e-12);
  ExpectPart(higher[1], SeriesSLC, 3.1873e-6, 0.0001e-6, 300e-12, 1e-17);
}

// What a termination looks like through the stages of a side, at the far end of the resonator.
Complex SeenFromInside(const MatchOption& option, f64 ohms, f64 frequency) {
  const f64 w = 2 * Pi * frequency;
  Complex z = ohms;
  for (const Stage& stage : option.stages) {
    const Complex zl(0, w * f64{stage.Lval.value});
    const Complex yc(0, w * f64{stage.Cval.value});
    if (stage.ElementType == SeriesL) z += zl;
    if (stage.ElementType == SeriesC) z += 1.0 / yc;
    if (stage.ElementType == SeriesSLC) z += zl + 1.0 / yc;
    if (stage.ElementType == ShuntL) z = 1.0 / (1.0 / z + 1.0 / zl);
    if (stage.ElementType == ShuntC) z = 1.0 / (1.0 / z + yc);
    if (stage.ElementType == ShuntPLC) z = 1.0 / (1.0 / z + 1.0 / zl + yc);
  }
  return z;
}

// The ratio of a divider is that of its parts without load, so 50 ohms across it shift what it makes a little.
TEST(ImpedanceMatch, TapsPresentALittleMoreThanTheTermination) {
  const auto presents = [](i16 code) {
    return 1 / (1.0 / SeenFromInside(Offered(Tank(), MatchSide::Input, 50, code), 50, tenMegahertz)).real();
  };
  EXPECT_NEAR(presents(12), 526, 0.5);
  EXPECT_NEAR(presents(14), 524, 0.5);
}

TEST(ImpedanceMatch, ThePartsAreSetBeforeTheInputEnd) {
  const DesignRecord ladder = Ladder({Part(ShuntPLC, 0.8e-6, 300e-12), Part(SeriesC, 0, 10e-12)});
  EXPECT_EQ(TypesOf(With(ladder, 11, 50)), (Types{SeriesC, ShuntPLC, SeriesC}));
  EXPECT_EQ(TypesOf(With(ladder, 12, 50)), (Types{ShuntC, SeriesC, ShuntL, SeriesC}));
  EXPECT_EQ(TypesOf(With(ladder, 13, 50)), (Types{SeriesL, ShuntPLC, SeriesC}));
  EXPECT_EQ(TypesOf(With(ladder, 14, 50)), (Types{ShuntL, SeriesL, ShuntC, SeriesC}));
  const DesignRecord series = Ladder({Part(SeriesSLC, 0.8e-6, 300e-12), Part(ShuntC, 0, 10e-12)});
  EXPECT_EQ(TypesOf(With(series, 15, 50)), (Types{SeriesL, ShuntC, SeriesSLC, ShuntC}));
  EXPECT_EQ(TypesOf(With(series, 15, 5000)), (Types{ShuntC, SeriesSLC, ShuntC}));
}

TEST(ImpedanceMatch, ThePartsAreSetBehindTheOutputEnd) {
  const DesignRecord ladder = Ladder({Part(SeriesC, 0, 10e-12), Part(ShuntPLC, 0.8e-6, 300e-12)});
  EXPECT_EQ(TypesOf(With(ladder, 21, 50)), (Types{SeriesC, ShuntPLC, SeriesC}));
  EXPECT_EQ(TypesOf(With(ladder, 22, 50)), (Types{SeriesC, ShuntL, SeriesC, ShuntC}));
  EXPECT_EQ(TypesOf(With(ladder, 23, 50)), (Types{SeriesC, ShuntPLC, SeriesL}));
  EXPECT_EQ(TypesOf(With(ladder, 24, 50)), (Types{SeriesC, ShuntC, SeriesL, ShuntL}));
  const DesignRecord series = Ladder({Part(ShuntC, 0, 10e-12), Part(SeriesSLC, 0.8e-6, 300e-12)});
  EXPECT_EQ(TypesOf(With(series, 25, 50)), (Types{ShuntC, SeriesSLC, ShuntC, SeriesL}));
  EXPECT_EQ(TypesOf(With(series, 25, 5000)), (Types{ShuntC, SeriesSLC, ShuntC}));
}

// A part that went into a divider leaves nothing of itself in the resonator's stage.
TEST(ImpedanceMatch, ATappedResonatorKeepsItsOtherPartAlone) {
  for (const i16 code : Codes{12, 22}) {
    const DesignRecord tapped = With(Tank(), code, 50);
    const Stage& rest = tapped.stage[code == 12 ? 3 : 1];
    EXPECT_EQ(rest.Cval.value, 0);
    EXPECT_EQ(rest.Lval.value, 0.8e-6F);
  }
}

TEST(ImpedanceMatch, TheInputIsAlsoTheReferenceAndTheOutputIsNot) {
  const DesignRecord input = With(Tank(), 11, 50);
  EXPECT_EQ(input.Rsource[1], 50);
  EXPECT_EQ(input.Rstandard, 50);
  EXPECT_EQ(input.Rload[1], 500);
  const DesignRecord output = With(Tank(), 21, 75);
  EXPECT_EQ(output.Rsource[1], 500);
  EXPECT_EQ(output.Rstandard, 500);
  EXPECT_EQ(output.Rload[1], 75);
}

// The laws. Random bandpass ladders whose end is of the given type.
struct Bandpass {
  DesignRecord record;
  f64 center;
};

Bandpass RandomBandpass(std::mt19937& random, const std::vector<i16>& types) {
  std::uniform_real_distribution<f64> decades(-0.5, 0.5);
  const auto spread = [&] { return std::pow(10, decades(random)); };
  const f64 center = 1e7 * spread();
  const f64 w = 2 * Pi * center;
  std::vector<Stage> stages;
  for (const i16 type : types) {
    const f64 X = 200 * spread();
    stages.push_back(Part(type, X / w, 1 / (X * spread() * w)));
  }
  return {Ladder(stages, static_cast<f32>(300 * spread()), static_cast<f32>(300 * spread())), center};
}

// Between 1 and 95 per cent of the termination, or from 105 to 10000.
f32 Wish(std::mt19937& random, f32 present, bool lower) {
  std::uniform_real_distribution<f64> exponent(-2, std::log10(0.95));
  const f64 ratio = std::pow(10, exponent(random));
  return static_cast<f32>(f64{present} * (lower ? ratio : 1 / ratio));
}

// Matched exactly: at the center the network behind the sections finds what it found before, so that as much of the
// available power arrives. 32-bit parts cost some 1e-5 dB.
void ExpectKeptAtCenter(const Bandpass& before, const DesignRecord& after) {
  EXPECT_NEAR(LosslessLoss(after, before.center), LosslessLoss(before.record, before.center), 3e-5);
}

TEST(ImpedanceMatch, OptionsOneAndThreeKeepTheTransmissionAtTheCenter) {
  std::mt19937 random(11);
  for (int trial = 0; trial < 300; ++trial) {
    const Bandpass bandpass = RandomBandpass(random, {ShuntPLC, SeriesC, ShuntPLC, SeriesSLC, ShuntPLC});
    for (const i16 code : Codes{11, 13, 21, 23}) {
      const bool input = code < outputAsItIs;
      const f32 ohms = Wish(random, input ? bandpass.record.Rsource[1] : bandpass.record.Rload[1], true);
      SCOPED_TRACE(testing::Message() << "trial " << trial << " code " << code << " ohms " << ohms);
      ExpectKeptAtCenter(bandpass, With(bandpass.record, code, ohms, bandpass.center));
    }
  }
}

TEST(ImpedanceMatch, OptionFiveKeepsTheTransmissionAtTheCenter) {
  std::mt19937 random(12);
  for (int trial = 0; trial < 300; ++trial) {
    const Bandpass bandpass = RandomBandpass(random, {SeriesSLC, ShuntPLC, SeriesSLC, ShuntC, SeriesSLC});
    for (const i16 code : Codes{15, 25}) {
      for (const bool lower : {true, false}) {
        const bool input = code < outputAsItIs;
        const f32 ohms = Wish(random, input ? bandpass.record.Rsource[1] : bandpass.record.Rload[1], lower);
        SCOPED_TRACE(testing::Message() << "trial " << trial << " code " << code << " ohms " << ohms);
        ExpectKeptAtCenter(bandpass, With(bandpass.record, code, ohms, bandpass.center));
      }
    }
  }
}

TEST(ImpedanceMatch, ASplitPairAtTheInputIsMatchedInBothDirections) {
  std::mt19937 random(13);
  for (int trial = 0; trial < 300; ++trial) {
    const Bandpass bandpass = RandomBandpass(random, {SeriesL, ShuntC, SeriesC, ShuntC, SeriesL});
    for (const bool lower : {true, false}) {
      const f32 ohms = Wish(random, bandpass.record.Rsource[1], lower);
      SCOPED_TRACE(testing::Message() << "trial " << trial << " ohms " << ohms);
      ExpectKeptAtCenter(bandpass, With(bandpass.record, 15, ohms, bandpass.center));
    }
  }
}

TEST(ImpedanceMatch, BothSidesOfASingleResonatorAreMatchedExactly) {
  std::mt19937 random(14);
  for (int trial = 0; trial < 100; ++trial) {
    const Bandpass tank = RandomBandpass(random, {ShuntPLC});
    const Bandpass pair = RandomBandpass(random, {SeriesSLC});
    const auto matched = [&](const Bandpass& from, i16 input, i16 output, bool lower) {
      const f32 source = Wish(random, from.record.Rsource[1], lower);
      const f32 load = Wish(random, from.record.Rload[1], lower);
      return With(With(from.record, input, source, from.center), output, load, from.center);
    };
    for (const i16 input : Codes{11, 13}) {
      for (const i16 output : Codes{21, 23}) ExpectKeptAtCenter(tank, matched(tank, input, output, true));
    }
    for (const bool lower : {true, false}) ExpectKeptAtCenter(pair, matched(pair, 15, 25, lower));
  }
}

TEST(ImpedanceMatch, WhatIsOfferedGoesByTheEndAndTheDirection) {
  for (const MatchSide side : {MatchSide::Input, MatchSide::Output}) {
    const auto code = [side](int number) { return static_cast<i16>(AsItIs(side) + number); };
    EXPECT_EQ(CodesOf(Tank(), side, 50), (Codes{code(1), code(2), code(3), code(4)}));
    EXPECT_EQ(CodesOf(Tank(), side, 5000), Codes{});
    EXPECT_EQ(CodesOf(Tank(), side, 500), Codes{});
    EXPECT_EQ(CodesOf(SeriesPair(), side, 50), Codes{code(5)});
    EXPECT_EQ(CodesOf(SeriesPair(), side, 5000), Codes{code(5)});
    EXPECT_EQ(CodesOf(SeriesPair(), side, 500), Codes{});
    EXPECT_EQ(CodesOf(Ladder({Part(SeriesL, 1e-6, 0)}), side, 50), Codes{});
    EXPECT_EQ(CodesOf(Ladder({}), side, 50), Codes{});
  }
}

TEST(ImpedanceMatch, TheOutputGoesByItsLastStageAlone) {
  const DesignRecord split = Ladder({Part(SeriesC, 0, 1e-10), Part(ShuntC, 0, 1e-10), Part(SeriesL, 1e-6, 0)});
  EXPECT_TRUE(HasMatchingPair(split, MatchSide::Output));
  EXPECT_EQ(CodesOf(split, MatchSide::Output, 50), (Codes{21, 22, 23, 24}));
  EXPECT_EQ(CodesOf(split, MatchSide::Output, 5000), Codes{});
}

TEST(ImpedanceMatch, APairIsATunedStageOrASplitOneInItsOrderFromTheEnd) {
  EXPECT_TRUE(HasMatchingPair(Tank(), MatchSide::Input));
  EXPECT_TRUE(HasMatchingPair(SeriesPair(), MatchSide::Output));
  const DesignRecord split = Ladder({Part(SeriesL, 1e-6, 0), Part(ShuntC, 0, 1e-10), Part(SeriesC, 0, 1e-10)});
  EXPECT_TRUE(HasMatchingPair(split, MatchSide::Input));
  EXPECT_FALSE(HasMatchingPair(split, MatchSide::Output));
  EXPECT_FALSE(HasMatchingPair(Ladder({Part(SeriesL, 1e-6, 0), Part(ShuntC, 0, 1e-10)}), MatchSide::Input));
  for (const i16 type : Types{1, 2, 3, 4, 6, 7, 9, 11, 16, 19, 20, 21}) {
    EXPECT_FALSE(HasMatchingPair(Ladder({Part(type, 1e-6, 1e-10)}), MatchSide::Input)) << type;
  }
  EXPECT_FALSE(HasMatchingPair(Ladder({}), MatchSide::Input));
  EXPECT_FALSE(HasMatchingPair(Ladder({}), MatchSide::Output));
}

TEST(ImpedanceMatch, TheInputIsComparedExactlyAndTheOutputWithinATenThousandth) {
  const DesignRecord tank = Tank();
  const auto input = [&](f32 ohms) { return CompareTermination(tank, MatchSide::Input, ohms); };
  const auto output = [&](f32 ohms) { return CompareTermination(tank, MatchSide::Output, ohms); };
  EXPECT_EQ(input(0), NewTermination::TooLow);
  EXPECT_EQ(input(-1), NewTermination::TooLow);
  EXPECT_EQ(input(0.001F), NewTermination::Lower);
  EXPECT_EQ(input(std::nextafter(500.0F, 0.0F)), NewTermination::Lower);
  EXPECT_EQ(input(500), NewTermination::Same);
  EXPECT_EQ(input(std::nextafter(500.0F, 1e9F)), NewTermination::Higher);
  EXPECT_EQ(output(0.01F), NewTermination::TooLow);
  EXPECT_EQ(output(0.011F), NewTermination::Lower);
  EXPECT_EQ(output(499.94F), NewTermination::Lower);
  EXPECT_EQ(output(499.96F), NewTermination::Same);
  EXPECT_EQ(output(500.04F), NewTermination::Same);
  EXPECT_EQ(output(500.06F), NewTermination::Higher);
}

TEST(ImpedanceMatch, TolerancesStayWithTheNumbersOfTheirStages) {
  DesignRecord ladder = Ladder({Part(ShuntPLC, 0.8e-6, 300e-12), Part(SeriesC, 0, 10e-12)});
  ladder.stage[1].Lval.tolerance = 5;
  ladder.stage[2].Cval.tolerance = 2;
  const DesignRecord matched = With(ladder, 11, 50);
  EXPECT_EQ(matched.stage[1].Lval.tolerance, 5);
  EXPECT_EQ(matched.stage[2].Lval.tolerance, 0);
  EXPECT_EQ(matched.stage[2].Cval.tolerance, 2);
  EXPECT_EQ(matched.stage[3].Cval.tolerance, 0);
  const DesignRecord behind = With(Tank(), 21, 50);
  EXPECT_EQ(behind.stage[2].Cval.tolerance, 0);
}

TEST(ImpedanceMatch, ALineMovesUpWithAllThatItIs) {
  DesignRecord ladder = Tank();
  Stage line;
  line.ElementType = TransLine;
  line.TLval = {90, 1e7F, 75, 1, 2};
  AppendStage(ladder, line);
  const DesignRecord matched = With(ladder, 12, 50);
  EXPECT_EQ(matched.stage[4], line);
  EXPECT_EQ(matched.stage[2].TLval, LineValue{});
}

TEST(ImpedanceMatch, TheListGrowsToItsBoundAndNotBeyond) {
  for (const i16 code : Codes{12, 22}) {
    const MatchSide side = code == 12 ? MatchSide::Input : MatchSide::Output;
    DesignRecord longest = Ladder(std::vector<Stage>(44, Part(ShuntPLC, 0.8e-6, 300e-12)));
    EXPECT_EQ(With(longest, code, 50).Stages, 46);
    AppendStage(longest, Part(ShuntPLC, 0.8e-6, 300e-12));
    const MatchOption option = Offered(longest, side, 50, code);
    const DesignRecord before = longest;
    EXPECT_THROW(SetMatch(longest, option, 50), BoundFault);
    EXPECT_EQ(longest, before);
  }
}

TEST(ImpedanceMatch, APartMayBeNegative) {
  DesignRecord small = Tank();
  small.stage[1].Cval.value = 20e-12F;
  EXPECT_NEAR(f64{Offered(small, MatchSide::Input, 50, 11).stages[1].Cval.value}, 20e-12 - 95.493e-12, 1e-15);
}

TEST(ImpedanceMatch, WithoutACenterNothingCanBeWorkedOut) {
  EXPECT_THROW(MatchOptions(Tank(), MatchSide::Input, 50, 0), NumericFault);
  DesignRecord noSource = SeriesPair();
  noSource.Rsource[1] = 0;
  EXPECT_THROW(MatchOptions(noSource, MatchSide::Input, 50, Omega(tenMegahertz)), NumericFault);
}

}  // namespace
}  // namespace quilm
