#include "timedomain/Modulation.h"

#include <cmath>
#include <iomanip>
#include <sstream>

#include "core/NumericFault.h"
#include "support/NgspiceBatch.h"
#include "support/NgspiceNetlist.h"
#include "support/RandomLadder.h"
#include "timedomain/StudyBench.h"

namespace quilm {
namespace {

constexpr std::size_t last = ModPoints;

TEST(HoldModulation, EntriesOfWhichNoPlotCanBeMadeAreReplaced) {
  ModulationEntries entries{0, 0, 0, 0};
  HoldModulation(entries);
  EXPECT_EQ(entries.ModBottom, -60);
  EXPECT_EQ(entries.ModFstart, 0.01F);
  EXPECT_FLOAT_EQ(entries.ModFstop, 0.1F);
  entries = {100, 100, 40, 0};
  HoldModulation(entries);
  EXPECT_EQ(entries.ModBottom, -40);
  EXPECT_EQ(entries.ModFstop, 1000);
  entries = {-5, 20, -3, 1};
  HoldModulation(entries);
  EXPECT_EQ(entries.ModFstart, 0.01F);
  EXPECT_EQ(entries.ModFstop, 20);
  EXPECT_EQ(entries.ModBottom, -3);
}

TEST(CarrierOf, IsTheCentreElseTheWidthElseTheMiddleOfTheSweep) {
  DesignRecord record = Bandpass();
  record.Fstart = 1e3F;
  record.Fstop = 1e5F;
  EXPECT_EQ(CarrierOf(record), 1e7F);
  record.Fcenter = 0;
  EXPECT_EQ(CarrierOf(record), 1e6F);
  record.Width = 0;
  EXPECT_EQ(CarrierOf(record), 1e4F);
  record.Fstart = -1;
  EXPECT_EQ(CarrierOf(record), 0);
}

TEST(Modulation, TheFrequenciesAreEvenByLogarithm) {
  const Modulation found = ComputeModulation(Lowpass(), 1e6F, {});
  ASSERT_EQ(found.ModFreq.size(), last + 1);
  EXPECT_FLOAT_EQ(found.ModFreq[0], 20);
  EXPECT_NEAR(found.ModFreq[last / 2], std::sqrt(20.0 * 20000), 1e-3);
  EXPECT_FLOAT_EQ(found.ModFreq[last], 20000);
}

// |H|^2 = 1 / (1 + (f / 1 MHz)^6) of the third-order Butterworth lowpass, on both sides of zero.
TEST(Modulation, OfAButterworthLowpassFollowsItsFormula) {
  const f32 carrier = 8e5F;
  const Modulation found = ComputeModulation(Lowpass(), carrier, {.ModFstart = 1e5F, .ModFstop = 2e6F});
  const auto ratio = [](f64 f) { return 1 / std::sqrt(1 + std::pow(f / 1e6, 6)); };
  for (const std::size_t i : {std::size_t{0}, last / 3, last / 2, last}) {
    const f64 f = found.ModFreq[i];
    EXPECT_NEAR(found.ModLower[i], ratio(carrier - f), 2e-6) << f;
    EXPECT_NEAR(found.ModUpper[i], ratio(carrier + f), 2e-6) << f;
    EXPECT_NEAR(found.ModResponse[i], (ratio(carrier - f) + ratio(carrier + f)) / 2, 2e-6) << f;
  }
}

TEST(Modulation, RelativeToTheLargestResponse) {
  // The carrier sits on the slope: more modulation than at the carrier comes through nowhere.
  const ModulationEntries entries{.ModFstart = 10, .ModFstop = 1e6F, .ModBottom = -60, .ModRelative = 1};
  const Modulation found = ComputeModulation(Lowpass(), 2e6F, entries);
  f32 largest = 0;
  for (const f32 response : found.ModResponse) largest = std::max(largest, response);
  EXPECT_EQ(largest, 1);
  ModulationEntries absolute = entries;
  absolute.ModRelative = 0;
  const Modulation plain = ComputeModulation(Lowpass(), 2e6F, absolute);
  EXPECT_FLOAT_EQ(found.ModResponse[0] / found.ModResponse[last], plain.ModResponse[0] / plain.ModResponse[last]);
  EXPECT_EQ(found.ModLower, plain.ModLower);
}

// What a relative display subtracts is no loss.
TEST(Modulation, TheDisplayOfTheSweepDoesNotMatter) {
  DesignRecord record = Lowpass();
  const Modulation absolute = ComputeModulation(record, 1e6F, {});
  record.RelativeMode = 1;
  record.AbsoluteMode = 0;
  EXPECT_EQ(ComputeModulation(record, 1e6F, {}).ModResponse, absolute.ModResponse);
}

TEST(Modulation, ALowerLineAtZeroCountsNothing) {
  DesignRecord record = Lowpass();
  // The last modulating frequency is the carrier itself.
  Modulation found = ComputeModulation(record, 1e5F, {.ModFstart = 10, .ModFstop = 1e5F});
  EXPECT_EQ(found.ModLower[last], 0);
  EXPECT_GT(found.ModLower[last - 1], 0.99F);
  EXPECT_FLOAT_EQ(found.ModResponse[last], found.ModUpper[last] / 2);
  // Where the ladder fails at zero, what comes next is not affected.
  record = Bandpass();
  found = ComputeModulation(record, 1e5F, {.ModFstart = 10, .ModFstop = 1e5F});
  EXPECT_EQ(found.ModLower[last], 0);
}

TEST(Modulation, ALineThatFailsRepeatsNothingOfTheOtherSide) {
  DesignRecord record = Lowpass();
  record.Qind[1] = 0;  // divides by zero everywhere
  const Modulation found = ComputeModulation(record, 1e6F, {});
  EXPECT_EQ(found.ModResponse.front(), 1);  // 0 dB, the figure before the first one
  EXPECT_EQ(found.ModResponse.back(), 1);
}

TEST(Modulation, WithoutAFrequencyForTheQThereIsNone) {
  DesignRecord record = Lowpass();
  record.Width = record.Fcenter = 0;
  record.Fstart = -1;
  record.Fstop = 1;
  EXPECT_THROW(ComputeModulation(record, 1e6F, {}), NumericFault);
}

// ---- against ngspice -----------------------------------------------------------------------------------------------

std::string Exactly(f32 frequency) {
  std::ostringstream text;
  text << std::setprecision(17) << std::fabs(frequency);
  return text.str();
}

std::vector<DesignRecord> Ladders() {
  std::vector<DesignRecord> ladders{Lowpass(), Bandpass()};
  std::mt19937 random(6);
  const std::vector<i16> types{SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  for (int trial = 0; trial < 6; ++trial) {
    ladders.push_back(RandomLadder(random, 2 + trial, types));
    ladders.back().Qind[1] = ladders.back().Qcap[1] = nearlyLossless;
  }
  return ladders;
}

// Each sideband of some modulating frequencies on its own, below zero by its mirror image. Away from 1 MHz a Q of ten
// million is not the same in both.
TEST(Modulation, BothSidebandsAreWhatNgspiceFinds) {
  constexpr f32 carrier = 1.1e6F;
  const std::vector<std::size_t> points{0, 400, 800, 1200, 1500, 1750, 1900, last};
  std::vector<NgspiceCircuit> circuits;
  std::vector<f64> expected;
  for (const DesignRecord& record : Ladders()) {
    const Modulation found = ComputeModulation(record, carrier, {.ModFstart = 1e3F, .ModFstop = 5e6F});
    const NgspiceNetlist netlist(record, 1e6);
    std::string deck;
    for (const std::string& line : netlist.Lines()) deck += line + "\n";
    const f64 available = f64{record.Rload[1]} / (4 * f64{record.Rsource[1]});
    for (const std::size_t i : points) {
      for (const f32 side : {-1.0F, 1.0F}) {
        const std::string f = Exactly(carrier + side * found.ModFreq[i]);
        circuits.push_back({deck + ".end\n", "lin 1 " + f + " " + f, netlist.Output()});
        expected.push_back((side < 0 ? found.ModLower[i] : found.ModUpper[i]) * std::sqrt(available));
      }
    }
  }
  std::string log;
  const auto results = RunNgspice(circuits, &log);
  for (std::size_t k = 0; k < results.size(); ++k) {
    ASSERT_EQ(results[k].size(), 1U) << log;
    const f64 voltage = std::abs(results[k][0].voltage);
    EXPECT_NEAR(expected[k] / voltage, 1, 3e-6) << "line " << k << " at " << results[k][0].frequency;
  }
}

}  // namespace
}  // namespace quilm
