#include "timedomain/Waves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/NumericFault.h"
#include "timedomain/WaveBench.h"

namespace quilm {
namespace {

constexpr WaveEntries square{.WaveformType = squareWave, .AnalysisType = 'N', .SquareFreq = 1000};

WaveEntries Switched(i16 type, f32 carrier) {
  return {.WaveformType = type, .AnalysisType = 'N', .SquareFreq = 1000, .CarrierFreq = carrier};
}

// The squarewave that switches a burst, Pi / 4 + sum of sin(n t) / n, or the sum alone, with the taper of its lines.
f64 SwitchSum(f64 t) {
  f64 sum = 0;
  for (int n = 1; n < 256; n += 2) {
    const f64 taper = 1 - n / 1000.0;
    sum += taper * taper * std::sin(n * t) / n;
  }
  return sum;
}

f64 Radians(f64 degrees) { return degrees * Pi / 180; }

TEST(Waves, GoFromATenthBeforeTheEdgeToTheEndOfThePeriod) {
  const Waves waves = ComputeWaves(Pad(), square);
  ASSERT_EQ(waves.degrees.size(), 397U);
  EXPECT_EQ(waves.degrees.front(), -36);
  EXPECT_EQ(waves.degrees.back(), 360);
  EXPECT_EQ(waves.WaveNormal.size(), 397U);
  EXPECT_EQ(waves.WaveEqualized.size(), 397U);
}

TEST(Waves, ASquarewaveBehindAPadIsItsFourierSum) {
  const Waves waves = ComputeWaves(Pad(), square);
  // The pad halves the voltage; what the finite sum of 256 lines makes of the edges is no part of the flat top.
  for (const int a : {-20, 30, 90, 150, 200, 270, 340}) {
    f64 sum = 0;
    for (int n = 1; n < 512; n += 2) sum += std::sin(n * (a / 57.2958)) / n;
    const f64 expected = 0.5 * 4 / Pi * sum;
    const auto at = static_cast<std::size_t>(a + 36);
    EXPECT_NEAR(waves.WaveNormal[at] * waves.PeakNormal, expected, 2e-6) << a;
    EXPECT_NEAR(waves.WaveEqualized[at] * waves.PeakEqualized, expected, 2e-6) << a;
    EXPECT_NEAR(expected, a > 0 && a < 180 ? 0.5 : -0.5, 4e-3);
  }
}

TEST(Waves, TheSecondHalfIsTheNegativeOfTheFirst) {
  const Waves waves = ComputeWaves(DelayLine(23), square);
  for (int a = 0; a <= 180; ++a) {
    EXPECT_EQ(waves.WaveNormal[static_cast<std::size_t>(a + 36 + 180)],
              -waves.WaveNormal[static_cast<std::size_t>(a + 36)]);
  }
  for (int a = -36; a <= 0; ++a) {
    EXPECT_EQ(waves.WaveNormal[static_cast<std::size_t>(a + 36)],
              waves.WaveNormal[static_cast<std::size_t>(a + 36 + 360)]);
  }
}

f32 LargestMagnitude(const std::vector<f32>& wave) {
  f32 largest = 0;
  for (const f32 value : wave) largest = std::max(largest, std::fabs(value));
  return largest;
}

TEST(Waves, HaveTheirPeakAtOne) {
  for (const WaveEntries& signal : {square, Switched(burstWave, 20e3F), Switched(envelopeWave, 20e3F)}) {
    const Waves waves = ComputeWaves(DelayLine(36), signal);
    EXPECT_EQ(LargestMagnitude(waves.WaveNormal), 1);
    EXPECT_EQ(LargestMagnitude(waves.WaveEqualized), 1);
  }
}

// A flat delay of 36 degrees moves the wave by 36 points and leaves its shape.
TEST(Waves, OfAFlatDelayAreTheSame) {
  const Waves waves = ComputeWaves(DelayLine(36), square);
  EXPECT_NEAR(waves.PeakNormal, waves.PeakEqualized, 1e-4);
  for (std::size_t i = 36; i < waves.degrees.size(); ++i) {
    EXPECT_NEAR(waves.WaveNormal[i], waves.WaveEqualized[i - 36], 2e-3) << waves.degrees[i];
  }
}

// All of a burst behind a delay is the burst of a moment earlier: the product of its two factors, which knows nothing
// of sidebands and their signs. 20.5 kHz is no multiple of 1 kHz, and its lines 21 and up lie below zero.
TEST(Waves, ABurstBehindADelayIsCarrierTimesSwitch) {
  for (const f32 carrier : {20e3F, 20.5e3F, 150e3F}) {
    const f32 late = 25;
    const Waves waves = ComputeWaves(DelayLine(late), Switched(burstWave, carrier));
    ASSERT_EQ(waves.degrees.size(), 204U + 2048U + 1U);
    for (std::size_t i = 0; i < waves.degrees.size(); ++i) {
      const f64 t = Radians(static_cast<f64>(waves.degrees[i]));
      const auto burst = [carrier](f64 at) { return std::sin(carrier / 1000.0 * at) * (Pi / 4 + SwitchSum(at)); };
      EXPECT_NEAR(waves.WaveNormal[i] * waves.PeakNormal, burst(t - Radians(late)), 2e-3) << carrier << ": " << i;
      EXPECT_NEAR(waves.WaveEqualized[i] * waves.PeakEqualized, burst(t), 1e-4) << carrier << ": " << i;
    }
  }
}

TEST(Waves, TheEnvelopeBehindADelayIsTheSwitchOfAMomentEarlier) {
  const f32 late = 25;
  const Waves waves = ComputeWaves(DelayLine(late), Switched(envelopeWave, 300e3F));
  ASSERT_EQ(waves.degrees.size(), 397U);
  for (std::size_t i = 0; i < waves.degrees.size(); ++i) {
    const f64 t = Radians(static_cast<f64>(waves.degrees[i]));
    // Both sidebands are of the same height.
    EXPECT_NEAR(waves.WaveNormal[i] * waves.PeakNormal, 2 * SwitchSum(t - Radians(late)), 2e-3) << i;
    EXPECT_NEAR(waves.WaveEqualized[i] * waves.PeakEqualized, 2 * SwitchSum(t), 2e-4) << i;
  }
}

TEST(Waves, OfAnUnknownTypeAreThoseOfASquarewave) {
  WaveEntries signal = square;
  signal.WaveformType = 0;
  EXPECT_EQ(ComputeWaves(Pad(), signal).WaveNormal, ComputeWaves(Pad(), square).WaveNormal);
}

// Three dividers of 1E-33 together: what reaches the load is nothing in 32 bits.
DesignRecord Wall() {
  DesignRecord record = Between50Ohms();
  record.Stages = 6;
  for (int s = 1; s <= 6; s += 2) {
    record.stage[s].ElementType = SeriesR;
    record.stage[s].Rval.value = 1e30F;
    record.stage[s + 1].ElementType = ShuntR;
    record.stage[s + 1].Rval.value = 1e-3F;
  }
  return record;
}

TEST(Waves, OfNothingAreLevel) {
  for (const WaveEntries& signal : {square, Switched(burstWave, 20e3F), Switched(envelopeWave, 20e3F)}) {
    const Waves waves = ComputeWaves(Wall(), signal);
    EXPECT_EQ(waves.PeakNormal, 0);
    EXPECT_EQ(waves.PeakEqualized, 0);
    for (const f32 value : waves.WaveNormal) EXPECT_EQ(value, 0);
    for (const f32 value : waves.WaveEqualized) EXPECT_EQ(value, 0);
  }
}

TEST(Waves, AreLowBelowATenth) {
  EXPECT_TRUE(IsLow(0));
  EXPECT_TRUE(IsLow(0.0999F));
  EXPECT_FALSE(IsLow(0.1F));
}

TEST(Waves, WithoutAFrequencyForTheQAreRefused) {
  DesignRecord record = Pad();
  record.Width = record.Fcenter = 0;
  record.Fstart = -1;
  record.Fstop = 1;
  EXPECT_THROW(ComputeWaves(record, square), NumericFault);
}

}  // namespace
}  // namespace quilm
