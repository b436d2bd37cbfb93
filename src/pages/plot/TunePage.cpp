#include "pages/plot/TunePage.h"

#include <utility>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "display/SheetDrawing.h"
#include "shell/Session.h"

namespace quilm {

TunePage::TunePage(Session& session, PageId id, std::string heading, std::string& lastText,
                   std::span<const TraceColors> colors)
    : Page(session, id, std::move(heading)),
      lastText_(lastText),
      cycle_(colors),
      entry_(entries.Bind({.box = txtPercentageValue_, .field = step_, .format = PlainText})) {
  txtPercentageValue_.text = lastText_;
  entry_.Take();
  cmdClear_.onClick = [this] { ChoosePlot(session_, session_.record.PlotCode); };
  cmdExit_.onClick = [this] { End(); };
  cancelButton = &cmdExit_;
}

void TunePage::Connect(Spin& spin, const std::function<void(StepWay)>& step) {
  spin.oneAct = spin.large = true;
  spin.onUp = [step] { step(StepWay::Up); };
  spin.onDown = [step] { step(StepWay::Down); };
}

void TunePage::HoldStep() {
  entry_.Take();
  step_ = limitsOf::TuneStep.Held(step_);
}

void TunePage::TakeStep() {
  HoldStep();
  if (!entry_.Agrees()) entry_.Repair();
}

void TunePage::ShowStep(f32 step) {
  step_ = step;
  entry_.Fill();
  shown_ = txtPercentageValue_.text;
}

void TunePage::Change(const std::function<void()>& change) {
  try {
    change();
  } catch (const Fault& fault) {
    session_.note = std::string("No further step this way: ") + fault.what();
    return;
  }
  AddResponse();
}

// A sweep that fails has led to the page of the network, which this dialog must not cover.
void TunePage::AddResponse() {
  AnalyzeSweep(session_);
  if (session_.record.ResponsesValid != 1) {
    session_.pages.UnloadPage(Id());
    return;
  }
  session_.plot.colors = cycle_.Next();
  try {
    AddTraces(session_, SpansOf(session_.responses, LastPoint(session_.record)), session_.plot.live);
  } catch (const Fault&) {
    // A plot that cannot be drawn was told when it was chosen.
  }
}

// Limits and sweep stand as long as the dialog does.
void TunePage::CatchUp() {
  const DesignRecord& record = session_.record;
  if (record.ResponsesValid != 1) return;
  const auto points = static_cast<std::size_t>(LastPoint(record)) + 1;
  if (!score_) score_.emplace(record, record.DelayTop, std::span(session_.responses.RespFreq.data(), points));
  lblError_.visible = score_->HasPoints();
  lblError_.caption = "Error: " + EntryText(score_->GetError(session_.responses), FormatValue);
}

void TunePage::End() {
  lastText_ = txtPercentageValue_.text;
  session_.plot.colors = {};
  session_.pages.UnloadPage(Id());
}

}  // namespace quilm
