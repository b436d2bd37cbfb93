#include <algorithm>

#include "core/Responses.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

// A 3rd-order Butterworth lowpass of 1 MHz and 50 ohms: C = 1 / (2 Pi 1e6 50), L = 2 * 50 / (2 Pi 1e6).
void SetLowpass(DesignRecord& record) {
  record.Family = familyButterworth;
  record.Topology = "A";
  record.Order = 3;
  record.Width = 1e6F;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Stages = 3;
  record.stage[1].ElementType = record.stage[3].ElementType = ShuntC;
  record.stage[1].Cval.value = record.stage[3].Cval.value = 3.1831e-9F;
  record.stage[2].ElementType = SeriesL;
  record.stage[2].Lval.value = 1.59155e-5F;
}

class PlotPage : public PageBench {
 protected:
  PlotPage() : PageBench(AllPages()) {
    StartProgram(session);
    SetLowpass(session.record);
    session.pages.ShowPage(PageId::Plotted);
    session.pages.UnloadPage(PageId::Opening);
  }

  const Picture& Plot() { return Get<PictureBox>("picPlot").picture; }

  bool Shows(const std::string& text) {
    return std::any_of(Plot().Operations().begin(), Plot().Operations().end(), [&text](const PictureOp& operation) {
      const auto* op = std::get_if<TextOp>(&operation);
      return op != nullptr && op->text == text;
    });
  }
};

TEST_F(PlotPage, LoadingSweepsAndDrawsTheFirstPlot) {
  EXPECT_EQ(session.record.PlotCode, 1);
  EXPECT_EQ(session.record.ResponsesValid, 1);
  EXPECT_TRUE(Shows("Transmission, dB"));
  EXPECT_TRUE(Get<Button>("cmd1").pressed);
}

TEST_F(PlotPage, EveryButtonDrawsItsPlot) {
  const std::pair<const char*, i16> buttons[] = {{"cmd2", 2}, {"cmd3", 3}, {"cmd4", 4}, {"cmd5", 5},   {"cmd6", 13},
                                                 {"cmd7", 6}, {"cmd8", 9}, {"cmd9", 7}, {"cmd10", 10}, {"cmd1", 1}};
  Picture before = Plot();
  for (const auto& [name, code] : buttons) {
    Press(name);
    EXPECT_EQ(session.record.PlotCode, code);
    EXPECT_TRUE(Get<Button>(name).pressed);
    EXPECT_FALSE(Plot() == before) << name;
    before = Plot();
  }
}

// 1 kHz to 1 MHz ends at the edge; a tenth and ten times the edge are 100 kHz and 10 MHz.
TEST_F(PlotPage, ASweepThatDoesNotHoldTheBandIsToldAndFitted) {
  session.record.Fstart = 1e3F;
  session.record.Fstop = 1e6F;
  Press("cmd1");
  EXPECT_EQ(session.note, "The sweep does not hold the band: Ctrl+F fits it");
  const Picture before = Plot();
  Press("cmdFitSweep");
  EXPECT_EQ(session.record.Fstart, 100e3F);
  EXPECT_EQ(session.record.Fstop, 10e6F);
  EXPECT_EQ(session.responses.RespFreq[0], 100e3F);
  EXPECT_EQ(session.note, "The sweep goes from 100kHz to 10MHz");
  EXPECT_FALSE(Plot() == before);
  session.note.clear();
  Press("cmd2");
  EXPECT_EQ(session.note, "");
}

TEST_F(PlotPage, ASweepWithoutARangeIsToldBesideTheMessage) {
  session.record.Fstart = session.record.Fstop = 1e6F;
  Press("cmd1");
  EXPECT_EQ(session.note, "Start and stop are equal: Ctrl+F fits the sweep to the band");
  ASSERT_FALSE(MessageTexts().empty());
  EXPECT_EQ(MessageTexts()[0].substr(0, 36), "We had a plotting routine problem.\r\n");
  session.record.Fstop = 0.5e6F;
  Press("cmd1");
  EXPECT_EQ(session.note, "Stop is below start: Ctrl+F fits the sweep to the band");
}

