// The options of an S-parameter file, and the way to it.
#pragma once

#include "shell/Page.h"

namespace quilm {

struct ReverseResponses;

class frmGetSnPoptions : public Page {
 public:
  explicit frmGetSnPoptions(Session& session);
  void Load() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void ShowOptions();
  void ReadOptions();
  void Continue();
  bool HaveReverse(ReverseResponses& reverse);
  void Return();

  Label lblHeading_{*this, "lblHeading", "Choose SnP File Options"};
  Label lblStart_{*this, "lblStart", ""};
  Label lblStop_{*this, "lblStop", ""};
  Label lblNumber_{*this, "lblNumber", ""};
  Label lblSweepMode_{*this, "lblSweepMode", ""};

  OptionGroup ports_;
  OptionButton Option7_{*this, ports_, "Option7", "S2P [2-port]", "S11, S21, S12 and S22 against frequency"};
  OptionButton Option8_{*this, ports_, "Option8", "S1P [1-port]",
                        "The return loss and the angle of the input impedance"};
  OptionGroup versions_;
  OptionButton Option1_{*this, versions_, "Option1", "Version 1.0", "The form that every program reads"};
  OptionButton Option2_{*this, versions_, "Option2", "Version 2.0", "With keywords and both terminations"};
  OptionGroup units_;
  OptionButton Option3_{*this, units_, "Option3", "Hz", "Frequencies in Hz"};
  OptionButton Option4_{*this, units_, "Option4", "kHz", "Frequencies in kHz"};
  OptionButton Option5_{*this, units_, "Option5", "MHz", "Frequencies in MHz"};
  OptionButton Option6_{*this, units_, "Option6", "GHz", "Frequencies in GHz"};
  OptionGroup formats_;
  OptionButton Option9_{*this, formats_, "Option9", "DB [decibels]", "Magnitudes in dB"};
  OptionButton Option10_{*this, formats_, "Option10", "MA [volts/volt]", "Magnitudes as ratios of voltages"};

  Button cmdContinue_{*this, "cmdContinue", "Continue with SnP operation", "Choose a file and write it"};
  Button cmdExit_{*this, "cmdExit", "Return to Quilm", "Go to the Analysis page without writing"};
};

}  // namespace quilm
