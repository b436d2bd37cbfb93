#include "display/SheetDrawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "display/PlotKinds.h"
#include "display/SheetBench.h"
#include "display/modSmith.h"

namespace quilm {
namespace {

class Sheet : public SheetBench {
 protected:
  Sheet() {
    DesignRecord& record = session.record;
    record.SweepMode = 2;
    record.Fstart = 1e6F;
    record.Fstop = 1e8F;
    record.NrIntervals = 2;
    record.NrXints = 4;
    for (int i = 0; i <= 2; ++i) {
      session.responses.RespFreq[i] = i == 0 ? 1e6F : i == 1 ? 1e7F : 1e8F;
      session.responses.RespTrans[i] = static_cast<f32>(-10 * i);
      session.responses.RespDelay[i] = 2e-6F;
      session.responses.RespVSWR[i] = 3;
      session.responses.RespZin[i] = 60;
      session.responses.RespZinAngle[i] = 20;
    }
  }

  Picture Drawn(i16 code) {
    ChoosePlot(session, code);
    return session.plot.picture;
  }

  // On the screen: paper has a sample of each beside.
  static std::vector<PolylineOp> Lines(const Picture& picture, Color color) {
    std::vector<PolylineOp> lines;
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color == color && line->pen.showOn != Medium::Paper) lines.push_back(*line);
    }
    return lines;
  }

  ResponseSpans Present() { return SpansOf(session.responses, 2); }
};

TEST_F(Sheet, EveryPlotDrawnTwiceIsTheSame) {
  for (const PlotButton& button : PlotButtons()) {
    const Picture first = Drawn(button.code);
    EXPECT_FALSE(first.Empty());
    RedrawPlot(session);
    EXPECT_EQ(session.plot.picture, first) << button.code;
  }
}

// Nothing of one plot shows in the next, whichever came before.
TEST_F(Sheet, EveryPlotIsTheSameAfterEveryOther) {
  for (const PlotButton& button : PlotButtons()) {
    const Picture alone = Drawn(button.code);
    for (const PlotButton& before : PlotButtons()) {
      Drawn(before.code);
      EXPECT_EQ(Drawn(button.code), alone) << button.code << " after " << before.code;
    }
  }
}

TEST_F(Sheet, ThePenIsAsBeforeAfterEveryPlot) {
  const Picture fresh;
  for (const PlotButton& button : PlotButtons()) {
    const Picture drawn = Drawn(button.code);
    EXPECT_EQ(drawn.DrawWidth, fresh.DrawWidth) << button.code;
    EXPECT_EQ(drawn.DrawMode, fresh.DrawMode) << button.code;
    EXPECT_EQ(drawn.ForeColor, fresh.ForeColor) << button.code;
    EXPECT_EQ(drawn.CurrentFont(), fresh.CurrentFont()) << button.code;
  }
}

TEST_F(Sheet, AnotherSweepMovesTheTraces) {
  EXPECT_EQ(Lines(Drawn(1), colorBlue)[0].points[2], (Point{6500, 2000}));
  session.record.Fstop = 1e10F;
  EXPECT_EQ(Lines(Drawn(1), colorBlue)[0].points[2].x, 4250);
  session.record.SweepMode = 1;
  session.record.Fstart = 0;
  session.record.Fstop = 1e8F;
  EXPECT_EQ(Lines(Drawn(1), colorBlue)[0].points[2].x, 2900);
}

TEST_F(Sheet, ChoosingAPlotPutsTheFirstColoursBackAndEndsAnEntry) {
  session.plot.colors = {0x780000, 0x000078};
  session.plot.limitEntry = {1, 5};
  ChoosePlot(session, 2);
  EXPECT_EQ(session.record.PlotCode, 2);
  EXPECT_EQ(session.plot.colors.TraceColor1, colorBlue);
  EXPECT_EQ(session.plot.colors.TraceColor2, colorRed);
  EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, 0);
  EXPECT_EQ(session.plot.limitEntry.LimitShapeChoice, 0);
}

