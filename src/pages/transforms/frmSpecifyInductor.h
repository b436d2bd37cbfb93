// One inductor takes a value of the user's choice: the whole network goes to the level of impedance at which it does.
#pragma once

#include "pages/transforms/TransformPage.h"

namespace quilm {

class frmSpecifyInductor : public TransformPage {
 public:
  explicit frmSpecifyInductor(Session& session);
  Layout MakeLayout() override;

 private:
  void Begin() override;
  void TakeBack() override;
  void ChooseInductor();
  void ShowInductor();
  void Rescale();

  f32 newValue_ = 0;
  i16 SpecifiedStage_ = 0;  // 0 until an inductor was chosen
  Label lblOriginalTermination_{*this, "lblOriginalTermination", ""};
  Label lblInstruction_{*this, "lblInstruction",
                        "Click on an inductor in the \"New\" list to change its value and correspondingly all of the "
                        "other network inductor and capacitor values values including terminations."};
  Label lblOriginalInductors_{*this, "lblOriginalInductors", "Original inductor values:"};
  ListBox lstOriginalInductors_{*this, "lstOriginalInductors", "Original inductor values"};
  Label lblNewInductors_{*this, "lblNewInductors", "New inductor values:"};
  ListBox lstNewInductors_{*this, "lstNewInductors", "New inductor values"};
  Label lblInductor_{*this, "lblInductor", ""};
  Label lblEnterNewValue_{*this, "lblEnterNewValue", "Enter new value for impedance-scaling redesign:"};
  TextBox txtEnterNewValue_{*this, "txtEnterNewValue", "New inductance, H", "Above 0"};
  Label lblEnterNewValueNote_{*this, "lblEnterNewValueNote",
                              "(All components in the design including terminations will be rescaled in impedance to "
                              "accommodate that inductor value)"};
  Button cmdRescale_{*this, "cmdRescale", "Rescale the network",
                     "Give the inductor its new value, and all others theirs"};
  Label lblNewTermination_{*this, "lblNewTermination", ""};
  Button cmdAcceptNew_{*this, "cmdAcceptNew", "Accept new values and return to Design page",
                       "Keep the network as it is now"};
  Button cmdIgnoreAndExit_{*this, "cmdIgnoreAndExit", "Ignore any changes and return to Design page",
                           "Give all parts and terminations their original values"};
};

}  // namespace quilm
