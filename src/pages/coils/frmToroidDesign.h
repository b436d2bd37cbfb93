// The turns of a toroidal core for an inductance.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmToroidDesign : public Page {
 public:
  explicit frmToroidDesign(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  void TakeFromList();
  void Calculate();
  void ComputeTurns();
  void ClearTurns();
  void Return();

  // Marks a box that holds nothing to calculate with, and leads there; false for one that does.
  bool Lacks(TextBox& box, f32 value);

  f32 ToroidAL_ = 0;
  f32 ToroidL_ = 0;
  i16 ToroidStage_ = 0;

  Label lblHeading_{*this, "lblHeading", "Toroidal Coil-winding Routine"};
  Label lblList_{*this, "lblList", "Click on a stage to select:"};
  ListBox lstInductors_{*this, "lstInductors", "Inductors of the design"};
  Label lblToroidAL_{*this, "lblToroidAL", "Toroid AL: "};
  TextBox txtToroidAL_{*this, "txtToroidAL", "Toroid AL", "Microhenries of 100 turns, from the data of the core"};
  Label lblInductance_{*this, "lblInductance", "Inductance (H): "};
  TextBox txtInductance_{*this, "txtInductance", "Inductance", "In henries, such as 10u"};
  Button cmdCalculate_{*this, "cmdCalculate", "Calculate", "The turns that come nearest to the inductance"};
  Label lblTurns_{*this, "lblTurns", "Integer turns: "};
  Label lblTurns2_{*this, "lblTurns2", ""};
  PictureBox picToroid_{*this, "picToroid", "Wound core"};
  Button cmdExit_{*this, "cmdExit", "Return to Design page", "Leave the design as it is"};
};

}  // namespace quilm
