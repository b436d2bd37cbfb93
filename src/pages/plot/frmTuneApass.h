// Tune ripple: the passband ripple of a Chebyshev or Cauer design up and down while the plot follows.
#pragma once

#include "pages/plot/TunePage.h"

namespace quilm {

class frmTuneApass : public TunePage {
 public:
  explicit frmTuneApass(Session& session);
  void Load() override;
  void Reload() override;
  Layout MakeLayout() override;

 private:
  void Step(StepWay way);

  Label Label1_{*this, "Label1", "Tune ripple:"};
  Spin UpDown1_{*this, "UpDown1", "Tune ripple", "Step the passband ripple up or down: arrow keys or wheel"};
  Label lblShowRipple_{*this, "lblShowRipple", ""};
};

}  // namespace quilm
