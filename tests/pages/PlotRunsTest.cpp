// Optimiser and Monte Carlo on the Plot page: what they say, show, leave and can be stopped by.
#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "analysis/modAnalysis.h"
#include "core/Responses.h"
#include "desk/Leaving.h"
#include "desk/StartUp.h"
#include "files/modReadQuilmFiles.h"
#include "optimise/LimitScore.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"
#include "shell/LongRun.h"

namespace quilm {
namespace {

using testing::ElementsAre;

constexpr const char* fewAreas = "At least two limits areas must be entered.  Please enter limits.";

// A Butterworth lowpass of order 3 for 50 ohms and 1 MHz with steps of 5 per cent, and limits that it does not meet.
class PlotRuns : public PageBench {
 protected:
  PlotRuns() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
    SetSweep(100);
    SetSteps(5);
    AddArea(5, 1e5F, 9.6e5F, -1.6F, -300);
    AddArea(6, 1.9e6F, 1e7F, 0, -18.5F);
    session.random.Seed(1);
    session.pages.ShowPage(PageId::Plotted);
    Press("cmd1");
    platform.messages.clear();
    platform.onYield = [this] {
      ++yields;
      for (const auto& [yield, act] : acts) {
        if (yield == yields) act();
      }
    };
  }

  DesignRecord& Record() { return session.record; }

  void SetSweep(int intervals) {
    Record().Fstart = 1e5F;
    Record().Fstop = 1e7F;
    Record().SweepMode = 2;
    Record().NrIntervals = static_cast<f32>(intervals);
  }

  void SetSteps(f32 percent) {
    for (int s = 1; s <= Record().Stages; ++s) {
      Record().stage[s].Lval.tolerance = Record().stage[s].Cval.tolerance = percent;
    }
  }

  void AddArea(f32 shape, f32 start, f32 stop, f32 top, f32 bottom, int plotType = 1) {
    const int j = ++Record().LimitCount[plotType];
    Record().LimitShape[j][plotType] = shape;
    Record().LimitStart[j][plotType] = start;
    Record().LimitStop[j][plotType] = stop;
    Record().LimitTop[j][plotType] = top;
    Record().LimitBottom[j][plotType] = bottom;
  }

  // Does something in the yield of a number of the next run.
  void At(int yield, std::function<void()> act) {
    yields = 0;
    acts.emplace_back(yield, std::move(act));
  }
  void StopAt(int yield) {
    At(yield, [this] { Press("cmdEnd"); });
  }

  bool Shown(const std::string& name) { return Get<Control>(name).Shown(); }
  PictureBox& Plot() { return Get<PictureBox>("picPlot"); }

  static std::vector<std::string> Texts(const Picture& picture) {
    std::vector<std::string> texts;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }

  // The colours of the traces, which have a point for each of the sweep and one more.
  template <class Operations>
  std::vector<Color> TraceColorsOf(const Operations& operations) {
    std::vector<Color> colors;
    for (const PictureOp& operation : operations) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->points.size() == 102) colors.push_back(line->pen.color);
    }
    return colors;
  }
  std::vector<Color> LiveColors() { return TraceColorsOf(session.plot.live.Present().kept); }
  std::vector<Color> PictureColors() { return TraceColorsOf(Plot().picture.Operations()); }

  void ExpectTools(bool shown) {
    for (const char* name :
         {"cmd1", "cmd12", "cmdAutoScale", "cmdFitSweep", "cmdLimits", "cmdMarkers", "cmdMonteCarlo", "cmdOptimize",
          "cmdStepSize", "cmdTunePart", "cmdTuneWidth", "cmdGetOverlay", "cmdSaveOverlay"}) {
      EXPECT_EQ(Shown(name), shown) << name;
    }
  }

  int yields = 0;
  std::vector<std::pair<int, std::function<void()>>> acts;
};

class OptimizerRun : public PlotRuns {};
class MonteCarloRun : public PlotRuns {};

