#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/modReadout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "core/Fault.h"
#include "display/PlotFrame.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

class ReadoutDrawing : public testing::Test {
 protected:
  ReadoutDrawing() {
    scales.LossBottom = -60;
    scales.DelayTop = 6e-6F;
    scales.VSWRTop = 7;
    scales.ImpedanceTop = 120;
    scales.SmithAspect = 1;
    scales.PlotCode = 1;
    responses->RespFreq[2] = 2e6F;
    responses->RespTrans[2] = -30;
    responses->RespReturn[2] = -15;
    responses->RespAngle[2] = 90;
    responses->RespDelay[2] = 3e-6F;
    responses->RespVSWR[2] = 4;
    responses->RespZin[2] = 60;
    responses->RespZinAngle[2] = 30;
  }

  Picture Drawn() {
    Picture picture(plotScale);
    DrawReadout(ThePlot(), SpansOf(*responses, 4), 2, picture);
    return picture;
  }

  PlotSetup ThePlot() { return {HorizontalAxis(AxisSettings{false, 0, 4e6F}), scales, {}, view, 50}; }

  std::vector<TextOp> Texts() {
    std::vector<TextOp> texts;
    const Picture picture = Drawn();
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
    }
    return texts;
  }

  std::string Value(std::size_t column) {
    std::string text = Texts().at(10 + column).text;
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }

  std::vector<PointOp> Marks() {
    std::vector<PointOp> marks;
    const Picture picture = Drawn();
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* mark = std::get_if<PointOp>(&operation)) marks.push_back(*mark);
    }
    return marks;
  }

  PlotScales scales;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
  SmithView view;
};

TEST_F(ReadoutDrawing, HeadingsAndValuesStandInTwoRows) {
  const char* headings[] = {
      "Freq.:", "Trans.:", "Angle:", "Return:", "Delay:", "VSWR:", "Zmag.:", "Zangle:", "Real:", "Imag.:"};
  const std::vector<TextOp> texts = Texts();
  ASSERT_EQ(texts.size(), 20U);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(texts[i].text, headings[i]);
    EXPECT_EQ(texts[i].at.y, 7290);
    EXPECT_EQ(texts[10 + i].at.y, 7470);
    EXPECT_EQ(texts[i].at.x, texts[10 + i].at.x);
  }
}

// 60 ohms at 30 degrees are 51.9615 + 30j ohms.
TEST_F(ReadoutDrawing, EveryResponseIsRead) {
  const char* values[] = {"2M", "-30", "90", "-15", "3u", "4", "60", "30", "51.962", "30"};
  for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(Value(i), values[i]) << i;
}

TEST_F(ReadoutDrawing, FiguresBeyondTheirRangeAreReplaced) {
  responses->RespTrans[2] = -120.5F;
  responses->RespReturn[2] = -121;
  responses->RespVSWR[2] = 1001;
  EXPECT_EQ(Value(1), "<-120");
  EXPECT_EQ(Value(3), "< -120");
  EXPECT_EQ(Value(5), ">1000");
  responses->RespTrans[2] = responses->RespReturn[2] = -120;
  responses->RespVSWR[2] = 1000;
  EXPECT_EQ(Value(1), "-120");
  EXPECT_EQ(Value(3), "-120");
  EXPECT_NE(Value(5), ">1000");
}

TEST_F(ReadoutDrawing, AWhiteStripIsClearedFirst) {
  const Picture picture = Drawn();
  const auto* strip = std::get_if<RectangleOp>(&picture.Operations().front());
  ASSERT_NE(strip, nullptr);
  EXPECT_TRUE(strip->filled);
  EXPECT_EQ(strip->pen.color, colorWhite);
  EXPECT_EQ(strip->from, (Point{800, 7270}));
  EXPECT_EQ(strip->to.x, plotScale.left + plotScale.width);
}

TEST_F(ReadoutDrawing, AMarkStandsOnEachTrace) {
  scales.PlotCode = 2;
  const auto marks = Marks();
  ASSERT_EQ(marks.size(), 2U);
  // Transmission -30 of -60 dB, return -15.
  EXPECT_EQ(marks[0].at, (Point{6500, 4000}));
  EXPECT_EQ(marks[1].at, (Point{6500, 2500}));
  for (const PointOp& mark : marks) {
    EXPECT_EQ(mark.pen.mode, PenMode::ExclusiveOr);
    EXPECT_EQ(mark.pen.width, 10);
    EXPECT_EQ(mark.pen.color, 0xFF44FFU);
  }
}

