#include "display/OverlayCurves.h"

#include <gtest/gtest.h>

#include "core/Fault.h"
#include "display/PlotKinds.h"

namespace quilm {
namespace {

using Q = Quantity;

// 1 kHz to 10 MHz in four decades of 2250 units; 60 dB and 100 ohms over 6000.
class OverlayCurves : public testing::Test {
 protected:
  OverlayCurves()
      : setup{.axis = HorizontalAxis(AxisSettings{true, 1e3F, 1e7F}), .scales = {}, .colors = {}, .chart = {}} {
    setup.scales.LossBottom = -60;
    setup.scales.DelayTop = 6e-6F;
    setup.scales.VSWRTop = 7;
    setup.scales.ImpedanceTop = 100;
    setup.scales.SmithAspect = 1;
    setup.reference = 50;
  }

  std::vector<PolylineOp> Drawn(i16 code, const StoredCurves& curves) {
    setup.scales.PlotCode = code;
    Picture picture(plotScale);
    DrawOverlay(setup, curves, picture);
    std::vector<PolylineOp> lines;
    for (const PictureOp& operation : picture.Operations()) lines.push_back(std::get<PolylineOp>(operation));
    return lines;
  }
  static void ExpectAt(Point at, f32 x, f32 y) {
    EXPECT_NEAR(at.x, x, 1);
    EXPECT_NEAR(at.y, y, 1);
  }

  PlotSetup setup;
};

TEST(OverlaidQuantities, AreWhatThePlotShows) {
  const std::pair<i16, std::vector<Q>> files[] = {{1, {Q::Transmission}},
                                                  {2, {Q::Transmission, Q::Return}},
                                                  {3, {Q::Angle, Q::Transmission}},
                                                  {4, {Q::Delay, Q::Transmission}},
                                                  {5, {Q::VSWR}},
                                                  {13, {Q::VSWR, Q::Transmission}},
                                                  {6, {Q::Zin}},
                                                  {7, {Q::Zin, Q::ZinAngle}},
                                                  {9, {Q::Zin, Q::Transmission}},
                                                  {10, {Q::Zin, Q::ZinAngle}},
                                                  {11, {Q::Zin, Q::ZinAngle}},
                                                  {12, {Q::Transmission, Q::Angle}}};
  for (const auto& [code, quantities] : files) EXPECT_EQ(OverlaidQuantities(code), quantities) << code;
  EXPECT_THROW(OverlaidQuantities(8), Fault);
}

TEST_F(OverlayCurves, LieWhereTheirFrequenciesFall) {
  const auto lines = Drawn(1, {{Q::Transmission, {{1e2F, 1e4F, 1e6F, 1e9F}, {-10, -30, 6, -90}}}});
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].pen.color, colorBlue);
  ASSERT_EQ(lines[0].points.size(), 5U);  // it begins with a line of no length
  ExpectAt(lines[0].points[1], 2000, 2000);
  ExpectAt(lines[0].points[2], 4250, 4000);
  ExpectAt(lines[0].points[3], 8750, 1000);
  ExpectAt(lines[0].points[4], 11000, 7000);
}

TEST_F(OverlayCurves, HaveTheColourThatTheQuantityHasOnThePlot) {
  const StoredCurves curves = {{Q::Transmission, {{1e4F, 1e5F}, {-30, -30}}}, {Q::Angle, {{1e4F, 1e5F}, {90, 90}}}};
  const auto lines = Drawn(3, curves);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].pen.color, colorBlue);
  EXPECT_NEAR(lines[0].points[0].y, 2500, 1);
  EXPECT_EQ(lines[1].pen.color, colorRed);
  EXPECT_NEAR(lines[1].points[0].y, 4000, 1);
}

TEST_F(OverlayCurves, AreNotMagnified) {
  setup.scales.MagnifyMode = 1;
  EXPECT_EQ(Drawn(1, {{Q::Transmission, {{1e4F, 1e5F}, {-30, -30}}}}).size(), 1U);
}

// 100 ohms at 60 degrees: 50 + j 86.6.
TEST_F(OverlayCurves, RealAndImaginaryPartGoAsFarAsBothFiles) {
  const auto lines =
      Drawn(10, {{Q::Zin, {{1e3F, 1e5F, 1e7F}, {100, 100, 100}}}, {Q::ZinAngle, {{1e3F, 1e5F}, {60, 60}}}});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].points.size(), 3U);
  ExpectAt(lines[0].points[2], 6500, 4000);
  ExpectAt(lines[1].points[2], 6500, 4000 - 86.6F * 30);
}

// 150 ohms against 50: a reflection of 1/2 to the right of the centre.
TEST_F(OverlayCurves, TheSmithChartShowsTheReflection) {
  const auto lines = Drawn(11, {{Q::Zin, {{1e4F, 1e5F}, {150, 50}}}, {Q::ZinAngle, {{1e4F, 1e5F}, {0, 0}}}});
  ASSERT_EQ(lines.size(), 1U);
  ExpectAt(lines[0].points.front(), 8000, 4000);
  ExpectAt(lines[0].points.back(), 6500, 4000);
}

// 6.0206 dB down is a half; at 90 degrees it stands straight above the centre.
TEST_F(OverlayCurves, ThePolarPlotShowsTheTransmission) {
  const auto lines =
      Drawn(12, {{Q::Transmission, {{1e4F, 1e5F}, {-6.0206F, 0}}}, {Q::Angle, {{1e4F, 1e5F}, {90, 180}}}});
  ASSERT_EQ(lines.size(), 1U);
  ExpectAt(lines[0].points.front(), 6500, 2500);
  ExpectAt(lines[0].points.back(), 3500, 4000);
}

}  // namespace
}  // namespace quilm
