#include "display/LimitDrawing.h"

#include <gtest/gtest.h>

#include "display/LimitEntry.h"

namespace quilm {
namespace {

// 1 kHz to 10 MHz in four decades of 2250 units; 60 dB down to the bottom, 100 units a dB.
class LimitAreas : public testing::Test {
 protected:
  LimitAreas()
      : setup{.axis = HorizontalAxis(AxisSettings{true, 1e3F, 1e7F}), .scales = {}, .colors = {}, .chart = {}} {
    setup.scales.PlotCode = 1;
    setup.scales.LossBottom = -60;
    setup.scales.DelayTop = 1e-6F;
    setup.scales.VSWRTop = 4;
    setup.scales.ImpedanceTop = 100;
  }

  std::vector<RectangleOp> Drawn() {
    Picture picture(plotScale);
    DrawLimitAreas(setup, picture);
    std::vector<RectangleOp> boxes;
    for (const PictureOp& operation : picture.Operations()) boxes.push_back(std::get<RectangleOp>(operation));
    return boxes;
  }

  static void ExpectBox(const RectangleOp& box, f32 left, f32 top, f32 right, f32 bottom) {
    EXPECT_NEAR(box.from.x, left, 1);
    EXPECT_NEAR(box.from.y, top, 1);
    EXPECT_NEAR(box.to.x, right, 1);
    EXPECT_NEAR(box.to.y, bottom, 1);
  }

