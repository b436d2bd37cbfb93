// A symmetrical network made to work into another load, by scaling the half at the output.
#pragma once

#include "pages/transforms/TransformPage.h"

namespace quilm {

class frmBisection : public TransformPage {
 public:
  explicit frmBisection(Session& session);
  Layout MakeLayout() override;

 private:
  void Begin() override;
  void Compute();
  void Draw();

  bool symmetrical_ = false;
  f32 newOutput_ = 0;
  PictureBox picBisection_{*this, "picBisection", "The existing network and the bisected one"};
  Label lblInput_{*this, "lblInput", "Input termination:"};
  TextBox txtInput_{*this, "txtInput", "Input termination, ohms"};
  Label lblOutput_{*this, "lblOutput", "Current output termination:"};
  TextBox txtOutput_{*this, "txtOutput", "Current output termination, ohms"};
  Label lblNewOutput_{*this, "lblNewOutput", "New output termination:"};
  TextBox txtNewOutput_{*this, "txtNewOutput", "New output termination, ohms", "Above 0"};
  Label lblMismatch_{*this, "lblMismatch", "Mismatch loss:"};
  TextBox txtMismatch_{*this, "txtMismatch", "Mismatch loss"};
  Button cmdCompute_{*this, "cmdCompute", "Perform Bisection", "Scale the half at the output"};
  Button cmdAccept_{*this, "cmdAccept", "Accept and return to Design page", "Keep the network as it is now"};
  Button cmdIgnore_{*this, "cmdIgnore", "Ignore and return to Design page", "Leave the network as it was"};
};

}  // namespace quilm
