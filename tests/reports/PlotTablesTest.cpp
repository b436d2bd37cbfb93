#include "reports/PlotTables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace quilm {
namespace {

using testing::ElementsAre;

LimitArea Area(int shape, f32 start, f32 stop, f32 top, f32 bottom) {
  return {static_cast<f32>(shape), start, stop, top, bottom};
}

// Of the shapes with one edge the other lies at the end of the scale.
TEST(LimitSentence, TellsEachShape) {
  constexpr int transmission = 1;
  const auto told = [](const LimitArea& area) { return LimitSentence(area, transmission); };
  EXPECT_EQ(told(Area(1, 0.01F, 1e6F, -3, -300)), "From DC up to 1M magnitude is at least -3");
  EXPECT_EQ(told(Area(2, 2e6F, 1e10F, 0, -40)), "From 2M upward; magnitude is no more than -40");
  EXPECT_EQ(told(Area(3, 2e6F, 1e10F, -3, -300)), "From 2M upward; magnitude is at least -3");
  EXPECT_EQ(told(Area(4, 0.01F, 1e6F, 0, -40)), "From DC up to 1M magnitude is no more than -40");
  EXPECT_EQ(told(Area(5, 1e6F, 2e6F, -3, -300)), "From 1M to 2M; magnitude is at least -3");
  EXPECT_EQ(told(Area(6, 1e6F, 2e6F, 0, -40)), "From 1M to 2M; magnitude is no more than -40");
  EXPECT_EQ(told(Area(7, 1.5e6F, 1.5e6F, -3, -300)), "At 1.5M magnitude is at least -3");
  EXPECT_EQ(told(Area(8, 1.5e6F, 1.5e6F, 0, -40)), "At 1.5M magnitude is no more than -40");
  EXPECT_EQ(told(Area(9, 1.5e6F, 1.5e6F, -6, -6)), "Marker point at 1.5M: -6");
}

TEST(LimitSentence, TellsDelaysAsTimes) {
  EXPECT_EQ(LimitSentence(Area(4, 0.01F, 1e6F, 1, 2.5e-7F), 4), "From DC up to 1M magnitude is no more than 250n");
}

// As they are drawn.
TEST(LimitSentence, TellsSwappedEdgesInOrder) {
  EXPECT_EQ(LimitSentence(Area(5, 2e6F, 1e6F, -3, -300), 1), "From 1M to 2M; magnitude is at least -3");
}

TEST(LimitSentence, AShapeThatIsNoneIsAFault) { EXPECT_THROW(LimitSentence(Area(10, 1, 1, 1, 1), 1), Fault); }

TEST(LimitBlocks, AreThoseOfAllPlotTypesInTheirOrder) {
  LimitsAndMarkers limits;
  for (int type = 1; type <= plotTypes; ++type) AddArea(limits, type, Area(2, 1e6F, 1e10F, 1000, 10));
  AddArea(limits, 1, Area(9, 1e6F, 1e6F, -6, -6));
  EXPECT_TRUE(LimitBlocks(limits).empty()) << "hidden";
  limits.LimitsShown = 1;
  std::vector<std::string> headings;
  for (const LimitBlock& block : LimitBlocks(limits)) headings.push_back(block.heading);
  EXPECT_THAT(
      headings,
      ElementsAre("Details of limits for transmission magnitude plot:", "Details of limits for return magnitude plot:",
                  "Details of limits for transmission angle plot:", "Details of limits for group delay plot:",
                  "Details of limits for VSWR plot:", "Details of limits for input impedance plot:"));
  EXPECT_EQ(LimitBlocks(limits)[0].sentences.size(), 2U);
  EXPECT_EQ(LimitBlocks(limits)[1].sentences.size(), 1U);
  EraseAreas(limits, 3);
  EXPECT_EQ(LimitBlocks(limits).size(), 5U);
}

MarkerReading Reading() {
  MarkerReading reading;
  reading.number = 3;
  reading.freq = 1e6F;
  reading.trans = -3.01F;
  reading.angle = 45;
  reading.delay = 2.5e-7F;
  reading.returnLoss = -20;
  reading.vswr = 1.5F;
  reading.zin = 50;
  reading.zinAngle = 60;
  reading.inSweep = true;
  return reading;
}

// 50 ohms at 60 degrees are 25 ohms and 43.3 ohms.
TEST(MarkerTexts, TellTheReading) {
  EXPECT_THAT(MarkerTexts(Reading()),
              ElementsAre("1M", "-3.01", "45", "-20", "250n", "1.5", "50", "60", "25", "43.301"));
}

TEST(MarkerTexts, HaveSubstitutesBeyondTheirRanges) {
  MarkerReading reading = Reading();
  reading.trans = reading.returnLoss = -120.1F;
  reading.vswr = 1000.1F;
  reading.inSweep = false;
  reading.zin = 1.1e10F;
  EXPECT_THAT(MarkerTexts(reading),
              ElementsAre("1M", "<-120", "45", "<-120", "-----", ">1000", "-----", "60", "5.5G", "9.526G"));
  reading.zin = std::numeric_limits<f32>::infinity();
  EXPECT_THAT(MarkerTexts(reading),
              ElementsAre("1M", "<-120", "45", "<-120", "-----", ">1000", "-----", "60", "-----", "-----"));
}

TEST(MarkerTexts, TheBoundsThemselvesAreFigures) {
  MarkerReading reading = Reading();
  reading.trans = reading.returnLoss = -120;
  reading.vswr = 1000;
  const auto texts = MarkerTexts(reading);
  EXPECT_EQ(texts[1], "-120");
  EXPECT_EQ(texts[3], "-120");
  EXPECT_EQ(texts[5].front(), '1');
}

}  // namespace
}  // namespace quilm
