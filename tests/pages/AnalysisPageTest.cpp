#include "core/Configuration.h"
#include "core/Responses.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class AnalysisPage : public PageBench {
 protected:
  AnalysisPage() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Press("cmdAnalysis");
  }

  std::string Text(const std::string& name) { return Get<TextBox>(name).text; }
  std::string Caption(const std::string& name) { return Get<Label>(name).caption; }
  DesignRecord& Record() { return session.record; }
};

TEST_F(AnalysisPage, ShowsTheSettings) {
  EXPECT_EQ(Get<Button>("cmdHere").toolTip, "You are at the analysis page");
  ASSERT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Text("txtFstart"), "1k");
  EXPECT_EQ(Text("txtFstop"), "10M");
  EXPECT_EQ(Text("txtLossBottom"), "-60");
  EXPECT_EQ(Text("txtDelayTop"), "100u");
  EXPECT_TRUE(Get<OptionButton>("optLog").Value());
  EXPECT_TRUE(Get<OptionButton>("optAbsolute").Value());
  EXPECT_EQ(Caption("lbldBper"), "per interval: 10 dB");
  EXPECT_EQ(Caption("lblOhmsPer"), "per interval: 200 ohms");
  EXPECT_EQ(Caption("lblVSWRPer"), "per interval: 0.2");
}

TEST_F(AnalysisPage, TheGridAcrossBelongsToALinearSweep) {
  EXPECT_FALSE(Get<Label>("lblPerInterval").Shown());
  EXPECT_FALSE(Get<Spin>("UpDown1").Shown());
  Record().ResponsesValid = 1;
  Press("optLinear");
  EXPECT_TRUE(Get<Label>("lblPerInterval").Shown());
  EXPECT_EQ(Record().SweepMode, 1);
  EXPECT_EQ(Record().ResponsesValid, 0);
  Enter("txtFstart", "0");
  EXPECT_EQ(Caption("lblSpanValue"), "Span: 10M Hz");
  EXPECT_EQ(Caption("lblPerInterval"), "1M Hz per interval");
}

struct Row {
  const char* box;
  const char* typed;
  const char* echo;
  bool sweeps;
};

TEST_F(AnalysisPage, EntriesAreHeldAndEchoedWhenTheBoxIsLeft) {
  const Row rows[] = {
      {"txtFstart", "2k", "2k", true},          {"txtFstop", "5M", "5M", true},
      {"txtNrIntervals", "2050", "2049", true}, {"txtNrIntervals", "3", "4", true},
      {"txtLossBottom", "60", "-60", false},    {"txtDelayTop", "2u", "2u", false},
      {"txtVSWRTop", "3", "3", false},          {"txtImpedanceTop", "600", "600", false},
      {"txtQinductor", "150", "150", true},     {"txtQcapacitor", "900", "900", true},
      {"txtRetLossRef", "-5", "50", true},
  };
  for (const Row& row : rows) {
    Record().ResponsesValid = 1;
    Enter(row.box, row.typed);
    EXPECT_EQ(Text(row.box), row.echo) << row.box;
    EXPECT_EQ(Record().ResponsesValid, row.sweeps ? 0 : 1) << row.box;
  }
}

TEST_F(AnalysisPage, TheSweepIsFittedToTheBandAsItIsDivided) {
  session.record.Topology = "A";
  session.record.Width = 2e6F;
  for (const char* option : {"optLinear", "optLog"}) {
    Press(option);
    Enter("txtFstart", "1");
    session.record.ResponsesValid = 1;
    Press("cmdFitSweep");
    EXPECT_EQ(session.record.Fstart, 200e3F);
    EXPECT_EQ(session.record.Fstop, 20e6F);
    EXPECT_EQ(session.record.ResponsesValid, 0);
    EXPECT_EQ(Get<TextBox>("txtFstart").text, "200k");
    EXPECT_EQ(Get<TextBox>("txtFstop").text, "20M");
    EXPECT_TRUE(Get<OptionButton>(option).Value());
  }
}

TEST_F(AnalysisPage, WithoutABandTheSweepStays) {
  session.record.Width = 0;
  const f32 start = session.record.Fstart;
  Press("cmdFitSweep");
  EXPECT_EQ(session.record.Fstart, start);
  EXPECT_EQ(session.note, "No band to fit the sweep to: the design has no bandwidth");
}

TEST_F(AnalysisPage, ASweepWithoutARangeIsTold) {
  Enter("txtFstart", "1M");
  Enter("txtFstop", "1M");
  EXPECT_EQ(Get<Label>("lblSweepFault").caption, "Start and stop are equal");
  Enter("txtFstop", "900k");
  EXPECT_EQ(Get<Label>("lblSweepFault").caption, "Stop is below start");
  Enter("txtFstop", "2M");
  EXPECT_EQ(Get<Label>("lblSweepFault").caption, "");
}

TEST_F(AnalysisPage, RelativeForcesASweepAndMagnifyDoesNot) {
  Record().ResponsesValid = 1;
  Press("optMagnify");
  EXPECT_EQ(Record().MagnifyMode, 1);
  EXPECT_EQ(Record().ResponsesValid, 1);
  Press("optRelative");
  EXPECT_EQ(Record().RelativeMode, 1);
  EXPECT_EQ(Record().AbsoluteMode, 0);
  EXPECT_EQ(Record().ResponsesValid, 0);
}

