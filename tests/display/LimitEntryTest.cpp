#include "display/LimitEntry.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "display/SheetBench.h"
#include "display/SheetDrawing.h"

namespace quilm {
namespace {

Medium MediumOf(const PictureOp& operation) {
  if (const auto* text = std::get_if<TextOp>(&operation)) return text->showOn;
  if (const auto* line = std::get_if<PolylineOp>(&operation)) return line->pen.showOn;
  return std::get<RectangleOp>(operation).pen.showOn;
}

// A linear sweep of 9 intervals from 1 MHz to 10 MHz: 1 MHz for each 900 units of the frame.
class LimitEntryTest : public SheetBench {
 protected:
  LimitEntryTest() {
    DesignRecord& record = session.record;
    record.Fstart = 1e6F;
    record.Fstop = 1e7F;
    record.NrIntervals = 9;
    record.NrXints = 9;
    record.ResponsesValid = 1;
    record.PlotCode = 1;
    for (int i = 0; i <= 9; ++i) {
      session.responses.RespFreq[i] = static_cast<f32>(i + 1) * 1e6F;
      session.responses.RespVSWR[i] = 1;
    }
  }

  void Begin(i16 code, LimitsWantedBy who = LimitsWantedBy::LimitsPage) {
    session.record.PlotCode = code;
    BeginLimitEntry(session, who);
  }
  std::vector<std::string> Texts(const Picture& picture) {
    std::vector<std::string> texts;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }
  std::string Prompt() {
    for (const std::string& text : Texts(session.plot.picture)) {
      if (text.substr(0, 6) == "Enter ") return text;
    }
    return {};
  }
};

TEST_F(LimitEntryTest, ShowsTheLimitsAndThePrompt) {
  Begin(1);
  EXPECT_TRUE(EntersLimits(session));
  EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, 1);
  EXPECT_EQ(session.record.LimitsShown, 1);
  EXPECT_EQ(Prompt(), "Enter transmission limits");
  EndLimitEntry(session);
  EXPECT_FALSE(EntersLimits(session));
  EXPECT_EQ(Prompt(), "");
}

TEST_F(LimitEntryTest, TheAngleAndPlotsWithoutATypeOfTheirOwnHaveNoPromptOnTheLimitsPage) {
  const std::pair<i16, const char*> prompts[] = {{1, "Enter transmission limits"},
                                                 {2, "Enter return limits"},
                                                 {3, ""},
                                                 {4, "Enter delay limits"},
                                                 {5, "Enter VSWR limits"},
                                                 {6, "Enter input impedance limits"},
                                                 {7, ""},
                                                 {9, ""},
                                                 {10, ""},
                                                 {13, ""}};
  for (const auto& [code, prompt] : prompts) {
    Begin(code);
    EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, code);
    EXPECT_EQ(Prompt(), prompt) << code;
  }
  Begin(3, LimitsWantedBy::Optimizer);
  EXPECT_EQ(Prompt(), "Enter angle limits");
}

TEST_F(LimitEntryTest, ChartsTakeNone) {
  Begin(11, LimitsWantedBy::Optimizer);
  EXPECT_FALSE(EntersLimits(session));
  EXPECT_EQ(session.record.LimitsShown, 1);
}

TEST_F(LimitEntryTest, NothingHappensBeforeAShapeIsChosenOrOutsideTheFrame) {
  Begin(1);
  EXPECT_EQ(TakeLimitClick(session, 5000, 4000), LimitClick::Nothing);
  ChooseLimitShape(session, 1);
  EXPECT_EQ(TakeLimitClick(session, 1999, 4000), LimitClick::Nothing);
  EXPECT_EQ(TakeLimitClick(session, 11000, 4000), LimitClick::Nothing);
  EXPECT_EQ(TakeLimitClick(session, 5000, 1000), LimitClick::Nothing);
  EXPECT_EQ(session.record.LimitCount[1], 0);
}

// At x = 5000 a third of 10 points: the point 3, 4 MHz; at y = 4000 half of 60 dB.
TEST_F(LimitEntryTest, OneClickMakesAnArea) {
  Begin(1);
  ChooseLimitShape(session, 1);
  EXPECT_EQ(TakeLimitClick(session, 5000, 4000), LimitClick::Area);
  EXPECT_EQ(session.record.LimitCount[1], 1);
  EXPECT_EQ(AreaAt(session.record, 1, 1), (LimitArea{1, 0.01F, 4e6F, -30, -300}));
  EXPECT_TRUE(EntersLimits(session));
}

TEST_F(LimitEntryTest, BelowTheFrameTheValueGoesOn) {
  Begin(1);
  ChooseLimitShape(session, 7);
  TakeLimitClick(session, 5000, 7500);
  EXPECT_EQ(AreaAt(session.record, 1, 1), (LimitArea{7, 4e6F, 4e6F, -65, -300}));
}