TEST_F(ReadoutDrawing, EveryPlotHasOneMarkForEachTrace) {
  // The round plots with those of their corner.
  const std::pair<i16, std::size_t> plots[] = {{1, 1}, {2, 2}, {3, 2}, {4, 2},  {5, 1},  {13, 2},
                                               {6, 1}, {9, 2}, {7, 2}, {10, 2}, {11, 2}, {12, 3}};
  for (const auto& [code, count] : plots) {
    scales.PlotCode = code;
    EXPECT_EQ(Marks().size(), count) << code;
  }
}

TEST_F(ReadoutDrawing, TheMarkFollowsTheChart) {
  scales.PlotCode = 11;
  responses->RespZin[2] = 100;
  responses->RespZinAngle[2] = 0;
  view.ZoomFactor = 2;
  // 100 ohms on 50 reflect a third.
  EXPECT_NEAR(Marks()[0].at.x, 6500 + 2000, 0.5);
  view.ZoomFactor = 16;  // the point has left the chart: the corner's mark is left
  EXPECT_EQ(Marks().size(), 1U);
}

TEST_F(ReadoutDrawing, AMarkWithoutAScaleIsLeftOutAndTheValuesStay) {
  scales.PlotCode = 4;
  scales.DelayTop = 0;
  EXPECT_TRUE(Marks().empty());
  EXPECT_EQ(Value(4), "3u");
}

// What is drawn next with the same canvas is drawn as if there had been no readout.
TEST_F(ReadoutDrawing, ThePenIsPutBackAfterTheMarks) {
  Picture picture(plotScale);
  picture.FontSize = 12;
  DrawReadout(ThePlot(), SpansOf(*responses, 4), 2, picture);
  EXPECT_EQ(picture.DrawMode, PenMode::Copy);
  EXPECT_EQ(picture.DrawWidth, 1);
  EXPECT_EQ(picture.FontSize, 12);
}

TEST_F(ReadoutDrawing, TheSecondOneIsDrawnAsTheFirst) {
  Picture picture(plotScale);
  DrawReadout(ThePlot(), SpansOf(*responses, 4), 2, picture);
  const Picture first = picture;
  picture.Clear();
  DrawReadout(ThePlot(), SpansOf(*responses, 4), 2, picture);
  EXPECT_EQ(picture, first);
}

TEST(CursorIndex, IsLinearOverTheFrame) {
  SweepSettings sweep;
  sweep.NrIntervals = 99;
  EXPECT_EQ(CursorIndex(sweep, 2000.5F), 0);
  EXPECT_EQ(CursorIndex(sweep, 2090.5F), 1);
  EXPECT_EQ(CursorIndex(sweep, 6500), 50);
  EXPECT_EQ(CursorIndex(sweep, std::nextafter(11000.0F, 0.0F)), 99);
}

// 1000.4 intervals have their last point at 1000, where the frame has room for one more.
TEST(CursorIndex, NeverPassesTheLastPoint) {
  SweepSettings sweep;
  for (const f32 intervals : {4.0F, 99.0F, 1000.4F, 2047.49F, 2049.0F}) {
    sweep.NrIntervals = intervals;
    EXPECT_EQ(CursorIndex(sweep, std::nextafter(11000.0F, 0.0F)), std::floor(intervals)) << intervals;
    EXPECT_EQ(CursorIndex(sweep, 11000), std::floor(intervals)) << intervals;
  }
}

TEST(CursorIndex, BeyondTheResponsesIsABoundFault) {
  SweepSettings sweep;
  sweep.NrIntervals = 3000;
  EXPECT_EQ(CursorIndex(sweep, 2001), 0);
  EXPECT_THROW(CursorIndex(sweep, 10000), BoundFault);
}

TEST(InReadoutFrame, HasNoBoundBelow) {
  EXPECT_TRUE(InReadoutFrame(2001, 1001));
  EXPECT_TRUE(InReadoutFrame(10999, 7900));
  EXPECT_FALSE(InReadoutFrame(2000, 4000));
  EXPECT_FALSE(InReadoutFrame(11000, 4000));
  EXPECT_FALSE(InReadoutFrame(5000, 1000));
}

}  // namespace
}  // namespace quilm
