#include "pages/plot/frmMonteCarloSetup.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "optimise/BestParts.h"
#include "pages/plot/ItemTexts.h"
#include "shell/Session.h"

namespace quilm {

frmMonteCarloSetup::frmMonteCarloSetup(Session& session)
    : Page(session, PageId::MonteCarloSetup, "Stepsize entry"),
      entry_(entries.Bind({.box = txtPercentageValue_, .field = step_, .format = PlainText})) {
  cmdReverse_.onClick = [this] { GoTo(item_ - 1); };
  cmdForward_.onClick = [this] { GoTo(item_ + 1); };
  cmdEnter_.onClick = [this] { Store(); };
  cmdAllItems_.onClick = [this] { StoreInAll(); };
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdEnter_;
  cancelButton = &cmdExit_;
}

void frmMonteCarloSetup::Load() {
  GoTo(0);
  SetFocus(txtPercentageValue_);
}

void frmMonteCarloSetup::GoTo(std::size_t item) {
  item_ = item;
  lblAllItems_.caption.clear();
  ShowItem();
}

// As typed, whatever it is: only the step of all is held.
void frmMonteCarloSetup::Store() {
  entry_.Take();
  if (HasItem()) StoreStep(session_.network, list_[item_], step_);
  lblAllItems_.caption.clear();
  ShowItem();
  SetFocus(txtPercentageValue_);
}

void frmMonteCarloSetup::StoreInAll() {
  entry_.Take();
  const f32 step = std::min(std::fabs(step_), limitsOf::TuneStep.highest);
  StoreStepOfAll(session_.network, step);
  lblAllItems_.caption = "Stepsize for all items has been set to " + PlainText(step) + "%";
  ShowItem();
}

void frmMonteCarloSetup::ShowItem() {
  list_ = ItemsOfStages(session_.network);
  lblNotice_.visible = !HasStepsize(session_.network);
  cmdReverse_.enabled = item_ > 0;
  cmdForward_.enabled = item_ + 1 < list_.size();
  for (Control* control : std::initializer_list<Control*>{&txtPercentageValue_, &cmdEnter_, &cmdAllItems_}) {
    control->enabled = HasItem();
  }
  if (!HasItem()) return;
  const std::vector<ItemLine> lines = StepsizeLines(session_.network, list_[item_]);
  DrawItem(session_.network, PlaceOf(list_[item_]), lines, picItem_.picture);
  picItem_.description = Spoken(lines);
  step_ = list_[item_].TuneStep;
  entry_.Fill();
}

Layout frmMonteCarloSetup::MakeLayout() {
  return Column({Row({Space(), Put(picItem_), Space()}), Grid(2, {Put(cmdReverse_), Put(cmdForward_)}),
                 Row({Put(lblStepsize_), Put(txtPercentageValue_), Put(cmdEnter_)}), Grid(1, {Put(cmdAllItems_)}),
                 KeepPlace(Put(lblAllItems_)), KeepPlace(Put(lblNotice_)), Row({Space(), Put(cmdExit_)})});
}

}  // namespace quilm
