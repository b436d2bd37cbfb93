// What an entry says to the letter, beside what the forgiving parser makes of it.
#include "core/EntryMeaning.h"

#include <gtest/gtest.h>

#include <string>

#include "core/modGeneral.h"

namespace quilm {
namespace {

f32 Parsed(std::string text) {
  f32 value = 0;
  ParseEntry(text, value);
  return value;
}

TEST(EntryMeaning, ANumberWithMultiplierAndUnitIsPlain) {
  const struct {
    const char* text;
    f32 value;
  } rows[] = {{"1.2M", 1.2e6F},
              {"1200k", 1.2e6F},
              {"1,2e6", 1.2e6F},
              {"1.5MHz", 1.5e6F},
              {"1.5 MHz", 1.5e6F},
              {"47pF", 47e-12F},
              {"2.2kohm", 2200},
              {"75R", 75},
              {"60.125dB", 60.125},
              {" -3 ", -3},
              {"+5", 5},
              {"1e-3", 0.001F},
              {".1", 0.1F},
              {"10 mH", 0.01F},
              {"5s", 5},
              {"4.7\u00b5", 4.7e-6F},
              {"4.7 \u00b5F", 4.7e-6F},
              {"4.7\u03bcH", 4.7e-6F},
              {"0", 0},
              {"-0", 0},
              {"", 0},
              {"  ", 0},
              {"7.", 7}};
  for (const auto& row : rows) {
    ASSERT_TRUE(PlainMeaning(row.text)) << row.text;
    EXPECT_FLOAT_EQ(*PlainMeaning(row.text), row.value) << row.text;
    EXPECT_EQ(*PlainMeaning(row.text), Parsed(row.text)) << row.text;  // both roads give the same 32 bits
  }
}

TEST(EntryMeaning, WhatHasNoPlaceInAnEntryHasNoMeaning) {
  for (const char* text : {"abc", "k", "1.2.3", "12-3", "1 2", "5 apples", "3kk", "1e", "--1", "inf", "nan", "1e99",
                           "5%", "0x10", "-", "."}) {
    EXPECT_FALSE(PlainMeaning(text)) << text;
  }
}

// The parser takes the m of "Ohm" for milli, drops a multiplier behind an exponent and cuts what is long.
TEST(EntryMeaning, DiffersWhereTheParserMisunderstands) {
  EXPECT_EQ(PlainMeaning("50 Ohm"), 50.0F);
  EXPECT_EQ(Parsed("50 Ohm"), 0.05F);
  EXPECT_EQ(PlainMeaning("1e3k"), 1e6F);
  EXPECT_EQ(Parsed("1e3k"), 1000.0F);
  EXPECT_NE(PlainMeaning("1234567890.12345"), std::nullopt);
  EXPECT_EQ(PlainMeaning("0000000000001"), 1.0F);
  EXPECT_EQ(Parsed("0000000000001"), 0.0F);
}

}  // namespace
}  // namespace quilm
