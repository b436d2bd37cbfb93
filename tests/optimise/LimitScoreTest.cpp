#include "optimise/LimitScore.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <vector>

#include "core/Responses.h"

namespace quilm {
namespace {

enum PlotType { Transmission = 1, Return, Angle, Delay, VSWR, Impedance };

// Five points at 1, 2, 3, 4 and 5 Hz, where every response is 0 unless a test sets it.
class Score : public testing::Test {
 protected:
  // An area of the plot type; the edge that its shape does not test is far on the other side.
  void AddArea(PlotType type, f32 shape, f32 start, f32 stop, f32 edge) {
    const int j = ++limits.LimitCount[type];
    const bool isFloor = static_cast<int>(shape) % 2 == 1;
    limits.LimitShape[j][type] = shape;
    limits.LimitStart[j][type] = start;
    limits.LimitStop[j][type] = stop;
    limits.LimitTop[j][type] = isFloor ? edge : 1e6F;
    limits.LimitBottom[j][type] = isFloor ? -1e6F : edge;
  }

  static void Set(ResponseArray& array, const std::vector<f32>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) array[static_cast<int>(i)] = values[i];
  }

  LimitScore Make() const { return {limits, DelayTop, frequencies}; }
  f32 Error() const { return Make().GetError(*responses); }