class SmithPage : public PlotPage {
 protected:
  SmithPage() {
    session.record.SmithAspect = 1;
    Press("cmd11");
  }
};

TEST_F(SmithPage, TheChartHasItsTools) {
  EXPECT_EQ(session.record.PlotCode, 11);
  EXPECT_TRUE(Shows("Normalized to 50 ohms"));
  for (const char* name : {"cmdZoomIn", "cmdZoomOut", "cmdVSWR", "txtVSWR", "txtAspect", "UpDown1", "lblAspect"}) {
    EXPECT_TRUE(Get<Control>(name).Shown()) << name;
  }
  EXPECT_FALSE(Get<Button>("cmdLimits").Shown());
}

TEST_F(SmithPage, AReferenceBelowOneOhmHasNoZeroBeforeItsPoint) {
  session.record.Rstandard = 0.5F;
  Press("cmd11");
  EXPECT_TRUE(Shows("Normalized to .5 ohms"));
}

TEST_F(SmithPage, ThePolarPlotHasItsAspectAlone) {
  Press("cmd12");
  EXPECT_EQ(session.record.PlotCode, 12);
  for (const char* name : {"cmdZoomIn", "cmdZoomOut", "cmdVSWR", "txtVSWR"}) {
    EXPECT_FALSE(Get<Control>(name).Shown()) << name;
  }
  EXPECT_TRUE(Get<Control>("txtAspect").Shown());
  Press("cmd1");
  EXPECT_FALSE(Get<Control>("txtAspect").Shown());
  EXPECT_TRUE(Get<Button>("cmdLimits").Shown());
}

TEST_F(SmithPage, TheZoomGoesInFourStepsToSixteenAndBack) {
  EXPECT_FALSE(Get<Button>("cmdZoomOut").Active());
  for (const f32 zoom : {2.0F, 4.0F, 8.0F, 16.0F}) {
    const Picture before = Plot();
    Press("cmdZoomIn");
    EXPECT_EQ(session.smithView.ZoomFactor, zoom);
    EXPECT_FALSE(Plot() == before);
    EXPECT_TRUE(Get<Button>("cmdZoomOut").Active());
  }
  EXPECT_FALSE(Get<Button>("cmdZoomIn").Active());
  for (int i = 0; i < 4; ++i) Press("cmdZoomOut");
  EXPECT_EQ(session.smithView.ZoomFactor, 1);
  EXPECT_FALSE(Get<Button>("cmdZoomOut").Active());
  EXPECT_TRUE(Get<Button>("cmdZoomIn").Active());
}

TEST_F(SmithPage, ZoomedInAndBackTwiceThePictureIsTheSame) {
  const Picture whole = Plot();
  Press("cmdZoomIn");
  const Picture zoomed = Plot();
  Press("cmdZoomOut");
  EXPECT_EQ(Plot(), whole);
  Press("cmdZoomIn");
  EXPECT_EQ(Plot(), zoomed);
  Press("cmdZoomOut");
  EXPECT_EQ(Plot(), whole);
}

TEST_F(SmithPage, TheZoomStaysOverOtherPlotsAndPages) {
  Press("cmdZoomIn");
  Press("cmd1");
  Press("cmdDesign");
  session.pages.ShowPage(PageId::Plotted);
  Press("cmd11");
  EXPECT_EQ(session.smithView.ZoomFactor, 2);
  EXPECT_TRUE(Get<Button>("cmdZoomOut").Active());
}

TEST_F(SmithPage, TheVSWRCircleIsGoneWhenThePageIsLoadedAgain) {
  Enter("txtVSWR", "3");
  Press("cmdVSWR");
  Press("cmdDesign");
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_EQ(session.smithView.VSWRCircleOn, 0);
  EXPECT_EQ(session.smithView.VSWRCircle, 2);
  EXPECT_EQ(Get<TextBox>("txtVSWR").text, "2");
}

