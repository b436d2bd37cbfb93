#include "core/modGeneral.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/NumericFault.h"

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

TEST(ParseEntry, UnitsAreDropped) {
  ExpectParsed({{"47pF", 47 * 1e-12F}, {"2.2kohm", 2200}, {"10uH", 10 * 1e-6F}, {"1Meg", 1e6F}, {"0x10", 10}});
}

TEST(ParseEntry, TheMicroSignAndTheGreekMuCountAsU) {
  ExpectParsed({{"47\u00b5F", 47 * 1e-6F}, {"47\u03bcF", 47 * 1e-6F}, {"2.2 \u00b5H", 2.2F * 1e-6F}});
  std::string text = "2.2\u00b5H";
  f32 value = 0;
  ParseEntry(text, value);
  EXPECT_EQ(text, "2.2\u00b5H");                   // the user's text stays as typed
  ExpectParsed({{"5\u00b4", 5}, {"5\u03bd", 5}});  // neighbours of the two, which share their first bytes
}

TEST(ParseEntry, ALetterBeforeAnyDigitIsDropped) { ExpectParsed({{"k", 0}, {"k5", 5}, {"H3", 3}}); }

// A sign alone fills the entry, so the letter counts as its suffix and what follows is ignored.
TEST(ParseEntry, ASuffixRightAfterASignLeavesNoNumber) { EXPECT_EQ(Parsed("-k5"), 0); }

TEST(ParseEntry, DigitsAfterASuffixAreIgnored) { ExpectParsed({{"2k2", 2000}, {"1M5.5k", 1e6F}}); }

TEST(ParseEntry, Exponents) {
  ExpectParsed({{"1e-3", 1e-3F}, {"1E6", 1e6F}, {"1e+6", 1e6F}, {"1.2e6", 1.2e6F}, {"1 e 3", 1000}});
}

TEST(ParseEntry, ASecondExponentLetterIsDropped) { ExpectParsed({{"1ee3", 1000}, {"1e2e3", 1e10F}, {"1e0e3", 1000}}); }

TEST(ParseEntry, OneSignIsTakenAfterTheExponentLetter) { ExpectParsed({{"1e+-3", 1000}, {"1e--3", 1e-3F}}); }

TEST(ParseEntry, AnExponentLetterNeedsADigitBefore) { ExpectParsed({{"E5", 5}, {"-e5", 0}, {".e5", 0}}); }

TEST(ParseEntry, NoExponentIsTakenAfterASuffix) { ExpectParsed({{"1k3e5", 1000}, {"2me6", 2 * 0.001F}}); }

TEST(ParseEntry, NoSuffixCountsAfterAnExponent) { EXPECT_EQ(Parsed("1e3k"), 1000); }

TEST(ParseEntry, NoPointCountsAfterAnExponent) { EXPECT_EQ(Parsed("1e1.5"), 1e10F); }

TEST(ParseEntry, AnExponentWithoutDigitsCountsForNothing) {
  ExpectParsed({{"1E", 1}, {"1E+", 1}, {"1E-", 1}, {"2ek", 2}});
}

TEST(ParseEntry, SignsInTheMiddleAreDropped) {
  ExpectParsed({{"1-3", 13}, {"12-3", 123}, {"-3dB", -3}, {"--5", -5}, {"+-5", 5}, {"5-", 5}, {"-,5k", -500}});
}

TEST(ParseEntry, BlanksAreDropped) { ExpectParsed({{"1 2", 12}, {"  7  ", 7}, {"5 M", 5e6F}, {"\t5", 5}}); }

TEST(ParseEntry, NothingIsZero) {
  ExpectParsed({{"", 0}, {"   ", 0}, {".", 0}, {"-", 0}, {"+", 0}, {"abc", 0}, {".k5", 0}, {"inf", 0}, {"nan", 0}});
}

TEST(ParseEntry, OnlyTwelveCharactersAreRead) {
  std::string text = " 123456789.12345";
  f32 value = 0;
  ParseEntry(text, value);
  EXPECT_EQ(text, "123456789.12");
  EXPECT_EQ(value, 123456789.12F);
  EXPECT_EQ(Parsed("0.0000000001G"), 1e-10F);  // the suffix is lost
}

