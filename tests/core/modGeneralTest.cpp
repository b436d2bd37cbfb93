#include "core/modGeneral.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quilm {
namespace {

f32 Parsed(std::string text) {
  f32 value = -777;
  ParseEntry(text, value);
  return value;
}

struct Entry {
  const char* text;
  f32 value;
};

void ExpectParsed(std::initializer_list<Entry> entries) {
  for (const Entry& entry : entries) EXPECT_EQ(Parsed(entry.text), entry.value) << entry.text;
}

TEST(ParseEntry, PlainNumbers) { ExpectParsed({{"50", 50}, {"-3", -3}, {"+5", 5}, {".5", 0.5F}, {"5.", 5}, {"0", 0}}); }

TEST(ParseEntry, MultipliersInEitherCase) {
  ExpectParsed({{"3p", 3e-12F},
                {"3P", 3e-12F},
                {"3n", 3 * 1e-9F},
                {"3N", 3 * 1e-9F},
                {"3u", 3 * 1e-6F},
                {"3U", 3 * 1e-6F},
                {"3k", 3000},
                {"3K", 3000},
                {"3g", 3e9F},
                {"3G", 3e9F}});
}

TEST(ParseEntry, MilliAndMegaGoByCase) { ExpectParsed({{"1.5mHz", 1.5F * 0.001F}, {"1.5MHz", 1500000}}); }

TEST(ParseEntry, TheProductIsRoundedTo32Bits) { EXPECT_EQ(Parsed("4.7n"), 4.7F * 1e-9F); }

TEST(ParseEntry, ACommaIsAPoint) { ExpectParsed({{"1,5k", 1500}, {"1,2,3", 1.23F}}); }

TEST(ParseEntry, ASecondPointIsDropped) { ExpectParsed({{"1.2.3", 1.23F}, {"..5", 0.5F}}); }

TEST(ParseEntry, UnitsAreDropped) { ExpectParsed({{"47pF", 47 * 1e-12F}, {"2.2kohm", 2200}, {"10uH", 10 * 1e-6F}}); }

TEST(ParseEntry, ALetterBeforeAnyDigitIsDropped) { ExpectParsed({{"k", 0}, {"k5", 5}, {"H3", 3}}); }

// A sign alone fills the entry, so the letter counts as its suffix and what follows is ignored.
TEST(ParseEntry, ASuffixRightAfterASignLeavesNoNumber) { EXPECT_EQ(Parsed("-k5"), 0); }

TEST(ParseEntry, DigitsAfterASuffixAreIgnored) { ExpectParsed({{"2k2", 2000}, {"1M5.5k", 1e6F}}); }

TEST(ParseEntry, Exponents) {
  ExpectParsed(
      {{"1e-3", 1e-3F}, {"1E6", 1e6F}, {"1e+6", 1e6F}, {"1.2e6", 1.2e6F}, {"1e2e3", 1e23F > 1e10F ? 1e10F : 0}});
}

TEST(ParseEntry, NoSuffixCountsAfterAnExponent) { EXPECT_EQ(Parsed("1e3k"), 1000); }

TEST(ParseEntry, NoPointCountsAfterAnExponent) { EXPECT_EQ(Parsed("1e1.5"), 1e10F); }

TEST(ParseEntry, AnExponentWithoutDigitsCountsForNothing) { ExpectParsed({{"1E", 1}, {"1E+", 1}, {"1E-", 1}}); }

TEST(ParseEntry, SignsInTheMiddleAreDropped) { ExpectParsed({{"1-3", 13}, {"12-3", 123}, {"-3dB", -3}, {"--5", -5}}); }

TEST(ParseEntry, BlanksAreDropped) { ExpectParsed({{"1 2", 12}, {"  7  ", 7}}); }

TEST(ParseEntry, NothingIsZero) { ExpectParsed({{"", 0}, {"   ", 0}, {".", 0}, {"-", 0}, {"abc", 0}, {"E5", 5}}); }

TEST(ParseEntry, OnlyTwelveCharactersAreRead) {
  std::string text = " 123456789.12345";
  f32 value = 0;
  ParseEntry(text, value);
  EXPECT_EQ(text, "123456789.12");
  EXPECT_EQ(value, 123456789.12F);
  EXPECT_EQ(Parsed("0.0000000001G"), 1e-10F);  // the suffix is lost
}

TEST(ParseEntry, TheResultIsHeldWithinTenToTheTenth) {
  ExpectParsed({{"5e12", 1e10F},
                {"-5e12", -1e10F},
                {"1e99", 1e10F},
                {"-1e99", -1e10F},
                {"1e9999999", 1e10F},
                {"100G", 1e10F},
                {"123456789012345", 1e10F}});
}

TEST(ParseEntry, AnUnderflowIsZero) { ExpectParsed({{"1e-99", 0}, {"1e-999999", 0}, {"-1e-99", 0}}); }

struct Row {
  f32 value;
  const char* text;
};

template <class Format>
void ExpectTexts(Format format, std::initializer_list<Row> rows) {
  for (const Row& row : rows) EXPECT_EQ(format(row.value), row.text) << row.value;
}

f32 Below(f32 value) { return std::nextafter(value, 0.0F); }

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
                                {1e-4F, "0.1m "}});
}