TEST_F(OptimizerRun, ButtonsSayWhatTheyDo) {
  EXPECT_EQ(Get<Button>("cmdOptimize").caption, "Optimize");
  EXPECT_EQ(Get<Button>("cmdOptimize").toolTip, "Start the Optimizer routine");
  EXPECT_EQ(Get<Button>("cmdMonteCarlo").caption, "Monte Carlo");
  EXPECT_EQ(Get<Button>("cmdMonteCarlo").toolTip, "Start the Monte Carlo routine");
  EXPECT_EQ(Get<Button>("cmdEnd").caption, "Stop");
  EXPECT_EQ(Get<Button>("cmdExtremes").caption, "Stop / show extremes");
  EXPECT_EQ(Get<Button>("cmdExtremes").toolTip, "End this routine and show target and extremes");
  EXPECT_FALSE(Shown("cmdEnd"));
  EXPECT_FALSE(Shown("cmdExtremes"));
}

TEST_F(OptimizerRun, NeedsAStepsizeAndElseDoesNothing) {
  SetSteps(0);
  Record().MarkersShown = 1;
  const DesignRecord before = Record();
  Press("cmdOptimize");
  EXPECT_THAT(MessageTexts(), ElementsAre("All component stepsizes are set to zero.\r\n\r\n"
                                          "The optimizer needs at least one component with an entered stepsize.\r\n\r\n"
                                          "Enter a stepsize greater than zero for at least one component."));
  EXPECT_EQ(platform.messages[0].title, "Notice");
  EXPECT_TRUE(Record() == before);
  ExpectTools(true);
}

TEST_F(OptimizerRun, NeedsTwoAreas) {
  Record().LimitCount[1] = 1;
  Record().MarkersShown = 1;
  const DesignRecord before = Record();
  Press("cmdOptimize");
  EXPECT_THAT(MessageTexts(), ElementsAre(fewAreas));
  EXPECT_EQ(Record().LimitsShown, 1);
  EXPECT_EQ(static_cast<const Network&>(Record()), before);
  EXPECT_EQ(Record().Family, familyButterworth);
  EXPECT_EQ(Record().NetworkEdited, 0);
  ExpectTools(true);
  EXPECT_FALSE(Shown("cmdEnd"));
  for (const char* name : {"cmdLimit1", "cmdLimit9"}) EXPECT_TRUE(Shown(name)) << name;
  EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, 1);
}

// The prompt is that of the plot on display, and the other plots have none.
TEST_F(OptimizerRun, ARefusalAsksForLimits) {
  Record().LimitCount[1] = 1;
  const std::pair<const char*, const char*> prompts[] = {
      {"cmd1", "Enter transmission limits"}, {"cmd2", "Enter return limits"}, {"cmd3", "Enter angle limits"},
      {"cmd4", "Enter delay limits"},        {"cmd5", "Enter VSWR limits"},   {"cmd7", "Enter input impedance limits"}};
  for (const auto& [button, prompt] : prompts) {
    Press(button);
    Press("cmdOptimize");
    EXPECT_THAT(Texts(Plot().picture), testing::Contains(prompt));
  }
  for (const char* button : {"cmd8", "cmd11"}) {
    Press(button);
    Press("cmdOptimize");
    EXPECT_THAT(Texts(Plot().picture), testing::Not(testing::Contains(testing::StartsWith("Enter ")))) << button;
  }
}

TEST_F(OptimizerRun, AnEntryOfLimitsInProgressEndsWithTheRun) {
  Record().LimitCount[1] = 1;
  Press("cmdOptimize");
  AddArea(6, 1.9e6F, 1e7F, 0, -18.5F);
  At(1, [this] { EXPECT_FALSE(Shown("cmdLimit1")); });
  StopAt(1);
  Press("cmdOptimize");
  EXPECT_EQ(yields, 1);
  EXPECT_FALSE(Shown("cmdLimit1"));
  EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, 0);
  EXPECT_THAT(Texts(Plot().picture), testing::Not(testing::Contains("Enter transmission limits")));
}

TEST_F(OptimizerRun, TwoAreasOfDifferentPlotTypesWillDo) {
  Record().LimitCount[1] = 1;
  AddArea(6, 1e5F, 1e6F, 0, -20, 2);
  StopAt(3);
  Press("cmdOptimize");
  EXPECT_THAT(MessageTexts(), ElementsAre());
  EXPECT_EQ(yields, 3);
}

TEST_F(OptimizerRun, MeanwhileTheToolsAreAwayAndTheStopButtonIsThere) {
  At(2, [this] {
    ExpectTools(false);
    EXPECT_TRUE(Shown("cmdEnd"));
    EXPECT_FALSE(Shown("cmdExtremes"));
    EXPECT_EQ(Record().LimitsShown, 1);
    EXPECT_EQ(Record().MarkersShown, 0);
  });
  StopAt(3);
  Record().MarkersShown = 1;
  Press("cmdOptimize");
  EXPECT_EQ(yields, 3);
  ExpectTools(true);
  EXPECT_FALSE(Shown("cmdEnd"));
}

