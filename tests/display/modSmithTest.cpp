#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/modSmith.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "core/Fault.h"
#include "display/ChartGrid.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

constexpr Color vswrColor = 0x6666FF;
constexpr f64 degrees = 57.29578;

class Chart : public testing::Test {
 protected:
  Chart() {
    scales.NrXints = 4;
    scales.LossBottom = -60;
    scales.SmithAspect = 1;
    for (int i = 0; i <= 4; ++i) {
      responses->RespFreq[i] = static_cast<f32>(i) * 1e6F;
      SetImpedance(i, 50, 0);
    }
  }

  void SetImpedance(int i, f64 resistance, f64 reactance) {
    responses->RespZin[i] = static_cast<f32>(std::hypot(resistance, reactance));
    responses->RespZinAngle[i] = static_cast<f32>(std::atan2(reactance, resistance) * degrees);
  }

  Picture Drawn(i16 code) {
    Picture picture;
    DrawChart(PlotOf(code), SpansOf(*responses, 4), places, picture);
    return picture;
  }

  PlotSetup PlotOf(i16 code) {
    scales.PlotCode = code;
    return {HorizontalAxis(AxisSettings{false, 0, 4e6F}), scales, {}, view, reference};
  }

  static std::vector<PolylineOp> Lines(const Picture& picture, Color color) {
    std::vector<PolylineOp> lines;
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color == color) lines.push_back(*line);
    }
    return lines;
  }

  // The blue trace on the chart; the one in the corner is drawn after it.
  PolylineOp ChartTrace(i16 code) { return Lines(Drawn(code), colorBlue).front(); }

  std::vector<std::string> Texts(i16 code) {
    std::vector<std::string> texts;
    const Picture picture = Drawn(code);
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }

  bool Shows(i16 code, const std::string& text) {
    const auto texts = Texts(code);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  PlotScales scales;
  f32 reference = 50;
  AxisPlaces places;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
  SmithView view;
};

void ExpectNear(Point p, f64 x, f64 y, f64 tolerance = 0.5) {
  EXPECT_NEAR(p.x, x, tolerance);
  EXPECT_NEAR(p.y, y, tolerance);
}

// Known points of the chart: match, short, open, and the ends of the vertical diameter at z = +-j.
TEST_F(Chart, KnownImpedancesStandAtTheirPlaces) {
  SetImpedance(1, 0, 0);
  SetImpedance(2, 0, 50);
  SetImpedance(3, 0, -50);
  SetImpedance(4, 1e9, 0);
  const PolylineOp trace = ChartTrace(smithCode);
  ASSERT_EQ(trace.points.size(), 5U);
  ExpectNear(trace.points[0], 6500, 4000, 0.01);
  ExpectNear(trace.points[1], 3500, 4000);
  ExpectNear(trace.points[2], 6500, 1000);
  ExpectNear(trace.points[3], 6500, 7000);
  ExpectNear(trace.points[4], 9500, 4000);
}

// z = 2 + j: (z - 1) / (z + 1) = (1 + j) / (3 + j) = 0.4 + 0.2j.
TEST_F(Chart, TheReflectionIsThatOfTheImpedanceOverTheReference) {
  SetImpedance(2, 200, 100);
  const Phasor s11 = InputReflection(SpansOf(*responses, 4), 100, 2);
  EXPECT_NEAR(s11.u, 0.4, 1e-6);
  EXPECT_NEAR(s11.w, 0.2, 1e-6);
}

TEST_F(Chart, AReferenceOfZeroIsAFault) {
  reference = 0;
  EXPECT_THROW(Drawn(smithCode), NumericFault);
}

TEST_F(Chart, TheZoomMultipliesDistancesFromTheCentreAndBreaksTheTrace) {
  SetImpedance(0, 100, 0);  // reflection 1/3
  SetImpedance(1, 100, 0);
  SetImpedance(2, 0, 50);
  SetImpedance(3, 100, 0);
  view.ZoomFactor = 4;
  const std::vector<PolylineOp> traces = Lines(Drawn(smithCode), colorBlue);
  // The chart's trace in two pieces, then the corner's.
  ASSERT_EQ(traces.size(), 3U);
  ExpectNear(traces[0].points[0], 6500 + 4000, 4000);
  EXPECT_EQ(traces[0].points.size(), 2U);
  ExpectNear(traces[1].points[0], 6500 + 4000, 4000);
  ExpectNear(traces[1].points[1], 6500, 4000);
}

