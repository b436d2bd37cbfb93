#include "diplexer/DiplexerArms.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <string>

#include "analysis/Kernel.h"
#include "core/Fault.h"
#include "core/Network.h"
#include "diplexer/DesignDiplexer.h"

namespace quilm {
namespace {

constexpr f64 crossover = 1e6;

Diplexer Designed(i16 mode, i16 order, f32 ripple, bool exact) {
  Diplexer d;
  d.DipMode = mode;
  d.DipOrder = order;
  d.DipRipple = ripple;
  d.DipZ = 50;
  d.DipCrossover = 1e6F;
  d.DipFlower = 9.5e6F;
  d.DipFupper = 10.5e6F;
  d.exact3dB = exact;
  DesignDiplexer(d);
  return d;
}

Network Lossless() {
  Network losses;
  losses.Qind[1] = losses.Qcap[1] = 1e7F;
  return losses;
}

Figures At(const Diplexer& d, i16 arm, f64 frequency) {
  return EvaluateOne(Compile(LoadDiplexerArm(d, arm, Lossless()), 1e6F), static_cast<f32>(frequency));
}

std::complex<f64> Admittance(const Figures& f) { return 1.0 / std::polar(f.zinMag, -f.zinAngleRaw * Pi / 180); }

// The voltage of the termination over that at the common port, squared: the engine's source has a thousandth of the
// termination's resistance, whose part of the voltage is taken out with the arm's input impedance.
f64 Passed(const Figures& f) {
  const f64 overEmf = std::pow(10, (f.transDB + 30) / 10) / 4;
  const std::complex<f64> divider = 1.0 / (1.0 + 0.05 * Admittance(f));
  return overEmf / std::norm(divider);
}

f64 ChebyshevSquared(int n, f64 x) {
  const f64 T = std::abs(x) <= 1 ? std::cos(n * std::acos(x)) : std::cosh(n * std::acosh(std::abs(x)));
  return T * T;
}

// The response that the prototype is made for, at x = w over its 3 dB frequency.
f64 Theory(int n, f64 ripple, f64 x) {
  const f64 e2 = std::pow(10, ripple / 10) - 1;
  const f64 edge = Chebyshev3dBFrequency(static_cast<i16>(n), n % 2 == 1, static_cast<f32>(ripple));
  const f64 top = n % 2 == 1 ? 1 : 1 + e2;
  return top / (1 + e2 * ChebyshevSquared(n, x * edge));
}

TEST(DiplexerArms, LowpassAndHighpassFollowTheChebyshevResponse) {
  for (const int order : {1, 2, 3, 4, 7, 10}) {
    const Diplexer d = Designed(1, static_cast<i16>(order), 0.5F, true);
    for (const f64 x : {0.3, 0.7, 0.95, 1.0, 1.3, 2.0}) {
      const f64 theory = 10 * std::log10(Theory(order, 0.5, x));
      EXPECT_NEAR(10 * std::log10(Passed(At(d, lowpassArm, x * crossover))), theory, 2e-3) << order << " at " << x;
      EXPECT_NEAR(10 * std::log10(Passed(At(d, highpassArm, crossover / x))), theory, 2e-3) << order << " at " << x;
    }
  }
}

TEST(DiplexerArms, BandpassAndBandstopAreTheTransformedLowpassAndHighpass) {
  const f64 middle = std::sqrt(9.5e6 * 10.5e6);
  for (const int order : {1, 2, 5}) {
    const Diplexer d = Designed(2, static_cast<i16>(order), 0.1F, true);
    for (const f64 f : {7e6, 9.3e6, 9.5e6, 9.8e6, 10.2e6, 10.6e6, 12e6}) {
      const f64 x = std::abs(f - middle * middle / f) / 1e6;
      EXPECT_NEAR(10 * std::log10(Passed(At(d, bandpassArm, f))), 10 * std::log10(Theory(order, 0.1, x)), 5e-3)
          << order << " at " << f;
      EXPECT_NEAR(10 * std::log10(Passed(At(d, bandstopArm, f))), 10 * std::log10(Theory(order, 0.1, 1 / x)), 5e-3)
          << order << " at " << f;
    }
  }
}

// What enters a lossless arm reaches its termination: the conductance at the input, times the termination, is the power
// passed. So the conductances of both arms add up to that of the termination: exactly at the crossover, within the
// ripple where one arm passes and the other is far down, and within a tenth between.
TEST(DiplexerArms, InputConductancesAddUpToTheTermination) {
  for (const int order : {1, 2, 3, 6, 9}) {
    const Diplexer d = Designed(1, static_cast<i16>(order), 0.1F, true);
    const f64 ripple = std::pow(10, 0.01) - 1;
    for (const f64 x : {0.1, 0.5, 0.9, 1.0, 1.2, 4.0}) {
      const Figures low = At(d, lowpassArm, x * crossover);
      const Figures high = At(d, highpassArm, x * crossover);
      const f64 sum = 50 * std::real(Admittance(low) + Admittance(high));
      EXPECT_NEAR(50 * std::real(Admittance(low)), Passed(low), 2e-4) << order << " at " << x;
      const f64 told = Theory(order, 0.1, x) + Theory(order, 0.1, 1 / x);
      EXPECT_NEAR(sum, told, 2e-4) << order << " at " << x;
      EXPECT_NEAR(sum, 1, x == 1.0 ? 2e-4 : x == 0.1 || x == 4.0 ? ripple + 0.01 : 0.1) << order << " at " << x;
    }
  }
}

// And the arms' susceptances at mirrored frequencies cancel, for one arm is the other with the frequency turned over.
TEST(DiplexerArms, SusceptancesAreMirrored) {
  const Diplexer d = Designed(1, 5, 0.1F, false);
  for (const f64 x : {0.4, 1.0, 1.7}) {
    const auto low = Admittance(At(d, lowpassArm, x * crossover));
    const auto high = Admittance(At(d, highpassArm, crossover / x));
    EXPECT_NEAR(low.imag(), -high.imag(), 2e-5 * std::abs(low));
    EXPECT_NEAR(low.real(), high.real(), 2e-5 * std::abs(low));
  }
}

TEST(DiplexerArms, LossAtTheCrossover) {
  EXPECT_NEAR(10 * std::log10(Passed(At(Designed(1, 3, 0.1F, false), lowpassArm, crossover))), -3.0561, 1e-4);
  for (i16 order = 1; order <= 10; ++order) {
    const Diplexer d = Designed(1, static_cast<i16>(order), 0.1F, true);
    EXPECT_NEAR(10 * std::log10(Passed(At(d, lowpassArm, crossover))), -3.0103, 2e-4) << order;
    EXPECT_NEAR(10 * std::log10(Passed(At(d, highpassArm, crossover))), -3.0103, 2e-4) << order;
  }
}

TEST(DiplexerArms, TheOffsetMakesVoltageOverVoltage) {
  const Diplexer d = Designed(1, 3, 0.1F, false);
  const Figures f = At(d, lowpassArm, 1e3);
  // All of the source's voltage but what its thousandth takes: 20 log 1 / 1.001. The 6.02 are 0.0006 short.
  EXPECT_NEAR(f.transDB + armTransOffset, -20 * std::log10(1.001) + 0.0006, 2e-5);
}

TEST(DiplexerArms, AnArmIsANetworkOfItsOwn) {
  Network losses = Lossless();
  losses.Qind[1] = 200;
  losses.Qcap[1] = 1000;
  const Diplexer d = Designed(2, 4, 0.1F, false);
  const Network arm = LoadDiplexerArm(d, bandstopArm, losses);
  EXPECT_EQ(arm.Stages, 4);
  EXPECT_EQ(arm.Rsource[1], 0.05F);
  EXPECT_EQ(arm.Rload[1], 50);
  EXPECT_EQ(arm.Rstandard, 50);
  EXPECT_EQ(arm.Qind[1], 200);
  EXPECT_EQ(arm.Qcap[1], 1000);
  for (int k = 1; k <= 4; ++k) {
    EXPECT_EQ(arm.stage[k].ElementType, k % 2 == 1 ? SeriesPLC : ShuntSLC);
    EXPECT_EQ(arm.stage[k].Lval.value, d.DipBsL[k]);
    EXPECT_EQ(arm.stage[k].Cval.value, d.DipBsC[k]);
  }
}

TEST(DiplexerArms, NamesAndElements) {
  EXPECT_EQ(ArmsOf(1), (std::array<i16, 2>{lowpassArm, highpassArm}));
  EXPECT_EQ(ArmsOf(2), (std::array<i16, 2>{bandpassArm, bandstopArm}));
  EXPECT_EQ(std::string(ArmName(bandpassArm)) + ArmShortName(bandstopArm), "BandpassBS");
  EXPECT_EQ(ArmElement(lowpassArm, 1), SeriesL);
  EXPECT_EQ(ArmElement(lowpassArm, 2), ShuntC);
  EXPECT_EQ(ArmElement(highpassArm, 1), SeriesC);
  EXPECT_EQ(ArmElement(highpassArm, 2), ShuntL);
  EXPECT_EQ(ArmElement(bandpassArm, 3), SeriesSLC);
  EXPECT_EQ(ArmElement(bandpassArm, 4), ShuntPLC);
  EXPECT_THROW(ArmElement(5, 1), BoundFault);
}

TEST(DiplexerArms, PartsAreFoundWhereTheyAre) {
  Diplexer d = Designed(1, 3, 0.1F, false);
  EXPECT_EQ(ArmInductor(d, lowpassArm, 1), &d.DipLowElem[1]);
  EXPECT_EQ(ArmCapacitor(d, lowpassArm, 1), nullptr);
  EXPECT_EQ(ArmInductor(d, lowpassArm, 2), nullptr);
  EXPECT_EQ(ArmCapacitor(d, lowpassArm, 2), &d.DipLowElem[2]);
  EXPECT_EQ(ArmCapacitor(d, highpassArm, 3), &d.DipHighElem[3]);
  EXPECT_EQ(ArmInductor(d, highpassArm, 2), &d.DipHighElem[2]);
  EXPECT_EQ(ArmInductor(d, bandpassArm, 2), &d.DipBpL[2]);
  EXPECT_EQ(ArmCapacitor(d, bandstopArm, 1), &d.DipBsC[1]);
}

}  // namespace
}  // namespace quilm
