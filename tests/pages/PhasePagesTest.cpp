// The linearity of phase: setup, plot and report.
#include <gmock/gmock.h>

#include <cmath>

#include "core/ElementTypes.h"
#include "core/Responses.h"
#include "pages/StudyPageBench.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

class PhasePages : public StudyPageBench {
 protected:
  void OpenSetup() {
    AnalyseLowpass();
    Press("cmdPhase");
    ASSERT_EQ(Top().Id(), PageId::PhaseSetup);
  }
  void Put(const std::string& start, const std::string& stop, const std::string& steps) {
    Enter("txtPhaseFstart", start);
    Enter("txtPhaseFstop", stop);
    Enter("txtPhaseNrInts", steps);
  }
  // From DC, nearly, to the corner.
  void OpenPlot(const std::string& button) {
    OpenSetup();
    Put("1", "1M", "500");
    Press(button);
    ASSERT_EQ(Top().Id(), PageId::PhasePlot);
  }
};

// Of the prototype 1 / (s^3 + 2 s^2 + 2 s + 1): -atan2(2 x - x^3, 1 - 2 x^2), degrees.
f64 ButterworthPhase(f64 x) { return -std::atan2(2 * x - x * x * x, 1 - 2 * x * x) * 180 / Pi; }

TEST_F(PhasePages, SetupBeginsWithTheSweepOfTheDesign) {
  OpenSetup();
  EXPECT_EQ(CaptionOf("lblHeading"), "Phase Linearity Setup");
  EXPECT_EQ(TextOf("txtPhaseFstart"), "1k");
  EXPECT_EQ(TextOf("txtPhaseFstop"), "10M");
  EXPECT_EQ(TextOf("txtPhaseNrInts"), "1000");
}

TEST_F(PhasePages, ARunMakesItsSweepThatOfTheDesign) {
  OpenSetup();
  session.record.ResponsesValid = 1;
  ASSERT_EQ(session.record.SweepMode, 2);
  Put("2k", "3M", "77.9");
  EXPECT_EQ(session.record.Fstart, 1000) << "nothing before the run";
  Press("cmdLinearity");
  EXPECT_EQ(Top().Id(), PageId::PhasePlot);
  EXPECT_EQ(session.pages.Find(PageId::PhaseSetup), nullptr);
  EXPECT_EQ(session.record.SweepMode, 1);
  EXPECT_EQ(session.record.Fstart, 2000);
  EXPECT_EQ(session.record.Fstop, 3e6F);
  EXPECT_EQ(session.record.NrIntervals, 77);
  EXPECT_EQ(session.record.ResponsesValid, 0);
  EXPECT_EQ(session.responses.RespFreq[77], 3e6F);
  EXPECT_NEAR(session.responses.RespAngle[77], ButterworthPhase(3), 0.01);
}

TEST_F(PhasePages, StepsAreHeldFromFiftyToTheRoomOfASweep) {
  for (const auto& [typed, held] :
       {std::pair{"49", "50"}, {"0", "50"}, {"50", "50"}, {"2049", "2049"}, {"9k", "2049"}}) {
    if (session.pages.Top()->Id() == PageId::Opening) {
      OpenSetup();
    } else {
      Press("cmdBack");
    }
    Enter("txtPhaseNrInts", typed);
    Press("cmdDeviation");
    EXPECT_EQ(session.record.NrIntervals, std::stof(held)) << typed;
    Press("cmdBack");
    EXPECT_EQ(TextOf("txtPhaseNrInts"), held);
    Press("cmdLinearity");
  }
}

TEST_F(PhasePages, FrequenciesAreHeldToTheLimitsOfASweep) {
  OpenSetup();
  Put("0", "10G", "100");
  Press("cmdLinearity");
  EXPECT_EQ(session.record.Fstart, 0.01F);
  EXPECT_EQ(session.record.Fstop, 1e10F);
}

