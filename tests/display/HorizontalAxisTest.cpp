#include "display/HorizontalAxis.h"

#include "core/Sweep.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/Fault.h"

namespace quilm {
namespace {

TEST(HorizontalAxis, FollowsTheValueInALinearSweep) {
  const HorizontalAxis axis(SweepSettings{1, 1e6F, 3e6F, 100});
  EXPECT_EQ(axis.Fraction(1e6F), 0);
  EXPECT_EQ(axis.Fraction(2e6F), 0.5);
  EXPECT_EQ(axis.Fraction(3e6F), 1);
  EXPECT_EQ(axis.Fraction(4e6F), 1.5);
}

TEST(HorizontalAxis, FollowsTheLogarithmOtherwise) {
  const HorizontalAxis axis(SweepSettings{2, 1e3F, 1e9F, 100});
  EXPECT_NEAR(axis.Fraction(1e5F), 1.0 / 3, 1e-9);
  EXPECT_EQ(axis.Fraction(1e3F), 0);
  EXPECT_EQ(axis.Fraction(1e9F), 1);
}

TEST(HorizontalAxis, WithoutWidthHasNoPlaces) {
  EXPECT_THROW(HorizontalAxis(AxisSettings{false, 5, 5}).Fraction(5), NumericFault);
  EXPECT_THROW(HorizontalAxis(AxisSettings{true, 5, 5}).Fraction(5), NumericFault);
}

TEST(HorizontalAxis, AxesOfTheSameSettingsAreEqual) {
  const HorizontalAxis axis(AxisSettings{true, 1, 100});
  EXPECT_EQ(axis, HorizontalAxis(SweepSettings{2, 1, 100, 7}));
  EXPECT_FALSE(axis == HorizontalAxis(AxisSettings{false, 1, 100}));
  EXPECT_FALSE(axis == HorizontalAxis(AxisSettings{true, 2, 100}));
  EXPECT_FALSE(axis == HorizontalAxis(AxisSettings{true, 1, 200}));
}

class Kept : public testing::Test {
 protected:
  std::vector<f64> Along(const AxisSettings& settings, const std::vector<f32>& values) {
    const std::span<const f64> fractions = FractionsAlong(HorizontalAxis(settings), values, kept);
    return {fractions.begin(), fractions.end()};
  }

  AxisPlaces kept;
};

using Fractions = std::vector<f64>;

TEST_F(Kept, AreThoseOfTheAxisAtTheFirstUseAndAtTheSecond) {
  EXPECT_EQ(Along({true, 1, 100}, {1, 10, 100}), (Fractions{0, 0.5, 1}));
  EXPECT_EQ(Along({true, 1, 100}, {1, 10, 100}), (Fractions{0, 0.5, 1}));
}

TEST_F(Kept, AreNotMadeAnewWhileAxisAndValuesStand) {
  const std::vector<f32> values = {1, 10, 100};
  const std::vector<f32> sameValues = values;
  const f64* first = FractionsAlong(HorizontalAxis(AxisSettings{true, 1, 100}), values, kept).data();
  EXPECT_EQ(FractionsAlong(HorizontalAxis(AxisSettings{true, 1, 100}), sameValues, kept).data(), first);
}

TEST_F(Kept, FollowEveryChangeOfTheAxis) {
  Along({true, 1, 100}, {1, 10, 100});
  EXPECT_EQ(Along({false, 1, 100}, {1, 10, 100})[1], 9.0 / 99);
  EXPECT_EQ(Along({false, 0, 100}, {1, 10, 100})[1], 0.1);
  EXPECT_EQ(Along({false, 0, 50}, {1, 10, 100})[1], 0.2);
}

TEST_F(Kept, FollowEveryChangeOfTheValues) {
  Along({false, 0, 10}, {1, 2, 3});
  EXPECT_EQ(Along({false, 0, 10}, {1, 2, 4}), (Fractions{0.1, 0.2, 0.4}));
  EXPECT_EQ(Along({false, 0, 10}, {1, 2}), (Fractions{0.1, 0.2}));
  EXPECT_EQ(Along({false, 0, 10}, {1, 2, 4}), (Fractions{0.1, 0.2, 0.4}));
  EXPECT_EQ(Along({false, 0, 10}, {}), Fractions{});
}

TEST_F(Kept, AFaultLeavesThemAsTheyWere) {
  Along({false, 0, 10}, {1, 2});
  EXPECT_THROW(Along({false, 5, 5}, {1, 2}), NumericFault);
  EXPECT_EQ(Along({false, 0, 10}, {1, 2}), (Fractions{0.1, 0.2}));
}

}  // namespace
}  // namespace quilm
