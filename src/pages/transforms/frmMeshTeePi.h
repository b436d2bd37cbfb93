// The capacitor tees of a mesh-coupled bandpass made pis, beside the network as it is.
#pragma once

#include "pages/transforms/TransformPage.h"

namespace quilm {

class frmMeshTeePi : public TransformPage {
 public:
  explicit frmMeshTeePi(Session& session);
  Layout MakeLayout() override;

 private:
  void Begin() override;
  void Draw(bool transformed);

  PictureBox picMeshTeePi_{*this, "picMeshTeePi", "The existing network and the one after the tee to pi transform"};
  Label lblTooLarge_{*this, "lblTooLarge", "The transformed network will be too large"};
  Label lblNoMesh_{*this, "lblNoMesh",
                   "The transform is for series-tuned circuits in the line with shunt capacitors between them."};
  Label lblChange_{*this, "lblChange", ""};
  Button cmdAccept_{*this, "cmdAccept", "Accept transform and return to Design",
                    "Make the transformed network that of the design"};
  Button cmdExit_{*this, "cmdExit", "Ignore and return to Design", "Leave the network as it was"};
};

}  // namespace quilm
