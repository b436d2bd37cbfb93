#include "display/TraceCycle.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

std::vector<std::pair<Color, Color>> Drawn(TraceCycle cycle, int traces) {
  std::vector<std::pair<Color, Color>> colors;
  for (int i = 0; i < traces; ++i) {
    const TraceColors& next = cycle.Next();
    colors.emplace_back(next.TraceColor1, next.TraceColor2);
  }
  return colors;
}

// A blue-green-red word of levels of red, green and blue.
constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8 | blue << 16; }

TEST(TraceCycle, TrialsGoFromDarkToLightAndBeginAgain) {
  const auto colors = Drawn(TraceCycle(TrialColors()), 9);
  EXPECT_EQ(colors[0], std::pair(Rgb(0, 0, 120), Rgb(120, 0, 0)));
  EXPECT_EQ(colors[1], std::pair(Rgb(0, 0, 160), Rgb(160, 0, 0)));
  EXPECT_EQ(colors[2], std::pair(Rgb(0, 0, 185), Rgb(185, 0, 0)));
  EXPECT_EQ(colors[3], std::pair(Rgb(0, 0, 220), Rgb(220, 0, 0)));
  EXPECT_EQ(colors[4], std::pair(Rgb(0, 0, 255), Rgb(255, 0, 0)));
  EXPECT_EQ(colors[5], std::pair(Rgb(60, 60, 255), Rgb(255, 60, 60)));
  EXPECT_EQ(colors[6], std::pair(Rgb(110, 110, 255), Rgb(255, 110, 110)));
  EXPECT_EQ(colors[7], std::pair(Rgb(160, 160, 255), Rgb(255, 160, 160)));
  EXPECT_EQ(colors[8], colors[0]);
}

TEST(TraceCycle, StepsOfEntriesHaveSix) {
  const auto colors = Drawn(TraceCycle(EntryStepColors()), 7);
  EXPECT_EQ(colors[0], std::pair(Color{0xFF0000}, Color{0x0000FF}));
  EXPECT_EQ(colors[4], std::pair(Color{0xFFBB00}, Color{0x00BBFF}));
  EXPECT_EQ(colors[5], std::pair(Color{0}, Color{0}));
  EXPECT_EQ(colors[6], colors[0]);
}

}  // namespace
}  // namespace quilm
