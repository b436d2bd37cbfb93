// Single-layer coils. Expected figures are worked by hand from Wheeler's formula, or by an independent program.
#include "coils/Solenoid.h"

#include <random>

#include "core/NumericFault.h"

namespace quilm {
namespace {

// What the user is told when a coil is refused; empty when it is wound.
std::string Refusal(const Coil& asked) {
  try {
    CompleteCoil(asked);
  } catch (const CoilRefused& refused) {
    return refused.what();
  }
  return {};
}

constexpr f32 uH = 1e-6F;

TEST(CompleteCoil, TurnsOfAnInchByAnInch) {
  // sqrt(10 * (18 + 40)) = 24.0832
  EXPECT_NEAR(CompleteCoil({10 * uH, 1, 1, 0}).turns, 24.083F, 0.0005F);
}

TEST(CompleteCoil, DiameterOfThirtyTurnsOnTwoInches) {
  // 900 D^2 - 180 D - 800 = 0
  EXPECT_NEAR(CompleteCoil({10 * uH, 0, 2, 30}).diameter, 1.0481F, 0.00005F);
}

TEST(CompleteCoil, LengthOfThirtyTurnsOfAnInch) {
  // (900 - 180) / 400
  EXPECT_FLOAT_EQ(CompleteCoil({10 * uH, 1, 0, 30}).length, 1.8F);
}

TEST(CompleteCoil, AThirdDimensionIsOverwritten) {
  EXPECT_EQ(CompleteCoil({10 * uH, 1, 1, 77}), CompleteCoil({10 * uH, 1, 1, 0}));
}

TEST(CompleteCoil, ALengthThatIsNotAboveZeroIsRefused) {
  const std::string negative = "For that diameter and turn specification,\r\nthe length is negative.";
  EXPECT_EQ(Refusal({10 * uH, 1, 0, 10}), negative);  // (100 - 180) / 400 = -0.2
  // One turn of 2^-20 H whose diameter, 18E6 of these, is exact in 32 bits: D^2 - 18E6 L D is 0 to the last bit.
  EXPECT_EQ(Refusal({0x1p-20F, 140625.0F / 8192, 0, 1}), negative);
}

// 10 mH, 1 in by 2.05 in: N^2 = 10000 * (18 + 82) = 1E6.
TEST(CompleteCoil, AThousandTurnsPassAndMoreDoNot) {
  EXPECT_EQ(CompleteCoil({0.01F, 1, 2.05F, 0}).turns, 1000);
  EXPECT_EQ(Refusal({0.01F, 1, 2.0505F, 0}), "Turns = 1000.1\r\nThis routine accommodate 1000 turns maximum");
  EXPECT_EQ(Refusal({0.01F, 1, 2.06F, 0}), "Turns = 1002\r\nThis routine accommodate 1000 turns maximum");
  // The bound is one of what is computed; turns that are given may be more.
  EXPECT_GT(CompleteCoil({0.01F, 0, 2, 5000}).diameter, 0);
  EXPECT_GT(CompleteCoil({0.01F, 1, 0, 5000}).length, 0);
}

TEST(CompleteCoil, AHundredMillihenriesPassAndMoreDoNot) {
  EXPECT_EQ(Refusal({0.1F, 10, 10, 0}), "");
  EXPECT_EQ(Refusal({0.1001F, 10, 10, 0}),
            "Inductance value is 100.1mH\r\nThis routine accommodates values up to 100 millihenries");
}

TEST(CompleteCoil, AnInductanceMustBeAboveZero) {
  for (const f32 inductance : {0.0F, -1e-6F}) {
    EXPECT_EQ(Refusal({inductance, 1, 1, 0}), "This routine requires a positive value of inductance");
  }
}

TEST(CompleteCoil, OneDimensionIsTooFew) {
  const std::string anyTwo =
      "We need exactly two entries; enter any two of these:\r\n   Diameter\r\n   Length\r\n   Number of turns\r\n"
      "(Inductance has been specified.)";
  EXPECT_EQ(Refusal({uH, 1, 0, 0}), anyTwo);
  EXPECT_EQ(Refusal({uH, 0, 1, 0}), anyTwo);
  EXPECT_EQ(Refusal({uH, 0, 0, 1}), anyTwo);
  EXPECT_EQ(Refusal({uH, -1, 1, 0}), anyTwo);
}

TEST(CompleteCoil, WhatLeavesTheRangeOfNumbersIsAFault) {
  EXPECT_THROW(CompleteCoil({1e-6F, 0, 1e10F, 1e-30F}), NumericFault);
}

TEST(CoilInductance, AnInchByAnInchOfTenTurns) {
  EXPECT_NEAR(CoilInductance({0, 1, 1, 10}), 1.7241e-6F, 0.00005e-6F);  // 100 / 58 uH
}

TEST(CoilInductance, KnowsNoMost) { EXPECT_GT(CoilInductance({0, 10, 10, 10000}), mostCoilInductance); }

// Whichever dimension is computed, the coil has the inductance asked for.
TEST(CoilInductance, IsThatOfTheCoilThatWasWoundForIt) {
  std::mt19937 random(11);
  const auto between = [&random](f64 least, f64 most) {
    return static_cast<f32>(least * std::pow(most / least, std::generate_canonical<f64, 53>(random)));
  };
  int wound = 0;
  for (int trial = 0; trial < 3000; ++trial) {
    Coil asked{between(1e-9, 0.1), between(0.05, 10), between(0.05, 20), between(1, 1000)};
    switch (trial % 3) {
      case 0:
        asked.turns = 0;
        break;
      case 1:
        asked.diameter = 0;
        break;
      default:
        asked.length = 0;
    }
    if (!Refusal(asked).empty()) continue;
    ++wound;
    const Coil coil = CompleteCoil(asked);
    EXPECT_NEAR(CoilInductance(coil) / asked.inductance, 1, 2e-6F) << "seed 11, trial " << trial;
  }
  EXPECT_GT(wound, 1500);
}

// 10 uH, an inch by an inch: worked in 64 bits from the formulas in the header, with N = 24.083189.
TEST(TurnsText, IsThatOfACount) {
  EXPECT_EQ(TurnsText(24.083189F), "24.083");
  EXPECT_EQ(TurnsText(999.99F), "999.99");
  EXPECT_EQ(TurnsText(1000), "1000");
  EXPECT_EQ(TurnsText(12345.67F), "12345.7");
}

TEST(Wind, TheCoilOfAnInchByAnInch) {
  const Winding winding = Wind(CompleteCoil({10 * uH, 1, 1, 0}));
  EXPECT_NEAR(winding.TurnsPerInch, 24.083F, 0.0005F);
  EXPECT_NEAR(winding.WireInches, 75.666F, 0.0005F);
  EXPECT_NEAR(winding.WireFeet, 6.3055F, 0.00005F);
  EXPECT_EQ(std::floor(winding.QuarterWaveKHz), 39013);
  EXPECT_EQ(winding.CriticalGauge, 18);
  EXPECT_NEAR(winding.CriticalDiameter, 0.04044F, 0.000005F);
  EXPECT_NEAR(winding.DcResistance, 0.03977F, 0.000006F);  // 0.0397649 with nothing rounded
}

// Each turn goes once around, and on by the pitch.
TEST(Wind, TheWireIsAScrewLine) {
  const Winding winding = Wind({1 * uH, 2, 30, 10});
  EXPECT_NEAR(winding.WireInches, 10 * std::hypot(3.14159 * 2, 3), 1e-5);
}

// Of wide spaced turns the rule asks for gauges below 0, and the floor goes down there, too.
TEST(Wind, TheCriticalGaugeIsAFloor) {
  // 20 (ln 1 + ln 0.327) / ln 10.2 + 1 = -8.6266
  EXPECT_EQ(Wind({1 * uH, 1, 10, 10}).CriticalGauge, -9);
  // 20 ln 0.981 / ln 10.2 + 1 = 0.8348
  EXPECT_EQ(Wind({1 * uH, 1, 10, 30}).CriticalGauge, 0);
}

TEST(Wind, FarBelowAllGaugesThereIsNoWire) {
  const Winding winding = Wind({1 * uH, 1, 1e6F, 1});
  EXPECT_EQ(winding.CriticalGauge, -128);  // 20 (ln 1e-6 + ln 0.327) / ln 10.2 + 1 = -127.6
  EXPECT_EQ(winding.CriticalDiameter, 0);
  EXPECT_EQ(winding.DcResistance, 0);
}

TEST(ApproximateQ, OfAnInchByAnInchAtSevenMegahertz) {
  EXPECT_EQ(ApproximateQ({0, 1, 1, 0}, 7e6F), 603);  // sqrt(7E6 / 19.2) = 603.8
}

TEST(ApproximateQ, NeedsAFrequency) {
  EXPECT_EQ(ApproximateQ({0, 1, 1, 0}, 0), std::nullopt);
  EXPECT_EQ(ApproximateQ({0, 1, 1, 0}, -1), std::nullopt);
}

}  // namespace
}  // namespace quilm
