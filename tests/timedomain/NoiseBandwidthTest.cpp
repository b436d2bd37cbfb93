#include "timedomain/NoiseBandwidth.h"

#include <cmath>

#include "timedomain/StudyBench.h"

namespace quilm {
namespace {

// One pole at 1 MHz: a series inductor of 100 ohms at 1 MHz between 50 ohms and 50 ohms.
DesignRecord OnePole() {
  DesignRecord record = Terminated();
  AddStage(record, SeriesL, 2 * lowpassL, 0);
  return record;
}

NoiseBand Found(const DesignRecord& record, const NoiseSweep& sweep) {
  const auto band = ComputeNoiseBandwidth(record, sweep);
  if (!band) throw Fault("no power");
  return *band;
}

// Integral of 1 / (1 + x^2): arctan. The peak is that of the middle of the first step, 5 kHz.
TEST(NoiseBandwidth, OfOnePoleIsHalfPiOfItsCorner) {
  const NoiseBand band = Found(OnePole(), {1, 1e8F, 10000});
  EXPECT_NEAR(band.NoiseBandwidth, 1e6 * std::atan(100) * (1 + 0.005 * 0.005), 1);
  EXPECT_NEAR(band.NoisePeak, 1, 1e-4);
  EXPECT_EQ(band.NoisePeakFreq, 5001);  // the middle of the first step
  EXPECT_EQ(band.NoiseLow01, 5001);
  EXPECT_EQ(band.NoiseLow1, 5001);
  EXPECT_NEAR(band.NoiseHigh1, 1e6 * std::sqrt(99), 1e4);
  EXPECT_NEAR(band.NoiseHigh01, 1e6 * std::sqrt(999), 1e4);
}

// (Pi / 2n) / sin(Pi / 2n) of the corner for a Butterworth lowpass of order n.
TEST(NoiseBandwidth, OfAButterworthLowpassFollowsItsFormula) {
  const NoiseBand band = Found(Lowpass(), {1, 2e7F, 10000});
  EXPECT_NEAR(band.NoiseBandwidth, 1e6 * (Pi / 6) / std::sin(Pi / 6), 5);
}

TEST(NoiseBandwidth, OfABandpassHasBothEdges) {
  const NoiseBand band = Found(Bandpass(), {5e6F, 2e7F, 3000});
  EXPECT_NEAR(band.NoisePeakFreq, 1e7, 1e5);
  // |H|^2 = 1 / (1 + x^6) with x = (f - f0^2 / f) / 1 MHz; 1 % at x = 99^(1/6), 0.1 % at 999^(1/6).
  const auto edges = [](f64 x) {
    const f64 half = x * 0.5e6;
    const f64 root = std::sqrt(half * half + 1e14);
    return std::pair{root - half, root + half};
  };
  const auto [low1, high1] = edges(std::pow(99, 1 / 6.0));
  const auto [low01, high01] = edges(std::pow(999, 1 / 6.0));
  constexpr f64 step = 5000;
  EXPECT_NEAR(band.NoiseLow1, low1, step);
  EXPECT_NEAR(band.NoiseHigh1, high1, step);
  EXPECT_NEAR(band.NoiseLow01, low01, step);
  EXPECT_NEAR(band.NoiseHigh01, high01, step);
}

TEST(NoiseBandwidth, ATieKeepsTheEarlierPeak) {
  DesignRecord pad = Terminated();
  AddStage(pad, SeriesR, 0, 0);
  pad.stage[1].Rval.value = 50;
  const NoiseBand band = Found(pad, {100, 1100, 100});
  EXPECT_EQ(band.NoisePeakFreq, 105);
  EXPECT_NEAR(band.NoisePeak, 4.0 / 9, 1e-6);
  EXPECT_FLOAT_EQ(band.NoiseBandwidth, 1000);
  EXPECT_EQ(band.NoiseLow01, 105);
  EXPECT_EQ(band.NoiseHigh1, 1095);
  EXPECT_TRUE(band.EndsEarly(1100));
}

TEST(NoiseBandwidth, ASingleStepWithPowerHasEqualEdges) {
  DesignRecord record = Bandpass();
  record.stage[2].Lval.value *= 1e4F;  // 100 Hz wide
  record.stage[2].Cval.value /= 1e4F;
  const NoiseBand band = Found(record, {1e7F - 505e3F, 1e7F + 495e3F, 100});  // 10 kHz steps, one about the centre
  EXPECT_EQ(band.NoiseLow1, band.NoiseHigh1);
  EXPECT_EQ(band.NoiseLow01, band.NoiseHigh01);
  EXPECT_EQ(band.NoisePeakFreq, 1e7F);
}

TEST(NoiseBandwidth, WithoutPowerThereIsNone) {
  DesignRecord record = Terminated();
  for (int s = 0; s < 30; ++s) AddStage(record, s % 2 == 0 ? ShuntC : SeriesL, 1e-2F, 1e-6F);
  EXPECT_FALSE(ComputeNoiseBandwidth(record, {1e8F, 1e9F, 100}));
}

TEST(NoiseBandwidth, TheSweepEndsEarlyAboveNinetyNineHundredths) {
  NoiseBand band;
  band.NoiseHigh01 = 990;
  EXPECT_FALSE(band.EndsEarly(1000));
  band.NoiseHigh01 = 990.1F;
  EXPECT_TRUE(band.EndsEarly(1000));
}

// What relative display subtracts is no power.
TEST(NoiseBandwidth, TheDisplayOfTheSweepDoesNotMatter) {
  DesignRecord record = OnePole();
  record.RelativeMode = 1;
  EXPECT_NEAR(Found(record, {1, 1e8F, 1000}).NoisePeak, 1, 3e-3);
}

// At 10,000 steps swept to where power is 0.1 % of the peak, against the circuit itself.
TEST(NoiseBandwidth, IsWhatAdaptiveQuadratureFinds) {
  std::vector<StudyCase> cases;
  for (DesignRecord record : {OnePole(), Lowpass(), Bandpass()}) {
    for (const f32 Q : {nearlyLossless, 100.0F}) {
      record.Qind[1] = record.Qcap[1] = Q;
      const bool band = record.Fcenter > 0;
      const NoiseBand wide = Found(record, {band ? 1e6F : 1, 6e7F, 10000});
      cases.push_back({record, band ? wide.NoiseLow01 : 1, wide.NoiseHigh01, 10000});
    }
  }
  // Order 5, ripple 0.5 dB (1.7058, 1.2296, 2.5408): the peak is no flat one.
  DesignRecord chebyshev = Terminated();
  const f32 g[] = {1.7058F, 1.2296F, 2.5408F, 1.2296F, 1.7058F};
  for (int k = 0; k < 5; ++k) AddStage(chebyshev, k % 2 == 0 ? ShuntC : SeriesL, g[k] * lowpassL, g[k] * lowpassC);
  chebyshev.Qind[1] = 200;
  chebyshev.Qcap[1] = 1000;
  cases.push_back({chebyshev, 1, Found(chebyshev, {1, 1e7F, 10000}).NoiseHigh01, 10000});
  const auto rows = Reference("noise", cases);
  ASSERT_EQ(rows.size(), cases.size()) << "scipy is what tools/install-packages test installs";
  for (std::size_t k = 0; k < cases.size(); ++k) {
    const NoiseBand band = Found(cases[k].record, {cases[k].start, cases[k].stop, cases[k].steps});
    EXPECT_NEAR(band.NoiseBandwidth / rows[k][0], 1, 1e-6) << "case " << k;
  }
}

TEST(LooksLikeLowpass, AsLongAsNothingBlocksDirectCurrent) {
  for (i16 type = SeriesL; type <= SeriesRLC; ++type) {
    DesignRecord record = Lowpass();
    AddStage(record, type, lowpassL, lowpassC);
    const bool blocks = type == ShuntL || type == SeriesC || type == SeriesSLC || type == ShuntPLC ||
                        type == SeriesOpenStub || type == ShuntShortStub || type == SeriesReactance;
    EXPECT_EQ(LooksLikeLowpass(record), !blocks) << type;
  }
  EXPECT_FALSE(LooksLikeLowpass(Bandpass()));
}

}  // namespace
}  // namespace quilm
