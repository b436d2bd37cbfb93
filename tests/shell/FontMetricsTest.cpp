#include "shell/FontMetrics.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

struct Width {
  const char* text;
  bool bold;
  f64 thousandths;  // of an em
};

class KnownWidths : public testing::TestWithParam<Width> {};

// Summed by hand from Adobe's Core 14 metrics (Helvetica.afm, Helvetica-Bold.afm).
constexpr Width widths[] = {
    {"A", false, 667},          // A 667
    {"iii", false, 666},        // i 222
    {"Hz", false, 1222},        // H 722, z 500
    {"0 to -60", false, 3391},  // digits 556, space 278, t 278, o 556, hyphen 333
    {"W~", false, 1528},        // W 944, asciitilde 584
    {"A", true, 722},           // A 722
    {"iii", true, 834},         // i 278
    {"Hz", true, 1222},         // H 722, z 500
    {"m@", true, 1864},         // m 889, at 975
};

TEST_P(KnownWidths, AreTheOnesOfTheFace) {
  const Font font{"Arial", 1000, GetParam().bold};
  EXPECT_NEAR(StandardMetrics().WidthInPoints(GetParam().text, font), GetParam().thousandths, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Helvetica, KnownWidths, testing::ValuesIn(widths));

TEST(FontMetrics, FixedPitchFacesHaveOneWidth) {
  for (const char* name : {"Courier New", "Liberation Mono"}) {
    EXPECT_DOUBLE_EQ(StandardMetrics().WidthInPoints("iW.", Font{name, 10, false}), 18) << name;
    EXPECT_DOUBLE_EQ(StandardMetrics().WidthInPoints("iW.", Font{name, 10, true}), 18) << name;
  }
}

TEST(FontMetrics, WidthGrowsWithTheSize) {
  EXPECT_DOUBLE_EQ(StandardMetrics().WidthInPoints("A", Font{"Arial", 9, false}), 6.003);
}

TEST(FontMetrics, TheWidestLineCounts) {
  const Font font{"Arial", 1000, false};
  EXPECT_DOUBLE_EQ(StandardMetrics().WidthInPoints("i\nAA\r\nA", font), 1334);
}

TEST(FontMetrics, ALetterOfTwoBytesIsOneLetter) {
  const Font font{"Courier", 10, false};
  EXPECT_DOUBLE_EQ(StandardMetrics().WidthInPoints("\xC2\xB5", font), 6);
}

TEST(FontMetrics, HeightCountsLines) {
  const Font font{"Arial", 10, false};
  EXPECT_DOUBLE_EQ(StandardMetrics().HeightInPoints("", font), 11.5);
  EXPECT_DOUBLE_EQ(StandardMetrics().HeightInPoints("one\ntwo\nthree", font), 34.5);
}

TEST(FontMetrics, NothingHasNoWidth) { EXPECT_EQ(StandardMetrics().WidthInPoints("", Font{}), 0); }

}  // namespace
}  // namespace quilm
