#include "pages/plot/PlotRuns.h"

#include <utility>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/NumberText.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "display/LimitDrawing.h"
#include "display/LimitEntry.h"
#include "display/PlotKinds.h"
#include "display/RunProgress.h"
#include "display/SheetDrawing.h"
#include "display/modPlot.h"
#include "display/modSmith.h"
#include "network/DesignStanding.h"
#include "optimise/LimitScore.h"
#include "optimise/MonteCarlo.h"
#include "optimise/Optimiser.h"
#include "shell/LongRun.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int fewestAreas = 2;
constexpr int trialsToRefresh = 50;

// The palest of the trials' colours is none for hundreds of them.
TraceCycle TrialCycle() { return TraceCycle(TrialColors().first(7)); }

// The traces that an optimiser run starts from and ends with. Those of the angle and of the delay change places with
// the transmission, so that they stand apart from the trials.
TraceColors OptimizerColors(i16 plotCode) {
  const TraceColors usual;
  if (plotCode != 3 && plotCode != 4) return usual;
  return {usual.TraceColor2, usual.TraceColor1};
}

// Real and imaginary part are no response that has extremes, and the charts show two of them in one trace.
bool CanShowExtremes(i16 plotCode) { return plotCode < 10 || plotCode > 12; }

std::string YieldText(const MonteCarlo& trials) {
  const std::string done = std::to_string(trials.TrialCount());
  if (!trials.HasLimits() || trials.TrialCount() == 0) return "Monte Carlo: " + done + " trials";
  const f32 percent = 100 * static_cast<f32>(trials.MetCount()) / static_cast<f32>(trials.TrialCount());
  return "Yield: " + ShortText(RoundedTo(percent, 1), LeadingZero::Keep) + "% (" + std::to_string(trials.MetCount()) +
         " of " + done + " trials met all limit areas)";
}

std::string OutcomeText(const Optimiser& optimiser) {
  if (optimiser.TrialCount() == 0) return "The response lies within all limit areas already";
  return "Error " + Trimmed(FormatValue(optimiser.StartError())) + " before, " +
         Trimmed(FormatValue(optimiser.BestError())) + " now, after " + std::to_string(optimiser.TrialCount()) +
         " trials";
}

}  // namespace

PlotRuns::PlotRuns(Session& session, Page& page, const Controls& controls, std::function<void(bool)> showTools)
    : session_(session),
      record_(session.record),
      page_(page),
      controls_(controls),
      showTools_(std::move(showTools)),
      colors_(TrialCycle()) {
  controls.cmdOptimize.onClick = [this] { Optimize(); };
  controls.cmdMonteCarlo.onClick = [this] { SpreadParts(); };
  controls.cmdEnd.onClick = [this] { Stop(); };
  controls.cmdExtremes.onClick = [this] { StopForExtremes(); };
  for (Button* stop : {&controls.cmdEnd, &controls.cmdExtremes}) stop->visible = stop->enabled = false;
}

// A step that is entered for a line, a transformer or coupled inductors alone passes the test and then varies nothing:
// the parts that runs vary are inductors, capacitors and resistors.
void PlotRuns::TellOfStepsizes(const std::string& who) {
  session_.platform.MessageBox("All component stepsizes are set to zero.\r\n\r\nThe " + who +
                                   " needs at least one component with an entered stepsize.\r\n\r\n"
                                   "Enter a stepsize greater than zero for at least one component.",
                               Buttons::Ok, Icon::Information, "Notice");
}

void PlotRuns::Optimize() {
  if (!HasStepsize(record_)) {
    TellOfStepsizes("optimizer");
    return;
  }
  spread_.reset();
  OfferExtremes();
  record_.LimitsShown = 0;
  record_.MarkersShown = 0;
  session_.plot.limitEntry = {};
  showTools_(false);
  if (LimitAreas(record_) < fewestAreas) {
    RefuseWithoutLimits();
  } else {
    RunOptimizer();
  }
}

void PlotRuns::RefuseWithoutLimits() {
  RedrawPlot(session_);
  session_.platform.MessageBox("At least two limits areas must be entered.  Please enter limits.", Buttons::Ok,
                               Icon::Information, "");
  showTools_(true);
  BeginLimitEntry(session_, LimitsWantedBy::Optimizer);
}

void PlotRuns::RunOptimizer() {
  colors_ = TrialCycle();
  record_.LimitsShown = 1;
  session_.plot.colors = OptimizerColors(record_.PlotCode);
  RedrawPlot(session_, PlotDress::UnderProgress);
  Optimiser optimiser(record_, session_.responses, session_.random);
  std::string mark;
  bool stopped = false;
  {
    LongRun run(session_, page_,
                {.name = "Optimizer",
                 .steps = Optimiser::mostTrials,
                 .stops = {&controls_.cmdEnd},
                 .startedBy = &controls_.cmdOptimize,
                 .putBack = [this, &optimiser] {
                   optimiser.WriteBest();
                   // The responses stay valid though they are those of the last trial: whoever needs those of the best
                   // values sweeps.
                   SettleByHand(record_);
                 }});
    mark = Walk(optimiser, run);
    stopped = run.Stopped();
  }
  session_.note = OutcomeText(optimiser);
  EndOptimizer(stopped, mark);
}

