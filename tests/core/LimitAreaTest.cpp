#include "core/LimitArea.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

TEST(LimitArea, IsFoundWhereItsTableHoldsIt) {
  LimitsAndMarkers limits;
  SetArea(limits, 4, 7, {5, 1e6F, 2e6F, 3e-6F, 0});
  EXPECT_EQ(limits.LimitShape[7][4], 5);
  EXPECT_EQ(limits.LimitStart[7][4], 1e6F);
  EXPECT_EQ(limits.LimitStop[7][4], 2e6F);
  EXPECT_EQ(limits.LimitTop[7][4], 3e-6F);
  EXPECT_EQ(limits.LimitBottom[7][4], 0);
  EXPECT_EQ(AreaAt(limits, 4, 7), (LimitArea{5, 1e6F, 2e6F, 3e-6F, 0}));
}

TEST(LimitArea, TheTenthIsTheLastOfAType) {
  LimitsAndMarkers limits;
  for (int j = 1; j <= 10; ++j) {
    EXPECT_TRUE(AddArea(limits, 2, {1, 0.01F, static_cast<f32>(j), -3, -300}));
    EXPECT_EQ(limits.LimitCount[2], j);
    EXPECT_EQ(limits.LimitStop[j][2], static_cast<f32>(j));
  }
  const LimitsAndMarkers full = limits;
  EXPECT_FALSE(AddArea(limits, 2, {2, 1, 1e10F, 0, -3}));
  EXPECT_EQ(limits, full);
  EXPECT_TRUE(AddArea(limits, 3, {2, 1, 1e10F, 0, -3}));
}

// A damaged file may count below none.
TEST(LimitArea, ACountBelowNoneIsNone) {
  LimitsAndMarkers limits;
  limits.LimitCount[1] = -3;
  EXPECT_FALSE(HasAreas(limits));
  EXPECT_TRUE(AddArea(limits, 1, {1, 0.01F, 1, -3, -300}));
  EXPECT_EQ(limits.LimitCount[1], 1);
}

TEST(LimitArea, ErasingATypeKeepsTheOthers) {
  LimitsAndMarkers limits;
  AddArea(limits, 1, {1, 0.01F, 1, -3, -300});
  AddArea(limits, 5, {2, 1, 1e10F, 7, 2});
  limits.MarkerFreq[1] = 1e6F;
  EraseAreas(limits, 1);
  EXPECT_EQ(limits.LimitCount[1], 0);
  EXPECT_EQ(AreaAt(limits, 1, 1), LimitArea{});
  EXPECT_EQ(AreaAt(limits, 5, 1), (LimitArea{2, 1, 1e10F, 7, 2}));
  EXPECT_TRUE(HasAreas(limits));
  EraseAllAreas(limits);
  EXPECT_FALSE(HasAreas(limits));
  EXPECT_EQ(AreaAt(limits, 5, 1), LimitArea{});
  EXPECT_EQ(limits.MarkerFreq[1], 1e6F);
}

TEST(LimitArea, OtherShapesThanTheNineAreNone) {
  EXPECT_EQ(ShapeOf(1).side, LimitSide::Floor);
  EXPECT_EQ(ShapeOf(6).reach, LimitReach::Band);
  EXPECT_EQ(ShapeOf(9).side, LimitSide::Point);
  for (const f32 shape : {0.0F, 10.0F, -1.0F}) EXPECT_THROW(ShapeOf(shape), BoundFault);
}

}  // namespace
}  // namespace quilm
