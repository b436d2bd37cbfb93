// Tune part: one value of the network after the other, up and down while the plot follows.
#pragma once

#include "pages/plot/TunePage.h"

namespace quilm {

class frmTunePart : public TunePage {
 public:
  explicit frmTunePart(Session& session);
  void Load() override;
  void Reload() override;
  Layout MakeLayout() override;

 private:
  const TuneItem& Item() const { return list_[TuneIndex_ - 1]; }
  void Rebuild();
  void ShowItem();
  void GoTo(std::size_t item);
  void FocusOnNext();
  void StoreBox(bool changed);
  void Step(StepWay way);

  Label lblSelectPart_{*this, "lblSelectPart", "Select the part:"};
  PictureBox picPart_{*this, "picPart", "The part in hand"};
  Button cmdReverse_{*this, "cmdReverse", "Previous", "Go to the part before"};
  Button cmdForward_{*this, "cmdForward", "Next", "Go to the next part"};
  Label lblTunePart_{*this, "lblTunePart", "Tune the part:"};
  Label lblTune_{*this, "lblTune", "TUNE"};
  Spin UpDown1_{*this, "UpDown1", "Tune", "Step the part up or down: arrow keys or wheel"};

  TuneList list_;
  std::size_t TuneIndex_ = 1;  // from 1, as items are counted
};

}  // namespace quilm