TEST_F(OptimizerRun, LeavesABetterNetworkThatStandsByHand) {
  StopAt(200);
  Press("cmdOptimize");
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
  EXPECT_EQ(Record().ResponsesValid, 1);
  const LimitScore score(Record(), Record().DelayTop, SweptFrequencies(session.responses));
  const f32 better = score.GetError(session.responses);
  Undo(session);
  EXPECT_EQ(Record().Family, familyButterworth);
  EXPECT_LT(better, score.GetError(session.responses) / 2);
}

TEST_F(OptimizerRun, IsOneStepToUndo) {
  const DesignRecord before = Record();
  StopAt(50);
  Press("cmdOptimize");
  const DesignRecord after = Record();
  EXPECT_EQ(session.history.UndoText(), "Optimize");
  Undo(session);
  EXPECT_EQ(static_cast<const Network&>(Record()), before);
  EXPECT_EQ(Record().Family, before.Family);
  EXPECT_EQ(Record().NetworkEdited, 0);
  Redo(session);
  EXPECT_EQ(static_cast<const Network&>(Record()), after);
  EXPECT_EQ(Record().Family, familyManual);
}

// The best of a run is not that of its last trial: the picture shows the last, the design is the best.
TEST_F(OptimizerRun, ARunThatEndsByItselfShowsItsLastTrialUntilTheNextSweep) {
  AddArea(5, 1e5F, 1e7F, -1, -300);  // out of reach
  Press("cmdOptimize");
  EXPECT_EQ(yields, 2000);
  const ResponseArray last = session.responses.RespTrans;
  EXPECT_EQ(Record().ResponsesValid, 1);
  EXPECT_THAT(PictureColors(), ElementsAre(colorBlue));
  EXPECT_TRUE(session.plot.live.Empty());
  DesignRecord copy = Record();
  SweepLadder(copy, session.responses);
  EXPECT_NE(session.responses.RespTrans, last);
}

TEST_F(OptimizerRun, ARunThatIsStoppedShowsTheBest) {
  StopAt(30);
  Press("cmdOptimize");
  const ResponseArray shown = session.responses.RespTrans;
  DesignRecord copy = Record();
  SweepLadder(copy, session.responses);
  EXPECT_EQ(session.responses.RespTrans, shown);
  // In the colours of trial 30: 30 = 4 x 7 + 2.
  EXPECT_THAT(PictureColors(), ElementsAre(0xA00000U));
}

TEST_F(OptimizerRun, ADesignThatMeetsAllAreasNeedsNoTrialAndIsByHandAllTheSame) {
  Record().LimitCount[1] = 0;
  AddArea(5, 1e5F, 2e5F, -3, -300);
  AddArea(6, 9e6F, 1e7F, 0, -20);
  const DesignRecord before = Record();
  Press("cmdOptimize");
  EXPECT_EQ(yields, 0);
  EXPECT_EQ(session.note, "The response lies within all limit areas already");
  for (int s = 1; s <= Record().Stages; ++s) EXPECT_EQ(Record().stage[s], before.stage[s]);
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
}

TEST_F(OptimizerRun, TrialsPileUpInTheColoursOfTheCycle) {
  At(9, [this] {
    EXPECT_THAT(LiveColors(),
                ElementsAre(0x780000, 0xA00000, 0xB90000, 0xDC0000, 0xFF0000, 0xFF3C3C, 0xFF6E6E, 0x780000, 0xA00000));
  });
  StopAt(9);
  Press("cmdOptimize");
  EXPECT_EQ(yields, 9);
}

TEST_F(OptimizerRun, AngleAndDelayStartInTheOtherColour) {
  for (const char* name : {"cmd3", "cmd4"}) {
    Press(name);
    acts.clear();
    At(1, [this] {
      EXPECT_THAT(PictureColors(), ElementsAre(colorRed, colorBlue));
      EXPECT_THAT(LiveColors(), ElementsAre(0x780000, 0x000078));
    });
    StopAt(1);
    Press("cmdOptimize");
  }
}

