#include "diplexer/DiplexerTuning.h"

#include <gtest/gtest.h>

#include <limits>

#include "diplexer/DesignDiplexer.h"

namespace quilm {
namespace {

constexpr StepWay up = StepWay::Up;
constexpr StepWay down = StepWay::Down;
constexpr i16 orderMax = 21;

// As if parts had been tuned.
Diplexer Frozen(i16 mode = 1) {
  Diplexer d;
  d.DipMode = mode;
  d.DipOrder = mode == 1 ? 3 : 2;
  d.DipRipple = 0.1F;
  d.DipZ = 50;
  d.DipCrossover = 1e6F;
  d.DipFlower = 9.5e6F;
  d.DipFupper = 10.5e6F;
  DesignDiplexer(d);
  d.DipFrozen = 1;
  return d;
}

TEST(DiplexerTuning, TheOrderGoesFromOneToTen) {
  Diplexer d = Frozen();
  EXPECT_TRUE(StepDipOrder(d, up, orderMax));
  EXPECT_EQ(d.DipOrder, 4);
  EXPECT_EQ(d.DipFrozen, 0);
  d.DipOrder = 10;
  d.DipFrozen = 1;
  EXPECT_FALSE(StepDipOrder(d, up, orderMax));
  EXPECT_EQ(d.DipOrder, 10);
  EXPECT_EQ(d.DipFrozen, 1);  // a step at its limit is none
  d.DipOrder = 2;
  EXPECT_TRUE(StepDipOrder(d, down, orderMax));
  EXPECT_FALSE(StepDipOrder(d, down, orderMax));
  EXPECT_EQ(d.DipOrder, 1);
}

TEST(DiplexerTuning, TheOrderStaysBelowThatOfTheProgram) {
  Diplexer d = Frozen();
  d.DipOrder = 7;
  EXPECT_FALSE(StepDipOrder(d, up, 7));
  EXPECT_TRUE(StepDipOrder(d, down, 7));
}

TEST(DiplexerTuning, AnOrderThatIsTypedIsHeld) {
  Diplexer d = Frozen();
  EXPECT_TRUE(SetDipOrder(d, 99, orderMax));
  EXPECT_EQ(d.DipOrder, 10);
  EXPECT_TRUE(SetDipOrder(d, 0, orderMax));
  EXPECT_EQ(d.DipOrder, 1);
  d.DipFrozen = 1;
  EXPECT_FALSE(SetDipOrder(d, 1, orderMax));
  EXPECT_EQ(d.DipFrozen, 1);
}

TEST(DiplexerTuning, TheCrossoverStepsByAHundredth) {
  Diplexer d = Frozen();
  EXPECT_TRUE(StepCrossover(d, up));
  EXPECT_EQ(d.DipCrossover, 1.01e6F);
  EXPECT_EQ(d.DipFrozen, 0);
  EXPECT_TRUE(StepCrossover(d, down));
  EXPECT_EQ(d.DipCrossover, 1e6F);
  d.DipCrossover = 9.95e9F;
  EXPECT_TRUE(StepCrossover(d, up));
  EXPECT_EQ(d.DipCrossover, 1e10F);
  d.DipFrozen = 1;
  EXPECT_FALSE(StepCrossover(d, up));
  d.DipCrossover = 10.05F;
  EXPECT_TRUE(StepCrossover(d, down));
  EXPECT_EQ(d.DipCrossover, 10);
  d.DipFrozen = 1;
  EXPECT_FALSE(StepCrossover(d, down));
  EXPECT_EQ(d.DipFrozen, 1);
}

TEST(DiplexerTuning, TheRippleStepsByATenth) {
  Diplexer d = Frozen();
  EXPECT_TRUE(StepDipRipple(d, up));
  EXPECT_FLOAT_EQ(d.DipRipple, 0.11F);
  EXPECT_EQ(d.DipFrozen, 0);
  EXPECT_TRUE(StepDipRipple(d, down));
  EXPECT_FLOAT_EQ(d.DipRipple, 0.1F);
  d.DipRipple = 2.9F;
  EXPECT_TRUE(StepDipRipple(d, up));
  EXPECT_EQ(d.DipRipple, 3);
  EXPECT_FALSE(StepDipRipple(d, up));
  d.DipRipple = 0.000105F;
  EXPECT_TRUE(StepDipRipple(d, down));
  EXPECT_EQ(d.DipRipple, 0.0001F);
  EXPECT_FALSE(StepDipRipple(d, down));
}

TEST(DiplexerTuning, TheLowerEdgeStopsBelowTheUpperOne) {
  Diplexer d = Frozen(2);
  EXPECT_TRUE(StepLowerEdge(d, up));
  EXPECT_FLOAT_EQ(d.DipFlower, 9.595e6F);
  EXPECT_EQ(d.DipFrozen, 0);
  d.DipFupper = 100;
  d.DipFlower = 99;  // 0.99 of the upper one to the bit
  d.DipFrozen = 1;
  EXPECT_FALSE(StepLowerEdge(d, up));
  EXPECT_EQ(d.DipFlower, 99);
  EXPECT_EQ(d.DipFrozen, 1);
  d.DipFlower = 98.9F;
  EXPECT_TRUE(StepLowerEdge(d, up));
  EXPECT_FLOAT_EQ(d.DipFlower, 99.889F);
  EXPECT_TRUE(StepLowerEdge(d, down));
  EXPECT_FLOAT_EQ(d.DipFlower, 98.9F);
  d.DipFlower = 0.1F;
  EXPECT_FALSE(StepLowerEdge(d, down));
}

TEST(DiplexerTuning, TheUpperEdgeStaysAHundredthAboveTheLowerOne) {
  Diplexer d = Frozen(2);
  EXPECT_TRUE(StepUpperEdge(d, up));
  EXPECT_FLOAT_EQ(d.DipFupper, 10.605e6F);
  EXPECT_EQ(d.DipFrozen, 0);
  d.DipFlower = 100;
  d.DipFupper = 102.02F;
  EXPECT_TRUE(StepUpperEdge(d, down));
  EXPECT_FLOAT_EQ(d.DipFupper, 102.02F / 1.01F);
  d.DipFupper = 102;  // a step would come to 100.99
  d.DipFrozen = 1;
  EXPECT_FALSE(StepUpperEdge(d, down));
  EXPECT_EQ(d.DipFupper, 102);
  EXPECT_EQ(d.DipFrozen, 1);
  d.DipFupper = 1e10F;
  EXPECT_FALSE(StepUpperEdge(d, up));
}

// Neighbours in the E24 series by ratio, from the worked values of both pairs.
TEST(DiplexerTuning, CapacitorsBecomeThoseOfTheSeries) {
  Diplexer d = Frozen();
  d.DipFrozen = 0;
  const Diplexer before = d;
  RoundDipCapacitors(d);
  EXPECT_EQ(d.DipFrozen, 1);
  EXPECT_EQ(d.DipLowElem[2], 4.7e-9F);   // from 4.829 nF
  EXPECT_EQ(d.DipHighElem[1], 2.2e-9F);  // from 2.1034 nF
  EXPECT_EQ(d.DipHighElem[3], 4.3e-9F);  // from 4.4431 nF
  EXPECT_EQ(d.DipLowElem[1], before.DipLowElem[1]);
  EXPECT_EQ(d.DipLowElem[3], before.DipLowElem[3]);
  EXPECT_EQ(d.DipHighElem[2], before.DipHighElem[2]);

  Diplexer bands = Frozen(2);
  const Diplexer bandsBefore = bands;
  RoundDipCapacitors(bands);
  EXPECT_EQ(bands.DipBpC[1], 22e-12F);  // from 22.714 pF
  EXPECT_EQ(bands.DipBpC[2], 2.7e-9F);  // from 2.6073 nF
  EXPECT_EQ(bands.DipBsC[1], 2.2e-9F);  // from 2.2657 nF
  EXPECT_EQ(bands.DipBsC[2], 27e-12F);  // from 26.138 pF
  EXPECT_EQ(bands.DipBpL[1], bandsBefore.DipBpL[1]);
  EXPECT_EQ(bands.DipBsL[2], bandsBefore.DipBsL[2]);
  EXPECT_EQ(bands.DipLowElem[2], bandsBefore.DipLowElem[2]);  // the arms of the other mode
}

TEST(DiplexerTuning, APartStepsByAHundredthAndStaysSo) {
  Diplexer d = Frozen();
  d.DipFrozen = 0;
  const f32 before = d.DipLowElem[1];
  EXPECT_TRUE(StepDipPart(d, d.DipLowElem[1], up));
  EXPECT_FLOAT_EQ(d.DipLowElem[1], before * 1.01F);
  EXPECT_EQ(d.DipFrozen, 1);
  DesignDiplexer(d);
  EXPECT_FLOAT_EQ(d.DipLowElem[1], before * 1.01F);
  EXPECT_TRUE(StepDipPart(d, d.DipLowElem[1], down));
  EXPECT_FLOAT_EQ(d.DipLowElem[1], before);
  EXPECT_TRUE(StepDipOrder(d, up, orderMax));
  DesignDiplexer(d);
  EXPECT_TRUE(StepDipOrder(d, down, orderMax));
  DesignDiplexer(d);
  EXPECT_EQ(d.DipLowElem[1], before);
}

TEST(DiplexerTuning, APartKeepsWithinTheRangeOfNumbers) {
  Diplexer d = Frozen();
  d.DipFrozen = 0;
  for (f32 edge : {0.0F, std::numeric_limits<f32>::max(), std::numeric_limits<f32>::min()}) {
    f32 part = edge;
    EXPECT_FALSE(StepDipPart(d, part, edge > 1 ? up : down));
    EXPECT_EQ(part, edge);
  }
  EXPECT_EQ(d.DipFrozen, 0);
}

}  // namespace
}  // namespace quilm