// Eleven Greek letters of two bytes each count as eleven.
TEST(ParseEntry, CharactersAreCountedNotBytes) {
  std::string letters;
  for (int i = 0; i < 11; ++i) letters += "\xC2\xB5";
  std::string text = letters + "12";
  f32 value = 0;
  ParseEntry(text, value);
  EXPECT_EQ(text, letters + "1");
  EXPECT_EQ(value, 1);
}

TEST(ParseEntry, TheTextIsTrimmedInPlace) {
  std::string text = "  3500k ";
  f32 value = 0;
  ParseEntry(text, value);
  EXPECT_EQ(text, "3500k");
  EXPECT_EQ(value, 3.5e6F);
}

TEST(ParseEntry, TheResultIsHeldWithinTenToTheTenth) {
  ExpectParsed({{"5e12", 1e10F},
                {"-5e12", -1e10F},
                {"1e99", 1e10F},
                {"-1e99", -1e10F},
                {"1e9999999", 1e10F},
                {"5e400", 1e10F},
                {"-5e400", -1e10F},
                {"1e10", 1e10F},
                {"-1e10", -1e10F},
                {"9e9", 9e9F},
                {"100G", 1e10F},
                {"-11G", -1e10F},
                {"123456789012345", 1e10F}});
}

TEST(ParseEntry, AnUnderflowIsZero) { ExpectParsed({{"1e-99", 0}, {"1e-999999", 0}, {"-1e-99", 0}}); }

TEST(ParseEntry, ZeroHasNoSign) {
  for (const char* text : {"-0", "-1e-99", "-.0k"}) EXPECT_FALSE(std::signbit(Parsed(text))) << text;
}

TEST(ParseEntry, AHugeEntryRaisesNoFaultAroundIt) {
  NumericFaultScope scope;
  const f32 value = Parsed("-1e99");
  EXPECT_EQ(scope.Checked(static_cast<f64>(value)), -1e10);
}

TEST(PadCell, FillsToFourteenCharacters) {
  EXPECT_EQ(PadCell(0.5F), ".5            ");
  EXPECT_EQ(PadCell(-1.234567e-10F), "-1.234567E-10 ");
  EXPECT_EQ(PadCell(0), "0             ");
  EXPECT_EQ(PadCell(2500000), "2500000       ");
}

TEST(Helpers, HyperbolicCosineAndItsInverse) {
  EXPECT_DOUBLE_EQ(CosH(1.0F), 1.5430806348152437);  // Abramowitz and Stegun, table 4.15
  EXPECT_NEAR(ArcCosh(1.5430806F), 1, 1e-6);
  EXPECT_EQ(ArcCosh(1.0), 0);
  EXPECT_DOUBLE_EQ(CosH(-1.0F), CosH(1.0F));
  EXPECT_DOUBLE_EQ(ArcCosh(2.0F), 1.3169578969248167);  // ln(2 + sqrt 3)
}

TEST(Helpers, SwapValues) {
  f32 a = 1;
  f32 b = 2;
  SwapValues(a, b);
  EXPECT_EQ(a, 2);
  EXPECT_EQ(b, 1);
}

TEST(LeadingNumber, IsWhatATextBeginsWith) {
  const std::pair<const char*, f64> cases[] = {
      {"15k", 15}, {"+2.5", 2.5}, {"1,5", 1},          {"-3e2x", -300},      {"x1", 0},
      {"", 0},     {"+", 0},      {"1e-999", 0},       {"inf", 0},           {"-inf", 0},
      {"nan", 0},  {".5", 0.5},   {"1e999", HUGE_VAL}, {"-1E999", -HUGE_VAL}};
  for (const auto& [text, value] : cases) EXPECT_EQ(LeadingNumber(text), value) << text;
}

TEST(FirstCharacters, CountsCharactersAndNotBytes) {
  EXPECT_EQ(FirstCharacters("abc", 2), "ab");
  EXPECT_EQ(FirstCharacters("\u03a9\u03a9\u03a9", 2), "\u03a9\u03a9");
  EXPECT_EQ(FirstCharacters("ab", 5), "ab");
  EXPECT_EQ(FirstCharacters("ab", 0), "");
  EXPECT_EQ(FirstCharacters(std::string(100, '\x80'), 3).size(), 12U);
}

TEST(Trimmed, TakesTheBlanksAtBothEnds) {
  EXPECT_EQ(Trimmed("  a b "), "a b");
  EXPECT_EQ(Trimmed("   "), "");
  EXPECT_EQ(Trimmed("\ta \r", " \t\r"), "a");
}

}  // namespace
}  // namespace quilm
