// The singly terminated Chebyshev ladder, proved by its response.

#include "synthesis/SinglyTerminated.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/Fault.h"
#include "support/LosslessLadder.h"

namespace quilm {
namespace {

SinglyTerminatedEntries Entries(const std::string& topology, f32 order, f32 ripple = 0.1F) {
  SinglyTerminatedEntries entries;
  entries.Topology = topology;
  entries.Order = order;
  entries.Apass = ripple;
  entries.Width = 1e6F;
  entries.Fcenter = topology == "F" ? 1e7F : 0;
  return entries;
}

DesignRecord Made(const std::string& topology, f32 order, f32 ripple = 0.1F) {
  DesignRecord record;
  MakeSinglyTerminated(record, Entries(topology, order, ripple));
  return record;
}

// Order 3, 0.1 dB. With e^2 = 10^0.01 - 1 the poles are those of the doubly terminated filter: s0 = -0.969406,
// -0.484703 +- 1.206155j. The denominator s^3 + p s^2 + q s + r has p = 1.938811, q = 2.629495, r = 1.638051, and the
// ladder of a filter that one end alone terminates divides its even part into its odd part:
// (s^3 + q s) / (p s^2 + r) = s / p + 1 / (...). From the load: 1/p, p / (q - r/p), (q - r/p) / r.
TEST(SinglyTerminated, ThirdOrderValuesAreThoseOfTheDivision) {
  const auto Gj = SinglyTerminatedChebyshev(3, 0.1F);
  const f64 p = 1.938811;
  const f64 q = 2.629495;
  const f64 r = 1.638051;
  EXPECT_NEAR(Gj[3], 1 / p, 1e-5);
  EXPECT_NEAR(Gj[2], p / (q - r / p), 1e-5);
  EXPECT_NEAR(Gj[1], (q - r / p) / r, 1e-5);
}

f64 ChebyshevLoss(int order, f64 ripple, f64 x) {
  const f64 t = x <= 1 ? std::cos(order * std::acos(x)) : std::cosh(order * std::acosh(x));
  return 10 * std::log10(1 + (std::pow(10, ripple / 10) - 1) * t * t);
}

f64 Mapped(const std::string& topology, f64 x) {
  if (topology == "B") return 1e6 * x;
  if (topology == "I") return 1e6 / x;
  return 0.5e6 * x + std::hypot(0.5e6 * x, 1e7);
}

// Relative to the middle of the band the loss is the polynomial's. Of the 10 kilohms the source's 0.01 ohm is a
// millionth.
TEST(SinglyTerminated, TheResponseIsEqualRipple) {
  for (const char* topology : {"B", "F", "I"}) {
    for (int order = 2; order <= orderLimit; ++order) {
      for (const f32 ripple : {0.01F, 0.1F, 1.0F, 3.0F}) {
        const DesignRecord record = Made(topology, static_cast<f32>(order), ripple);
        const f64 atZero = LosslessLoss(record, Mapped(topology, 1e-3)) - ChebyshevLoss(order, ripple, 1e-3);
        for (const f64 x : {0.2, 0.5, 0.8, 0.95, 1.0, 1.2, 2.0}) {
          const f64 expected = ChebyshevLoss(order, ripple, x);
          EXPECT_NEAR(LosslessLoss(record, Mapped(topology, x)) - atZero, expected, 2e-3 + 1e-3 * expected)
              << topology << ", order " << order << ", " << ripple << " dB at " << x;
        }
      }
    }
  }
}

TEST(SinglyTerminated, StandsAsANetworkMadeByHand) {
  const DesignRecord record = Made("B", 4);
  EXPECT_EQ(record.Family, familyManual);
  EXPECT_EQ(record.NetworkEdited, 1);
  EXPECT_EQ(record.ResponsesValid, 0);
  EXPECT_EQ(record.Rsource[1], 0.01F);
  EXPECT_EQ(record.Rload[1], 10000);
  EXPECT_FLOAT_EQ(record.Rratio, 1e6F);
  EXPECT_EQ(record.Stages, 4);
  EXPECT_EQ(record.stage[1].ElementType, SeriesL);
}

TEST(SinglyTerminated, TheFirstStageOfTheBandpassIsASeriesPair) {
  EXPECT_EQ(Made("F", 3).stage[1].ElementType, SeriesSLC);
  EXPECT_EQ(Made("I", 3).stage[1].ElementType, SeriesC);
}

TEST(SinglyTerminated, AFaultLeavesTheRecordAsItWas) {
  DesignRecord record;
  record.Order = 5;
  record.Rsource[1] = 75;
  const DesignRecord before = record;
  SinglyTerminatedEntries entries = Entries("B", 3);
  entries.Width = 0;
  EXPECT_THROW(MakeSinglyTerminated(record, entries), Fault);
  EXPECT_EQ(record, before);
}

}  // namespace
}  // namespace quilm
