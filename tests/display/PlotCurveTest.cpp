#include "display/PlotCurve.h"

#include <gtest/gtest.h>

#include <array>

#include "core/Fault.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

class CurveDrawing : public testing::Test {
 protected:
  PolylineOp Drawn(const HorizontalAxis& axis, const ValueScale& scale) {
    Picture picture;
    DrawCurve({frequencies, std::span<const f32>(values)}, scale, 0x123456, {axis, places}, picture);
    return std::get<PolylineOp>(picture.Operations().at(0));
  }

  static HorizontalAxis Linear(f32 start, f32 stop) { return HorizontalAxis(AxisSettings{false, start, stop}); }

  std::array<f32, 3> frequencies = {0, 1, 2};
  std::array<f32, 3> values = {0, -30, -60};
  AxisPlaces places;
};

TEST_F(CurveDrawing, BeginsWithALineOfNoLength) {
  const PolylineOp line = Drawn(Linear(0, 2), {0, -60});
  EXPECT_EQ(line.points, (std::vector<Point>{{2000, 1000}, {2000, 1000}, {6500, 4000}, {11000, 7000}}));
  EXPECT_EQ(line.pen.color, 0x123456U);
}

// The same frequencies on another axis, other frequencies on the same axis: nothing of the curve before stays.
TEST_F(CurveDrawing, EachCurveLiesWhereItsOwnFrequenciesFall) {
  Drawn(Linear(0, 2), {0, -60});
  EXPECT_EQ(Drawn(Linear(0, 4), {0, -60}).points[2].x, 4250);
  frequencies[1] = 2;
  EXPECT_EQ(Drawn(Linear(0, 4), {0, -60}).points[2].x, 6500);
}

TEST_F(CurveDrawing, NothingIsDrawnForACurveWithoutPoints) {
  Picture picture;
  DrawCurve({{}, std::span<const f32>()}, {0, -60}, 0, {Linear(0, 2), places}, picture);
  EXPECT_TRUE(picture.Empty());
}

TEST_F(CurveDrawing, AScaleWithoutHeightOrAnAxisWithoutWidthFaults) {
  EXPECT_THROW(Drawn(Linear(0, 2), {5, 5}), NumericFault);
  EXPECT_THROW(Drawn(Linear(2, 2), {0, -60}), NumericFault);
}

}  // namespace
}  // namespace quilm