TEST_F(PhasePages, AStopAtOrBelowTheStartIsRefused) {
  OpenSetup();
  for (const char* stop : {"1M", "999k", "0"}) {
    for (const char* button : {"cmdLinearity", "cmdDeviation"}) {
      Put("1M", stop, "100");
      const DesignRecord before = session.record;
      Press(button);
      const MessageShown message = OnlyMessage();
      EXPECT_EQ(message.text, "The stopping frequency entry is less than the starting frequency");
      EXPECT_EQ(message.title, "Entry examination");
      EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtPhaseFstop"));
      EXPECT_EQ(Top().Id(), PageId::PhaseSetup);
      EXPECT_EQ(session.record, before);
    }
  }
}

TEST_F(PhasePages, ThePhaseIsBlueWithItsLineInRedOverIt) {
  OpenPlot("cmdLinearity");
  EXPECT_EQ(CaptionOf("lblHeading"), "Phase Linearity Plot");
  EXPECT_EQ(CaptionOf("lblPlotType"), "Phase with best-fit straight line");
  const std::vector<Point> phase = Points(colorBlue);
  ASSERT_EQ(Points(colorRed).size(), 502U);
  EXPECT_EQ(std::get<PolylineOp>(Plot().Operations().at(Plot().Operations().size() - 1)).pen.color, colorRed);
  ASSERT_EQ(phase.size(), 502U);
  // 135 degrees at the corner; 250 are the next that hold them: y is 4000 - value * 1.5 / 0.125.
  for (const int i : {0, 100, 250, 500}) {
    const Point at = phase[static_cast<std::size_t>(i) + 1];
    EXPECT_NEAR(at.x, 2000 + 18 * i, 0.01);
    EXPECT_NEAR(at.y, 4000 - ButterworthPhase(i / 500.0) * 12, 0.1) << i;
  }
  EXPECT_THAT(Texts(Plot()), IsSupersetOf({"Degrees:", "Phase", "Best-fit straight line", "250", "200", "0", "-200",
                                           "-250", "500k", "1M"}));
}

TEST_F(PhasePages, TheDeviationIsWhatIsLeftOverItsZeroLine) {
  OpenPlot("cmdDeviation");
  EXPECT_EQ(CaptionOf("lblPlotType"), "Deviation from straight line");
  const std::vector<Point> deviation = Points(colorBlue);
  ASSERT_EQ(deviation.size(), 502U);
  for (const Point& at : Points(colorRed)) EXPECT_EQ(at.y, 4000);
  // The least-squares line by sums over the prototype.
  f64 A = 0;
  f64 B = 0;
  f64 mean = 0;
  for (int i = 0; i <= 500; ++i) mean += ButterworthPhase(i / 500.0) / 501;
  for (int i = 0; i <= 500; ++i) {
    const f64 x = i / 500.0 - 0.5;
    A += x * x;
    B += x * (ButterworthPhase(i / 500.0) - mean);
  }
  const auto left = [&](int i) { return ButterworthPhase(i / 500.0) - mean - B / A * (i / 500.0 - 0.5); };
  f64 largest = 0;
  for (int i = 0; i <= 500; ++i) largest = std::max(largest, std::fabs(left(i)));
  ASSERT_LT(largest, 5);    // what a stepsize of 0.0025 holds
  ASSERT_GT(largest, 2.5);  // what the next one holds
  for (const int i : {0, 100, 250, 500}) {
    EXPECT_NEAR(deviation[static_cast<std::size_t>(i) + 1].y, 4000 - left(i) * 1.5 / 0.0025, 1) << i;
  }
  EXPECT_THAT(Texts(Plot()), IsSupersetOf({"Degrees:", "5", "4", "-5"}));
}

