#include "optimise/BestParts.h"

#include <cmath>
#include <random>

#include "core/ElementCatalogue.h"
#include "optimise/TrialBench.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

// The uniform numbers of a seed, drawn here: the upper 24 bits of the Mersenne Twister.
class Drawn {
 public:
  explicit Drawn(unsigned seed) : generator_(seed) {}
  f64 operator()() { return static_cast<f64>(generator_() >> 8) / 16777216.0; }

 private:
  std::mt19937 generator_;
};

// A ladder of all types with a stepsize of its own for each part, some of them 0.
Network Stepped(unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<f32> percent(-10, 100);
  Network network = RandomLadder(random, stagesLimit, AnalysableTypes());
  for (int s = 1; s <= network.Stages; ++s) {
    for (PartValue* part : {&network.stage[s].Lval, &network.stage[s].Cval, &network.stage[s].Rval}) {
      part->tolerance = std::max(percent(random), 0.0F);
    }
  }
  return network;
}

TEST(TryValues, DrawsForEachStageItsLThenItsCThenItsR) {
  const Network nominal = Stepped(3);
  BestParts best;
  TakeParts(nominal, best);
  Network walked = nominal;
  Network spread = nominal;
  UniformNumbers random;
  random.Seed(11);
  TryValues(best, walkTravel, random, walked);
  random.Seed(11);
  TryValues(best, toleranceTravel, random, spread);
  Drawn r(11);
  for (int s = 1; s <= nominal.Stages; ++s) {
    SCOPED_TRACE(s);
    for (const auto member : {&Stage::Lval, &Stage::Cval, &Stage::Rval}) {
      const PartValue& part = nominal.stage[s].*member;
      const f64 x = r();
      const f64 value = part.value;
      const f64 step = part.tolerance;
      EXPECT_EQ((walked.stage[s].*member).value, static_cast<f32>(value * (1 + 2 * (x - 0.5) * (step * 0.002))));
      EXPECT_EQ((spread.stage[s].*member).value, static_cast<f32>(value * (1 + (x - 0.5) * (step * 0.02))));
    }
  }
}

// The travel of each percentage is 0.2 per cent of the value for a walk and a whole one for a tolerance.
TEST(TryValues, StaysWithinTheTravel) {
  constexpr f64 rounding = 0x1p-23;
  UniformNumbers random;
  random.Seed(5);
  for (const auto& [travel, ofStepsize] : {std::pair(walkTravel, 0.002), std::pair(toleranceTravel, 0.01)}) {
    const Network nominal = Stepped(8);
    BestParts best;
    TakeParts(nominal, best);
    Network tried = nominal;
    f64 widest = 0;
    for (int trial = 0; trial < 500; ++trial) {
      TryValues(best, travel, random, tried);
      for (int s = 1; s <= nominal.Stages; ++s) {
        for (const auto member : {&Stage::Lval, &Stage::Cval, &Stage::Rval}) {
          const PartValue& from = nominal.stage[s].*member;
          const f64 moved = std::abs(f64{(tried.stage[s].*member).value} / f64{from.value} - 1);
          const f64 most = f64{from.tolerance} * ofStepsize;
          ASSERT_LE(moved, most + rounding);
          if (from.tolerance > 0) widest = std::max(widest, moved / most);
        }
      }
    }
    EXPECT_GT(widest, 0.999);
  }
}

// To the bit, whatever the value.
TEST(TryValues, APartWithoutAStepsizeStays) {
  Network network = Stepped(4);
  for (int s = 1; s <= network.Stages; ++s) network.stage[s].Lval.tolerance = 0;
  BestParts best;
  TakeParts(network, best);
  const Network before = network;
  UniformNumbers random;
  TryValues(best, toleranceTravel, random, network);
  for (int s = 1; s <= network.Stages; ++s) EXPECT_EQ(network.stage[s].Lval, before.stage[s].Lval);
  EXPECT_NE(network, before);
}

// All types and stepsizes are in it; other values than L, C and R do not move.
TEST(TryValues, NothingElseOfTheNetworkMoves) {
  Network network = Stepped(6);
  for (int s = 1; s <= network.Stages; ++s) {
    network.stage[s].TLval.degreesTolerance = network.stage[s].XfmrVal.tolerance = 50;
    network.stage[s].CoupledVal.kTolerance = 50;
  }
  const Network before = network;
  BestParts best;
  TakeParts(network, best);
  UniformNumbers random;
  TryValues(best, toleranceTravel, random, network);
  WriteValues(best, network);
  EXPECT_EQ(network, before);
}

TEST(BestParts, ValuesAndStepsizesAreWrittenBackTogetherOrValuesAlone) {
  Network network = SmallDesign(5);
  BestParts best;
  TakeParts(network, best);
  const Network before = network;
  network.stage[1].Cval = {1, 2};
  network.stage[2].Lval = {3, 4};
  network.stage[3].Rval = {5, 6};
  Network values = network;
  WriteParts(best, network);
  EXPECT_EQ(network, before);
  WriteValues(best, values);
  EXPECT_EQ(values.stage[1].Cval.value, before.stage[1].Cval.value);
  EXPECT_EQ(values.stage[1].Cval.tolerance, 2);
  EXPECT_EQ(values.stage[3].Rval.value, 0);
  EXPECT_EQ(values.stage[3].Rval.tolerance, 6);
}

TEST(BestParts, BetterValuesLeaveTheStepsizes) {
  Network network = SmallDesign(5);
  BestParts best;
  TakeParts(network, best);
  network.stage[2].Lval = {3, 4};
  TakeValues(network, best);
  EXPECT_EQ(best.BestL[2], (PartValue{3, 5}));
}

TEST(HasStepsize, LooksAtTheValuesThatAStageHas) {
  for (const i16 type : AnalysableTypes()) {
    SCOPED_TRACE(type);
    for (const Slot& slot : AllSlots()) {
      if (!slot.tolerance) continue;
      Network network;
      network.Stages = 2;
      network.stage[2].ElementType = type;
      EXPECT_FALSE(HasStepsize(network));
      slot.tolerance(network.stage[2]) = 0.01F;
      EXPECT_EQ(HasStepsize(network), HasSlot(type, slot.code)) << slot.name;
      slot.tolerance(network.stage[2]) = -1;
      EXPECT_FALSE(HasStepsize(network));
    }
  }
}

TEST(HasStepsize, StagesBehindTheLastDoNotCount) {
  Network network = SmallDesign(0);
  network.stage[4] = {SeriesL, {1, 5}, {}, {}, {}, {}, {}};
  EXPECT_FALSE(HasStepsize(network));
  network.Stages = 4;
  EXPECT_TRUE(HasStepsize(network));
}

}  // namespace
}  // namespace quilm
