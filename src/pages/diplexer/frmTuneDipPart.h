// Tunes single parts of a diplexer's arms while the plot beside it follows.
#pragma once

#include "diplexer/DiplexerTuning.h"
#include "shell/Page.h"

namespace quilm {

class frmTuneDipPart : public Page {
 public:
  explicit frmTuneDipPart(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  struct Selected {
    i16 DipArm;
    int k;  // from 1 at the common port
  };

  int Count() const;
  Selected Part() const;
  f32* Tuned(const Spin& spin);
  void GoTo(int part);
  void ShowPart();
  void Step(Spin& spin, StepWay way);

  Label lblSelect_{*this, "lblSelect", ""};
  PictureBox picPart_{*this, "picPart", "The part in hand"};
  Label lblStage_{*this, "lblStage", ""};
  Button cmdPrevious_{*this, "cmdPrevious", "Previous", "Go to the part before"};
  Button cmdNext_{*this, "cmdNext", "Next", "Go to the next part"};
  Label lblTune_{*this, "lblTune", ""};
  Label lblUpDown1_{*this, "lblUpDown1", ""};
  Label lblValue1_{*this, "lblValue1", ""};
  Spin UpDown1_{*this, "UpDown1", "Tune", "Step the part up or down by 1 %: arrow keys or wheel"};
  Label lblUpDown2_{*this, "lblUpDown2", ""};
  Label lblValue2_{*this, "lblValue2", ""};
  Spin UpDown2_{*this, "UpDown2", "Tune", "Step the capacitor up or down by 1 %: arrow keys or wheel"};
  Button cmdExit_{*this, "cmdExit", "End tuning routine", "Keep the present values and go back to the plot"};

  int part_ = 1;  // the first arm's parts from 1, then the second's
};

}  // namespace quilm