TEST(FormatFrequency, MasksByTheScaledValue) {
  ExpectTexts(FormatFrequency, {{1234567.0F, "1.23457M "},
                                {12345678.0F, "12.3457M "},
                                {123456789.0F, "123.457M "},
                                {3500000, "3.5M "},
                                {1.0000004F, "1  "},
                                {9.999995F, "10  "},
                                {999.9996F, "1000  "}});
}

TEST(FormatFrequency, ANegativeValueFallsToTheLastRow) {
  ExpectTexts(FormatFrequency, {{-1, "-1000m "}, {-0.0015F, "-1.5m "}});
}

TEST(FormatFrequency, Zero) { EXPECT_EQ(FormatFrequency(0), "0.0 "); }

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
  ExpectTexts(FormatInductance, {{999.9996e-6F, "1000uH"},
                                 {123.4567e-6F, "123.457uH"},
                                 {12.34567e-6F, "12.3457uH"},
                                 {1.234567e-6F, "1.23457uH"},
                                 {0.1234567e-9F, "0.123457nH"},
                                 {-10e-6F, "-10uH"}});
}

TEST(FormatInductance, ZeroIsEmpty) { EXPECT_EQ(FormatInductance(0), ""); }

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
                                  {4.7e-9F, "4700pF"},
                                  {1e-12F, "1pF"},
                                  {1e-16F, "0  "},
                                  {-2.2e-9F, "-2200pF"}});
}

TEST(FormatCapacitance, ZeroIsEmpty) { EXPECT_EQ(FormatCapacitance(0), ""); }

TEST(FormatResistance, EveryRowFromBothSides) {
  ExpectTexts(FormatResistance, {{1e9F, "1G"},
                                 {Below(1e9F), "1000M"},
                                 {1e6F, "1M"},
                                 {Below(1e6F), "1000k"},
                                 {1000, "1k"},
                                 {Below(1000), "1000 "},
                                 {100.125F, "100.13 "},
                                 {100, "100 "},
                                 {Below(100), "100 "},
                                 {10, "10 "},
                                 {Below(10), "10 "},
                                 {1, "1 "},
                                 {Below(1), "1 "},
                                 {0.123456F, "0.12346 "}});
}

TEST(FormatResistance, WhatIsNotAboveAThousandthReadsZero) {
  ExpectTexts(FormatResistance, {{0.001F, "0.0   "}, {0, "0.0   "}, {-50, "0.0   "}, {0.0011F, "0.0011 "}});
}

TEST(FormatTime, EveryRowFromBothSides) {
  ExpectTexts(FormatTime, {{1e9F, "1G"},
                           {1e6F, "1M"},
                           {1000, "1k"},
                           {1, "1  "},
                           {Below(1), "1000m"},
                           {0.001F, "1m"},
                           {1e-6F, "1u"},
                           {Below(1e-6F), "1000n"},
                           {1e-9F, "1n"},
                           {Below(1e-9F), "1000p"},
                           {1.5e-12F, "1.5p"},
                           {0, "0  "},
                           {-2e-6F, "-2u"}});
}

TEST(FormatTime, MasksByTheScaledValue) {
  ExpectTexts(FormatTime,
              {{123.456e-6F, "123.5u"}, {12.3456e-6F, "12.35u"}, {1.23456e-6F, "1.235u"}, {1e-16F, "0.0001p"}});
}

TEST(FormatValue, EveryRowFromBothSides) {
  ExpectTexts(FormatValue, {{1e9F, "1G"},
                            {1e6F, "1M"},
                            {1000, "1k"},
                            {Below(1000), "1000 "},
                            {123.456F, "123.46 "},
                            {12.3456F, "12.346 "},
                            {1.23456F, "1.2346 "},
                            {0.123456F, "0.12346 "},
                            {2e-5F, "2E-05 "},
                            {1e-5F, " 0.0000  "},
                            {1e-6F, " 0.0000  "},
                            {0, " 0.0000  "},
                            {-16.4278F, "-16.428 "},
                            {-0.5F, "-0.5 "}});
}

TEST(PadCell, FillsToFourteenCharacters) {
  EXPECT_EQ(PadCell(0.5F), ".5            ");
  EXPECT_EQ(PadCell(-1.234567e-10F), "-1.234567E-10 ");
  EXPECT_EQ(PadCell(0).size(), 14U);
}

TEST(Helpers, HyperbolicCosineAndItsInverse) {
  EXPECT_DOUBLE_EQ(CosH(1), 1.5430806348152437);  // Abramowitz and Stegun, table 4.15
  EXPECT_NEAR(ArcCosh(1.5430806F), 1, 1e-6);
  EXPECT_EQ(ArcCosh(1), 0);
}

TEST(Helpers, SwapValues) {
  f32 a = 1;
  f32 b = 2;
  SwapValues(a, b);
  EXPECT_EQ(a, 2);
  EXPECT_EQ(b, 1);
}

}  // namespace
}  // namespace quilm
