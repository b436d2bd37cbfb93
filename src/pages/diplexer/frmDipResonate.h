// The capacitor that turns a series inductor of the lowpass arm into a trap at the crossover. Shows figures, and
// changes no part.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmDipResonate : public Page {
 public:
  explicit frmDipResonate(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Step(int by);
  void Show();

  int part_ = 1;  // odd: the series inductors

  Label lblPart_{*this, "lblPart", " Part # (Lowpass): "};
  Label lblPartNumber_{*this, "lblPartNumber", ""};
  Button cmdPrevious_{*this, "cmdPrevious", "Previous", "The series inductor before this one"};
  Button cmdNext_{*this, "cmdNext", "Next", "The series inductor after this one"};
  PictureBox picResonate_{*this, "picResonate", "The inductor with its capacitor in parallel"};
  Label lblResonance_{*this, "lblResonance", ""};
  Button cmdExit_{*this, "cmdExit", "Exit this routine", "Leave the parts as they are"};
};

}  // namespace quilm
