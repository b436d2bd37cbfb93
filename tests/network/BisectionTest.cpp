#include "network/Bisection.h"

#include <gtest/gtest.h>

#include "core/Fault.h"
#include "network/NetworkEdits.h"

namespace quilm {
namespace {

Network Ladder(const std::vector<i16>& types, f32 L, f32 C) {
  Network network;
  network.Stages = static_cast<i16>(types.size());
  network.Rsource[1] = network.Rload[1] = network.Rstandard = 50;
  for (int s = 1; s <= network.Stages; ++s) MakePart(network.stage[s], types[static_cast<std::size_t>(s - 1)], L, C);
  return network;
}

struct Middle {
  i16 type;
  f32 L;
  f32 C;
};

void PrintTo(const Middle& middle, std::ostream* out) { *out << "type " << middle.type; }

class BisectionMiddle : public testing::TestWithParam<Middle> {};

// L = 8, C = 6, K = 2: in the line 8 / 2 x 2 + 8 / 2 = 12 and 12 x 6 / (12 + 6) = 4; to common 16 x 32 / 48 and
// 6 / 2 / 2 + 6 / 2 = 4.5.
TEST_P(BisectionMiddle, IsSplitByItsType) {
  const Network network = Ladder({GetParam().type}, 8, 6);
  const Network result = Bisect(network, 100);
  EXPECT_FLOAT_EQ(result.stage[1].Lval.value, GetParam().L);
  EXPECT_FLOAT_EQ(result.stage[1].Cval.value, GetParam().C);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, BisectionMiddle,
                         testing::Values(Middle{SeriesL, 12, 4}, Middle{SeriesC, 12, 4}, Middle{SeriesSLC, 12, 4},
                                         Middle{SeriesPLC, 12, 4}, Middle{ShuntL, 32 / 3.0F, 4.5F},
                                         Middle{ShuntC, 32 / 3.0F, 4.5F}, Middle{ShuntSLC, 32 / 3.0F, 4.5F},
                                         Middle{ShuntPLC, 32 / 3.0F, 4.5F}, Middle{SeriesR, 8, 6},
                                         Middle{TransLine, 8, 6}));

TEST(Bisect, TheStagesBehindTheMiddleAreScaled) {
  const Network result = Bisect(Ladder({ShuntC, SeriesL, ShuntC}, 8, 6), 200);
  EXPECT_EQ(result.stage[1].Cval.value, 6);
  EXPECT_EQ(result.stage[2].Lval.value, 20);
  EXPECT_EQ(result.stage[3].Lval.value, 32);
  EXPECT_EQ(result.stage[3].Cval.value, 1.5F);
  EXPECT_EQ(result.Rsource[1], 50);
  EXPECT_EQ(result.Rload[1], 200);
  EXPECT_EQ(result.Rstandard, 200);
}

// Of four stages the third counts as the middle.
TEST(Bisect, AnEvenCountSplitsTheStageBehindItsMiddle) {
  const Network result = Bisect(Ladder({SeriesL, ShuntC, ShuntC, SeriesL}, 8, 6), 100);
  EXPECT_EQ(result.stage[2].Cval.value, 6);
  EXPECT_EQ(result.stage[3].Cval.value, 4.5F);
  EXPECT_EQ(result.stage[4].Lval.value, 16);
}

TEST(Bisect, WhatIsNothingStaysNothing) {
  Network network = Ladder({ShuntC, ShuntC, ShuntC}, 0, 6);
  for (const f32 load : {25.0F, 100.0F}) {
    const Network result = Bisect(network, load);
    for (int s = 1; s <= 3; ++s) EXPECT_EQ(result.stage[s].Lval.value, 0);
  }
}

TEST(Bisect, TheSameLoadChangesNothing) {
  const Network network = Ladder({ShuntPLC, SeriesSLC, ShuntPLC, SeriesSLC, ShuntPLC}, 8e-6F, 6e-12F);
  EXPECT_EQ(Bisect(network, 50), network);
}

TEST(Bisect, ASecondTimeScalesWhatTheFirstHasLeft) {
  const Network once = Bisect(Ladder({ShuntC, SeriesL, ShuntC}, 8, 6), 100);
  const Network twice = Bisect(once, 100);
  EXPECT_EQ(once.stage[3].Cval.value, 3);
  EXPECT_EQ(twice.stage[3].Cval.value, 1.5F);
}

TEST(Bisect, WithoutASourceIsAFault) {
  Network network = Ladder({ShuntC, SeriesL, ShuntC}, 8, 6);
  network.Rsource[1] = 0;
  EXPECT_THROW(Bisect(network, 100), NumericFault);
}

TEST(BisectionLoss, IsThatOfTheMismatch) {
  EXPECT_EQ(BisectionLoss(1), 0);
  EXPECT_NEAR(BisectionLoss(4), 1.9382, 5e-5);  // -10 log10(16 / 25)
  EXPECT_NEAR(BisectionLoss(0.25), 1.9382, 5e-5);
}

TEST(IsSymmetrical, ComparesInductorsAndCapacitors) {
  const Network network = Ladder({ShuntPLC, SeriesSLC, ShuntPLC, SeriesSLC, ShuntPLC}, 8e-6F, 6e-12F);
  EXPECT_TRUE(IsSymmetrical(network));
  for (int s : {1, 2, 4, 5}) {
    for (const f32 factor : {1.0002F, 0.9998F}) {
      Network other = network;
      other.stage[s].Lval.value *= factor;
      EXPECT_FALSE(IsSymmetrical(other)) << s;
      other = network;
      other.stage[s].Cval.value *= factor;
      EXPECT_FALSE(IsSymmetrical(other)) << s;
    }
    Network close = network;
    close.stage[s].Cval.value *= 1.00005F;
    EXPECT_TRUE(IsSymmetrical(close)) << s;
  }
}

TEST(IsSymmetrical, TypesAreNotCompared) { EXPECT_TRUE(IsSymmetrical(Ladder({ShuntC, SeriesL, SeriesC}, 0, 6))); }

TEST(IsSymmetrical, WhatIsNoInductorOrCapacitorEndsIt) {
  EXPECT_FALSE(IsSymmetrical(Ladder({ShuntC, SeriesR, ShuntC}, 0, 6)));
  EXPECT_FALSE(IsSymmetrical(Ladder({TransLine, SeriesL, TransLine}, 1, 6)));
}

TEST(IsSymmetrical, ANetworkWithoutStagesIsNot) { EXPECT_FALSE(IsSymmetrical(Network{})); }

}  // namespace
}  // namespace quilm