TEST_F(LimitEntryTest, ABandTakesTwoClicksOfWhichTheSecondGivesTheValue) {
  Begin(1);
  ChooseLimitShape(session, 6);
  EXPECT_EQ(TakeLimitClick(session, 8000, 2000), LimitClick::FirstOfTwo);
  EXPECT_EQ(session.record.LimitCount[1], 0);
  EXPECT_EQ(TakeLimitClick(session, 5000, 4000), LimitClick::Area);
  // Stored as clicked: 7 MHz, then 4 MHz.
  EXPECT_EQ(AreaAt(session.record, 1, 1), (LimitArea{6, 7e6F, 4e6F, 0, -30}));
}

TEST_F(LimitEntryTest, AnotherShapeForgetsTheFirstClick) {
  Begin(1);
  ChooseLimitShape(session, 6);
  TakeLimitClick(session, 8000, 2000);
  ChooseLimitShape(session, 5);
  EXPECT_EQ(TakeLimitClick(session, 5000, 4000), LimitClick::FirstOfTwo);
}

TEST_F(LimitEntryTest, TheAreaGoesToTheTypeOfThePlot) {
  const std::pair<i16, LimitArea> areas[] = {{2, {4, 0.01F, 4e6F, 0, -30}},       {3, {4, 0.01F, 4e6F, 180, 0}},
                                             {4, {4, 0.01F, 4e6F, 6e-6F, 3e-6F}}, {5, {4, 0.01F, 4e6F, 7, 4}},
                                             {6, {4, 0.01F, 4e6F, 120, 60}},      {13, {4, 0.01F, 4e6F, 7, 4}},
                                             {9, {4, 0.01F, 4e6F, 120, 60}}};
  const int types[] = {2, 3, 4, 5, 6, 5, 6};
  for (int i = 0; i < 7; ++i) {
    EraseAllAreas(session.record);
    Begin(areas[i].first);
    ChooseLimitShape(session, 4);
    TakeLimitClick(session, 5000, 4000);
    EXPECT_EQ(session.record.LimitCount[types[i]], 1) << areas[i].first;
    EXPECT_EQ(AreaAt(session.record, types[i], 1), areas[i].second) << areas[i].first;
  }
}

TEST_F(LimitEntryTest, TheEleventhClickEndsIt) {
  Begin(1);
  ChooseLimitShape(session, 9);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(TakeLimitClick(session, 5000, 4000), LimitClick::Area);
  EXPECT_TRUE(EntersLimits(session));
  const DesignRecord before = session.record;
  EXPECT_EQ(TakeLimitClick(session, 5000, 4000), LimitClick::NoRoom);
  EXPECT_FALSE(EntersLimits(session));
  EXPECT_EQ(session.record, before);
}

TEST_F(LimitEntryTest, AnotherPlotEndsItAndBeginningForgetsTheShape) {
  Begin(1);
  ChooseLimitShape(session, 9);
  Begin(2);
  EXPECT_EQ(session.plot.limitEntry.LimitShapeChoice, 0);
  ChoosePlot(session, 3);
  EXPECT_FALSE(EntersLimits(session));
}

TEST_F(LimitEntryTest, ThePointerSaysFrequencyAndValue) {
  Begin(1);
  Picture mark(plotScale);
  DrawLimitPointer(session, 5000, 4000, mark);
  EXPECT_EQ(Texts(mark), (std::vector<std::string>{"Frequency:    Transmission: ", "4M ", "-30 "}));
  Begin(4);
  mark.Clear();
  DrawLimitPointer(session, 5000, 4000, mark);
  EXPECT_EQ(Texts(mark), (std::vector<std::string>{"Frequency:    Delay: ", "4M ", "3u"}));
  mark.Clear();
  DrawLimitPointer(session, 1500, 4000, mark);
  EXPECT_TRUE(mark.Empty());
}

// Copies and prints show the plot alone.
TEST_F(LimitEntryTest, PromptAndPaletteAreOnTheScreenAlone) {
  RedrawPlot(session);
  const std::size_t plain = session.plot.picture.Operations().size();
  Begin(1);
  ChooseLimitShape(session, 5);
  const auto& operations = session.plot.picture.Operations();
  ASSERT_GT(operations.size(), plain + 9);
  for (std::size_t i = plain; i < operations.size(); ++i) {
    EXPECT_EQ(MediumOf(operations[i]), Medium::Screen) << i;
  }
}

TEST_F(LimitEntryTest, TheCellsOfThePaletteHaveTheirPlaces) {
  for (int shape = 1; shape <= 9; ++shape) {
    EXPECT_EQ(LimitCell(shape).left, 635 * static_cast<f32>(shape) + 3195);
    EXPECT_EQ(LimitCell(shape).Right(), 635 * static_cast<f32>(shape) + 3795);
    EXPECT_LT(LimitCell(shape).Bottom(), plotFrame.top);
  }
}

}  // namespace
}  // namespace quilm