// Trials pile up over the plot, and its limit areas are filled again from time to time.
std::string PlotRuns::Walk(Optimiser& optimiser, LongRun& run) {
  KeepGrid();
  std::string mark = optimiser.Start();
  int RedrawCount = 0;
  while (mark.empty() && optimiser.GoesOn()) {
    mark = optimiser.Trial();
    if (!mark.empty()) break;
    if (++RedrawCount > trialsToRefresh) {
      RefreshPlot();
      RedrawCount = 1;
    }
    DrawTrial();
    DrawOptimizerProgress(
        {optimiser.TrialCount(), optimiser.BetterCount(), optimiser.ErrorSum(), optimiser.BestError()},
        controls_.plot.mark);
    if (!run.Step()) break;
  }
  return mark;
}

// A run that ended by itself leaves the responses of its last trial on the plot, and the best values in the design,
// until the next sweep. One that was stopped sweeps them. Where no sweep can be made no plot can be drawn.
void PlotRuns::EndOptimizer(bool stopped, const std::string& mark) {
  controls_.plot.mark.Clear();
  session_.plot.limitEntry = {};
  showTools_(true);
  if (!mark.empty()) {
    TellOfFailedSweep(session_, mark);
    return;
  }
  if (stopped) {
    AnalyzeSweep(session_);
  } else {
    session_.plot.colors = OptimizerColors(record_.PlotCode);
  }
  RedrawPlot(session_);
}

void PlotRuns::SpreadParts() {
  spread_.reset();
  OfferExtremes();
  ResetExtremes(session_.responses);
  if (!HasStepsize(record_)) {
    TellOfStepsizes("Monte Carlo routine");
    return;
  }
  RunMonteCarlo();
}

void PlotRuns::RunMonteCarlo() {
  colors_ = TrialCycle();
  wantsExtremes_ = false;
  record_.MarkersShown = 0;
  session_.plot.colors = {};
  session_.plot.limitEntry = {};
  RedrawPlot(session_, PlotDress::UnderCount);
  showTools_(false);
  ClearTopRows(session_.plot.picture);
  if (!IsRectangular(record_.PlotCode)) PrintChartTitle(SetupOf(session_), session_.plot.picture);
  std::vector<Button*> stops = {&controls_.cmdEnd};
  if (CanShowExtremes(record_.PlotCode)) stops.push_back(&controls_.cmdExtremes);
  MonteCarlo trials(record_, session_.responses, session_.random);
  std::string mark;
  {
    LongRun run(session_, page_,
                {.name = "Monte Carlo",
                 .steps = MonteCarlo::mostTrials,
                 .stops = std::move(stops),
                 .startedBy = &controls_.cmdMonteCarlo,
                 .putBack = [&trials] { trials.WriteNominal(); }});
    mark = Try(trials, run);
  }
  session_.note = YieldText(trials);
  EndMonteCarlo(trials, mark);
}

std::string PlotRuns::Try(MonteCarlo& trials, LongRun& run) {
  KeepGrid();
  std::string mark;
  do {
    mark = trials.Trial();
    if (!mark.empty()) break;
    DrawTrial();
    DrawTrialCount(trials.TrialCount(), controls_.plot.mark);
  } while (run.Step());
  return mark;
}

// The traces of the trials stay, the frame drawn over them once more.
void PlotRuns::EndMonteCarlo(const MonteCarlo& trials, const std::string& mark) {
  session_.plot.colors = {};
  controls_.plot.mark.Clear();
  DrawTrialCount(trials.TrialCount(), session_.plot.picture);
  if (IsRectangular(record_.PlotCode)) DrawGridLines(SetupOf(session_), session_.plot.live);
  showTools_(true);
  if (!mark.empty()) {
    TellOfFailedSweep(session_, mark);
    return;
  }
  AnalyzeSweep(session_);
  spread_ = Spread{record_, record_};
  OfferExtremes();
  if (wantsExtremes_) ShowExtremes();
}

void PlotRuns::Stop() {
  if (session_.run != nullptr) session_.run->Stop();
}

void PlotRuns::StopForExtremes() {
  if (session_.run == nullptr) {
    ShowExtremes();
    return;
  }
  wantsExtremes_ = true;
  session_.run->Stop();
}

void PlotRuns::ShowExtremes() {
  AnalyzeSweep(session_);
  if (record_.ResponsesValid != 1) return;
  session_.plot.limitEntry = {};
  session_.plot.colors = {};
  RedrawWithExtremes(session_);
  controls_.cmdExtremes.visible = controls_.cmdExtremes.enabled = false;
}

bool PlotRuns::HasExtremes() const { return spread_ && *spread_ == Spread{record_, record_}; }

void PlotRuns::OfferExtremes() {
  const bool offered = HasExtremes() && CanShowExtremes(record_.PlotCode);
  controls_.cmdExtremes.visible = controls_.cmdExtremes.enabled = offered;
}

void PlotRuns::DrawTrial() {
  PlotSheet& sheet = session_.plot;
  sheet.colors = colors_.Next();
  AddTraces(session_, SpansOf(session_.responses, LastPoint(record_)), sheet.live);
  Picture& mark = controls_.plot.mark;
  mark.SetScale(sheet.picture.CurrentScale());
  mark.Clear();
  for (const PictureOp& line : grid_.Operations()) DrawOperation(line, mark);
}

// The lines of the grid, which the mark draws again over each trial.
void PlotRuns::KeepGrid() {
  grid_.Clear();
  if (IsRectangular(record_.PlotCode)) DrawGridLines(SetupOf(session_), grid_);
}

// Draws limit areas and grid again over the traces.
void PlotRuns::RefreshPlot() {
  if (!IsRectangular(record_.PlotCode)) return;
  const PlotSetup setup = SetupOf(session_);
  DrawLimitAreas(setup, session_.plot.live);
  DrawGridLines(setup, session_.plot.live);
}

}  // namespace quilm
