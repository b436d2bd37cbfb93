#include "display/PlotScaling.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

#include "core/Responses.h"

namespace quilm {
namespace {

class Scaling : public testing::Test {
 protected:
  void AutoScaleTo(int last) { AutoScale(scales, SpansOf(*responses, last)); }

  PlotScales scales;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
};

TEST_F(Scaling, TakesTheExtremesOfTheResponse) {
  responses->RespTrans[4] = -80;
  responses->RespVSWR[2] = 12;
  responses->RespZin[3] = 345;
  responses->RespDelay[1] = 9e-6F;
  AutoScaleTo(4);
  EXPECT_EQ(scales.LossBottom, -80);
  EXPECT_EQ(scales.DelayTop, 9e-6F);
  EXPECT_EQ(scales.VSWRTop, 7);
  EXPECT_EQ(scales.ImpedanceTop, 345);
}

TEST_F(Scaling, PointsBehindTheSweepDoNotCount) {
  responses->RespTrans[4] = -80;
  responses->RespZin[5] = 345;
  AutoScaleTo(4);
  EXPECT_EQ(scales.LossBottom, -80);
  EXPECT_EQ(scales.ImpedanceTop, 0);
}

TEST_F(Scaling, LeavesNoLossScaleForAResponseThatNeverFalls) {
  responses->RespTrans.Fill(1);
  scales.LossBottom = -60;
  AutoScaleTo(4);
  EXPECT_EQ(scales.LossBottom, 0);
}

TEST_F(Scaling, LossBottomIsHeldBeforePlotsInDecibels) {
  for (const i16 code : std::initializer_list<i16>{1, 2, 3, 4, 9, 11, 12, 13}) {
    scales.PlotCode = code;
    scales.LossBottom = -0.29F;
    HoldLossBottom(scales);
    EXPECT_EQ(scales.LossBottom, -0.3F) << code;
    scales.LossBottom = -40;
    HoldLossBottom(scales);
    EXPECT_EQ(scales.LossBottom, -40) << code;
  }
}

TEST_F(Scaling, LossBottomIsLeftAloneBeforeOtherPlots) {
  for (const i16 code : std::initializer_list<i16>{5, 6, 7, 10}) {
    scales.PlotCode = code;
    scales.LossBottom = 0;
    HoldLossBottom(scales);
    EXPECT_EQ(scales.LossBottom, 0) << code;
  }
}

}  // namespace
}  // namespace quilm
