// M-derived prototypes: the sections' values, and what image-parameter theory says of the whole ladder.

#include "synthesis/modMderived.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/Fault.h"
#include "support/LosslessLadder.h"
#include "synthesis/MakeNetwork.h"

namespace quilm {
namespace {

constexpr f32 width = 1e6F;

// Zeros over the cutoff of a lowpass; a highpass has them at the reciprocals.
DesignRecord Design(const std::string& topology, std::initializer_list<f32> zeros) {
  DesignRecord record;
  record.Family = familyMderived;
  record.Topology = topology;
  record.Width = width;
  record.Rsource[1] = 50;
  if (topology == "H") record.Fcenter = 1e7F;
  const bool highpass = topology == "I" || topology == "J";
  int i = 0;
  for (const f32 zero : zeros) record.MderivedZero[++i] = zero == 0 ? 0 : highpass ? width / zero : width * zero;
  ComputeMderived(record);
  return record;
}

DesignRecord Network(const std::string& topology, std::initializer_list<f32> zeros) {
  DesignRecord record = Design(topology, zeros);
  MakeNetwork(record);
  return record;
}

// Where the network does what the lowpass prototype does at x.
f64 Mapped(const DesignRecord& record, f64 x) {
  if (record.Topology == "A" || record.Topology == "B") return f64{width} * x;
  if (record.Topology == "I" || record.Topology == "J") return f64{width} / x;
  const f64 half = f64{width} * x / 2;
  return half + std::hypot(half, f64{record.Fcenter});
}

f64 WorstLoss(const DesignRecord& record, f64 upTo) {
  f64 worst = 0;
  for (int i = 1; i <= 400; ++i) worst = std::max(worst, LosslessLoss(record, Mapped(record, upTo * i / 400)));
  return worst;
}

const char* const topologies[] = {"A", "B", "H", "I", "J"};

// A zero at 1.25 gives m = sqrt(1 - 0.64) = 0.6; the half section is L = m and C = (1 - m^2) / m across it.
TEST(Mderived, OneZeroServesBothEnds) {
  const DesignRecord record = Design("A", {1.25F});
  EXPECT_EQ(record.Order, 7);
  const f64 tank = 0.64 / 0.6;
  const f64 Gj[] = {0, tank, 1.6, 0, 1.6, tank, 0};
  const f64 Hj[] = {0, 0.6, 0, 2, 0, 0.6, 0};
  for (int j = 1; j <= 7; ++j) {
    EXPECT_NEAR(record.Gj[j], Gj[j - 1], 1e-6) << j;
    EXPECT_NEAR(record.Hj[j], Hj[j - 1], 1e-6) << j;
  }
  EXPECT_EQ(record.Rratio, 1);
  EXPECT_EQ(record.FstopNorm, 0);
  EXPECT_EQ(record.CauerFlag, 1);
}

// Zeros between the first and the last stand as full sections: L = 2m, C = (1 - m^2) / (2m) across it, and shunt arms
// of the sum of both neighbours' m. sqrt(1 - 1 / 1.5625) = 0.6, sqrt(1 - 1 / 4) = 0.8660.
TEST(Mderived, ZerosBetweenAddFullSections) {
  const DesignRecord record = Design("A", {1.25F, 2, 1.25F});
  EXPECT_EQ(record.Order, 9);
  const f64 m = std::sqrt(0.75);
  EXPECT_NEAR(record.Gj[5], 1 + m, 1e-6);
  EXPECT_NEAR(record.Hj[6], 2 * m, 1e-6);
  EXPECT_NEAR(record.Gj[6], 0.25 / (2 * m), 1e-6);
  EXPECT_NEAR(record.Gj[7], m + 0.6, 1e-6);
  EXPECT_NEAR(record.Hj[8], 0.6, 1e-6);
}

TEST(Mderived, TheOrderFollowsTheNumberOfZeros) {
  EXPECT_EQ(Design("A", {1.5F, 1.3F}).Order, 7);
  EXPECT_EQ(Design("A", {1.5F, 1.3F, 1.2F}).Order, 9);
  EXPECT_EQ(Design("A", {1.5F, 1.3F, 1.2F, 1.6F}).Order, 11);
  EXPECT_EQ(Design("A", {1.5F, 1.3F, 1.2F, 1.6F, 2}).Order, 13);
}

TEST(Mderived, GapsBetweenZerosAreClosed) {
  const DesignRecord gaps = Design("A", {0, 1.5F, 0, 0, 1.25F});
  const DesignRecord packed = Design("A", {1.5F, 1.25F});
  EXPECT_EQ(gaps.MderivedZero, packed.MderivedZero);
  EXPECT_EQ(gaps.Gj, packed.Gj);
  EXPECT_EQ(gaps.Hj, packed.Hj);
}

TEST(Mderived, WithoutZerosThereIsNothing) {
  DesignRecord record = Design("A", {});
  EXPECT_EQ(record.Order, 0);
  EXPECT_EQ(record.Stages, 0);
  EXPECT_THROW(MakeNetwork(record), Fault);
  EXPECT_EQ(record.Stages, 0);
}

TEST(Mderived, AZeroInThePassbandIsAFault) {
  EXPECT_THROW(Design("A", {0.8F}), NumericFault);
  EXPECT_THROW(Design("I", {0.8F}), NumericFault);
  EXPECT_THROW(Design("A", {1}), NumericFault);
}

// The sections inside are matched to one another whatever their zeros; ends of m = 0.6 match them to the terminations.
TEST(Mderived, ThePassbandIsFlatWithMatchingEnds) {
  const std::initializer_list<f32> sets[] = {{1.25F},
                                             {1.25F, 1.25F},
                                             {1.25F, 1.1F, 1.25F},
                                             {1.25F, 2, 1.25F},
                                             {1.25F, 1.1F, 1.7F, 1.25F},
                                             {1.25F, 1.1F, 1.5F, 2, 1.25F}};
  for (const char* topology : topologies) {
    for (const auto& zeros : sets) {
      EXPECT_LT(WorstLoss(Network(topology, zeros), 0.9), 0.05) << topology << " with " << zeros.size();
    }
  }
}

TEST(Mderived, EveryZeroIsAPoleOfTheLoss) {
  const std::initializer_list<f32> sets[] = {
      {2}, {1.2F, 1.1F}, {1.2F, 1.1F, 1.35F}, {1.1F, 1.35F, 1.6F, 2}, {1.2F, 1.1F, 1.35F, 1.6F, 2}};
  for (const char* topology : topologies) {
    for (const auto& zeros : sets) {
      const DesignRecord record = Network(topology, zeros);
      for (const f32 zero : zeros) {
        EXPECT_GT(LosslessLoss(record, Mapped(record, f64{zero})), 100) << topology << " at " << zero;
      }
    }
  }
}

TEST(Mderived, TheStopbandOfAHighpassLiesBelowItsEdge) {
  DesignRecord record;
  record.Width = width;
  for (const char* topology : {"I", "J"}) {
    record.Topology = topology;
    EXPECT_TRUE(IsInStopband(record, 0.8F * width)) << topology;
    EXPECT_FALSE(IsInStopband(record, width)) << topology;
    EXPECT_FALSE(IsInStopband(record, 1.2F * width)) << topology;
    for (const f32 below : {0.0F, -0.8F * width, -2 * width}) EXPECT_FALSE(IsInStopband(record, below)) << topology;
  }
  record.Topology = "A";
  EXPECT_TRUE(IsInStopband(record, 1.2F * width));
  EXPECT_FALSE(IsInStopband(record, width));
  EXPECT_FALSE(IsInStopband(record, -2 * width));
  record.Width = -5 * width;  // no width, but not yet refused where the zeros are entered
  EXPECT_FALSE(IsInStopband(record, -2 * width));
  EXPECT_FALSE(IsInStopband(record, 4 * width));  // a section of it would be the root of a negative number
  EXPECT_TRUE(IsInStopband(record, 6 * width));
}

TEST(Mderived, TheEmptyEndsLeaveNoStages) {
  EXPECT_EQ(Network("A", {1.25F}).Stages, 5);
  EXPECT_EQ(Network("B", {1.25F}).Stages, 5);
  EXPECT_EQ(Network("I", {1.25F}).Stages, 5);
  EXPECT_EQ(Network("J", {1.25F}).Stages, 5);
}

}  // namespace
}  // namespace quilm
