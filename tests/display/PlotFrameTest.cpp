#include "display/PlotFrame.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/Fault.h"

namespace quilm {
namespace {

DesignRecord SweepOf(i16 mode, f32 start, f32 stop) {
  DesignRecord record;
  record.SweepMode = mode;
  record.Fstart = start;
  record.Fstop = stop;
  return record;
}

TEST(FrameX, FollowsTheFrequencyInALinearSweep) {
  const DesignRecord record = SweepOf(1, 1e6F, 3e6F);
  EXPECT_EQ(FrameX(record, 1e6F), 2000);
  EXPECT_EQ(FrameX(record, 2e6F), 6500);
  EXPECT_EQ(FrameX(record, 3e6F), 11000);
}

TEST(FrameX, FollowsTheLogarithmOtherwise) {
  const DesignRecord record = SweepOf(2, 1e3F, 1e9F);
  EXPECT_NEAR(FrameX(record, 1e5F), 2000 + 9000 / 3.0, 1e-2);
  EXPECT_NEAR(FrameX(record, 1e9F), 11000, 1e-2);
}

TEST(FrameX, ASweepWithoutWidthFaults) { EXPECT_THROW(FrameX(SweepOf(1, 5, 5), 5), NumericFault); }

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

}  // namespace
}  // namespace quilm
