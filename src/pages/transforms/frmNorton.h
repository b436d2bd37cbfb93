// The Norton transform of a network of three stages, beside the network as it is.
#pragma once

#include "core/Network.h"
#include "network/Norton.h"
#include "pages/transforms/TransformPage.h"

namespace quilm {

class frmNorton : public TransformPage {
 public:
  explicit frmNorton(Session& session);
  Layout MakeLayout() override;

 private:
  void Begin() override;
  void Show(NortonRatio ratio);
  void Draw();
  void ShowChanges();
  void AcceptShown();

  bool transforms_ = false;  // whether the network has a transform, which the record then holds
  Network proposed_;
  PictureBox picNorton_{*this, "picNorton", "The existing network and its Norton transform"};
  OptionGroup ratios_;
  OptionButton optCoupling_{*this, ratios_, "optCoupling", "Transform by the ratio of the coupling",
                            "The ratio is the root of the middle capacitor over that of the end"};
  Label lblCouplingChange_{*this, "lblCouplingChange", ""};
  OptionButton optKeepResponse_{*this, ratios_, "optKeepResponse", "Keep the response",
                                "The ratio is the root of the end capacitor over that of the middle"};
  Label lblKeepResponseChange_{*this, "lblKeepResponseChange", ""};
  Label lblNoTransform_{*this, "lblNoTransform", "The transform is for three stages, each with a capacitor."};
  Button cmdAccept_{*this, "cmdAccept", "Accept and return to Design page",
                    "Make the proposed network that of the design"};
  Button cmdExit_{*this, "cmdExit", "Ignore and return to Design page", "Leave the network as it was"};
};

}  // namespace quilm
