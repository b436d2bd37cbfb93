#include "core/NumericFault.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/BoundedArray.h"

namespace quilm {
namespace {

// Values that the compiler cannot know.
volatile f64 zero = 0;
volatile f64 one = 1;
volatile f64 huge = 1e300;

template <class Act>
std::string FaultOf(Act act) {
  try {
    act();
  } catch (const NumericFault& fault) {
    return fault.what();
  }
  return {};
}

TEST(NumericFaultScope, ADivisionByZeroFaults) {
  NumericFaultScope scope;
  EXPECT_EQ(FaultOf([&] { scope.Checked(one / zero); }), "Division by zero");
}

TEST(NumericFaultScope, AnOverflowFaults) {
  NumericFaultScope scope;
  EXPECT_EQ(FaultOf([&] { scope.Checked(huge * huge); }), "Overflow");
}

TEST(NumericFaultScope, AnInvalidOperationFaults) {
  NumericFaultScope scope;
  EXPECT_EQ(FaultOf([&] { scope.Checked(zero / zero); }), "Invalid procedure call or argument");
}

TEST(NumericFaultScope, AnInfinityThatCancelsFaultsToo) {
  NumericFaultScope scope;
  EXPECT_EQ(FaultOf([&] { scope.Checked(1 / (one / zero)); }), "Division by zero");
}

TEST(NumericFaultScope, StoringIn32BitsMayOverflow) {
  NumericFaultScope scope;
  EXPECT_EQ(scope.Store(1.5), 1.5F);
  EXPECT_EQ(FaultOf([&] { scope.Store(huge); }), "Overflow");
}

TEST(NumericFaultScope, AnUnderflowIsNoFault) {
  NumericFaultScope scope;
  EXPECT_EQ(scope.Store(one / huge), 0);
}

TEST(NumericFaultScope, WhatHappenedBeforeTheScopeDoesNotCount) {
  volatile f64 infinite = one / zero;
  static_cast<void>(infinite);
  NumericFaultScope scope;
  EXPECT_EQ(scope.Checked(one), 1);
}

TEST(NumericFaultScope, AnInnerScopeGivesTheOuterOneItsFlagsBack) {
  NumericFaultScope outer;
  volatile f64 infinite = one / zero;
  {
    NumericFaultScope inner;
    EXPECT_EQ(inner.Checked(one), 1);
  }
  EXPECT_THROW(outer.Checked(infinite), NumericFault);
}

TEST(NumericFaultScope, WhatAnInnerScopeReportedIsOverForTheOuterOne) {
  NumericFaultScope outer;
  {
    NumericFaultScope inner;
    EXPECT_THROW(inner.Checked(one / zero), NumericFault);
  }
  EXPECT_EQ(outer.Checked(one), 1);
}

TEST(NumericFaultScope, AReportedFaultIsNotReportedTwice) {
  NumericFaultScope scope;
  EXPECT_THROW(scope.Checked(one / zero), NumericFault);
  EXPECT_EQ(scope.Checked(one), 1);
}

TEST(NumericFaultScope, ALogarithmOfZeroAndARootOfANegativeFault) {
  NumericFaultScope scope;
  EXPECT_EQ(FaultOf([&] { scope.Checked(std::log(zero)); }), "Division by zero");
  EXPECT_EQ(FaultOf([&] { scope.Checked(std::sqrt(-one)); }), "Invalid procedure call or argument");
}

TEST(ToI16, RoundsToTheNearestTiesToEven) {
  EXPECT_EQ(ToI16(2.5), 2);
  EXPECT_EQ(ToI16(3.5), 4);
  EXPECT_EQ(ToI16(-2.5), -2);
  EXPECT_EQ(ToI16(2.51), 3);
}

TEST(ToI16, FaultsOutsideItsRange) {
  EXPECT_EQ(ToI16(32767.4), 32767);
  EXPECT_EQ(ToI16(-32768.5), -32768);
  EXPECT_EQ(ToI16(-0.5), 0);
  EXPECT_THROW(ToI16(32767.5), NumericFault);
  EXPECT_THROW(ToI16(-32768.51), NumericFault);
  EXPECT_THROW(ToI16(std::numeric_limits<f64>::infinity()), NumericFault);
  EXPECT_THROW(ToI16(-32769), NumericFault);
  EXPECT_THROW(ToI16(std::numeric_limits<f64>::quiet_NaN()), NumericFault);
}

TEST(BoundedArray, IsIndexedWithinItsDeclaredBounds) {
  BoundedArray<i16, 1, 3> array;
  array[1] = 10;
  array[3] = 30;
  EXPECT_EQ(array[3], 30);
  EXPECT_EQ(array.size(), 3U);
  EXPECT_EQ(array[2], 0);
  EXPECT_EQ((BoundedArray<f32, -2, 2>::first), -2);
  BoundedArray<f32, -2, 2> around;
  around[-2] = 5;
  EXPECT_EQ(*around.begin(), 5);
}

TEST(BoundedArray, FaultsOutsideThem) {
  BoundedArray<i16, 1, 3> array;
  EXPECT_THROW(array[0], BoundFault);
  EXPECT_THROW(array[4], BoundFault);
  EXPECT_THROW(std::as_const(array)[-1], BoundFault);
}

}  // namespace
}  // namespace quilm