TEST_F(OptimizerRun, TheProgressIsToldAboveTheFrame) {
  At(7, [this] {
    const std::vector<std::string> texts = Texts(Plot().mark);
    EXPECT_THAT(texts, testing::IsSupersetOf({"10000", "1000", "100", "10", "1", "0.1", "0.01"}));
    EXPECT_THAT(texts, testing::Contains("Trial: 7"));
    EXPECT_THAT(texts, testing::Contains(testing::StartsWith("Better: ")));
    EXPECT_THAT(texts, testing::Contains(testing::StartsWith("Error: ")));
    EXPECT_EQ(session.note, "Optimizer: 7 of 2000");
  });
  StopAt(7);
  Press("cmdOptimize");
  EXPECT_TRUE(Plot().mark.Empty());
}

// The live layer has the areas and the grid again after 50 trials, between the traces.
TEST_F(OptimizerRun, TheFrameIsDrawnAgainEvery50Trials) {
  const auto frames = [this] {
    const auto& kept = session.plot.live.Present().kept;
    return std::count_if(kept.begin(), kept.end(), [](const PictureOp& operation) {
      const auto* box = std::get_if<RectangleOp>(&operation);
      return box != nullptr && !box->filled;
    });
  };
  At(50, [&] { EXPECT_EQ(frames(), 0); });
  At(51, [&] { EXPECT_EQ(frames(), 3); });  // two limit areas and the frame
  StopAt(51);
  Press("cmdOptimize");
  EXPECT_EQ(yields, 51);
}

TEST_F(OptimizerRun, ASeedReplaysIt) {
  const DesignRecord start = Record();
  std::vector<Network> ends;
  for (int i = 0; i < 2; ++i) {
    Record() = start;
    session.random.Seed(4);
    acts.clear();
    StopAt(60);
    Press("cmdOptimize");
    ends.push_back(Record());
  }
  EXPECT_EQ(ends[0], ends[1]);
}

// As a design by hand, which is not computed anew when it is read.
TEST_F(OptimizerRun, TheCloseBoxInTheMiddleKeepsTheBestSoFar) {
  Network best;
  At(40, [this] { PressCloseBox(session, Top()); });
  Press("cmdOptimize");
  EXPECT_TRUE(session.ended);
  best = Record();
  std::string path = Path("LASTSESSION.QLM");
  ASSERT_EQ(modReadQuilmFiles(session, path), Got::Design);
  EXPECT_EQ(Record().Family, familyManual);
  constexpr f32 digits = 1e-6F;  // of a file's numbers
  for (int s = 1; s <= 3; ++s) {
    EXPECT_NEAR(Record().stage[s].Cval.value, best.stage[s].Cval.value, best.stage[s].Cval.value * digits);
    EXPECT_NEAR(Record().stage[s].Lval.value, best.stage[s].Lval.value, best.stage[s].Lval.value * digits);
  }
}

TEST_F(OptimizerRun, ASweepThatFailsIsToldOnceAndEndsTheRunAsStopDoes) {
  At(5, [this] { Record().NrIntervals = 5000; });
  Press("cmdOptimize");
  EXPECT_EQ(yields, 5);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Error checker");
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(session.run, nullptr);
}

TEST_F(MonteCarloRun, NeedsAStepsize) {
  SetSteps(0);
  const DesignRecord before = Record();
  Press("cmdMonteCarlo");
  EXPECT_THAT(MessageTexts(),
              ElementsAre("All component stepsizes are set to zero.\r\n\r\n"
                          "The Monte Carlo routine needs at least one component with an entered stepsize.\r\n\r\n"
                          "Enter a stepsize greater than zero for at least one component."));
  EXPECT_EQ(platform.messages[0].title, "Notice");
  EXPECT_TRUE(Record() == before);
  EXPECT_FALSE(Shown("cmdExtremes"));
}

TEST_F(MonteCarloRun, ChangesNothing) {
  const DesignRecord before = Record();
  const bool hadUndo = session.history.HasUndo();
  const std::string undo = session.history.UndoText();
  At(5, [&] { EXPECT_FALSE(static_cast<const Network&>(Record()) == before); });
  Press("cmdMonteCarlo");
  EXPECT_EQ(yields, 2000);
  EXPECT_TRUE(Record() == before);
  EXPECT_EQ(session.history.HasUndo(), hadUndo);
  EXPECT_EQ(session.history.UndoText(), undo);
}