  PlotSetup setup;
};

TEST_F(LimitAreas, AnAreaIsFilledThenOutlined) {
  setup.areas = {{5, 1e4F, 1e5F, -10, -20}};
  const auto boxes = Drawn();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_TRUE(boxes[0].filled);
  EXPECT_EQ(boxes[0].pen.color, 0xE0E0FFU);
  EXPECT_EQ(boxes[0].pen.width, 1);
  EXPECT_FALSE(boxes[1].filled);
  EXPECT_EQ(boxes[1].pen.color, 0x0000CCU);
  EXPECT_EQ(boxes[1].pen.width, 3);
  for (const RectangleOp& box : boxes) ExpectBox(box, 4250, 2000, 6500, 3000);
}

TEST_F(LimitAreas, DCUpwardAndTheFarBottomEndAtTheFrame) {
  setup.areas = {{1, 0.01F, 1e4F, -30, -300}, {2, 1e6F, 1e10F, 0, -50}};
  const auto boxes = Drawn();
  ASSERT_EQ(boxes.size(), 4U);
  ExpectBox(boxes[0], 2000, 4000, 4250, 7000);
  ExpectBox(boxes[2], 8750, 1000, 11000, 6000);
}

TEST_F(LimitAreas, ExchangedEdgesAreDrawnInOrder) {
  setup.areas = {{5, 1e5F, 1e4F, -10, -20}};
  ExpectBox(Drawn().at(0), 4250, 2000, 6500, 3000);
}

TEST_F(LimitAreas, AnEdgeAtNoFrequencyIsLeftOut) {
  setup.areas = {{5, 0, 1e4F, -10, -20}, {5, 1e4F, -1, -10, -20}};
  EXPECT_TRUE(Drawn().empty());
}

TEST_F(LimitAreas, APointIsABoxAboutItsPlace) {
  setup.areas = {{9, 1e5F, 1e5F, -30, -30}};
  const auto boxes = Drawn();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_FALSE(boxes[0].filled);
  EXPECT_EQ(boxes[0].pen.color, colorRed);
  ExpectBox(boxes[0], 6470, 3970, 6530, 4030);
}

// A flat box has no picture on every surface.
TEST_F(LimitAreas, ASingleFrequencyIsALine) {
  setup.areas = {{7, 1e5F, 1e5F, -30, -300}};
  Picture picture(plotScale);
  DrawLimitAreas(setup, picture);
  const auto* line = std::get_if<PolylineOp>(&picture.Operations().back());
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->pen.color, 0x0000CCU);
  EXPECT_EQ(line->pen.width, 3);
  EXPECT_NEAR(line->points[0].y, 4000, 1);
  EXPECT_NEAR(line->points[1].y, 7000, 1);
}

TEST_F(LimitAreas, ThePenIsPutBack) {
  setup.areas = {{5, 1e4F, 1e5F, -10, -20}, {9, 1e5F, 1e5F, -30, -30}};
  Picture picture(plotScale);
  picture.DrawWidth = 1;
  DrawLimitAreas(setup, picture);
  EXPECT_EQ(picture.DrawWidth, 1);
}

// Each in the unit of its type, at the middle of its scale.
TEST_F(LimitAreas, TheScaleIsThatOfThePlotType) {
  const std::pair<i16, f32> middles[] = {{1, -30}, {2, -30}, {3, 0},  {4, 0.5e-6F}, {5, 2.5F},
                                         {6, 50},  {7, 50},  {9, 50}, {10, 50},     {13, 2.5F}};
  for (const auto& [code, middle] : middles) {
    setup.scales.PlotCode = code;
    setup.areas = {{1, 0.01F, 1e5F, middle, -1e6F}};
    ExpectBox(Drawn().at(0), 2000, 4000, 6500, 7000);
  }
}

TEST(LimitTypes, OfPlots) {
  const std::pair<i16, int> types[] = {{1, 1}, {2, 2},  {3, 3},  {4, 4},  {5, 5},  {6, 6}, {7, 6}, {8, 0},
                                       {9, 6}, {10, 6}, {11, 0}, {12, 0}, {13, 5}, {0, 0}, {14, 0}};
  for (const auto& [code, type] : types) EXPECT_EQ(LimitTypeOf(code), type) << code;
}

TEST(ShownAreas, AreThoseOfThePlotAndNoneWhileHidden) {
  LimitsAndMarkers limits;
  AddArea(limits, 6, {1, 0.01F, 1e5F, 70, 0});
  AddArea(limits, 1, {1, 0.01F, 1e5F, -3, -300});
  PlotScales scales;
  scales.PlotCode = 9;
  EXPECT_TRUE(ShownAreas(scales, limits).empty());
  limits.LimitsShown = 1;
  EXPECT_EQ(ShownAreas(scales, limits), (std::vector<LimitArea>{{1, 0.01F, 1e5F, 70, 0}}));
  scales.PlotCode = 11;
  EXPECT_TRUE(ShownAreas(scales, limits).empty());
}

// The nine shapes, from clicks at 2 kHz and 5 kHz and a value of -7 on a scale from 0 to -300.
TEST(MakeLimitArea, GivesEachShapeItsEdges) {
  const ValueScale ends{0, -300};
  const LimitArea expected[] = {{1, 0.01F, 5e3F, -7, -300}, {2, 2e3F, 1e10F, 0, -7},   {3, 2e3F, 1e10F, -7, -300},
                                {4, 0.01F, 5e3F, 0, -7},    {5, 2e3F, 5e3F, -7, -300}, {6, 2e3F, 5e3F, 0, -7},
                                {7, 2e3F, 5e3F, -7, -300},  {8, 2e3F, 5e3F, 0, -7},    {9, 2e3F, 5e3F, -7, -7}};
  for (i16 shape = 1; shape <= 9; ++shape) {
    EXPECT_EQ(MakeLimitArea(shape, 2e3F, 5e3F, -7, ends), expected[shape - 1]) << shape;
  }
}

TEST(LimitEnds, FollowTheScalesButForLosses) {
  PlotScales scales;
  scales.LossBottom = -60;
  scales.DelayTop = 2e-6F;
  scales.VSWRTop = 4;
  scales.ImpedanceTop = 90;
  const ValueScale expected[] = {{0, -300}, {0, -300}, {180, -180}, {2e-6F, 0}, {4, 1}, {90, 0}};
  for (int type = 1; type <= 6; ++type) {
    EXPECT_EQ(LimitEnds(scales, type).top, expected[type - 1].top) << type;
    EXPECT_EQ(LimitEnds(scales, type).bottom, expected[type - 1].bottom) << type;
  }
}

}  // namespace
}  // namespace quilm