TEST_F(SmithPage, TheVSWRButtonTogglesACircleWithinItsLimits) {
  Enter("txtVSWR", "30");
  Press("cmdVSWR");
  EXPECT_EQ(session.smithView.VSWRCircle, 20);
  EXPECT_EQ(Get<TextBox>("txtVSWR").text, "20");
  EXPECT_EQ(session.smithView.VSWRCircleOn, 1);
  Press("cmdVSWR");
  EXPECT_EQ(session.smithView.VSWRCircleOn, 0);
  Enter("txtVSWR", ".5");
  Press("cmdVSWR");
  EXPECT_EQ(session.smithView.VSWRCircle, 1);
  EXPECT_EQ(Get<TextBox>("txtVSWR").text, "1");
}

TEST_F(SmithPage, TheBoxOfTheVSWRShowsTheHeldFigureWhenItIsLeft) {
  Type(session, Get<TextBox>("txtVSWR"), "25");
  EXPECT_EQ(Get<TextBox>("txtVSWR").text, "25");
  EXPECT_EQ(session.smithView.VSWRCircle, 20);
  Leave(session, Get<TextBox>("txtVSWR"));
  EXPECT_EQ(Get<TextBox>("txtVSWR").text, "20");
}

TEST_F(SmithPage, ANewFigureTakesTheCircleAway) {
  const Picture without = Plot();
  Press("cmdVSWR");
  EXPECT_FALSE(Plot() == without);
  Enter("txtVSWR", "3");
  EXPECT_EQ(session.smithView.VSWRCircleOn, 0);
  EXPECT_EQ(Plot(), without);
}

TEST_F(SmithPage, TheAspectIsHeldWithinItsLimitsAndShownWhenTheBoxIsLeft) {
  Get<TextBox>("txtAspect").text = "";
  Type(session, Get<TextBox>("txtAspect"), "9");
  EXPECT_EQ(session.record.SmithAspect, 1.5F);
  EXPECT_EQ(Get<TextBox>("txtAspect").text, "9");
  Leave(session, Get<TextBox>("txtAspect"));
  EXPECT_EQ(Get<TextBox>("txtAspect").text, "1.5");
  for (const auto& [text, aspect] : {std::pair{".5", 0.5F}, {".4", 0.5F}, {"1.5", 1.5F}, {"1.25", 1.25F}}) {
    Enter("txtAspect", text);
    EXPECT_EQ(session.record.SmithAspect, aspect) << text;
  }
}

TEST_F(SmithPage, TheAspectStepsByOnePerCent) {
  const Picture before = Plot();
  Step(session, Get<Spin>("UpDown1"), 1);
  EXPECT_NEAR(session.record.SmithAspect, 1.01, 1e-6);
  EXPECT_EQ(Get<TextBox>("txtAspect").text, "1.01");
  EXPECT_FALSE(Plot() == before);
  session.record.SmithAspect = 0.5F;
  Step(session, Get<Spin>("UpDown1"), -1);
  EXPECT_EQ(session.record.SmithAspect, 0.5F);
}

TEST_F(SmithPage, AChartWithoutAReferenceIsTold) {
  session.record.Rstandard = 0;
  Press("cmdZoomIn");
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"We had a plotting routine problem.\r\nSee frmPlotted line 544"});
}

class PlotReadout : public PlotPage {
 protected:
  PictureBox& Box() { return Get<PictureBox>("picPlot"); }
  void Do(MouseAct act, f32 x, f32 y, MouseButton button = MouseButton::Left) {
    Mouse(session, Box(), act, x, y, button);
  }
  std::string MarkText(std::size_t number) {
    std::size_t seen = 0;
    for (const PictureOp& operation : Box().mark.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text != nullptr && seen++ == number) return text->text;
    }
    return "";
  }
};