TEST_F(MonteCarloRun, StoppedByHandItChangesNothingEither) {
  const DesignRecord before = Record();
  const std::string undo = session.history.UndoText();
  StopAt(20);
  Press("cmdMonteCarlo");
  EXPECT_TRUE(Record() == before);
  EXPECT_EQ(session.history.UndoText(), undo);
}

TEST_F(MonteCarloRun, MeanwhileTheToolsAreAwayAndBothStopButtonsAreThere) {
  At(2, [this] {
    ExpectTools(false);
    EXPECT_TRUE(Shown("cmdEnd"));
    EXPECT_TRUE(Shown("cmdExtremes"));
    EXPECT_THAT(Texts(Plot().mark), ElementsAre("Trial: 2"));
    EXPECT_EQ(session.note, "Monte Carlo: 2 of 2000");
  });
  StopAt(2);
  Press("cmdMonteCarlo");
  ExpectTools(true);
  EXPECT_FALSE(Shown("cmdEnd"));
  EXPECT_TRUE(Shown("cmdExtremes"));
}

// Neither the rows that are emptied at the start nor the count of the trials lie over them.
TEST_F(MonteCarloRun, TheTitlesOfTheScalesStayToBeRead) {
  Press("cmd2");
  At(1, [this] {
    f32 emptied = 0;
    for (const Picture* picture : {&Plot().picture, &Plot().mark}) {
      for (const PictureOp& operation : picture->Operations()) {
        const auto* box = std::get_if<RectangleOp>(&operation);
        if (box != nullptr && box->filled && box->pen.color == colorWhite) emptied = std::max(emptied, box->to.y);
      }
    }
    EXPECT_GE(emptied, 600);
    for (const PictureOp& operation : Plot().picture.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text == nullptr || !text->text.ends_with(", dB")) continue;
      EXPECT_GE(text->at.y, emptied) << text->text;
    }
    EXPECT_THAT(Texts(Plot().picture), testing::IsSupersetOf({"Transmission, dB", "Return, dB"}));
  });
  StopAt(1);
  Press("cmdMonteCarlo");
}

TEST_F(MonteCarloRun, TheChartsAndTheComplexImpedanceHaveNoExtremes) {
  for (const char* name : {"cmd10", "cmd11", "cmd12"}) {
    Press(name);
    acts.clear();
    At(2, [this] { EXPECT_FALSE(Shown("cmdExtremes")); });
    StopAt(3);
    Press("cmdMonteCarlo");
    EXPECT_FALSE(Shown("cmdExtremes")) << name;
  }
  Press("cmd6");
  EXPECT_TRUE(Shown("cmdExtremes"));  // of the run before, on a plot that can show them
}

// Their traces stay, until something else is drawn.
TEST_F(MonteCarloRun, TheTrialsStaySeenAfterwards) {
  StopAt(10);
  Press("cmdMonteCarlo");
  EXPECT_EQ(LiveColors().size(), 10U);
  EXPECT_THAT(Texts(Plot().picture), testing::Contains("Trial: 10"));
  Press("cmd1");
  EXPECT_TRUE(LiveColors().empty());
}

// One trial and the nominal sweep after it.
TEST_F(MonteCarloRun, TheEnvelopeIsThatOfTheTrialsAndTheLastSweep) {
  ResponseArray trial;
  At(1, [&] { trial = session.responses.RespTrans; });
  StopAt(1);
  Press("cmdMonteCarlo");
  const Responses& r = session.responses;
  for (int i = 0; i <= 100; ++i) {
    EXPECT_EQ(r.MaxTrans[i], std::max(trial[i], r.RespTrans[i]));
    EXPECT_EQ(r.MinTrans[i], std::min(trial[i], r.RespTrans[i]));
  }
  EXPECT_NE(trial[80], r.RespTrans[80]);
}

TEST_F(MonteCarloRun, ExtremesAreDrawnOverTheNominalTrace) {
  for (const bool meanwhile : {true, false}) {
    Press("cmd2");
    acts.clear();
    At(20, [this, meanwhile] { Press(meanwhile ? "cmdExtremes" : "cmdEnd"); });
    Press("cmdMonteCarlo");
    EXPECT_EQ(yields, 20);
    if (!meanwhile) Press("cmdExtremes");
    EXPECT_THAT(PictureColors(), ElementsAre(0x119911, 0x119911, 0xFF1111, 0x1111FF, 0xFF1111, 0x1111FF));
    EXPECT_TRUE(session.plot.live.Empty());
    EXPECT_FALSE(Shown("cmdEnd"));
    EXPECT_FALSE(Shown("cmdExtremes"));
    ExpectTools(true);
  }
}

