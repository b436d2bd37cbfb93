// The coil for an inductance of the design, or for one that is typed in: of diameter, length and turns any two give the
// third.
#pragma once

#include "pages/coils/CoilControls.h"
#include "shell/Page.h"

namespace quilm {

class frmWindInductor : public Page {
 public:
  explicit frmWindInductor(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  void TakeFromList();
  void TakeEntered();
  void TakeInductance(f32 inductance, int stage);
  void Compute();
  void ShowQ();
  void Return();

  f32 CoilInductance_ = 0;
  f32 arbitrary_ = 0;
  i16 QuotedStage_ = 0;
  i16 woundStage_ = 0;  // that of the coil on display

  Label lblHeading_{*this, "lblHeading", "Solenoidal Coil-winding Routine"};
  Frame fraSource_{*this, "fraSource", "Inductance"};
  OptionGroup source_;
  Label lblList_{*this, "lblList", "Click on a stage to select:"};
  ListBox lstInductors_{*this, "lstInductors", "Inductors of the design"};
  OptionButton Option1_{*this, source_, "Option1", "< Select item in list at left"};
  OptionButton Option2_{*this, source_, "Option2", "Enter inductance >"};
  TextBox txtArbitraryInductance_{*this, "txtArbitraryInductance", "Inductance", "In henries, such as 10u"};
  Label lblInductance_{*this, "lblInductance", "Inductance: "};
  Label lblInductance2_{*this, "lblInductance2", ""};
  CoilControls coil_;
  Label lblQ_{*this, "lblQ", ""};
  Button cmdCompute0_{*this, "cmdCompute0", "Compute the third item", "From the inductance and any two dimensions"};
  Button cmdPrint_{*this, "cmdPrint", "Print", "Print the data of the coil"};
  Button cmdExit_{*this, "cmdExit", "Return to Design page", "Leave the design as it is"};
};

}  // namespace quilm
