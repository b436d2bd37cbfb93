// Tune width/center: the bandwidth and the centre frequency of a design up and down while the plot follows; of a
// network made by hand the whole response.
#pragma once

#include "pages/plot/TunePage.h"

namespace quilm {

class frmTuneWidthCenter : public TunePage {
 public:
  explicit frmTuneWidthCenter(Session& session);
  void Load() override;
  void Reload() override;
  Layout MakeLayout() override;

 private:
  void StepTheWidth(StepWay way);
  void StepTheCenter(StepWay way);
  void ShowReadouts();

  Label lblTuneWidth_{*this, "lblTuneWidth", "Tune width:"};
  Label Label1_{*this, "Label1", "TUNE"};
  Spin UpDown1_{*this, "UpDown1", "Tune width", "Step the bandwidth up or down: arrow keys or wheel"};
  Label lblTuneCenter_{*this, "lblTuneCenter", "Tune center:"};
  Label Label2_{*this, "Label2", "TUNE"};
  Spin UpDown2_{*this, "UpDown2", "Tune center", "Step the center frequency up or down, by a share of the bandwidth"};
  Label lblShowWidth_{*this, "lblShowWidth", ""};
  Label lblShowCenter_{*this, "lblShowCenter", ""};
  Label lblNegativeValue_{*this, "lblNegativeValue", "Negative values"};
};

}  // namespace quilm