  std::vector<f32> frequencies{1, 2, 3, 4, 5};
  f32 DelayTop = 1;
  LimitsAndMarkers limits;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
};

TEST_F(Score, NoAreaGivesNoError) {
  EXPECT_EQ(Error(), 0);
  EXPECT_FALSE(Make().HasPoints());
  EXPECT_TRUE(Make().IsMet(*responses));
}

// |-3| - |-5| = -2, of which the magnitude counts.
TEST_F(Score, AFloorCountsByHowMuchTheResponseLiesBelowIt) {
  AddArea(Transmission, 5, 2, 4, -3);
  Set(responses->RespTrans, {-5, -5, -3, -2, -5});
  EXPECT_EQ(Error(), 2);
}

TEST_F(Score, ACeilingCountsByHowMuchTheResponseLiesAboveIt) {
  AddArea(Transmission, 6, 1, 5, -40);
  Set(responses->RespTrans, {-40, -41, -39, -30, -100});
  EXPECT_EQ(Error(), 1 + 10);
}

// Of shapes 1, 3 and 5 alike, and of 2, 4 and 6.
TEST_F(Score, TheShapeSaysWhichEdgeIsTested) {
  for (const f32 shape : {1.0F, 3.0F, 5.0F}) {
    limits = {};
    AddArea(Return, shape, 1, 5, -10);
    Set(responses->RespReturn, {-11, -11, -11, -11, -11});
    EXPECT_EQ(Error(), 5) << shape;
    Set(responses->RespReturn, {-9, -9, -9, -9, -9});
    EXPECT_EQ(Error(), 0) << shape;
  }
  for (const f32 shape : {2.0F, 4.0F, 6.0F}) {
    limits = {};
    AddArea(Return, shape, 1, 5, -10);
    Set(responses->RespReturn, {-9, -9, -9, -9, -9});
    EXPECT_EQ(Error(), 5) << shape;
    Set(responses->RespReturn, {-11, -11, -11, -11, -11});
    EXPECT_EQ(Error(), 0) << shape;
  }
}

TEST_F(Score, SingleFrequenciesAndPointsBoundNothing) {
  for (const f32 shape : {7.0F, 8.0F, 9.0F}) AddArea(Transmission, shape, 2, 2, -3);
  Set(responses->RespTrans, {-90, -90, -90, -90, -90});
  EXPECT_EQ(Error(), 0);
  EXPECT_FALSE(Make().HasPoints());
}

TEST_F(Score, BothEndsOfAnAreaBelongToIt) {
  AddArea(Transmission, 5, 2, 4, 0);
  Set(responses->RespTrans, {-1, -10, -100, -1000, -10000});
  EXPECT_EQ(Error(), 1110);
  frequencies = {1, std::nextafter(2.0F, 3.0F), 3, std::nextafter(4.0F, 3.0F), 5};
  EXPECT_EQ(Error(), 1110);
  frequencies = {1, std::nextafter(2.0F, 1.0F), 3, std::nextafter(4.0F, 5.0F), 5};
  EXPECT_EQ(Error(), 100);
}

TEST_F(Score, NoPointLiesInAnAreaWithSwappedEdges) {
  AddArea(Transmission, 5, 4, 2, 0);
  Set(responses->RespTrans, {-1, -1, -1, -1, -1});
  EXPECT_EQ(Error(), 0);
  EXPECT_FALSE(Make().HasPoints());
}

TEST_F(Score, AnAreaBetweenTwoPointsHasNone) {
  AddArea(Transmission, 5, 2.25F, 2.75F, 0);
  Set(responses->RespTrans, {-1, -1, -1, -1, -1});
  EXPECT_EQ(Error(), 0);
}

TEST_F(Score, ASweepThatFallsIsScoredAlike) {
  AddArea(Transmission, 5, 2, 4, 0);
  frequencies = {5, 4, 3, 2, 1};
  Set(responses->RespTrans, {-1, -10, -100, -1000, -10000});
  EXPECT_EQ(Error(), 1110);
}

// Whichever plot is on display. Each response misses by another power of two.
TEST_F(Score, AllPlotTypesCount) {
  AddArea(Transmission, 5, 3, 3, -1);
  AddArea(Return, 6, 3, 3, -8);
  AddArea(Angle, 6, 3, 3, 10);
  AddArea(Delay, 6, 3, 3, 1);
  AddArea(VSWR, 6, 3, 3, 2);
  AddArea(Impedance, 5, 3, 3, 64);
  DelayTop = 100;  // 1 second is then one per cent
  responses->RespTrans[2] = -2;
  responses->RespReturn[2] = -6;
  responses->RespAngle[2] = 14;
  responses->RespDelay[2] = 9;
  responses->RespVSWR[2] = 18;
  responses->RespZin[2] = 32;
  EXPECT_EQ(Error(), 1 + 2 + 4 + 8 + 16 + 32);
}

// |10n| - |14n| = 4 ns; times 100 over 50 ns: 8.
TEST_F(Score, DelaysCountInPerCentOfTheScale) {
  DelayTop = 50e-9F;
  AddArea(Delay, 6, 3, 3, 10e-9F);
  responses->RespDelay[2] = 14e-9F;
  EXPECT_FLOAT_EQ(Error(), 8);
}

TEST_F(Score, AScaleOfNoHeightMakesADelayInfinitelyWrongAndARightOneNone) {
  DelayTop = 0;
  AddArea(Delay, 6, 3, 3, 10e-9F);
  responses->RespDelay[2] = 10e-9F;
  EXPECT_EQ(Error(), 0);
  responses->RespDelay[2] = 14e-9F;
  EXPECT_EQ(Error(), std::numeric_limits<f32>::infinity());
}

// The difference of the magnitudes, not the magnitude of the difference.
TEST_F(Score, AResponseOnTheOtherSideOfZeroCountsByItsMagnitude) {
  AddArea(Angle, 5, 3, 3, 2);
  responses->RespAngle[2] = -2;
  EXPECT_EQ(Error(), 0);
  EXPECT_FALSE(Make().IsMet(*responses));
  responses->RespAngle[2] = -5;
  EXPECT_EQ(Error(), 3);
}

TEST_F(Score, AreasThatOverlapCountEach) {
  AddArea(Transmission, 5, 1, 3, -1);
  AddArea(Transmission, 5, 2, 5, -2);
  Set(responses->RespTrans, {-4, -4, -4, -4, -4});
  EXPECT_EQ(Error(), 3 * 3 + 4 * 2);
}

// 2^24 + 1 is no number of 32 bits: the 1 is lost at each addition, where a sum in 64 bits would have 4 more.
TEST_F(Score, EachAdditionIsRoundedTo32Bits) {
  AddArea(Impedance, 6, 1, 5, 0);
  Set(responses->RespZin, {16777216, 1, 1, 1, 1});
  EXPECT_EQ(Error(), 16777216);
  Set(responses->RespZin, {1, 1, 1, 1, 16777216});
  EXPECT_EQ(Error(), 16777220);
}

// Point by point, then type by type: at 1 Hz the 1 of the transmission is lost after the 2^24 of the point before, and
// stays when types were summed up one after the other.
TEST_F(Score, TheSumGoesPointByPoint) {
  AddArea(Transmission, 5, 1, 5, 0);
  AddArea(Impedance, 6, 1, 5, 0);
  Set(responses->RespTrans, {-1, -1, -1, 0, 0});
  Set(responses->RespZin, {16777216, 0, 0, 0, 0});
  EXPECT_EQ(Error(), 16777216);
}

TEST_F(Score, IsMetWhenNoPointLiesOutside) {
  AddArea(Transmission, 5, 2, 4, -3);
  AddArea(Transmission, 6, 5, 5, -40);
  Set(responses->RespTrans, {-90, -3, -3, -3, -40});
  EXPECT_TRUE(Make().IsMet(*responses));
  responses->RespTrans[4] = std::nextafter(-40.0F, 0.0F);
  EXPECT_FALSE(Make().IsMet(*responses));
}

TEST_F(Score, MoreAreasThanThereIsRoomForAreAFault) {
  limits.LimitCount[Delay] = limitsPerPlot + 1;
  for (int j = 1; j <= limitsPerPlot; ++j) limits.LimitShape[j][Delay] = 1;
  EXPECT_THROW(Make(), BoundFault);
}

TEST_F(Score, AreasOfAllTypesAndShapesAreCounted) {
  EXPECT_EQ(LimitAreas(limits), 0);
  AddArea(Transmission, 5, 1, 2, 0);
  AddArea(Transmission, 9, 1, 1, 0);
  AddArea(Impedance, 6, 1, 2, 0);
  EXPECT_EQ(LimitAreas(limits), 3);
}

// The plain rule, point by point over all areas, for random limits and responses.
f32 PlainError(const LimitsAndMarkers& limits, const Responses& r, f32 DelayTop, const std::vector<f32>& frequencies) {
  f32 sum = 0;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    const int at = static_cast<int>(i);
    const f32 y[] = {
        0, r.RespTrans[at], r.RespReturn[at], r.RespAngle[at], r.RespDelay[at], r.RespVSWR[at], r.RespZin[at]};
    for (int p = 1; p <= 6; ++p) {
      for (int j = 1; j <= limits.LimitCount[p]; ++j) {
        const bool within = frequencies[i] >= limits.LimitStart[j][p] && frequencies[i] <= limits.LimitStop[j][p];
        const int shape = static_cast<int>(limits.LimitShape[j][p]);
        f32 e = 0;
        if (within && (shape == 1 || shape == 3 || shape == 5) && y[p] < limits.LimitTop[j][p]) {
          e = std::abs(limits.LimitTop[j][p]) - std::abs(y[p]);
        }
        if (within && (shape == 2 || shape == 4 || shape == 6) && y[p] > limits.LimitBottom[j][p]) {
          e = std::abs(limits.LimitBottom[j][p]) - std::abs(y[p]);
        }
        if (p == 4) e = static_cast<f32>(static_cast<f64>(e) * 100 / static_cast<f64>(DelayTop));
        sum += std::abs(e);
      }
    }
  }
  return sum;
}