// At the usual aspect of 0.75 the unit circle is as wide as it is high, counted in pixels of a file.
TEST_F(Chart, IsATrueCircleAtItsUsualAspect) {
  scales.SmithAspect = 0.75F;
  const Scale& scale = Drawn(11).CurrentScale();
  const f32 pixelsAcross = 2 * 0.75F * chartRadius * scale.NaturalWidth() / scale.width;
  const f32 pixelsUp = 2 * chartRadius * scale.NaturalHeight() / scale.height;
  EXPECT_NEAR(pixelsAcross, pixelsUp, 0.01);
  EXPECT_EQ(scale.shape.mostProportion, 0);  // whatever the room
}

TEST_F(Chart, TheAspectStretchesInXAlone) {
  scales.SmithAspect = 0.5F;
  SetImpedance(0, 1e9, 0);
  SetImpedance(1, 0, 50);
  const PolylineOp trace = ChartTrace(smithCode);
  ExpectNear(trace.points[0], 6500 + 1500, 4000);
  ExpectNear(trace.points[1], 6500, 1000);
}

TEST_F(Chart, NothingOfTheGridLeavesThePageAtAnyZoom) {
  for (const f32 zoom : {1.0F, 2.0F, 4.0F, 8.0F, 16.0F}) {
    Picture picture;
    DrawSmithGrid(ChartScale{1.5F, zoom}, picture);
    std::size_t points = 0;
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line == nullptr) continue;
      points += line->points.size();
      for (const Point p : line->points) {
        EXPECT_TRUE(p.x >= -1000 && p.x <= 13000 && p.y >= -1000 && p.y <= 10000) << zoom;
      }
      // A path that wrapped instead of breaking would jump across the page.
      for (std::size_t i = 1; i < line->points.size() && line->points.size() > 2; ++i) {
        EXPECT_LT(std::hypot(line->points[i].x - line->points[i - 1].x, line->points[i].y - line->points[i - 1].y), 700)
            << zoom;
      }
    }
    EXPECT_GT(points, 100U) << zoom;
  }
}

// Every point of a resistance circle is an impedance of that resistance, every point of a reactance arc one of that
// reactance: z = (1 + s) / (1 - s).
TEST_F(Chart, TheGridLinesAreThoseOfConstantResistanceAndReactance) {
  Picture picture;
  DrawSmithGrid(ChartScale{1, 1}, picture);
  const auto isRound = [](f64 value) {
    const f64 tenths = std::fabs(value) * 10;
    return std::fabs(tenths - std::round(tenths)) < 0.02;
  };
  int circles = 0;
  int arcs = 0;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line == nullptr || line->points.size() < 8) continue;
    bool resistance = true;
    bool reactance = true;
    for (const Point p : line->points) {
      const f64 u = (p.x - 6500) / 3000.0;
      const f64 w = (4000 - p.y) / 3000.0;
      const f64 square = (1 - u) * (1 - u) + w * w;
      if (square < 0.05) continue;  // too near the point of infinite impedance
      resistance = resistance && isRound((1 - u * u - w * w) / square);
      reactance = reactance && isRound(2 * w / square);
    }
    EXPECT_TRUE(resistance || reactance);
    (resistance ? circles : arcs) += 1;
  }
  // 19 pale circles with r = 0, 5 strong ones and the rim; twice 18 pale arcs and twice 5 strong ones.
  EXPECT_EQ(circles, 19 + 5 + 1);
  EXPECT_EQ(arcs, 36 + 10);
}

TEST_F(Chart, TheLabelsFollowTheZoom) {
  for (const char* text : {"+2",
                           "+1",
                           "+.5",
                           "+.2",
                           "0",
                           "-.2",
                           "-.5",
                           "-1",
                           "-2",
                           "+.1",
                           "-.1",
                           ".2",
                           ".5",
                           "1",
                           "2",
                           "5",
                           "S11",
                           "S21",
                           "Normalized to 50 ohms",
                           "Mousedown for data",
                           "Start"}) {
    EXPECT_TRUE(Shows(smithCode, text)) << text;
  }
  EXPECT_FALSE(Shows(smithCode, ".8"));
  view.ZoomFactor = 8;
  EXPECT_TRUE(Shows(smithCode, ".8"));
  EXPECT_FALSE(Shows(smithCode, "+1"));
}

