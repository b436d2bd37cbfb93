// What must hold of every network, whatever its values.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/Kernel.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f32 lossless = 1e7F;

const std::vector<i16> reactive = {SeriesL,       ShuntL,      SeriesC,         ShuntC,         SeriesSLC,
                                   ShuntSLC,      TransLine,   SeriesShortStub, SeriesOpenStub, ShuntShortStub,
                                   ShuntOpenStub, Transformer, CoupledInductors};

f64 Power(f64 decibels) { return std::pow(10, decibels / 10); }

TEST(Physics, ALosslessNetworkNeitherLosesNorMakesPower) {
  std::mt19937 random(3);
  for (int trial = 0; trial < 300; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial % 12, reactive);
    record.Qind[1] = record.Qcap[1] = lossless;
    record.Rstandard = record.Rsource[1];
    const Figures f = EvaluateOne(Compile(record, 1e6F), 1.3e6F);
    ASSERT_EQ(f.reached, reachedAll);
    EXPECT_NEAR(Power(f.transDB) + Power(f.returnDB), 1, 1e-4) << "trial " << trial;
  }
}

TEST(Physics, APassiveNetworkNeverMakesPower) {
  std::mt19937 random(4);
  for (int trial = 0; trial < 300; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes());
    record.Rstandard = record.Rsource[1];
    for (const f32 frequency : {2e4F, 1e6F, 3.7e7F}) {
      const Figures f = EvaluateOne(Compile(record, 1e6F), frequency);
      if (f.reached != reachedAll) continue;
      EXPECT_LE(Power(f.transDB) + Power(f.returnDB), 1 + 1e-6) << "trial " << trial;
    }
  }
}

// Transmission is the same from either end. Turned round, a transformer has the reciprocal ratio and coupled coils
// change places.
TEST(Physics, AReciprocalNetworkLooksTheSameBothWays) {
  std::mt19937 random(5);
  for (int trial = 0; trial < 300; ++trial) {
    const DesignRecord record = RandomLadder(random, 1 + trial % 20, AnalysableTypes());
    DesignRecord turned = record;
    std::swap(turned.Rsource, turned.Rload);
    for (int s = 1; s <= record.Stages; ++s) {
      turned.stage[s] = record.stage[record.Stages + 1 - s];
      std::swap(turned.stage[s].CoupledVal.primary, turned.stage[s].CoupledVal.secondary);
      if (turned.stage[s].ElementType == Transformer) turned.stage[s].XfmrVal.value = 1 / turned.stage[s].XfmrVal.value;
    }
    const Figures there = EvaluateOne(Compile(record, 1e6F), 1.7e6F);
    const Figures back = EvaluateOne(Compile(turned, 1e6F), 1.7e6F);
    // The reciprocal of a ratio rests in 32 bits.
    EXPECT_NEAR(there.transDB, back.transDB, 1e-4) << "trial " << trial;
    EXPECT_NEAR(std::remainder(there.angle - back.angle, 360), 0, 1e-3) << "trial " << trial;
  }
}

// A Butterworth lowpass of order 3 has the attenuation 10 log10(1 + w^6).
TEST(Physics, AButterworthLadderHasItsClosedForm) {
  DesignRecord record;
  record.Stages = 3;
  record.stage[1].ElementType = record.stage[3].ElementType = ShuntC;
  record.stage[1].Cval.value = record.stage[3].Cval.value = 1;
  record.stage[2].ElementType = SeriesL;
  record.stage[2].Lval.value = 2;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 1;
  record.Qind[1] = record.Qcap[1] = 1e12F;
  const Ladder ladder = Compile(record, 1);
  for (const f64 w : {0.1, 0.5, 1.0, 2.0, 10.0}) {
    const f32 frequency = static_cast<f32>(w / (2 * Pi));
    const f64 exact = 2 * Pi * static_cast<f64>(frequency);
    EXPECT_NEAR(EvaluateOne(ladder, frequency).transDB, -10 * std::log10(1 + std::pow(exact, 6)), 1e-9) << w;
  }
}

}  // namespace
}  // namespace quilm
