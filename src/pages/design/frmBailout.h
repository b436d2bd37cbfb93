// The failure page of an odd Cauer design: its ripple has come out too low, and this page offers four ways to change
// the entries and try again.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmBailout : public Page {
 public:
  explicit frmBailout(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  Label lblProblem{*this, "lblProblem",
                   "The current entries have resulted in a filter whose passband ripple is too low."};
  Label lblRippleNow{*this, "lblRippleNow", "Passband ripple now "};
  Label lblRipple{*this, "lblRipple", ""};
  Label lblMinimum{*this, "lblMinimum", "(  Minimum allowed is .0001  )"};
  Label lblAdvice{*this, "lblAdvice", ""};
  Label lblTopology{*this, "lblTopology", ""};
  Label lblConsider{*this, "lblConsider", "Consider:"};
  Label lblPassbandFreq{*this, "lblPassbandFreq", "Passband width"};
  TextBox txtPassbandFreq{*this, "txtPassbandFreq", "Passband width"};
  Label lblPassbandHint{*this, "lblPassbandHint", ""};
  Label lblStopbandFreq{*this, "lblStopbandFreq", "Stopband width"};
  TextBox txtStopbandFreq{*this, "txtStopbandFreq", "Stopband width"};
  Label lblStopbandHint{*this, "lblStopbandHint", ""};
  Label lblStopbandDepth{*this, "lblStopbandDepth", "Stopband depth"};
  TextBox txtStopbandDepth{*this, "txtStopbandDepth", "Stopband depth"};
  Label lblDepthHint{*this, "lblDepthHint", ""};
  Label lblOrder{*this, "lblOrder", "Order"};
  TextBox txtOrder{*this, "txtOrder", "Order"};
  Label lblOrderHint{*this, "lblOrderHint", ""};
  Label lblNote{*this, "lblNote", ""};
  Button cmdStopbandFreq{*this, "cmdStopbandFreq", "", "Narrow the transition by 1%"};
  Button cmdStopbandDepth{*this, "cmdStopbandDepth", "Increase Astop and retry", "Ask for 1 dB more"};
  Button cmdOrder{*this, "cmdOrder", "Reduce order and retry", "Go to the next lower odd order"};
  Button cmdExitCauer{*this, "cmdExitCauer", "Re-enter these new Cauer values", "Try again with the values above"};

 private:
  // What the boxes say, until it is taken.
  struct Draft {
    f32 Width = 0;
    f32 Fstopband = 0;
    f32 Astop = 0;
    f32 Order = 0;
  };

  void ShowEntries();
  void ShowAdvice();
  void MoveStopband();
  void DeepenStopband();
  void ReduceOrder();
  void TakeEntries();
  bool EdgesAreInOrder();
  void Retry();

  Draft draft_;
};

}  // namespace quilm