TEST_F(AnalysisPage, SpinControlsHaveTheirOwnLimits) {
  Press("optLinear");
  for (int i = 0; i < 40; ++i) Step(session, Get<Spin>("UpDown1"), 1);
  EXPECT_EQ(Record().NrXints, 30);
  for (int i = 0; i < 10; ++i) Step(session, Get<Spin>("UpDown2"), -1);
  EXPECT_EQ(Record().NrYints, 1);
  for (int i = 0; i < 10; ++i) Step(session, Get<Spin>("UpDown3"), 1);
  EXPECT_EQ(Record().PlotLineWidth, 6);
}

TEST_F(AnalysisPage, TheIntervalsOfAFileAreHeldBeforeTheyAreShown) {
  Record().NrYints = 9e9F;
  session.pages.ShowPage(PageId::Analyze);
  EXPECT_EQ(Caption("lblNrYints"), "30000");
  EXPECT_EQ(Record().NrYints, 30000);
}

TEST_F(AnalysisPage, AQualityOfNoughtIsTheConfiguredOneBeforeAPlot) {
  session.configuration.ConfigValue[lineQind] = 150;
  Enter("txtQinductor", "0");
  Enter("txtQcapacitor", "-1");
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().Qind[1], 150);
  EXPECT_EQ(Record().Qcap[1], 2000);
  // And on every other way to a result.
  Press("cmdDesign");
  Record().Qind[1] = 0;
  Press("cmdTabulate");
  EXPECT_EQ(Record().Qind[1], 150);
}

TEST_F(AnalysisPage, ABoxThatALimitChangesTurnsWarmAndSaysSo) {
  const i32 before = Get<TextBox>("txtNrIntervals").Repairs();
  Enter("txtNrIntervals", "5000");
  EXPECT_EQ(Text("txtNrIntervals"), "2049");
  EXPECT_EQ(Get<TextBox>("txtNrIntervals").Repairs(), before + 1);
  EXPECT_EQ(session.note, "Number of intervals of the sweep: \"5000\" is taken as 2049");
}

TEST_F(AnalysisPage, TheCheckBeforeAPlotForcesTheRanges) {
  Record().NrYints = 100;
  Record().NrXints = 0;
  Record().LossBottom = -300;
  Record().DelayTop = 0;
  Record().VSWRTop = 99;
  Record().Qind[1] = 1;
  Record().ImpedanceTop = 10;
  Record().Fstart = 0;
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().NrYints, 30);
  EXPECT_EQ(Record().NrXints, 1);
  EXPECT_EQ(Record().LossBottom, -120);
  EXPECT_EQ(Record().DelayTop, 3 * 0.3F / 1e6F);
  EXPECT_EQ(Record().VSWRTop, 7);
  EXPECT_EQ(Record().Qind[1], 2);
  EXPECT_EQ(Record().ImpedanceTop, 100);  // twice the source
  EXPECT_EQ(Record().Fstart, 5e5F);       // half the cutoff
}

TEST_F(AnalysisPage, MissingSettingsAreFilledWhenThePageLoads) {
  Record().Fstop = Record().NrIntervals = Record().DelayTop = Record().Qcap[1] = Record().Rstandard = 0;
  Record().LossBottom = 0;
  session.pages.ShowPage(PageId::Analyze);
  EXPECT_EQ(Record().Fstop, 1e7F);
  EXPECT_EQ(Record().NrIntervals, 1000);
  EXPECT_EQ(Record().DelayTop, 3 * 0.3F / 1e6F);
  EXPECT_EQ(Record().Qcap[1], 2000);
  EXPECT_EQ(Record().Rstandard, 50);
  EXPECT_EQ(Record().LossBottom, -60);
}

TEST_F(AnalysisPage, AFailedCheckLeadsToTheDesignPage) {
  Record().Width = 0;
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::Analyze), nullptr);
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"Please enter a bandwidth"});
}

TEST_F(AnalysisPage, AutoScaleReadsTheResponsesAsTheyStand) {
  Press("cmdPlot");
  session.pages.ShowPage(PageId::Analyze);
  session.pages.UnloadPage(PageId::Plotted);
  session.responses.RespZin[3] = 777;
  Press("cmdAutoScale");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Text("txtImpedanceTop"), "777");
}

TEST_F(AnalysisPage, ADesignPageNeedsNoCheck) {
  Record().VSWRTop = 99;
  Press("cmdDesign");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().VSWRTop, 99);
}

TEST_F(AnalysisPage, AStudyTakesItsPlaceAndLeadsBack) {
  for (const auto& [button, page, exit] : {std::tuple{"cmdModulation", PageId::ModulationPlot, "cmdExitModulation"},
                                           {"cmdPhase", PageId::PhaseSetup, "cmdExit"},
                                           {"cmdNoise", PageId::Noise, "cmdExit"},
                                           {"cmdTransient", PageId::TransientPlot, "cmdExitTransient"}}) {
    Press(button);
    EXPECT_EQ(Top().Id(), page) << button;
    EXPECT_EQ(session.pages.Find(PageId::Analyze), nullptr);
    Press(exit);
    EXPECT_EQ(Top().Id(), PageId::Analyze) << button;
    Press(button);
    PressCloseBox(session, Top());
    EXPECT_EQ(Top().Id(), PageId::Analyze) << button;
    EXPECT_EQ(session.pages.Find(page), nullptr);
  }
  EXPECT_FALSE(session.ended);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(AnalysisPage, WithoutPartsThereIsNothingToStudy) {
  Record().Stages = 0;
  for (const char* button : {"cmdModulation", "cmdPhase", "cmdNoise", "cmdTransient"}) {
    platform.messages.clear();
    Press(button);
    ASSERT_EQ(platform.messages.size(), 1U) << button;
    EXPECT_EQ(platform.messages[0].text, "The parts list is empty");
    EXPECT_EQ(Top().Id(), PageId::Analyze);
  }
}

}  // namespace
}  // namespace quilm