TEST_F(Chart, TheCircleOfAVSWRIsDrawnOnDemand) {
  EXPECT_TRUE(Lines(Drawn(smithCode), vswrColor).empty());
  view.VSWRCircleOn = 1;
  view.VSWRCircle = 3;
  view.ZoomFactor = 2;
  scales.SmithAspect = 0.5F;
  const auto circles = Lines(Drawn(smithCode), vswrColor);
  ASSERT_EQ(circles.size(), 1U);
  EXPECT_EQ(circles[0].points.size(), 73U);
  // (3 - 1) / (3 + 1) = 0.5 of the unit circle.
  for (const Point p : circles[0].points) {
    EXPECT_NEAR(std::hypot((p.x - 6500) / 0.5 / 6000, (p.y - 4000) / 6000), 0.5, 1e-4);
  }
}

TEST_F(Chart, AVSWROfOneIsThePointAtTheCentre) {
  view.VSWRCircleOn = 1;
  view.VSWRCircle = 1;
  const auto circles = Lines(Drawn(smithCode), vswrColor);
  ASSERT_EQ(circles.size(), 1U);
  for (const Point p : circles[0].points) EXPECT_EQ(p, (Point{6500, 4000}));
}

// 0 dB at 0 degrees, and half the voltage (-6.0206 dB) at 90 degrees.
TEST_F(Chart, ThePolarPlotShowsAmplitudeAndAngle) {
  responses->RespTrans[1] = -6.0206F;
  responses->RespAngle[1] = 90;
  responses->RespAngle[2] = 180;
  const PolylineOp trace = ChartTrace(polarCode);
  ExpectNear(trace.points[0], 9500, 4000);
  ExpectNear(trace.points[1], 6500, 2500);
  ExpectNear(trace.points[2], 3500, 4000);
}

TEST_F(Chart, APolarPointBeyondTheRightBoundStandsOnItAndOneAboveBreaksTheTrace) {
  responses->RespTrans[1] = 20;
  responses->RespTrans[3] = 20;
  responses->RespAngle[3] = 90;
  const auto traces = Lines(Drawn(polarCode), colorBlue);
  ASSERT_EQ(traces.size(), 3U);
  EXPECT_EQ(traces[0].points.size(), 3U);
  ExpectNear(traces[0].points[1], 12000, 4000);
}

TEST_F(Chart, TheZoomIsNotForThePolarPlot) {
  const Picture before = Drawn(polarCode);
  view.ZoomFactor = 16;
  view.VSWRCircleOn = 1;
  EXPECT_EQ(Drawn(polarCode), before);
}

TEST_F(Chart, ThePolarPlotHasItsRingsSpokesAndScales) {
  for (const char* text : {"0",   "30",  "60",  "90", "120", "150", "180", "-150", "-120", "-90",      "-60",
                           "-30", "-12", "-10", "-8", "-6",  "-4",  "-2",  "-180", "S21",  "S21 angle"}) {
    EXPECT_TRUE(Shows(polarCode, text)) << text;
  }
}

// In the small frame 1300..3600 by 1000..3000 a point at half the sweep and half the depth stands in the middle.
TEST_F(Chart, TheCornerShowsTheTransmission) {
  responses->RespTrans[2] = -30;
  responses->RespTrans[3] = -200;
  const PolylineOp trace = Lines(Drawn(smithCode), colorBlue).back();
  ExpectNear(trace.points[0], 1300, 1000);
  ExpectNear(trace.points[3], 2450, 2000);
  ExpectNear(trace.points[4], 3025, 3000);
}

TEST_F(Chart, ThePolarCornerShowsTheAngleInItsOwnColour) {
  for (int i = 0; i <= 4; ++i) responses->RespAngle[i] = -90;
  const auto traces = Lines(Drawn(polarCode), 0x111177);
  ASSERT_EQ(traces.size(), 1U);
  for (const Point p : traces[0].points) EXPECT_NEAR(p.y, 2500, 0.5);
}

TEST_F(Chart, TheTracesAloneAreThoseOfTheChartAndItsCorner) {
  Picture picture;
  DrawChartTraces(PlotOf(polarCode), SpansOf(*responses, 4), places, picture);
  ASSERT_EQ(picture.Operations().size(), 3U);
  EXPECT_EQ(Lines(picture, colorBlue), Lines(Drawn(polarCode), colorBlue));
  EXPECT_EQ(Lines(picture, 0x111177), Lines(Drawn(polarCode), 0x111177));
}

TEST_F(Chart, TheTracesInTheCornerAreThin) {
  scales.PlotLineWidth = 4;
  const auto traces = Lines(Drawn(smithCode), colorBlue);
  EXPECT_EQ(traces.front().pen.width, 4);
  EXPECT_EQ(traces.back().pen.width, 1);
}

}  // namespace
}  // namespace quilm
