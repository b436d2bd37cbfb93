#include <algorithm>

#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "pages/StartUp.h"
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

TEST_F(PlotPage, TheRoundPlotsWaitForTheirDrawing) {
  EXPECT_FALSE(Get<Button>("cmd11").Active());
  EXPECT_FALSE(Get<Button>("cmd12").Active());
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

TEST_F(PlotPage, ASweepThatFailsLeavesThePlotAlone) {
  const Picture before = Plot();
  session.record.Fstart = 0;
  session.record.ResponsesValid = 0;
  Press("cmd2");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].text.find("See modAnalysis line 48"), std::string::npos);
  EXPECT_EQ(Plot(), before);
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
