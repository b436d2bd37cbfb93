#include "core/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quilm {
namespace {

TEST(NumText, CarriesABlankOrAMinusInFrontAndABlankBehind) {
  EXPECT_EQ(NumText(50.0F), " 50 ");
  EXPECT_EQ(NumText(-3.5F), "-3.5 ");
  EXPECT_EQ(NumText(i16{-7}), "-7 ");
  EXPECT_EQ(NumText(0.0F), " 0 ");
  EXPECT_EQ(NumText(-0.0F), " 0 ");
}

TEST(NumText, DropsTheZeroBeforeThePoint) {
  EXPECT_EQ(NumText(0.5F), " .5 ");
  EXPECT_EQ(NumText(-0.5F), "-.5 ");
}

TEST(NumText, HasSevenSignificantDigits) {
  EXPECT_EQ(NumText(1234567.0F), " 1234567 ");
  EXPECT_EQ(NumText(123.45678F), " 123.4568 ");
  EXPECT_EQ(NumText(0.1F), " .1 ");
}

// At seven digits the exact value 1048576.5 is a tie; it goes away from zero like every rounding of texts.
TEST(NumText, RoundsATieAwayFromZero) { EXPECT_EQ(NumText(1048576.5F), " 1048577 "); }

TEST(NumText, ExponentFormBelowATenThousandth) {
  EXPECT_EQ(NumText(1.5e-5F), " 1.5E-05 ");
  EXPECT_EQ(NumText(1e-4F), " .0001 ");
  EXPECT_EQ(NumText(4.7e-12F), " 4.7E-12 ");
}

TEST(NumText, ExponentFormFromTenMillionUp) {
  EXPECT_EQ(NumText(1e7F), " 1E+07 ");
  EXPECT_EQ(NumText(12345678.0F), " 1.234568E+07 ");
  EXPECT_EQ(NumText(9999999.0F), " 9999999 ");
  EXPECT_EQ(NumText(3e38F), " 3E+38 ");
}

TEST(NumText, ExponentFormWhereMoreThanSevenDigitsWouldStandAfterThePoint) {
  EXPECT_EQ(NumText(1.234567e-3F), " 1.234567E-03 ");
  EXPECT_EQ(NumText(0.0012345F), " .0012345 ");
  EXPECT_EQ(NumText(0.1234567F), " .1234567 ");
  EXPECT_EQ(NumText(0.01234567F), " 1.234567E-02 ");
}

TEST(ShortText, KeepsTheZeroWhereAsked) {
  EXPECT_EQ(ShortText(0.25F, LeadingZero::Keep), "0.25");
  EXPECT_EQ(ShortText(-0.25F, LeadingZero::Keep), "-0.25");
}

TEST(ShortText, WhatIsNoNumberHasATextToo) {
  EXPECT_EQ(ShortText(std::numeric_limits<f32>::infinity(), LeadingZero::Keep), "Inf");
  EXPECT_EQ(ShortText(-std::numeric_limits<f32>::infinity(), LeadingZero::Keep), "-Inf");
  EXPECT_EQ(ShortText(std::nanf(""), LeadingZero::Keep), "NaN");
}

TEST(RoundedTo, TakesTheExactValueOfThe32BitNumber) {
  EXPECT_EQ(RoundedTo(100.125F, 2), 100.13F);  // exactly a tie
  EXPECT_EQ(RoundedTo(-100.125F, 2), -100.13F);
  EXPECT_EQ(RoundedTo(2.675F, 2), 2.67F);  // the 32-bit number lies below: 2.67499995...
  EXPECT_EQ(RoundedTo(0.5F, 0), 1);
  EXPECT_EQ(RoundedTo(0.4999999F, 0), 0);
  EXPECT_EQ(RoundedTo(9.9996F, 3), 10);
}

TEST(RoundedTo, SmallValuesVanishWithoutASign) {
  EXPECT_FALSE(std::signbit(RoundedTo(-1e-9F, 5)));
  EXPECT_EQ(RoundedTo(1e-45F, 5), 0);
}

}  // namespace
}  // namespace quilm
