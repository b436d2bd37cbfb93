// The sweep of a phase's linearity.
#pragma once

#include "pages/studies/StudyPage.h"

namespace quilm {

class frmPhaseSetup : public StudyPage {
 public:
  explicit frmPhaseSetup(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Show(i16 PhasePlotType);

  f32 PhaseFstart_ = 0;  // Hz
  f32 PhaseFstop_ = 0;
  f32 PhaseNrInts_ = 0;

  Label lblHeading_{*this, "lblHeading", "Phase Linearity Setup"};
  Label lblPhaseFstart_{*this, "lblPhaseFstart", "Starting frequency (Hz): "};
  TextBox txtPhaseFstart_{*this, "txtPhaseFstart", "Starting frequency in Hz"};
  Label lblPhaseFstop_{*this, "lblPhaseFstop", "Stopping frequency (Hz): "};
  TextBox txtPhaseFstop_{*this, "txtPhaseFstop", "Stopping frequency in Hz"};
  Label lblPhaseNrInts_{*this, "lblPhaseNrInts", "Number of steps: "};
  TextBox txtPhaseNrInts_{*this, "txtPhaseNrInts", "Number of steps", "50 to 2049 equal steps"};
  Button cmdLinearity_{*this, "cmdLinearity", "Show phase Linearity and best-fit line",
                       "The phase over frequency, and the straight line that fits it best"};
  Button cmdDeviation_{*this, "cmdDeviation", "Show deviation from best-fit line",
                       "What the phase differs from the straight line"};
  Button cmdExit_{*this, "cmdExit", "Return to Analysis page"};
};

}  // namespace quilm
