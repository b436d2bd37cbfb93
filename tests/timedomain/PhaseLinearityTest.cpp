#include "timedomain/PhaseLinearity.h"

#include <algorithm>
#include <cmath>

#include "core/NumericFault.h"
#include "support/RandomLadder.h"
#include "timedomain/StudyBench.h"

namespace quilm {
namespace {

void Sweep(DesignRecord& record, f32 start, f32 stop, f32 steps) {
  record.Fstart = start;
  record.Fstop = stop;
  record.NrIntervals = steps;
}

// A line of 90 degrees at 1 MHz between its own impedances delays by 250 ns, everywhere.
DesignRecord DelayLine() {
  DesignRecord record = Terminated();
  record.Stages = 1;
  record.stage[1].ElementType = TransLine;
  record.stage[1].TLval = {90, 1e6F, 50, 0, 0};
  return record;
}

TEST(PhaseLinearity, OfADelayLineIsAStraightLine) {
  DesignRecord record = DelayLine();
  Sweep(record, 1e5F, 2e7F, 400);
  record.SweepMode = 2;  // linear all the same
  const PhaseLinearity found = ComputeLinearity(record);
  ASSERT_EQ(found.RespFreq.size(), 401U);
  EXPECT_FLOAT_EQ(found.RespFreq[200], 1.005e7F);
  EXPECT_NEAR(found.PhaseSlope, -90e-6, 1e-10);  // 90.0001 degrees: a line of exactly 90 is analysed as that
  EXPECT_NEAR(found.PhaseIntercept, 0, 1e-3);
  EXPECT_NEAR(found.PhaseLin.back(), -1800, 3e-3);
  for (std::size_t i = 0; i <= 400; ++i) {
    EXPECT_NEAR(found.Deviation(i), 0, 1e-3);
    EXPECT_LE(std::fabs(found.RespAngle[i]), 180);
    EXPECT_NEAR(std::remainder(found.RespAngle[i] - found.PhaseLin[i], 360), 0, 1e-3);
  }
}

// The first angle is taken as it is, not as a step from anything.
TEST(PhaseLinearity, BeginsWithTheFirstAngle) {
  DesignRecord record = DelayLine();
  Sweep(record, 3e6F, 3.2e6F, 50);
  const PhaseLinearity found = ComputeLinearity(record);
  EXPECT_NEAR(found.PhaseLin[0], 90, 1e-3);  // -270
  EXPECT_NEAR(found.PhaseLin[50], 72, 1e-3);
}

// A line of negative length leads, by as much as the other one lags.
TEST(PhaseLinearity, AnAngleThatRisesIsUnwrappedUpward) {
  DesignRecord record = DelayLine();
  record.stage[1].TLval.degrees = -90;
  Sweep(record, 1e5F, 2e7F, 400);
  const PhaseLinearity found = ComputeLinearity(record);
  EXPECT_NEAR(found.PhaseSlope, 90e-6, 1e-10);
  EXPECT_NEAR(found.PhaseLin.back(), 1800, 3e-3);
}

TEST(PhaseLinearity, ThereIsNoLineThroughOneFrequency) {
  DesignRecord record = DelayLine();
  Sweep(record, 1e6F, 1e6F, 50);
  EXPECT_THROW(ComputeLinearity(record), NumericFault);
}

TEST(PhaseLinearity, ChangesNothingOfTheDesign) {
  DesignRecord record = DelayLine();
  Sweep(record, 1e6F, 2e6F, 50);
  const DesignRecord before = record;
  ComputeLinearity(record);
  EXPECT_EQ(record, before);
}

std::vector<StudyCase> Cases() {
  std::vector<StudyCase> cases{{Lowpass(), 1e4F, 1.5e6F, 50},
                               {Lowpass(), 1e3F, 3e6F, 2049},
                               {Bandpass(), 9e6F, 1.1e7F, 500},
                               {Bandpass(), 9.999e6F, 1.0001e7F, 100}};
  std::mt19937 random(3);
  const std::vector<i16> types{SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  for (int trial = 0; trial < 6; ++trial) {
    cases.push_back({RandomLadder(random, 1 + trial, types), 1e5F, 4e6F, 1000 + trial});
  }
  return cases;
}

// By the circuit itself: neither the analysis, nor its unwrapping, nor its fit.
TEST(PhaseLinearity, IsWhatLeastSquaresOverTheCircuitFind) {
  const std::vector<StudyCase> cases = Cases();
  const auto rows = Reference("linearity", cases);
  ASSERT_EQ(rows.size(), cases.size()) << "numpy is what tools/install-packages test installs";
  for (std::size_t k = 0; k < cases.size(); ++k) {
    SCOPED_TRACE(testing::Message() << "case " << k);
    DesignRecord record = cases[k].record;
    Sweep(record, cases[k].start, cases[k].stop, static_cast<f32>(cases[k].steps));
    const PhaseLinearity found = ComputeLinearity(record);
    ASSERT_EQ(rows[k].size(), 3U);
    const f64 span = f64{cases[k].stop} - f64{cases[k].start};
    EXPECT_NEAR(found.PhaseSlope * span, rows[k][0] * span, 2e-4);
    const f64 middle = (f64{cases[k].start} + f64{cases[k].stop}) / 2;
    EXPECT_NEAR(found.PhaseSlope * middle + found.PhaseIntercept, rows[k][1], 2e-4);
    const std::vector<f32> deviations = PhaseValues(found, phaseDeviation);
    f64 largest = 0;
    for (const f32 deviation : deviations) largest = std::max(largest, std::fabs(f64{deviation}));
    EXPECT_NEAR(largest, rows[k][2], 2e-4);
  }
}

TEST(PhaseScales, StepFromTheLargestDown) {
  EXPECT_EQ(PhaseScales(phaseAndLine).size(), 13U);
  EXPECT_EQ(PhaseScales(phaseAndLine).front(), 5);
  EXPECT_EQ(PhaseScales(phaseAndLine).back(), 0.0005F);
  EXPECT_EQ(PhaseScales(phaseDeviation).front(), 0.25F);
  EXPECT_EQ(PhaseScales(phaseDeviation).back(), 0.000025F);
  for (const i16 type : {phaseAndLine, phaseDeviation}) {
    const auto scales = PhaseScales(type);
    EXPECT_TRUE(std::is_sorted(scales.begin(), scales.end(), std::greater<>()));
    // Halves, or two fifths.
    for (std::size_t k = 1; k < scales.size(); ++k) {
      const f64 ratio = f64{scales[k]} / f64{scales[k - 1]};
      EXPECT_TRUE(std::fabs(ratio - 0.5) < 1e-6 || std::fabs(ratio - 0.4) < 1e-6) << k;
    }
  }
}

TEST(PhaseScales, TheFirstIsTheSmallestThatHoldsAll) {
  const auto scaleFor = [](std::vector<f32> values, i16 type) {
    return PhaseScales(type)[FirstPhaseScale(values, type)];
  };
  EXPECT_EQ(scaleFor({-250, 30}, phaseAndLine), 0.125F);  // 250 degrees to the edge: just held
  EXPECT_EQ(scaleFor({-250.1F, 30}, phaseAndLine), 0.25F);
  EXPECT_EQ(scaleFor({0}, phaseAndLine), 0.0005F);
  EXPECT_EQ(scaleFor({1e5F}, phaseAndLine), 5);  // nothing holds it
  EXPECT_EQ(scaleFor({0.4F, -0.6F}, phaseDeviation), 0.0005F);
  EXPECT_EQ(scaleFor({600}, phaseDeviation), 0.25F);
}

}  // namespace
}  // namespace quilm
