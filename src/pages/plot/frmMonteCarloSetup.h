// The entry of step sizes: by how much tuning, the optimiser and Monte Carlo runs may move each value of the ladder.
#pragma once

#include "network/TuneList.h"
#include "shell/Page.h"

namespace quilm {

class frmMonteCarloSetup : public Page {
 public:
  explicit frmMonteCarloSetup(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  bool HasItem() const { return item_ < list_.size(); }
  void Store();
  void StoreInAll();
  void GoTo(std::size_t item);
  void ShowItem();

  PictureBox picItem_{*this, "picItem", "The value in hand"};
  Button cmdReverse_{*this, "cmdReverse", "Previous item", "Go to the value before"};
  Button cmdForward_{*this, "cmdForward", "Next item", "Go to the next value"};
  Label lblStepsize_{*this, "lblStepsize", "Step size %: "};
  TextBox txtPercentageValue_{*this, "txtPercentageValue", "Step size of the value in hand, %",
                              "Tolerance of the part, and the step by which it is tuned"};
  Button cmdEnter_{*this, "cmdEnter", "Enter", "Store the step size of this value"};
  Button cmdAllItems_{*this, "cmdAllItems", "Select all items to have same stepsize",
                      "Store this step size, at most 100, for every value"};
  Label lblAllItems_{*this, "lblAllItems", ""};
  Label lblNotice_{*this, "lblNotice", "All stepsizes are currently zero"};
  Button cmdExit_{*this, "cmdExit", "Exit", "Go back"};

  TuneList list_;
  std::size_t item_ = 0;
  f32 step_ = 0;  // what the box says, percent
  Entry& entry_;
};

}  // namespace quilm