TEST_F(PlotReadout, LivesWhileTheButtonIsHeldAndLeavesNothingBehind) {
  const Picture before = Plot();
  Do(MouseAct::Move, 6500, 4000);
  EXPECT_TRUE(Box().mark.Empty());
  Do(MouseAct::Down, 6500, 4000);
  EXPECT_EQ(MarkText(0), "Freq.:");
  const std::string frequency = MarkText(10);
  Do(MouseAct::Move, 8000, 4000);
  EXPECT_NE(MarkText(10), frequency);
  Do(MouseAct::Up, 8000, 4000);
  EXPECT_TRUE(Box().mark.Empty());
  EXPECT_EQ(Plot(), before);
  Do(MouseAct::Move, 6500, 4000);
  EXPECT_TRUE(Box().mark.Empty());
}

TEST_F(PlotReadout, IsTheSameAtTheSecondPress) {
  for (int number = 1; number <= 12; ++number) {
    Press("cmd" + std::to_string(number));
    const Picture before = Plot();
    Do(MouseAct::Down, 6500, 4000);
    const Picture first = Box().mark;
    Do(MouseAct::Up, 6500, 4000);
    Do(MouseAct::Down, 6500, 4000);
    EXPECT_EQ(Box().mark, first) << number;
    Do(MouseAct::Up, 6500, 4000);
    EXPECT_EQ(Plot(), before) << number;
  }
}

// The marks are drawn in exclusive or; the trace drawn after them is not.
TEST_F(PlotReadout, LeavesItsDrawModeToItself) {
  Do(MouseAct::Down, 6500, 4000);
  EXPECT_EQ(Box().mark.DrawMode, PenMode::Copy);
  EXPECT_EQ(Box().mark.DrawWidth, 1);
}

TEST_F(PlotReadout, OutsideTheFrameNothingIsUpdated) {
  Do(MouseAct::Down, 1500, 4000);
  EXPECT_TRUE(Box().mark.Empty());
  Do(MouseAct::Move, 6500, 4000);
  EXPECT_FALSE(Box().mark.Empty());
  const Picture inside = Box().mark;
  Do(MouseAct::Move, 11500, 4000);
  EXPECT_EQ(Box().mark, inside);
}

TEST_F(PlotReadout, TheRightButtonDoesNothing) {
  Do(MouseAct::Down, 6500, 4000, MouseButton::Right);
  Do(MouseAct::Move, 6600, 4000);
  EXPECT_TRUE(Box().mark.Empty());
}

// The design is a lowpass of 1 MHz: at the frequency shown, the figure shown is that of the sweep.
TEST_F(PlotReadout, ReadsEveryPlot) {
  for (int number = 1; number <= 12; ++number) {
    Press("cmd" + std::to_string(number));
    Do(MouseAct::Down, 6500, 4000);
    EXPECT_FALSE(Box().mark.Empty()) << number;
    Do(MouseAct::Up, 6500, 4000);
  }
}

TEST_F(PlotReadout, WithoutAValidSweepThereIsNothingToRead) {
  session.record.ResponsesValid = 0;
  Do(MouseAct::Down, 6500, 4000);
  EXPECT_TRUE(Box().mark.Empty());
}

TEST_F(PlotPage, ThePlotSurvivesAVisitToAnotherPage) {
  Press("cmd4");
  Press("cmdDesign");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::Plotted), nullptr);
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_EQ(session.record.PlotCode, 4);
  EXPECT_TRUE(Shows("Envelope Delay"));
}

// A page that is opened anew shows nothing of the plot before when its own cannot be drawn.
TEST_F(PlotPage, APlotThatCannotBeDrawnIsNotTheOneBefore) {
  Press("cmdDesign");
  session.record.Fstart = 0;
  session.record.ResponsesValid = 0;
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_TRUE(session.plot.picture.Empty());
}

TEST_F(PlotPage, ThePageShowsTheSheetOfTheSession) { EXPECT_EQ(&Plot(), &session.plot.picture); }

