#include "timedomain/WaveLines.h"

#include <gtest/gtest.h>

#include "timedomain/WaveBench.h"

namespace quilm {
namespace {

TEST(WaveLines, OfAWideNetworkEndAtNumber511) {
  const std::vector<WaveLine> lines = SquarewaveLines(Pad(), 1000);
  ASSERT_EQ(lines.size(), 256U);  // 1, 3, ... 511
  for (const WaveLine& line : lines) {
    EXPECT_NEAR(line.LineAmp, 0.5 * 4 / Pi, 1e-6);
    EXPECT_NEAR(line.LinePhase, 0, 1e-5);
  }
}

// A capacitor in the line lets a line n of the squarewave through as j n f 2 Pi (2 * 50) C far below its corner, so
// that 4 / Pi times that is 0.001 at a line of our choice.
std::vector<WaveLine> LinesWithThresholdAt(f64 n) {
  constexpr f64 f = 1000;
  const f64 C = 0.001 * Pi / 4 / (n * f * 2 * Pi * 100);
  return SquarewaveLines(WithStage(SeriesC, &Stage::Cval, static_cast<f32>(C)), f);
}

TEST(WaveLines, EndWithTheSixthSmallOneInARow) {
  EXPECT_EQ(LinesWithThresholdAt(12).size(), 6U);    // 1, 3, 5, 7, 9 and 11 are small
  EXPECT_EQ(LinesWithThresholdAt(10).size(), 256U);  // 11 is not
}

// An inductor and a capacitor in the line, with 4 / Pi |H| = 0.001, or X = 1273.2 times the 100 ohms of the
// terminations, at lines 10 and 42: b / 10 - 10 a = 42 a - b / 42 = 1273.2 with the reactances 100 a and -100 b at
// line 1.
TEST(WaveLines, ALargeLineBeginsTheCountAnew) {
  constexpr f64 a = 39.79;
  constexpr f64 b = 16711;
  constexpr f64 f = 1000;
  DesignRecord record = WithStage(SeriesL, &Stage::Lval, static_cast<f32>(100 * a / (2 * Pi * f)));
  record.Stages = 2;
  record.stage[2].ElementType = SeriesC;
  record.stage[2].Cval.value = static_cast<f32>(1 / (2 * Pi * f * 100 * b));
  // 1 to 9 are small, 11 to 41 large, and six more small ones follow.
  EXPECT_EQ(SquarewaveLines(record, f).size(), 21U + 6U);
}

TEST(WaveLines, OfABurstStandOnBothSidesOfTheCarrierAndTaper) {
  const BurstLines lines = LinesOfBurst(Pad(), 1000, 1e6F);
  ASSERT_EQ(lines.lower.size(), 256U);
  ASSERT_EQ(lines.upper.size(), 256U);
  EXPECT_NEAR(lines.carrier.LineAmp, 0.5, 1e-7);
  for (const std::size_t n : {1U, 100U, 256U}) {
    const f64 taper = (1 - static_cast<f64>(n) / 1000) * (1 - static_cast<f64>(n) / 1000);
    EXPECT_NEAR(lines.lower[n - 1].LineAmp, 0.5 * taper, 1e-6) << n;
    EXPECT_NEAR(lines.upper[n - 1].LineAmp, 0.5 * taper, 1e-6) << n;
  }
}

TEST(WaveLines, OfABurstAreThoseOfTheirFrequencies) {
  // 90 degrees late at 1 kHz: lower line 2 of 10 kHz is 8 kHz and -720 degrees, upper line 1 is 11 kHz and -990.
  const BurstLines lines = LinesOfBurst(DelayLine(90), 1000, 10e3F);
  EXPECT_NEAR(lines.lower[1].LinePhase, 0, 0.02);
  EXPECT_NEAR(lines.upper[0].LinePhase, 90, 0.02);
  // Below zero a line turns the other way: 12 below is -2 kHz and +180 degrees, 11 below is -1 kHz and +90.
  EXPECT_NEAR(lines.lower[10].LinePhase, 90, 0.02);
}

TEST(WaveLines, ALowerLineAtZeroFrequencyIsZero) {
  const BurstLines lines = LinesOfBurst(Pad(), 1000, 3000);
  EXPECT_EQ(lines.lower[2].LineAmp, 0);
  EXPECT_EQ(lines.lower[2].LinePhase, 0);
  EXPECT_GT(lines.lower[1].LineAmp, 0.4F);
  EXPECT_GT(lines.lower[3].LineAmp, 0.4F);
}

}  // namespace
}  // namespace quilm
