#include "core/NumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

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

TEST(NumText, ACarryRunsThroughAllDigits) {
  EXPECT_EQ(NumText(99.9999999F), " 100 ");
  EXPECT_EQ(NumText(9999999.5F), " 1E+07 ");
  EXPECT_EQ(NumText(9.9999997e-5F), " .0001 ");
  EXPECT_EQ(NumText(0.99999994F), " .9999999 ");
}

TEST(NumText, SixteenBitNumbersFollowTheSameRule) {
  EXPECT_EQ(NumText(i16{32767}), " 32767 ");
  EXPECT_EQ(NumText(i16{-32768}), "-32768 ");
  EXPECT_EQ(NumText(i16{0}), " 0 ");
}

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
  EXPECT_EQ(NumText(std::numeric_limits<f32>::max()), " 3.402823E+38 ");
  EXPECT_EQ(NumText(std::numeric_limits<f32>::denorm_min()), " 1.401298E-45 ");
}

TEST(NumText, ExponentFormWhereMoreThanSevenDigitsWouldStandAfterThePoint) {
  EXPECT_EQ(NumText(1.234567e-3F), " 1.234567E-03 ");
  EXPECT_EQ(NumText(0.0012345F), " .0012345 ");
  EXPECT_EQ(NumText(0.1234567F), " .1234567 ");
  EXPECT_EQ(NumText(0.01234567F), " 1.234567E-02 ");
  EXPECT_EQ(NumText(-0.00012345F), "-1.2345E-04 ");
  EXPECT_EQ(NumText(0.00012F), " .00012 ");
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

TEST(RoundedTo, LeavesWhatIsNotFinite) {
  EXPECT_EQ(RoundedTo(std::numeric_limits<f32>::infinity(), 3), std::numeric_limits<f32>::infinity());
  EXPECT_TRUE(std::isnan(RoundedTo(std::nanf(""), 3)));
  EXPECT_EQ(RoundedTo(std::numeric_limits<f32>::max(), 8), std::numeric_limits<f32>::max());
}

// The C library prints exact values correctly rounded too, but with ties to even, so ties are left out.
class AgainstTheCLibrary : public testing::Test {
 protected:
  static constexpr int trials = 50000;

  f32 Finite() {
    for (;;) {
      const f32 value = std::bit_cast<f32>(static_cast<std::uint32_t>(random_()));
      if (std::isfinite(value)) return value;
    }
  }
  f32 WithinDisplayRange() {
    return std::ldexp(static_cast<f32>(random_() % 20000000U) - 1e7F, -static_cast<int>(random_() % 36U));
  }
  static std::string Printed(const char* format, int digits, f32 value) {
    char text[200];
    std::snprintf(text, sizeof text, format, digits, static_cast<f64>(value));
    return text;
  }
  // "d.ddddddd" with 112 digits holds every 32-bit value exactly.
  static bool TiesAtTheSeventhDigit(f32 value) {
    const std::string exact = Printed("%.*e", 111, std::fabs(value));
    return exact[8] == '5' && exact.find_first_not_of('0', 9) == exact.find('e');
  }

  std::mt19937 random_{20240517};
};

TEST_F(AgainstTheCLibrary, SevenDigitsAreTheNearest) {
  for (int i = 0; i < trials; ++i) {
    const f32 value = Finite();
    if (TiesAtTheSeventhDigit(value)) continue;
    const std::string text = ShortText(value, LeadingZero::Drop);
    ASSERT_EQ(std::strtod(text.c_str(), nullptr), std::strtod(Printed("%.*e", 6, value).c_str(), nullptr)) << text;
  }
}

TEST_F(AgainstTheCLibrary, RoundingToDecimalsIsTheNearest) {
  for (int i = 0; i < trials; ++i) {
    const f32 value = WithinDisplayRange();
    const int decimals = i % 9;
    const f64 scaled = std::fabs(static_cast<f64>(value)) * std::pow(10.0, decimals);
    if (scaled - std::floor(scaled) == 0.5) continue;
    ASSERT_EQ(RoundedTo(value, decimals), std::strtof(Printed("%.*f", decimals, value).c_str(), nullptr))
        << Printed("%.*g", 40, value) << " to " << decimals;
  }
}

}  // namespace
}  // namespace quilm