TEST_F(PhasePages, StepsizesGoUpAndDownTheTableAndEndThere) {
  OpenPlot("cmdLinearity");
  Press("cmdIncrease");
  EXPECT_THAT(Texts(Plot()), Contains("500"));
  Press("cmdDecrease");
  Press("cmdDecrease");
  EXPECT_THAT(Texts(Plot()), Contains("100"));
  EXPECT_EQ(CaptionOf("lblSpan"), "per interval: 20 degrees");
  // What leaves the scale rides along its edge, the line as well.
  EXPECT_EQ(Points(colorBlue).back().y, 7000);
  EXPECT_EQ(Points(colorRed).back().y, 7000);
  EXPECT_NE(Points(colorRed)[250].y, 7000);
  for (int k = 0; k < 20; ++k) Press("cmdIncrease");
  EXPECT_THAT(Texts(Plot()), Contains("10k"));
  EXPECT_EQ(session.note, "This is the largest stepsize");
  for (int k = 0; k < 20; ++k) Press("cmdDecrease");
  EXPECT_THAT(Texts(Plot()), Contains("1"));
  EXPECT_EQ(session.note, "This is the smallest stepsize");
  EXPECT_EQ(CaptionOf("lblSpan"), "per interval: 0.2 degrees");
}

TEST_F(PhasePages, TheDelayOfTheLineIsTold) {
  OpenSetup();
  // A line of 90 degrees at 1 MHz in place of the filter: 250 ns.
  session.record.Stages = 1;
  session.network.stage[1] = {};
  session.network.stage[1].ElementType = TransLine;
  session.network.stage[1].TLval = {89.9999F, 1e6F, 50, 0, 0};
  Press("cmdLinearity");
  EXPECT_EQ(CaptionOf("lblDelay"), "Delay of the line: 250ns");
}

TEST_F(PhasePages, WaysBack) {
  OpenPlot("cmdLinearity");
  Press("cmdBack");
  EXPECT_EQ(Top().Id(), PageId::PhaseSetup);
  EXPECT_EQ(session.pages.Find(PageId::PhasePlot), nullptr);
  EXPECT_EQ(TextOf("txtPhaseFstop"), "1M");
  Press("cmdDeviation");
  Press("cmdExit");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(TextOf("txtNrIntervals"), "500");
  EXPECT_TRUE(Get<OptionButton>("optLinear").Value());
  Press("cmdPhase");
  Press("cmdDeviation");
  PressCloseBox(session, Top());
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(PhasePages, TheNextPlotHasTheSweepOfTheRun) {
  OpenPlot("cmdLinearity");
  Press("cmdExit");
  Press("cmdPlot");
  EXPECT_EQ(session.record.ResponsesValid, 1);
  EXPECT_EQ(session.responses.RespFreq[500], 1e6F);
  EXPECT_NEAR(session.responses.RespTrans[500], -3.0103, 1e-3);
}

TEST_F(PhasePages, UndoTakesTheSweepBack) {
  OpenPlot("cmdLinearity");
  Undo(session);
  EXPECT_EQ(session.record.SweepMode, 2);
  EXPECT_EQ(session.record.Fstop, 1e7F);
  EXPECT_EQ(Top().Id(), PageId::PhaseSetup);
  EXPECT_EQ(TextOf("txtPhaseFstop"), "10M");
}

TEST_F(PhasePages, ThePlotIsPrinted) {
  OpenPlot("cmdDeviation");
  session.record.CircuitTitle = "Video lowpass";
  const Picture before = Plot();
  platform.printers.push_back(true);
  Press("cmdPrint");
  ASSERT_EQ(platform.Printer().Sheets().size(), 1U);
  EXPECT_EQ(platform.Printer().Paper(), Orientation::Landscape);
  const Picture& sheet = platform.Printer().Sheets()[0];
  EXPECT_THAT(Texts(sheet), IsSupersetOf({"Video lowpass", "Degrees:", "Deviation", "5", "1M"}));
  EXPECT_TRUE(Texts(sheet).back().find("   -   Quilm ") != std::string::npos);
  EXPECT_EQ(Curves(sheet, colorBlue).size(), 1U);
  EXPECT_EQ(Plot(), before);
  // Cancelling is quiet.
  Press("cmdPrint");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(PhasePages, WithoutATitleNoneIsPrinted) {
  OpenPlot("cmdLinearity");
  platform.printers.push_back(true);
  Press("cmdPrint");
  EXPECT_THAT(Texts(platform.Printer().Sheets()[0]), Not(Contains("")));
}

}  // namespace
}  // namespace quilm
