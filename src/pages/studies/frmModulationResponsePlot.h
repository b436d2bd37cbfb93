// The modulation response: what the filter does to the modulation of a carrier.
#pragma once

#include "pages/studies/StudyPage.h"

namespace quilm {

class frmModulationResponsePlot : public StudyPage {
 public:
  explicit frmModulationResponsePlot(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Plot();
  void Empty();
  void Draw();

  f32 ModCarrier_ = 0;  // Hz, from the design at each load

  Label lblHeading_{*this, "lblHeading", "Modulation Response"};
  Label lblCarrierFreq_{*this, "lblCarrierFreq", "Carrier, Hz:"};
  TextBox txtCarrierFreq_{*this, "txtCarrierFreq", "Carrier, Hz"};
  // The blanks are part of the caption.
  Label lblSweep_{*this, "lblSweep", "Modulation freq. sweep, Hz:    "};
  Label lblMFstart_{*this, "lblMFstart", "Start:"};
  TextBox txtMFstart_{*this, "txtMFstart", "Lowest modulating frequency, Hz"};
  Label lblMFstop_{*this, "lblMFstop", "Stop:"};
  TextBox txtMFstop_{*this, "txtMFstop", "Highest modulating frequency, Hz"};
  Label lblMdBbottom_{*this, "lblMdBbottom", "Plot bottom, dB:"};
  TextBox txtMdBbottom_{*this, "txtMdBbottom", "Plot bottom, dB"};
  Frame fraResponse_{*this, "fraResponse", "Response"};
  OptionGroup responses_;
  OptionButton Option1_{*this, responses_, "Option1", "Absolute", "0 dB is the power that the source can give"};
  OptionButton Option2_{*this, responses_, "Option2", "Relative", "0 dB is the largest response"};
  Button cmdPlot_{*this, "cmdPlot", "(Re)Plot", "Plot the response to modulation"};
  Button cmdExitModulation_{*this, "cmdExitModulation", "Return to Analysis page"};
  PictureBox picPlot_{*this, "picPlot", "Modulation response"};
};

}  // namespace quilm
