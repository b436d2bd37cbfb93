#include "core/DesignRecord.h"
#include "display/PlotGrid.h"

#include <gtest/gtest.h>

#include "shell/Picture.h"

namespace quilm {
namespace {

HorizontalAxis Linear(f32 start, f32 stop) { return HorizontalAxis(AxisSettings{false, start, stop}); }

HorizontalAxis Logarithmic(f32 start, f32 stop) { return HorizontalAxis(AxisSettings{true, start, stop}); }

std::vector<std::string> Labels(const HorizontalAxis& axis, i16 intervals = 10) {
  std::vector<std::string> texts;
  for (const GridLabel& label : LabelsOf(axis, MakeFrequencyGrid(axis, intervals))) texts.push_back(label.text);
  return texts;
}

using Texts = std::vector<std::string>;

TEST(FrequencyGrid, ALinearSweepHasEqualSteps) {
  const FrequencyGrid grid = MakeFrequencyGrid(Linear(1e6F, 2e6F), 4);
  ASSERT_EQ(grid.GridLast, 4);
  EXPECT_EQ(grid.GridFreq[1], 1.25e6F);
  EXPECT_EQ(grid.GridFraction[3], 0.75F);
}

TEST(FrequencyGrid, ALogarithmicSweepHasTenLinesADecade) {
  const FrequencyGrid grid = MakeFrequencyGrid(Logarithmic(1000, 1e4F), 10);
  const f32 expected[] = {1000, 1500, 2000, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 10000};
  ASSERT_EQ(grid.GridLast, 10);
  for (int k = 0; k <= 10; ++k) EXPECT_EQ(grid.GridFreq[k], expected[k]);
}

TEST(FrequencyGrid, BeginsAndEndsWithinTheSweep) {
  const FrequencyGrid grid = MakeFrequencyGrid(Logarithmic(1600, 4500), 10);
  ASSERT_EQ(grid.GridLast, 2);
  EXPECT_EQ(grid.GridFreq[0], 2000);
  EXPECT_EQ(grid.GridFreq[2], 4000);
}

// Twelve decades of ten lines, and the last.
TEST(FrequencyGrid, TheWidestSweepJustFillsTheTable) {
  const FrequencyGrid grid = MakeFrequencyGrid(Logarithmic(0.01F, 1e10F), 10);
  EXPECT_EQ(grid.GridLast, gridBound);
  EXPECT_EQ(grid.GridFreq[gridBound], 1e10F);
}

TEST(Labels, ALinearSweepNamesEveryLineThatHasRoom) {
  EXPECT_EQ(Labels(Linear(1e6F, 2e6F), 10),
            (Texts{"1M", "1.1M", "1.2M", "1.3M", "1.4M", "1.5M", "1.6M", "1.7M", "1.8M", "1.9M", "2M"}));
}

// Twenty steps are 0.05 apart, just enough; the one at 0.95 stays, what is above it would crowd the last.
TEST(Labels, TwentyLinearStepsAllHaveRoom) { EXPECT_EQ(Labels(Linear(0, 20), 20).size(), 21U); }

TEST(Labels, ThirtyLinearStepsLeaveEverySecond) {
  const Texts labels = Labels(Linear(0, 30), 30);
  EXPECT_EQ(labels.size(), 16U);
  EXPECT_EQ(labels[1], "2");
  EXPECT_EQ(labels.back(), "30");
}

TEST(Labels, NothingIsCrowdedJustBeforeTheEnd) {
  // 25 steps: the one at 0.96 is left out, the one at 1 stays.
  const Texts labels = Labels(Linear(0, 25), 25);
  EXPECT_EQ(labels.back(), "25");
  EXPECT_EQ(labels[labels.size() - 2], "22");
}

TEST(Labels, ARatioOfFiveNamesAllButTheOddOnes) {
  EXPECT_EQ(Labels(Logarithmic(1000, 5000)), (Texts{"1k", "2k", "3k", "4k", "5k"}));
  EXPECT_EQ(Labels(Logarithmic(2e4F, 1e5F)), (Texts{"20k", "30k", "40k", "50k", "60k", "80k", "100k"}));
}

TEST(Labels, OverADecadeLeavesOneTwoAndFive) {
  EXPECT_EQ(Labels(Logarithmic(1e3F, 1e5F)), (Texts{"1k", "2k", "5k", "10k", "20k", "50k", "100k"}));
}

TEST(Labels, OverThreeDecadesLeavesTheDecades) {
  EXPECT_EQ(Labels(Logarithmic(1e3F, 1e7F)), (Texts{"1k", "10k", "100k", "1M", "10M"}));
  // A ratio of exactly 1000 still names 1, 2 and 5.
  EXPECT_EQ(Labels(Logarithmic(1e3F, 1e6F)).size(), 10U);
}

TEST(HorizontalStep, IsOneLessThanAnEvenDivision) {
  EXPECT_EQ(HorizontalStep(7), 856);
  EXPECT_EQ(HorizontalStep(6), 999);
}

// No line of the grid lies between 1.2 and 1.4 MHz, and the one at 900 kHz has no name.
TEST(Labels, WhereFewerThanTwoAreLeftStartAndStopAreNamed) {
  EXPECT_EQ(Labels(Logarithmic(1.2e6F, 1.4e6F)), (Texts{"1.2M", "1.4M"}));
  EXPECT_EQ(Labels(Logarithmic(0.9e6F, 1.1e6F)), (Texts{"900k", "1M", "1.1M"}));
  EXPECT_EQ(Labels(Logarithmic(0.999e6F, 1.2e6F)), (Texts{"999k", "1.2M"}));  // 1M would run into the start
  const HorizontalAxis axis = Logarithmic(1.2e6F, 1.4e6F);
  const auto labels = LabelsOf(axis, MakeFrequencyGrid(axis, 10));
  EXPECT_EQ(labels.front().fraction, 0);
  EXPECT_EQ(labels.back().fraction, 1);
}

TEST(Labels, TwoToldLabelsAreEnough) { EXPECT_EQ(Labels(Logarithmic(1.9e6F, 3.1e6F)), (Texts{"2M", "3M"})); }

TEST(GridLines, AreOneDevicePixelWide) {
  Picture picture;
  DrawHorizontalGrid(6, picture);
  DrawVerticalGrid(Linear(0, 10), 10, picture);
  int lines = 0;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line == nullptr) continue;
    EXPECT_EQ(line->pen.width, 0);
    ++lines;
  }
  EXPECT_EQ(lines, 7 + 11);
  EXPECT_EQ(picture.DrawWidth, 1);
}

TEST(Frame, HasItsFourEdgesInAColourOfItsOwn) {
  Picture picture;
  DrawFrame(picture);
  ASSERT_EQ(picture.Operations().size(), 1U);
  const auto& frame = std::get<RectangleOp>(picture.Operations()[0]);
  EXPECT_EQ(frame.from, (Point{2000, 1000}));
  EXPECT_EQ(frame.to, (Point{11000, 7000}));
  EXPECT_FALSE(frame.filled);
  EXPECT_LT(frame.pen.color & 0xFF, gridColor & 0xFF);  // a darker grey
}

}  // namespace
}  // namespace quilm
