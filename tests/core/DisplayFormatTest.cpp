// The display formats: every row from both sides of its threshold, every mask, every border. Expected texts are worked
// by hand from the rows: divide, round to 32 bits, round to the decimals of the mask, cut to seven digits.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/modGeneral.h"
#include "support/TextRows.h"

namespace quilm {
namespace {

f32 Above(f32 value) { return std::nextafter(value, std::numeric_limits<f32>::infinity()); }

constexpr f32 infinity = std::numeric_limits<f32>::infinity();
constexpr f32 nan = std::numeric_limits<f32>::quiet_NaN();

TEST(FormatFrequency, EveryRowFromBothSides) {
  ExpectTexts(FormatFrequency, {{1e9F, "1G "},
                                {Below(1e9F), "1000M "},
                                {1e6F, "1M "},
                                {Below(1e6F), "1000k "},
                                {1000, "1k "},
                                {Below(1000), "1000  "},
                                {1, "1  "},
                                {Below(1), "1000m "},
                                {0.5F, "500m "},
                                {1e-4F, "0.1m "},
                                {1e-10F, "0m "}});
}

TEST(FormatFrequency, MasksByTheScaledValue) {
  ExpectTexts(FormatFrequency, {{1234567e6F, "1234.567G "},
                                {123456789.0F, "123.457M "},
                                {12345678.0F, "12.3457M "},
                                {1234567.0F, "1.23457M "},
                                {1.2345678F, "1.23457  "},
                                {0.12345678e-3F, "0.123457m "},
                                {3500000, "3.5M "},
                                {3500, "3.5k "}});
}

TEST(FormatFrequency, RoundsUpAtTheBordersOfTheMasks) {
  ExpectTexts(FormatFrequency, {{1.0000004F, "1  "}, {9.999995F, "10  "}, {99.99996F, "100  "}, {999.9996F, "1000  "}});
}

TEST(FormatFrequency, ANegativeValueFallsToTheLastRowAndTheLastMask) {
  ExpectTexts(FormatFrequency,
              {{-1, "-1000m "}, {-0.0015F, "-1.5m "}, {-0.12345678F, "-123.4568m "}, {-1e6F, "-1E+09m "}});
}

TEST(FormatFrequency, Zero) { ExpectTexts(FormatFrequency, {{0, "0.0 "}, {-0.0F, "0.0 "}}); }

TEST(FormatInductance, EveryRowFromBothSides) {
  ExpectTexts(FormatInductance, {{1e9F, "1GH"},
                                 {Below(1e9F), "1000MH"},
                                 {1e6F, "1MH"},
                                 {Below(1e6F), "1000kH"},
                                 {1000, "1kH"},
                                 {Below(1000), "1000H"},
                                 {1, "1H"},
                                 {Below(1), "1000mH"},
                                 {0.001F, "1mH"},
                                 {Below(0.001F), "1000uH"},
                                 {1e-6F, "1uH"},
                                 {Below(1e-6F), "1000nH"},
                                 {1e-9F, "1nH"},
                                 {0.5F, "500mH"},
                                 {1e-17F, "0nH"}});
}

TEST(FormatInductance, MasksByTheScaledValue) {
  ExpectTexts(FormatInductance, {{1234567e6F, "1234.57GH"},
                                 {123.4567e-6F, "123.457uH"},
                                 {12.34567e-6F, "12.3457uH"},
                                 {1.234567e-6F, "1.23457uH"},
                                 {0.1234567e-9F, "0.123457nH"}});
}

TEST(FormatInductance, TheUnitIsChosenBeforeTheMaskRounds) {
  ExpectTexts(FormatInductance, {{999.9996e-6F, "1000uH"}, {9.999999e-6F, "10uH"}});
}

TEST(FormatInductance, ANegativeValueTakesTheMaskOfItsMagnitude) {
  ExpectTexts(FormatInductance, {{-10e-6F, "-10uH"}, {-123.4567e-6F, "-123.457uH"}, {-0.5F, "-500mH"}});
}

TEST(FormatInductance, ZeroIsEmpty) { ExpectTexts(FormatInductance, {{0, ""}, {-0.0F, ""}}); }

TEST(FormatInductance, WhatRoundsToZeroHasNoSign) { EXPECT_EQ(FormatInductance(-1e-20F), "0nH"); }

// Thresholds a hundredfold away from the divisors: uF from 0.01 uF up, pF below, no nanofarads.
TEST(FormatCapacitance, EveryRowFromBothSides) {
  ExpectTexts(FormatCapacitance, {{1e7F, "0.0001GF"},
                                  {Below(1e7F), "10MF"},
                                  {10000, "0.01MF"},
                                  {Below(10000), "10kF"},
                                  {10, "0.01kF"},
                                  {Below(10), "10F"},
                                  {1, "1F"},
                                  {Below(1), "1000mF"},
                                  {0.01F, "10mF"},
                                  {Below(0.01F), "10000uF"},
                                  {1e-8F, "0.01uF"},
                                  {Below(1e-8F), "10000pF"},
                                  {1e-12F, "1pF"},
                                  {1e-15F, "0.001pF"},
                                  {Below(1e-15F), "0  "},
                                  {1e-16F, "0  "},
                                  {-1e-16F, "0  "}});
}

TEST(FormatCapacitance, MasksByTheScaledValue) {
  ExpectTexts(FormatCapacitance, {{4.7e-9F, "4700pF"},
                                  {1234.567e-12F, "1234.57pF"},
                                  {123.4567e-12F, "123.457pF"},
                                  {12.34567e-12F, "12.3457pF"},
                                  {1.234567e-12F, "1.23457pF"},
                                  {0.1234567e-12F, "0.123457pF"},
                                  {1.23456e-8F, "0.012346uF"},
                                  {2.2e-6F, "2.2uF"},
                                  {-2.2e-9F, "-2200pF"}});
}

TEST(FormatCapacitance, ZeroIsEmpty) { ExpectTexts(FormatCapacitance, {{0, ""}, {-0.0F, ""}}); }

TEST(FormatResistance, EveryRowFromBothSides) {
  ExpectTexts(FormatResistance, {{1e9F, "1G"},
                                 {Below(1e9F), "1000M"},
                                 {1e6F, "1M"},
                                 {Below(1e6F), "1000k"},
                                 {1000, "1k"},
                                 {Below(1000), "1000 "},
                                 {100, "100 "},
                                 {Below(100), "100 "},
                                 {10, "10 "},
                                 {Below(10), "10 "},
                                 {1, "1 "},
                                 {Below(1), "1 "},
                                 {Above(0.001F), "0.001 "},
                                 {0.001F, "0.0   "}});
}

TEST(FormatResistance, MasksByTheRow) {
  ExpectTexts(FormatResistance, {{1234567890.0F, "1.235G"},
                                 {12345678, "12.346M"},
                                 {1234.5678F, "1.235k"},
                                 {123.456F, "123.46 "},
                                 {12.3456F, "12.346 "},
                                 {1.23456F, "1.2346 "},
                                 {0.123456F, "0.12346 "}});
}

// Halves that 32 bits hold exactly, one for each number of decimals.
TEST(FormatResistance, TiesGoAwayFromZero) {
  ExpectTexts(FormatResistance,
              {{100.125F, "100.13 "}, {10.0625F, "10.063 "}, {1.03125F, "1.0313 "}, {0.015625F, "0.01563 "}});
}

TEST(FormatResistance, WhatIsNotAboveAThousandthReadsZero) {
  ExpectTexts(FormatResistance, {{0, "0.0   "}, {-50, "0.0   "}, {-1e9F, "0.0   "}});
}

TEST(FormatTime, EveryRowFromBothSides) {
  ExpectTexts(FormatTime, {{1e9F, "1G"},
                           {Below(1e9F), "1000M"},
                           {1e6F, "1M"},
                           {Below(1e6F), "1000k"},
                           {1000, "1k"},
                           {Below(1000), "1000  "},
                           {1, "1  "},
                           {Below(1), "1000m"},
                           {0.001F, "1m"},
                           {Below(0.001F), "1000u"},
                           {1e-6F, "1u"},
                           {Below(1e-6F), "1000n"},
                           {1e-9F, "1n"},
                           {Below(1e-9F), "1000p"},
                           {1.5e-12F, "1.5p"},
                           {1e-17F, "0p"}});
}

TEST(FormatTime, MasksByTheScaledValue) {
  ExpectTexts(FormatTime, {{1234.7e9F, "1235G"},
                           {123.456e-6F, "123.5u"},
                           {12.3456e-6F, "12.35u"},
                           {1.23456e-6F, "1.235u"},
                           {0.12347e-12F, "0.1235p"},
                           {1e-16F, "0.0001p"},
                           {-123.456e-6F, "-123.5u"}});
}

TEST(FormatTime, Zero) { ExpectTexts(FormatTime, {{0, "0  "}, {-0.0F, "0  "}}); }

TEST(FormatValue, EveryRowFromBothSides) {
  ExpectTexts(FormatValue, {{1e9F, "1G"},
                            {Below(1e9F), "1000M"},
                            {1e6F, "1M"},
                            {Below(1e6F), "1000k"},
                            {1000, "1k"},
                            {Below(1000), "1000 "},
                            {100, "100 "},
                            {Below(100), "100 "},
                            {10, "10 "},
                            {Below(10), "10 "},
                            {1, "1 "},
                            {Below(1), "1 "},
                            {Above(1e-5F), "1E-05 "},
                            {1e-5F, " 0.0000  "},
                            {1e-6F, " 0.0000  "},
                            {0, " 0.0000  "},
                            {-1e-5F, " 0.0000  "}});
}

TEST(FormatValue, MasksByTheRow) {
  ExpectTexts(FormatValue, {{1234567890.0F, "1.235G"},
                            {12345678, "12.346M"},
                            {1234.5678F, "1.235k"},
                            {123.456F, "123.46 "},
                            {12.3456F, "12.346 "},
                            {1.23456F, "1.2346 "},
                            {0.123456F, "0.12346 "},
                            {2e-5F, "2E-05 "},
                            {0.00012F, "0.00012 "}});
}

TEST(FormatValue, BordersOfTheMasks) {
  ExpectTexts(FormatValue, {{999.9996F, "1000 "}, {9.999995F, "10 "}, {0.999996F, "1 "}, {1e16F, "1E+07G"}});
}

TEST(FormatValue, KeepsTheSign) {
  ExpectTexts(FormatValue, {{-16.4278F, "-16.428 "}, {-0.5F, "-0.5 "}, {-100.125F, "-100.13 "}, {-1234567, "-1.235M"}});
}

TEST(DisplayFormats, WhatIsNoNumberIsShownAsSuch) {
  EXPECT_EQ(FormatFrequency(infinity), "InfG ");
  EXPECT_EQ(FormatFrequency(nan), "NaNm ");
  EXPECT_EQ(FormatInductance(-infinity), "-InfGH");
  EXPECT_EQ(FormatInductance(nan), "NaNnH");
  EXPECT_EQ(FormatCapacitance(nan), "NaNpF");
  EXPECT_EQ(FormatTime(infinity), "InfG");
  EXPECT_EQ(FormatValue(-infinity), "-InfG");
}

TEST(DisplayFormats, ARowThatAsksForAMagnitudeTakesNoNumberAsZero) {
  EXPECT_EQ(FormatResistance(nan), "0.0   ");
  EXPECT_EQ(FormatValue(nan), " 0.0000  ");
}

TEST(DisplayFormats, TheEndsOfTheRangeHaveTexts) {
  const f32 largest = std::numeric_limits<f32>::max();
  EXPECT_EQ(FormatValue(1e38F), "1E+29G");
  EXPECT_EQ(FormatFrequency(-largest), "-Infm ");  // in thousandths it leaves the range
  EXPECT_EQ(FormatTime(std::numeric_limits<f32>::denorm_min()), "0p");
}

// What a box echoes: the parsed entry in its display format.
TEST(Echo, AnEntryComesBackInItsShortestForm) {
  const auto echo = [](std::string text, std::string (*format)(f32)) {
    f32 value = 0;
    ParseEntry(text, value);
    return format(value);
  };
  EXPECT_EQ(echo("3500k", FormatFrequency), "3.5M ");
  EXPECT_EQ(echo("1u", FormatInductance), "1uH");
  EXPECT_EQ(echo("100m", FormatInductance), "100mH");
  EXPECT_EQ(echo("4.7n", FormatCapacitance), "4700pF");
  EXPECT_EQ(echo("10n", FormatCapacitance), "0.01uF");
  EXPECT_EQ(echo("2.2k", FormatResistance), "2.2k");
  EXPECT_EQ(echo("1200n", FormatTime), "1.2u");
}

}  // namespace
}  // namespace quilm
