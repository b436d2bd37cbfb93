#include "pages/plot/frmTuneWidthCenter.h"

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "schematic/StageLabels.h"
#include "shell/Session.h"
#include "synthesis/DesignSteps.h"

namespace quilm {

namespace {

bool HasNegativeParts(const Network& network) {
  for (int s = 1; s <= network.Stages; ++s) {
    if (HasNegativeValue(network.stage[s])) return true;
  }
  return false;
}

}  // namespace

frmTuneWidthCenter::frmTuneWidthCenter(Session& session)
    : TunePage(session, PageId::TuneWidthCenter, "Tune width/center", session.stepTexts.width, EntryStepColors()) {
  Connect(UpDown1_, [this](StepWay way) { StepTheWidth(way); });
  Connect(UpDown2_, [this](StepWay way) { StepTheCenter(way); });
  lblNegativeValue_.foreColor = colorRed;
}

void frmTuneWidthCenter::Load() {
  if (session_.record.NetworkEdited == 1) SettleByHand(session_.record);
  TakeStep();
  ShowStep(step_);
  Reload();
  SetFocus(UpDown1_);
  CatchUp();
}

// What cannot be tuned is not there; a network made by hand has both.
void frmTuneWidthCenter::Reload() {
  const DesignRecord& record = session_.record;
  const bool byHand = record.Family == familyManual;
  const bool width = byHand || record.Width > 0;
  const bool center = byHand || record.Fcenter > 0;
  for (Control* control : std::initializer_list<Control*>{&lblTuneWidth_, &Label1_, &UpDown1_})
    control->visible = width;
  for (Control* control : std::initializer_list<Control*>{&lblTuneCenter_, &Label2_, &UpDown2_}) {
    control->visible = center;
  }
  turned = width ? &UpDown1_ : nullptr;
  ShowReadouts();
}

void frmTuneWidthCenter::ShowReadouts() {
  const DesignRecord& record = session_.record;
  lblShowWidth_.caption = "Width: " + EntryText(record.Width, FormatFrequency);
  lblShowCenter_.caption = "Center: " + EntryText(record.Fcenter, FormatFrequency);
  lblShowCenter_.visible = record.Fcenter > 0;
  lblNegativeValue_.visible = HasNegativeParts(record);
}

void frmTuneWidthCenter::StepTheWidth(StepWay way) {
  turned = &UpDown1_;
  TakeStep();
  Change([this, way] { StepWidth(session_.record, TuneMultiplier(TuneKind::Source, step_, StepWay::Up), way); });
  ShowReadouts();
}

// A network made by hand may have no centre to move, nor a width to measure the step by.
void frmTuneWidthCenter::StepTheCenter(StepWay way) {
  const DesignRecord& record = session_.record;
  if (!(record.Width > 0 && record.Fcenter > 0)) return;
  turned = &UpDown2_;
  TakeStep();
  Change([this, way] { StepCenter(session_.record, step_, way); });
  ShowReadouts();
}

Layout frmTuneWidthCenter::MakeLayout() {
  return Column({Form({{Put(lblPercentage_), Put(txtPercentageValue_)},
                       {Put(lblTuneWidth_), Number(Label1_, UpDown1_)},
                       {Put(lblTuneCenter_), Number(Label2_, UpDown2_)}}),
                 Column({Put(lblShowWidth_), Put(lblShowCenter_), KeepPlace(Put(lblNegativeValue_))}), Put(lblError_),
                 Grid(1, {Put(cmdClear_), Put(cmdExit_)}), Space()});
}

}  // namespace quilm
