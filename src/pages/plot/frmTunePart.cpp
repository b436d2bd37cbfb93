#include "pages/plot/frmTunePart.h"

#include "core/DesignRecord.h"
#include "network/DesignStanding.h"
#include "pages/plot/ItemTexts.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

frmTunePart::frmTunePart(Session& session)
    : TunePage(session, PageId::TunePart, "Tune part", session.stepTexts.part, TrialColors()) {
  Connect(UpDown1_, [this](StepWay way) { Step(way); });
  cmdReverse_.onClick = [this] { GoTo(TuneIndex_ - 1); };
  cmdForward_.onClick = [this] { GoTo(TuneIndex_ + 1); };
  turned = &UpDown1_;
}

void frmTunePart::Load() {
  ClearPlacesBehind(session_.network);
  Reload();
  FocusOnNext();
  CatchUp();
}

// The design that an undo brings back has the same items.
void frmTunePart::Reload() {
  Rebuild();
  ShowItem();
}

// A coupling that has no step yet takes the one that stands in the box.
void frmTunePart::Rebuild() { list_ = ItemsForTuning(session_.network, step_); }

void frmTunePart::ShowItem() {
  const TuneItem& item = Item();
  const std::vector<ItemLine> lines = TuneLines(session_.network, item);
  DrawItem(session_.network, PlaceOf(item), lines, picPart_.picture);
  picPart_.description = Spoken(lines);
  UpDown1_.accessibleName = NameOfStep(item);
  lblPercentage_.caption = item.kind == TuneKind::LineLength ? "Stepsize, deg: " : "Stepsize, %: ";
  cmdReverse_.enabled = TuneIndex_ >= 2;
  cmdForward_.enabled = TuneIndex_ < list_.size();
  ShowStep(item.TuneStep);
}

// The box of a pair shows the sum of two steps: unless it was changed, each keeps its own.
void frmTunePart::StoreBox(bool changed) {
  if (changed || Item().kind != TuneKind::Pair) StoreStep(session_.network, Item(), step_);
}

void frmTunePart::GoTo(std::size_t item) {
  const bool changed = IsChanged();
  HoldStep();
  if (changed) {
    StoreBox(true);
  } else {
    // What a limit makes of a step that was only looked at is nothing that the user did.
    const History::Following following(session_);
    StoreBox(false);
  }
  TuneIndex_ = item;
  Rebuild();
  ShowItem();
  FocusOnNext();
}

// A part that has no step yet asks for one first.
void frmTunePart::FocusOnNext() {
  if (step_ == 0) {
    SetFocus(txtPercentageValue_);
  } else {
    SetFocus(UpDown1_);
  }
}

// The network that is tuned is that of no family any more, and has no design bandwidth to tune.
void frmTunePart::Step(StepWay way) {
  TakeStep();
  StoreBox(IsChanged());
  const f32 multiplier = TuneMultiplier(Item().kind, step_, way);
  Change([this, multiplier] {
    ApplyStep(session_.network, Item(), multiplier);
    session_.pages.UnloadPage(PageId::Schematic);
    StandByHand(session_.record);
    if (Page* plot = session_.pages.Beside()) plot->Find("cmdTuneWidth")->enabled = false;
  });
  Rebuild();
  ShowItem();
}

Layout frmTunePart::MakeLayout() {
  return Column({Put(lblSelectPart_), Put(picPart_), Grid(2, {Put(cmdReverse_), Put(cmdForward_)}), Put(lblTunePart_),
                 Form({{Put(lblPercentage_), Put(txtPercentageValue_)}, {Space(), Number(lblTune_, UpDown1_)}}),
                 Put(lblError_), Grid(1, {Put(cmdClear_), Put(cmdExit_)}), Space()});
}

}  // namespace quilm
