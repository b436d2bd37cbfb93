// Ladders made of lines in a tube.
#include "network/TubularLines.h"

#include <cmath>
#include <complex>
#include <numbers>

#include "core/NumericFault.h"
#include "support/ChainMatrix.h"

namespace quilm {
namespace {

// The tube that the page begins with.
TubeData Tube(f32 frequency) { return {frequency, 1.00059F, 3, 70, 75, 0, 0}; }

void Add(Network& network, i16 type, f32 value) {
  Stage& stage = network.stage[++network.Stages];
  stage.ElementType = type;
  (type == SeriesL ? stage.Lval : stage.Cval) = {value, 5};
}

// 6 pF, 20 nH, 6 pF and a resonator.
Network Lowpass() {
  Network network;
  Add(network, ShuntC, 6e-12F);
  Add(network, SeriesL, 20e-9F);
  network.stage[1].TLval.degreesTolerance = 2;
  return network;
}

TEST(ArcSin, IsTheArcsineAndAQuarterTurnBeyond) {
  for (const f64 x : {-0.999, -0.5, 0.0, 0.3, 0.999999}) EXPECT_NEAR(ArcSin(x), std::asin(x), 1e-12);
  EXPECT_EQ(ArcSin(1), std::numbers::pi / 2);
  EXPECT_EQ(ArcSin(17), std::numbers::pi / 2);
  EXPECT_EQ(ArcSin(-1), -std::numbers::pi / 2);
  EXPECT_EQ(ArcSin(-3), -std::numbers::pi / 2);
}

// 60 ln 25 and 60 ln(75 / 70); the wavelength is 299792458 / 1.00059 / 5E8 = 0.599231 m.
TEST(ComputeTubularLines, TheTubeOfTheDefaultsAtFiveHundredMegahertz) {
  const TubularLines lines = ComputeTubularLines(Lowpass(), Tube(500e6F));
  EXPECT_NEAR(lines.ZInductors, 193.13F, 0.005F);
  EXPECT_NEAR(lines.ZCapacitors, 4.1396F, 0.00005F);
  EXPECT_NEAR(lines.WaveLength, 0.599231F, 1e-6F);
  EXPECT_NEAR(lines.LineDegrees[1], 4.4753F, 0.00005F);
  EXPECT_NEAR(lines.LineMm[1], 7.4895F, 0.00005F);
  EXPECT_NEAR(lines.LineInches[1], 0.2949F, 0.00005F);
  EXPECT_NEAR(lines.LineDegrees[2], 18.986F, 0.0005F);
  EXPECT_NEAR(lines.LineMm[2], 31.773F, 0.0005F);
  EXPECT_NEAR(lines.LineInches[2], 1.2509F, 0.00005F);
}

TEST(ComputeTubularLines, TheTotalIsTheSum) {
  Network network = Lowpass();
  Add(network, ShuntC, 6e-12F);
  EXPECT_NEAR(ComputeTubularLines(network, Tube(500e6F)).TotalMm, 46.752F, 0.0005F);
}

TEST(ComputeTubularLines, OtherStagesGetNoLine) {
  Network network = Lowpass();
  network.Stages = 3;
  network.stage[3].ElementType = ShuntPLC;
  network.stage[3].Lval.value = 20e-9F;
  network.stage[3].Cval.value = 6e-12F;
  const TubularLines lines = ComputeTubularLines(network, Tube(500e6F));
  EXPECT_EQ(lines.LineDegrees[3], 0);
  EXPECT_EQ(lines.LineMm[3], 0);
  EXPECT_EQ(lines.TotalMm, ComputeTubularLines(Lowpass(), Tube(500e6F)).TotalMm);
}

TEST(ComputeTubularLines, APartTooLargeForALineGetsAQuarterWave) {
  Network network;
  Add(network, SeriesL, 1e-6F);
  Add(network, ShuntC, -1e-9F);
  const TubularLines lines = ComputeTubularLines(network, Tube(500e6F));
  EXPECT_EQ(lines.LineDegrees[1], 90);
  EXPECT_EQ(lines.LineDegrees[2], -90);
}

TEST(ComputeTubularLines, WhatLeavesTheRangeOfNumbersIsAFault) {
  EXPECT_THROW(ComputeTubularLines(Lowpass(), Tube(1e-36F)), NumericFault);
}

TEST(FindTubeFault, ComesInOrder) {
  TubeData tube;
  const auto expect = [&tube](std::optional<TubeFault> fault) { EXPECT_EQ(FindTubeFault(tube), fault); };
  expect(TubeFault::Frequency);
  tube.TubeFreq = 1e-3F;
  expect(TubeFault::Velocity);
  tube.TubeVelocity = 2.0001F;
  expect(TubeFault::Velocity);
  tube.TubeVelocity = 0.01F;
  expect(TubeFault::MinorDiameter);
  tube.TubeDiaInductors = 80;
  expect(TubeFault::MajorDiameter);
  tube.TubeDiaCapacitors = 75;
  expect(TubeFault::InteriorDiameter);
  tube.TubeDiaInterior = 75;
  expect(TubeFault::InteriorWithinMajor);
  tube.TubeDiaInterior = 80;
  expect(TubeFault::InteriorWithinMinor);
  tube.TubeDiaInductors = 75;
  expect(TubeFault::MajorWithinMinor);
  tube.TubeDiaInductors = 74.9F;
  tube.TubeVelocity = 2;
  expect(std::nullopt);
}

// By the formulas of a line: b of its chain matrix is what stands in series, c what lies to common.
TEST(ToTubular, LinesPresentTheReactancesAskedForAtTheFrequency) {
  const f64 frequency = 700e6;
  const f64 omega = 2 * std::numbers::pi * frequency;
  for (const f32 L : {0.1e-9F, 5e-9F, 43e-9F}) {
    for (const f32 C : {0.05e-12F, 4e-12F, 50e-12F}) {
      Network network;
      Add(network, SeriesL, L);
      Add(network, ShuntC, C);
      const f32 f = static_cast<f32>(frequency);
      const Network tubular = ToTubular(network, ComputeTubularLines(network, Tube(f)), f);
      const auto chainOf = [&tubular](int s) {
        const LineValue& line = tubular.stage[s].TLval;
        ChainMatrix chain;
        chain.Line(static_cast<f64>(line.impedance), static_cast<f64>(line.degrees) * std::numbers::pi / 180);
        return chain;
      };
      EXPECT_NEAR(chainOf(1).b.imag() / (omega * static_cast<f64>(L)), 1, 1e-6);
      EXPECT_NEAR(chainOf(2).c.imag() / (omega * static_cast<f64>(C)), 1, 1e-6);
    }
  }
}

TEST(ToTubular, PartsBecomeLinesAndAllElseStays) {
  Network network = Lowpass();
  network.Stages = 3;
  network.stage[3].ElementType = ShuntPLC;
  network.stage[3].Lval = {20e-9F, 1};
  network.stage[3].Cval = {6e-12F, 2};
  network.Rsource[1] = 50;
  const TubularLines lines = ComputeTubularLines(network, Tube(500e6F));
  const Network tubular = ToTubular(network, lines, 500e6F);
  Network expected = network;
  for (int s = 1; s <= 2; ++s) {
    expected.stage[s].ElementType = TransLine;
    expected.stage[s].Lval = {};
    expected.stage[s].Cval = {};
    expected.stage[s].TLval.degrees = lines.LineDegrees[s];
    expected.stage[s].TLval.freq = 500e6F;
    expected.stage[s].TLval.impedance = s == 2 ? lines.ZInductors : lines.ZCapacitors;
  }
  EXPECT_EQ(tubular, expected);
}

}  // namespace
}  // namespace quilm
