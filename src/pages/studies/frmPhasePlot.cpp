#include "pages/studies/frmPhasePlot.h"

#include <algorithm>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "display/LinearityDrawing.h"
#include "display/modPlot.h"
#include "reports/PrintLinearity.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f64 degreesPerTurn = 360;

// The delay that a filter has whose phase is the line, and what one interval upward is worth.
std::string DelayText(const PhaseLinearity& phase) {
  return "Delay of the line: " + EntryText(static_cast<f32>(-phase.PhaseSlope / degreesPerTurn), FormatTime) + "s";
}

std::string SpanText(f32 PhaseScale) {
  constexpr f32 intervals = 5;
  return "per interval: " + EntryText(PhaseSpan(PhaseScale) / intervals, FormatValue) + " degrees";
}

}  // namespace

frmPhasePlot::frmPhasePlot(Session& session) : StudyPage(session, PageId::PhasePlot, "Phase Linearity Plot") {
  lblHeading_.emphasised = true;
  cmdIncrease_.onClick = [this] { Step(true); };
  cmdDecrease_.onClick = [this] { Step(false); };
  cmdPrint_.onClick = [this] { PrintLinearity(session_, Plot()); };
  cmdBack_.onClick = [this] { GoBack(); };
  cmdExit_.onClick = [this] { Return(); };
  cancelButton = &cmdExit_;
}

// A network that cannot be evaluated has nothing to scale or print.
void frmPhasePlot::Load() {
  cmdIncrease_.enabled = cmdDecrease_.enabled = cmdPrint_.enabled = false;
  Compute();
  Draw();
  cmdIncrease_.enabled = cmdDecrease_.enabled = cmdPrint_.enabled = true;
  const bool deviation = session_.studies.PhasePlotType == phaseDeviation;
  lblPlotType_.caption = deviation ? "Deviation from straight line" : "Phase with best-fit straight line";
  lblDelay_.caption = DelayText(phase_);
  picPlot_.description = lblPlotType_.caption;
}

// The points and their angles are left where a sweep leaves them. It has not swept anything else, so that the responses
// as a whole stay invalid.
void frmPhasePlot::Compute() {
  phase_ = ComputeLinearity(session_.record);
  const i16 type = session_.studies.PhasePlotType;
  scale_ = FirstPhaseScale(PhaseValues(phase_, type), type);
  std::copy(phase_.RespFreq.begin(), phase_.RespFreq.end(), session_.responses.RespFreq.data());
  std::copy(phase_.RespAngle.begin(), phase_.RespAngle.end(), session_.responses.RespAngle.data());
}

LinearityPlot frmPhasePlot::Plot() const {
  const DesignRecord& record = session_.record;
  const i16 type = session_.studies.PhasePlotType;
  const auto NrXints = static_cast<i16>(limitsOf::NrXints.Held(record.NrXints));
  return {phase_, type, PhaseScales(type)[scale_], NrXints, TraceWidth(record), record.CircuitTitle};
}

void frmPhasePlot::Draw() {
  const LinearityPlot plot = Plot();
  DrawLinearity(plot, picPlot_.picture);
  lblSpan_.caption = SpanText(plot.PhaseScale);
}

// The larger number of degrees stands first. A step at the end of the table is none.
void frmPhasePlot::Step(bool larger) {
  const std::size_t last = PhaseScales(session_.studies.PhasePlotType).size() - 1;
  if (scale_ == (larger ? 0 : last)) {
    session_.note = larger ? "This is the largest stepsize" : "This is the smallest stepsize";
    return;
  }
  scale_ = larger ? scale_ - 1 : scale_ + 1;
  Draw();
}

void frmPhasePlot::GoBack() {
  session_.pages.ShowPage(PageId::PhaseSetup);
  session_.pages.UnloadPage(Id());
}

Layout frmPhasePlot::MakeLayout() {
  return Row({Fill(Put(picPlot_)), Column({Put(lblHeading_), Put(lblPlotType_), Put(lblSpan_), Put(lblDelay_),
                                           Group("Scale", Grid(1, {Put(cmdIncrease_), Put(cmdDecrease_)})),
                                           Grid(1, {Put(cmdPrint_), Put(cmdBack_), Put(cmdExit_)}), Space()})});
}

}  // namespace quilm
