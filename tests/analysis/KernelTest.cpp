#include "analysis/Kernel.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

#include "analysis/modAnalysis.h"
#include "support/PlainAnalysis.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr VectorWidth widths[] = {VectorWidth::Baseline, VectorWidth::Bits256, VectorWidth::Bits512};

std::vector<f32> Frequencies(int count) {
  std::vector<f32> frequencies;
  for (int i = 0; i < count; ++i) frequencies.push_back(static_cast<f32>(1e4 * std::pow(1e4, i / (count + 1.0))));
  return frequencies;
}

bool SameBits(const Figures& a, const Figures& b) {
  const auto same = [](f64 x, f64 y) { return std::memcmp(&x, &y, sizeof x) == 0; };
  if (a.reached != b.reached) return false;
  if (a.reached < reachedTransmission) return true;
  if (!same(a.transDB, b.transDB) || !same(a.angle, b.angle)) return false;
  if (a.reached < reachedImpedance) return true;
  if (!same(a.zinMag, b.zinMag) || !same(a.zinAngleRaw, b.zinAngleRaw)) return false;
  return a.reached < reachedAll || (same(a.returnDB, b.returnDB) && same(a.vswr, b.vswr));
}

TEST(Kernel, ManyLanesGiveTheBitsOfOne) {
  std::mt19937 random(20260101);
  for (int trial = 0; trial < 150; ++trial) {
    const DesignRecord record = RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes());
    const Ladder ladder = Compile(record, 1e6F);
    // Not a multiple of the lanes, so that the last block is padded.
    const std::vector<f32> frequencies = Frequencies(1 + trial % 37);
    for (const VectorWidth width : widths) {
      if (!HasVectors(width)) continue;
      std::vector<Figures> figures(frequencies.size());
      Evaluate(ladder, frequencies, figures, width);
      for (std::size_t i = 0; i < frequencies.size(); ++i) {
        ASSERT_TRUE(SameBits(figures[i], EvaluateOne(ladder, frequencies[i]))) << "trial " << trial << " point " << i;
      }
    }
  }
}

TEST(Kernel, AFailingPointLeavesItsNeighboursAlone) {
  std::mt19937 random(7);
  const DesignRecord record = RandomLadder(random, 9, std::vector<i16>{SeriesC, ShuntC, SeriesPLC, ShuntSLC});
  const Ladder ladder = Compile(record, 1e6F);
  std::vector<f32> frequencies = Frequencies(16);
  frequencies[3] = frequencies[4] = frequencies[11] = 0;
  std::vector<Figures> figures(frequencies.size());
  Evaluate(ladder, frequencies, figures);
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    EXPECT_EQ(figures[i].reached, frequencies[i] == 0 ? reachedNothing : reachedAll) << i;
    EXPECT_TRUE(SameBits(figures[i], EvaluateOne(ladder, frequencies[i]))) << i;
  }
}

// Two ways to the same figure round differently in 64 bits; of the 32-bit results a few in a million may fall to the
// neighbouring number.
TEST(Kernel, AgreesWithTheFormulasAsTheyStand) {
  std::mt19937 random(42);
  auto engine = std::make_unique<Responses>();
  auto reference = std::make_unique<Responses>();
  long differing = 0;
  long compared = 0;
  for (int trial = 0; trial < 120; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes());
    record.NrIntervals = 400;
    ASSERT_EQ(SweepLadder(record, *engine), "");
    plain::Sweep(record, engine->Fq, *reference);
    for (const auto array : {&Responses::RespFreq, &Responses::RespTrans, &Responses::RespAngle, &Responses::RespDelay,
                             &Responses::RespPhase, &Responses::RespReturn, &Responses::RespVSWR, &Responses::RespZin,
                             &Responses::RespZinAngle}) {
      // The delay at point 0 is an extrapolation of the sweep.
      for (int i = array == &Responses::RespDelay ? 1 : 0; i <= 400; ++i) {
        const f32 ours = ((*engine).*array)[i];
        const f32 theirs = ((*reference).*array)[i];
        ++compared;
        if (ours == theirs) continue;
        ++differing;
        EXPECT_NEAR(ours, theirs, 3e-7 * std::fabs(theirs)) << "trial " << trial << " point " << i;
      }
    }
  }
  EXPECT_LT(static_cast<f64>(differing), 1e-4 * static_cast<f64>(compared));
}

}  // namespace
}  // namespace quilm
