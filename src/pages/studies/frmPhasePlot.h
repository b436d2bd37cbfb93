// The phase over frequency with the straight line that fits it best, or its deviation from that line.
#pragma once

#include "pages/studies/StudyPage.h"
#include "timedomain/PhaseLinearity.h"

namespace quilm {

struct LinearityPlot;

class frmPhasePlot : public StudyPage {
 public:
  explicit frmPhasePlot(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Compute();
  void Draw();
  void Step(bool larger);
  void GoBack();
  LinearityPlot Plot() const;

  PhaseLinearity phase_;
  std::size_t scale_ = 0;  // index of the stepsize, the largest first

  Label lblHeading_{*this, "lblHeading", "Phase Linearity Plot"};
  Label lblPlotType_{*this, "lblPlotType", ""};
  Label lblSpan_{*this, "lblSpan", ""};
  Label lblDelay_{*this, "lblDelay", ""};
  PictureBox picPlot_{*this, "picPlot", "Phase over frequency"};
  Button cmdIncrease_{*this, "cmdIncrease", "Increase stepsize", "More degrees from line to line"};
  Button cmdDecrease_{*this, "cmdDecrease", "Decrease stepsize", "Fewer degrees from line to line"};
  Button cmdPrint_{*this, "cmdPrint", "Print", "Print the plot"};
  Button cmdBack_{*this, "cmdBack", "Back to setup", "Another sweep"};
  Button cmdExit_{*this, "cmdExit", "Back to analysis page"};
};

}  // namespace quilm
