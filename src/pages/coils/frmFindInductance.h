// The inductance of a coil that is there.
#pragma once

#include "pages/coils/CoilControls.h"
#include "shell/Page.h"

namespace quilm {

class frmFindInductance : public Page {
 public:
  explicit frmFindInductance(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  void Compute();
  void Return();

  Label lblHeading_{*this, "lblHeading", "Inductance-finding Routine"};
  CoilControls coil_;
  Label lblInductance_{*this, "lblInductance", "Inductance: "};
  Label lblInductance2_{*this, "lblInductance2", ""};
  Button cmdComputeInductance_{*this, "cmdComputeInductance", "Compute inductance", "From all three dimensions"};
  Button cmdExit_{*this, "cmdExit", "Return to Design page", "Leave the design as it is"};
};

}  // namespace quilm
