// The m of the end sections.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmEndSections : public Page {
 public:
  explicit frmEndSections(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  // Whether the network takes a section of this m.
  bool HasSection() const;
  void ShowZero();
  void Accept();
  void Return();

  f32 m_ = 0;
  Label lblBandwidth_{*this, "lblBandwidth", "Lowpass bandwidth:"};
  Label lblBandwidthValue_{*this, "lblBandwidthValue", ""};
  Label lblM_{*this, "lblM", "m:"};
  TextBox txtM_{*this, "txtM", "m of the end sections", "Above 0 and below 1; 0.6 matches best"};
  Label lblZero_{*this, "lblZero", "Zero frequency: "};
  Label lblZeroValue_{*this, "lblZeroValue", ""};
  Button cmdOk_{*this, "cmdOk", "Ok", "Add a section at each end"};
  Button cmdIgnore_{*this, "cmdIgnore", "Ignore", "Leave the network as it was"};
};

}  // namespace quilm
