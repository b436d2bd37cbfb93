#include "diplexer/DesignDiplexer.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/Types.h"

namespace quilm {
namespace {

Diplexer Split(i16 order, f32 ripple) {
  Diplexer d;
  d.DipMode = 1;
  d.DipOrder = order;
  d.DipRipple = ripple;
  d.DipZ = 50;
  d.DipCrossover = 1e6F;
  return d;
}

Diplexer Band(i16 order, f32 ripple) {
  Diplexer d = Split(order, ripple);
  d.DipMode = 2;
  d.DipFlower = 9.5e6F;
  d.DipFupper = 10.5e6F;
  return d;
}

// Five figures, as the values were worked out by hand.
void ExpectFigure(f32 found, f64 expected) { EXPECT_NEAR(f64{found} / expected, 1, 5e-5) << expected; }

TEST(DesignDiplexer, LowpassAndHighpassOfOrder3) {
  Diplexer d = Split(3, 0.1F);
  DesignDiplexer(d);
  ExpectFigure(d.DipG[1], 1.51328);
  ExpectFigure(d.DipG[2], 1.517088);
  ExpectFigure(d.DipG[3], 0.716416);
  ExpectFigure(d.DipLowElem[1], 12.042e-6);
  ExpectFigure(d.DipLowElem[2], 4.829e-9);
  ExpectFigure(d.DipLowElem[3], 5.7011e-6);
  ExpectFigure(d.DipHighElem[1], 2.1034e-9);
  ExpectFigure(d.DipHighElem[2], 5.2454e-6);
  ExpectFigure(d.DipHighElem[3], 4.4431e-9);
  EXPECT_EQ(d.DipGa[1], d.DipG[3]);
  EXPECT_EQ(d.DipG[4], 0);
  EXPECT_EQ(d.DipBpC[1], 0) << "the other pair stays as it is";
}

TEST(DesignDiplexer, BandpassAndBandstopOfOrder2) {
  Diplexer d = Band(2, 0.1F);
  DesignDiplexer(d);
  ExpectFigure(d.DipBpC[1], 22.714e-12);
  ExpectFigure(d.DipBpL[1], 11.18e-6);
  ExpectFigure(d.DipBpC[2], 2.6073e-9);
  ExpectFigure(d.DipBpL[2], 97.395e-9);
  ExpectFigure(d.DipBsC[1], 2.2657e-9);
  ExpectFigure(d.DipBsL[1], 112.08e-9);
  ExpectFigure(d.DipBsC[2], 26.138e-12);
  ExpectFigure(d.DipBsL[2], 9.7151e-6);
  EXPECT_EQ(d.DipLowElem[1], 0);
}

TEST(DesignDiplexer, EveryPairResonatesAtTheMiddleOfTheBand) {
  for (i16 order = 1; order <= 10; ++order) {
    Diplexer d = Band(order, 1);
    DesignDiplexer(d);
    for (int k = 1; k <= order; ++k) {
      const f64 bandpass = 1 / (2 * Pi * std::sqrt(f64{d.DipBpL[k]} * f64{d.DipBpC[k]}));
      const f64 bandstop = 1 / (2 * Pi * std::sqrt(f64{d.DipBsL[k]} * f64{d.DipBsC[k]}));
      EXPECT_NEAR(bandpass, 9.987492e6, 5) << order << " " << k;
      EXPECT_NEAR(bandstop, 9.987492e6, 5) << order << " " << k;
    }
  }
}

// A highpass is the lowpass with w / w0 replaced by w0 / w: part by part their reactances at the crossover are equal.
TEST(DesignDiplexer, PartsOfTheTwoArmsHaveEqualReactancesAtTheCrossover) {
  Diplexer d = Split(10, 0.5F);
  DesignDiplexer(d);
  const f64 w = 2 * Pi * 1e6;
  for (int k = 1; k <= 10; ++k) EXPECT_NEAR(w * w * f64{d.DipLowElem[k]} * f64{d.DipHighElem[k]}, 1, 3e-7) << k;
}

TEST(DesignDiplexer, OrderOneIsASingleInductorBesideASingleCapacitor) {
  Diplexer d = Split(1, 3);
  DesignDiplexer(d);
  // 3 dB of ripple are all but 3.0103 dB: R = w L nearly, at the crossover.
  EXPECT_NEAR(f64{d.DipLowElem[1]} * 2 * Pi * 1e6 / 50, 1, 1e-6);
  EXPECT_NEAR(f64{d.DipHighElem[1]} * 2 * Pi * 1e6 * 50, 1, 1e-6);
  EXPECT_EQ(d.DipLowElem[2], 0);
}

// The ends of what may be entered.
TEST(DesignDiplexer, EveryOrderAndRippleGivesRealPositiveParts) {
  for (const f32 ripple : {0.0001F, 3.0F}) {
    for (i16 order = 1; order <= 10; ++order) {
      for (const bool exact : {false, true}) {
        Diplexer d = Split(order, ripple);
        d.exact3dB = exact;
        DesignDiplexer(d);
        for (int k = 1; k <= order; ++k) {
          EXPECT_TRUE(std::isfinite(d.DipLowElem[k]) && d.DipLowElem[k] > 0) << order << " " << k;
        }
      }
    }
  }
}

TEST(DesignDiplexer, PartsChangedByHandStay) {
  Diplexer d = Split(3, 0.1F);
  DesignDiplexer(d);
  d.DipLowElem[1] = 1;
  d.DipFrozen = 1;
  DesignDiplexer(d);
  EXPECT_EQ(d.DipLowElem[1], 1);
  d.DipFrozen = 0;
  DesignDiplexer(d);
  ExpectFigure(d.DipLowElem[1], 12.042e-6);
}

TEST(DesignDiplexer, ALowerOrderLeavesNoPartsBehind) {
  Diplexer d = Split(5, 0.1F);
  DesignDiplexer(d);
  d.DipOrder = 2;
  DesignDiplexer(d);
  EXPECT_EQ(d.DipLowElem[3], 0);
  EXPECT_EQ(d.DipHighElem[5], 0);
  EXPECT_EQ(d.DipG[3], 0);
}

// Odd: e T3(x) = 1 at 0.1 dB is at x = 1.3890 (Zverev, Handbook of filter synthesis, tables of Chebyshev filters).
TEST(Chebyshev3dBFrequency, IsWhereThePolynomialReachesThreeDecibels) {
  EXPECT_NEAR(Chebyshev3dBFrequency(3, true, 0.1F), 1.38899, 1e-5);
  // Order 2 from its trough: (1 + e2) / (1 + e2 T2^2) = 1/2 with T2 = 2 x^2 - 1.
  const f64 e2 = std::pow(10, 0.05) - 1;
  const f64 x = Chebyshev3dBFrequency(2, false, 0.5F);
  const f64 T2 = 2 * x * x - 1;
  EXPECT_NEAR((1 + e2) / (1 + e2 * T2 * T2), 0.5, 1e-12);
}

}  // namespace
}  // namespace quilm