TEST_F(MonteCarloRun, TheEnvelopesPensAreTwoPixelsWide) {
  At(20, [this] { Press("cmdExtremes"); });
  Record().PlotLineWidth = 3;
  Press("cmdMonteCarlo");
  std::vector<i16> widths;
  for (const PictureOp& operation : Plot().picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line != nullptr && line->points.size() == 102) widths.push_back(line->pen.width);
  }
  EXPECT_THAT(widths, ElementsAre(3, 2, 2));
  EXPECT_EQ(Record().PlotLineWidth, 3);
}

// An envelope of another network would be none of this one.
TEST_F(MonteCarloRun, ExtremesAreNotOfferedForAnotherDesign) {
  StopAt(5);
  Press("cmdMonteCarlo");
  Press("cmd2");
  EXPECT_TRUE(Shown("cmdExtremes"));
  Record().stage[1].Cval.value *= 2;
  Press("cmd1");
  EXPECT_FALSE(Shown("cmdExtremes"));
}

TEST_F(MonteCarloRun, TheYieldIsTheShareThatMetAllAreasShown) {
  Record().LimitCount[1] = 0;
  AddArea(5, 1e5F, 9.6e5F, -2.5F, -300);
  AddArea(6, 1.9e6F, 1e7F, 0, -16.8F);
  Record().LimitsShown = 1;
  int met = 0;
  for (int trial = 1; trial <= 40; ++trial) {
    At(trial, [&] {
      bool meets = true;
      for (int i = 0; i <= 100; ++i) {
        const f32 f = session.responses.RespFreq[i];
        const f32 y = session.responses.RespTrans[i];
        if ((f <= 9.6e5F && y < -2.5F) || (f >= 1.9e6F && y > -16.8F)) meets = false;
      }
      if (meets) ++met;
    });
  }
  StopAt(40);
  Press("cmdMonteCarlo");
  EXPECT_GT(met, 0);
  EXPECT_LT(met, 40);
  // 2.5 per cent a trial: one place after the point at most.
  std::string percent = std::to_string(met * 5 / 2) + (met % 2 == 1 ? ".5" : "");
  EXPECT_EQ(session.note, "Yield: " + percent + "% (" + std::to_string(met) + " of 40 trials met all limit areas)");
}

TEST_F(MonteCarloRun, ThereIsNoYieldWithoutLimitsShown) {
  Record().LimitsShown = 0;
  StopAt(5);
  Press("cmdMonteCarlo");
  EXPECT_EQ(session.note, "Monte Carlo: 5 trials");
}

TEST_F(MonteCarloRun, TheEndOfTheProgramInTheMiddleKeepsTheNominalValues) {
  At(10, [this] { LeaveBySystem(session); });
  Press("cmdMonteCarlo");
  EXPECT_TRUE(session.ended);
  // C1 = 1 / (2 Pi 1e6 50) and its step.
  EXPECT_NE(File("LASTSESSION.QLM").find(" 4  0  5  3.183099E-09  5 \r\n"), std::string::npos);
}

TEST_F(MonteCarloRun, ASeedReplaysIt) {
  std::vector<ResponseArray> ends;
  for (int i = 0; i < 2; ++i) {
    session.random.Seed(4);
    acts.clear();
    StopAt(30);
    Press("cmdMonteCarlo");
    ends.push_back(session.responses.MaxReturn);
  }
  EXPECT_EQ(ends[0], ends[1]);
}

// What a run keeps of its traces is bounded, however many trials there are.
TEST_F(MonteCarloRun, WhatIsKeptDoesNotGrowBeyondItsBound) {
  SetSweep(2049);
  Press("cmd2");
  std::size_t early = 0;
  std::size_t late = 0;
  At(400, [&] { early = session.plot.live.Present().kept.size(); });
  At(2000, [&] { late = session.plot.live.Present().kept.size(); });
  Press("cmdMonteCarlo");
  EXPECT_EQ(yields, 2000);
  EXPECT_NEAR(static_cast<f64>(late), static_cast<f64>(early), 40);
  EXPECT_LT(late, 800U);
}

}  // namespace
}  // namespace quilm