TEST_F(Sheet, RedrawingKeepsTheColours) {
  ChoosePlot(session, 2);
  session.plot.colors = {0x780000, 0x000078};
  RedrawPlot(session);
  EXPECT_EQ(Lines(session.plot.picture, 0x780000).size(), 1U);
  EXPECT_EQ(Lines(session.plot.picture, 0x000078).size(), 1U);
}

TEST_F(Sheet, AddedTracesLieOverWhatIsThere) {
  const Picture before = Drawn(1);
  session.responses.RespTrans[1] = -30;
  session.plot.colors.TraceColor1 = 0xA00000;
  AddTraces(session, Present(), session.plot.picture);
  const auto& operations = session.plot.picture.Operations();
  ASSERT_EQ(operations.size(), before.Operations().size() + 1);
  EXPECT_TRUE(std::equal(before.Operations().begin(), before.Operations().end(), operations.begin()));
  EXPECT_EQ(Lines(session.plot.picture, 0xA00000).at(0).points[2], (Point{6500, 4000}));
}

TEST_F(Sheet, TracesCanBeAddedToALayerAndLeaveTheSheetAlone) {
  for (const PlotButton& button : PlotButtons()) {
    const Picture before = Drawn(button.code);
    Picture layer(before.CurrentScale());
    AddTraces(session, Present(), layer);
    EXPECT_EQ(session.plot.picture, before);
    for (const PictureOp& operation : layer.Operations()) {
      EXPECT_TRUE(std::holds_alternative<PolylineOp>(operation)) << button.code;
    }
    EXPECT_FALSE(layer.Empty()) << button.code;
  }
}

TEST_F(Sheet, TracesOfARunAreTakenAwayWhenThePlotIsDrawnAnew) {
  ChoosePlot(session, 2);
  AddTraces(session, Present(), session.plot.live);
  EXPECT_EQ(session.plot.live.Present().kept.size(), 2U);
  EXPECT_EQ(session.plot.live.CurrentScale(), session.plot.picture.CurrentScale());
  RedrawPlot(session);
  EXPECT_TRUE(session.plot.live.Empty());
}

TEST_F(Sheet, AClearedSheetHasNothingOfThePlotBefore) {
  ChoosePlot(session, 2);
  AddTraces(session, Present(), session.plot.live);
  session.plot.colors.TraceColor1 = colorBlack;
  session.plot.limitEntry.LimitEntryPlot = 1;
  ClearSheet(session.plot);
  EXPECT_EQ(session.plot.picture, Picture());
  EXPECT_TRUE(session.plot.live.Empty());
  EXPECT_EQ(session.plot.colors.TraceColor1, colorBlue);
  EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, 0);
}

// The responses of a file over the present sweep: fewer points, other frequencies.
TEST_F(Sheet, AddedResponsesHaveTheirOwnFrequencies) {
  ChoosePlot(session, 1);
  const std::array<f32, 2> frequencies = {1e7F, 1e8F};
  const std::array<f32, 2> transmission = {0, -60};
  ResponseSpans responses;
  responses.freq = frequencies;
  responses.trans = transmission;
  Picture layer;
  AddTraces(session, responses, layer);
  EXPECT_EQ(Lines(layer, colorBlue).at(0).points, (std::vector<Point>{{6500, 1000}, {6500, 1000}, {11000, 7000}}));
}

TEST_F(Sheet, AFaultIsToldWithTheMarkOfThePlot) {
  session.record.DelayTop = 0;
  ChoosePlot(session, 4);
  session.record.Rstandard = 0;
  ChoosePlot(session, smithCode);
  ASSERT_EQ(platform.messages.size(), 2U);
  EXPECT_EQ(platform.messages[0].text, "We had a plotting routine problem.\r\nSee frmPlotted line 520");
  EXPECT_EQ(platform.messages[1].text, "We had a plotting routine problem.\r\nSee frmPlotted line 544");
}

TEST_F(Sheet, AShallowLossScaleIsStoredAsMinus0Point3BeforeAPlotInDecibels) {
  session.record.LossBottom = -0.1F;
  ChoosePlot(session, 5);
  EXPECT_EQ(session.record.LossBottom, -0.1F);
  ChoosePlot(session, 2);
  EXPECT_EQ(session.record.LossBottom, -0.3F);
}

}  // namespace
}  // namespace quilm
