#include "display/ResponseCurves.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/Fault.h"
#include "core/Responses.h"

namespace quilm {
namespace {

class ResponseCurve : public testing::Test {
 protected:
  ResponseCurve() {
    responses->RespFreq[1] = 1e6F;
    responses->RespTrans[1] = -2;
    responses->RespAngle[1] = 3;
    responses->RespDelay[1] = 4;
    responses->RespReturn[1] = -5;
    responses->RespVSWR[1] = 6;
    responses->RespZin[1] = 60;
    responses->RespZinAngle[1] = 30;
  }

  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
};

// 60 ohms at 30 degrees are 51.9615 + 30j ohms.
constexpr std::pair<Quantity, f64> expectedValues[] = {
    {Quantity::Transmission, -2}, {Quantity::TransmissionTimes10, -2},
    {Quantity::Return, -5},       {Quantity::Angle, 3},
    {Quantity::Delay, 4},         {Quantity::VSWR, 6},
    {Quantity::Zin, 60},          {Quantity::ZinAngle, 30},
    {Quantity::Real, 51.961524},  {Quantity::Imaginary, 30}};

TEST_F(ResponseCurve, EveryQuantityIsReadFromItsArray) {
  const ResponseSpans spans = SpansOf(*responses, 1);
  for (const auto& [quantity, value] : expectedValues) {
    EXPECT_NEAR(ValueOf(spans, quantity, 1), value, 1e-5) << static_cast<int>(quantity);
  }
}

TEST_F(ResponseCurve, TheCurveOfAQuantityHasItsValues) {
  const ResponseSpans spans = SpansOf(*responses, 1);
  std::vector<f64> derived;
  for (const auto& [quantity, value] : expectedValues) {
    const Curve curve = CurveOf(spans, quantity, derived);
    EXPECT_EQ(curve.frequencies.size(), 2U);
    std::visit([&, expected = value](const auto& values) { EXPECT_NEAR(values[1], expected, 1e-5); }, curve.values);
  }
}

TEST_F(ResponseCurve, WhatTheResponsesHoldIsNotCopied) {
  std::vector<f64> derived;
  const Curve curve = CurveOf(SpansOf(*responses, 1), Quantity::Delay, derived);
  EXPECT_EQ(std::get<std::span<const f32>>(curve.values).data(), responses->RespDelay.data());
  EXPECT_TRUE(derived.empty());
}

TEST_F(ResponseCurve, HoldsThePointsUpToTheLast) {
  EXPECT_EQ(SpansOf(*responses, 0).Count(), 1U);
  EXPECT_EQ(SpansOf(*responses, responseBound).Count(), 2050U);
  EXPECT_THROW(SpansOf(*responses, responseBound + 1), BoundFault);
  EXPECT_THROW(SpansOf(*responses, -1), BoundFault);
}

// The extremes stand in place of the responses, each quantity in its own.
TEST_F(ResponseCurve, ExtremesAreThoseOfEachQuantity) {
  Responses& r = *responses;
  const ResponseArray Responses::*max[] = {&Responses::MaxTrans,   &Responses::MaxAngle, &Responses::MaxDelay,
                                           &Responses::MaxReturn,  &Responses::MaxVSWR,  &Responses::MaxZin,
                                           &Responses::MaxZinAngle};
  const ResponseArray Responses::*min[] = {&Responses::MinTrans,   &Responses::MinAngle, &Responses::MinDelay,
                                           &Responses::MinReturn,  &Responses::MinVSWR,  &Responses::MinZin,
                                           &Responses::MinZinAngle};
  const Quantity quantities[] = {Quantity::Transmission, Quantity::Angle, Quantity::Delay,   Quantity::Return,
                                 Quantity::VSWR,         Quantity::Zin,   Quantity::ZinAngle};
  std::vector<f32> relative;
  const ResponseSpans highest = ExtremesOf(r, 9, ExtremeSelect::Max, PlotScales{}, relative);
  const ResponseSpans lowest = ExtremesOf(r, 9, ExtremeSelect::Min, PlotScales{}, relative);
  for (std::size_t k = 0; k < std::size(quantities); ++k) {
    std::vector<f64> derived;
    EXPECT_EQ(std::get<std::span<const f32>>(CurveOf(highest, quantities[k], derived).values).data(),
              (r.*max[k]).data());
    EXPECT_EQ(std::get<std::span<const f32>>(CurveOf(lowest, quantities[k], derived).values).data(),
              (r.*min[k]).data());
  }
  EXPECT_EQ(highest.Count(), 10U);
  EXPECT_EQ(ExtremesOf(r, 9, ExtremeSelect::None, PlotScales{}, relative).trans.data(), r.RespTrans.data());
}

TEST_F(ResponseCurve, RelativeExtremesLieBelowThePeak) {
  responses->MaxTrans[3] = -4;
  responses->MaxReturn[3] = -7;
  responses->TransPeak = -1.5;
  PlotScales scales;
  scales.RelativeMode = 1;
  std::vector<f32> relative;
  const ResponseSpans highest = ExtremesOf(*responses, 9, ExtremeSelect::Max, scales, relative);
  EXPECT_EQ(highest.trans[3], -2.5F);
  EXPECT_EQ(highest.returnLoss[3], -7);
  EXPECT_EQ(responses->MaxTrans[3], -4);
}

TEST(LastPoint, IsTheWholeNumberNearestToTheIntervals) {
  EXPECT_EQ(LastPoint(SweepSettings{1, 0, 1, 100}), 100);
  EXPECT_EQ(LastPoint(SweepSettings{1, 0, 1, 100.4F}), 100);
  EXPECT_THROW(LastPoint(SweepSettings{1, 0, 1, 40000}), NumericFault);
}

}  // namespace
}  // namespace quilm
