#include "display/PlotFrame.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "core/Fault.h"

namespace quilm {
namespace {

TEST(FrameX, GoesFromTheLeftEdgeToTheRight) {
  EXPECT_EQ(FrameX(0), 2000);
  EXPECT_EQ(FrameX(0.5), 6500);
  EXPECT_EQ(FrameX(1), 11000);
  EXPECT_EQ(FrameX(0.25, PlotBox{100, 0, 400, 10}), 200);
}

TEST(FrameY, MapsTopAndBottomToTheFrame) {
  EXPECT_EQ(FrameY({0, -60}, 0), 1000);
  EXPECT_EQ(FrameY({0, -60}, -60), 7000);
  EXPECT_EQ(FrameY({0, -60}, -15), 2500);
  EXPECT_EQ(FrameY({180, -180}, 0), 4000);
  EXPECT_EQ(FrameY({7, 1}, 1), 7000);
  EXPECT_EQ(FrameY({1200, -1200}, 600), 2500);
}

TEST(FrameY, ATraceRidesAlongTheEdges) {
  EXPECT_EQ(FrameY({0, -60}, -75), 7000);
  EXPECT_EQ(FrameY({0, -60}, 3), 1000);
}

TEST(FrameY, AScaleWithoutHeightFaults) { EXPECT_THROW(FrameY({2, 2}, 1), NumericFault); }

TEST(FramePoints, AreThoseOfTheirPlacesAndValuesOneByOne) {
  const std::array<f64, 4> places = {0, 0.2, 0.7, 1};
  const std::array<f32, 4> values = {-3, 0, -22.5F, -75};
  const PlotBox box{1300, 1000, 2300, 2000};
  const std::vector<Point> points = FramePoints(places, {0, -60}, values, box);
  ASSERT_EQ(points.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(points[i], (Point{FrameX(places[i], box), FrameY({0, -60}, values[i], box)})) << i;
  }
}

TEST(FramePoints, WhatLiesBeyondTheAxisStandsOnItsEdge) {
  const std::array<f64, 3> places = {-0.1, 0.5, 1.1};
  const std::array<f32, 3> values = {0, -30, -60};
  EXPECT_EQ(FramePoints(places, {0, -60}, values), (std::vector<Point>{{2000, 1000}, {6500, 4000}, {11000, 7000}}));
}

// A third is not a number of 32 bits: 1000 + 6000 / 3 is met only when it has not been rounded to one before.
TEST(FramePoints, ValuesIn64BitsAreNotRoundedBefore) {
  const std::array<f64, 1> places = {0};
  const std::array<f64, 1> values = {-1e6 - 1.0 / 3};
  EXPECT_EQ(FramePoints(places, {-1e6F, -1e6F - 1}, values)[0].y, 3000);
}

TEST(FramePoints, AScaleWithoutHeightFaults) {
  const std::array<f64, 1> places = {0};
  const std::array<f32, 1> values = {1};
  EXPECT_THROW(FramePoints(places, {2, 2}, values), NumericFault);
}

}  // namespace
}  // namespace quilm
