#include "display/PlotGrid.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quilm
