#include "pages/plot/frmTuneApass.h"

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "shell/Session.h"
#include "synthesis/DesignSteps.h"

namespace quilm {

frmTuneApass::frmTuneApass(Session& session)
    : TunePage(session, PageId::TuneApass, "Tune ripple", session.stepTexts.ripple, EntryStepColors()) {
  Connect(UpDown1_, [this](StepWay way) { Step(way); });
  turned = &UpDown1_;
}

void frmTuneApass::Load() {
  TakeStep();
  ShowStep(step_);
  Reload();
  SetFocus(UpDown1_);
  CatchUp();
}

void frmTuneApass::Reload() {
  lblShowRipple_.caption = "Passband ripple: " + EntryText(session_.record.Apass, FormatValue);
}

void frmTuneApass::Step(StepWay way) {
  TakeStep();
  Change([this, way] { StepRipple(session_.record, TuneMultiplier(TuneKind::Source, step_, StepWay::Up), way); });
  Reload();
}

Layout frmTuneApass::MakeLayout() {
  return Column({Form({{Put(lblPercentage_), Put(txtPercentageValue_)}, {Put(Label1_), Put(UpDown1_)}}),
                 Put(lblShowRipple_), Put(lblError_), Grid(1, {Put(cmdClear_), Put(cmdExit_)}), Space()});
}

}  // namespace quilm
