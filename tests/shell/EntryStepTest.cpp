#include "shell/EntryStep.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

struct Case {
  const char* text;
  int cursor;
  int direction;
  const char* stepped;
  int cursorAfter;
};

class StepDigitTable : public testing::TestWithParam<Case> {};

// Worked by hand.
constexpr Case cases[] = {
    {"50", 0, +1, "60", 0},                                          // the digit to the right of the cursor
    {"50", 1, +1, "51", 1},                                          //
    {"50", 2, +1, "51", 1},                                          // behind the number: its last digit
    {"99", 1, +1, "100", 2},                                         // a carry moves the digit
    {"100", 1, -1, "90", 0},                                         // a borrow too
    {"100", 0, -1, "000", 0},                                        // zeros after the digit stay
    {"000", 0, +1, "100", 0},                                        // so the way back is the same
    {"4.7k", 0, +1, "5.7k", 0},                                      // the suffix stays
    {"4.7k", 1, +1, "4.8k", 2},                                      // before the point: the digit after it
    {"4.7k", 4, -1, "4.6k", 2},                                      //
    {"0.99", 3, +1, "1.00", 3},                                      // decimals stay as many
    {"1.00", 3, -1, "0.99", 3},                                      //
    {".5", 1, +1, ".6", 1},                                          // no zero before the point appears
    {".9", 1, +1, "1.0", 2},                                         // unless it counts
    {"-20", 2, +1, "-19", 2},                                        // upward is upward for negative numbers as well
    {"-20", 1, -1, "-30", 1},                                        //
    {"1 MHz", 5, +1, "2 MHz", 0},                                    //
    {"f=12 Hz", 2, +1, "f=22 Hz", 2}, {"1.2.3", 4, +1, "1.3.3", 2},  // only the first number
    {"5.", 2, +1, "6.", 0},
};

TEST_P(StepDigitTable, StepsAsWorkedByHand) {
  const Case& row = GetParam();
  const auto step = StepDigit(row.text, row.cursor, row.direction);
  ASSERT_TRUE(step) << row.text;
  EXPECT_EQ(step->text, row.stepped) << row.text << " at " << row.cursor;
  EXPECT_EQ(step->cursor, row.cursorAfter) << row.text << " at " << row.cursor;
}

INSTANTIATE_TEST_SUITE_P(EntryStep, StepDigitTable, testing::ValuesIn(cases));

TEST(StepDigit, ATextWithoutADigitStays) {
  EXPECT_FALSE(StepDigit("", 0, 1));
  EXPECT_FALSE(StepDigit("Ladder", 3, 1));
  EXPECT_FALSE(StepDigit(".", 1, 1));
}

TEST(StepDigit, TheSignNeverChanges) {
  EXPECT_FALSE(StepDigit("0", 0, -1));
  EXPECT_FALSE(StepDigit("05", 0, -1));
  EXPECT_FALSE(StepDigit("-0.0", 1, +1));
}

TEST(StepDigit, MoreDigitsThanItCanHoldStay) {
  EXPECT_TRUE(StepDigit("99999999999999999", 0, 1));
  EXPECT_FALSE(StepDigit("999999999999999999", 0, 1));
}

TEST(StepDigit, ACursorOutsideTheTextIsTakenToItsEnds) {
  EXPECT_EQ(StepDigit("12", -3, 1)->text, "22");
  EXPECT_EQ(StepDigit("12", 99, 1)->text, "13");
}

TEST(StepDigit, SteppingUpAndDownAgainGivesTheTextFromBefore) {
  for (const char* text : {"1", "10", "99.95", "1000000", "0.1", "47p"}) {
    for (int cursor = 0; cursor < 5; ++cursor) {
      const auto up = StepDigit(text, cursor, 1);
      ASSERT_TRUE(up);
      EXPECT_EQ(StepDigit(up->text, up->cursor, -1)->text, text) << text << " at " << cursor;
    }
  }
}

}  // namespace
}  // namespace quilm