TEST_F(PlotPage, EveryPlotPressedTwiceIsTheSame) {
  for (int number = 1; number <= 12; ++number) {
    Press("cmd" + std::to_string(number));
    const Picture first = Plot();
    Press("cmd" + std::to_string(number));
    EXPECT_EQ(Plot(), first) << number;
  }
}

TEST_F(PlotPage, ThePageAlwaysSweepsWhenItLoads) {
  session.record.stage[2].Lval.value *= 2;  // without clearing ResponsesValid
  const Picture before = Plot();
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_FALSE(Plot() == before);
}

TEST_F(PlotPage, AutoScaleTakesThePageAwayAndBringsItBack) {
  platform.pageEvents.clear();
  Press("cmdAutoScale");
  EXPECT_EQ(platform.pageEvents, (std::vector<std::string>{"show frmBlank", "show frmPlotted", "unload frmBlank"}));
  // 60 dB a decade over the decade above the cutoff.
  EXPECT_NEAR(session.record.LossBottom, -60, 0.2);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(PlotPage, AScaleWithoutHeightIsToldFromAPress) {
  session.record.DelayTop = 0;
  Press("cmd4");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Error checker");
  EXPECT_EQ(platform.messages[0].icon, Icon::Critical);
  EXPECT_EQ(platform.messages[0].text, "We had a plotting routine problem.\r\nSee frmPlotted line 520");
}

TEST_F(PlotPage, AScaleWithoutHeightIsToldFromTheLoad) {
  session.record.VSWRTop = 1;
  session.record.PlotCode = 13;
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"We had a plotting routine problem.\r\nSee frmPlotted line 552"});
}

// The network that cannot be analysed comes up instead.
TEST_F(PlotPage, ASweepThatFailsLeavesThePlotAlone) {
  const Picture before = Plot();
  const Page* page = &Top();
  session.record.Fstart = 0;
  session.record.ResponsesValid = 0;
  Press("cmd2");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].text.find("See modAnalysis line 48"), std::string::npos);
  EXPECT_EQ(Top().Id(), PageId::Schematic);
  ASSERT_EQ(session.pages.Find(PageId::Plotted), page);
  session.record.Fstart = 1e5F;
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_FALSE(Plot() == before);
}

TEST_F(PlotPage, AShallowLossScaleIsStoredAsMinus0Point3) {
  session.record.LossBottom = -0.1F;
  Press("cmd2");
  EXPECT_EQ(session.record.LossBottom, -0.3F);
}

TEST_F(PlotPage, RippleIsTunableForTheFamiliesThatHaveIt) {
  EXPECT_FALSE(Get<Button>("cmdTuneApass").visible);
  session.record.Family = familyChebyshev;
  session.record.Apass = 0.1F;
  Press("cmd1");
  EXPECT_TRUE(Get<Button>("cmdTuneApass").visible);
  session.record.Family = familyCauer;
  session.record.Order = 4;
  Press("cmd1");
  EXPECT_TRUE(Get<Button>("cmdTuneApass").visible);
  session.record.Order = 5;
  Press("cmd1");
  EXPECT_FALSE(Get<Button>("cmdTuneApass").visible);
}

TEST_F(PlotPage, RelativeModePutsThePeakAtZero) {
  session.record.RelativeMode = 1;
  session.record.Qind[1] = 20;
  Press("cmd1");
  f32 highest = -300;
  for (int i = 0; i <= 1000; ++i) highest = std::max(highest, session.responses.RespTrans[i]);
  EXPECT_EQ(highest, 0);
}

TEST_F(PlotPage, TheCloseBoxEndsTheProgram) {
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_NE(File(configurationFile), "");
}

TEST_F(PlotPage, ItsOwnButtonSaysWhereTheUserIs) {
  EXPECT_EQ(Get<Button>("cmdHere").caption, "Plot");
  EXPECT_EQ(Get<Button>("cmdHere").toolTip, "You are at the Plot page");
  EXPECT_FALSE(Get<Button>("cmdHere").Active());
  EXPECT_EQ(Top().Find("cmdPlot"), nullptr);
}

}  // namespace
}  // namespace quilm