TEST_F(Score, IsThePlainRulesToTheBitForAnyAreas) {
  std::mt19937 random(7);
  std::uniform_real_distribution<f32> value(-100, 100);
  std::uniform_real_distribution<f32> frequency(0, 105);
  std::uniform_int_distribution<int> shape(1, 9);
  std::uniform_int_distribution<int> count(0, limitsPerPlot);
  frequencies.clear();
  for (int i = 1; i <= 100; ++i) frequencies.push_back(static_cast<f32>(i));
  for (int round = 0; round < 50; ++round) {
    for (int type = 1; type <= plotTypes; ++type) {
      limits.LimitCount[type] = 0;
      const int areas = count(random);
      for (int j = 0; j < areas; ++j) {
        AddArea(static_cast<PlotType>(type), static_cast<f32>(shape(random)), frequency(random), frequency(random),
                value(random));
      }
    }
    for (ResponseArray* array : {&responses->RespTrans, &responses->RespReturn, &responses->RespAngle,
                                 &responses->RespDelay, &responses->RespVSWR, &responses->RespZin}) {
      for (int i = 0; i < 100; ++i) (*array)[i] = value(random);
    }
    DelayTop = 3;
    EXPECT_EQ(Error(), PlainError(limits, *responses, DelayTop, frequencies)) << "round " << round;
  }
}

}  // namespace
}  // namespace quilm
