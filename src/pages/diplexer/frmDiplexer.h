// The design of a diplexer: its entries, and the circuit that follows from them.
#pragma once

#include "diplexer/DiplexerEntries.h"
#include "shell/Page.h"

namespace quilm {

class frmDiplexer : public Page {
 public:
  explicit frmDiplexer(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  void BindEntries();
  void Accept();
  void ChooseCorrection(bool exact);
  void ToggleMode();
  void ShowEntries();
  void Draw(std::string_view note);
  void Return();

  DiplexerEntered entered_;  // what the boxes say; nothing counts before it is accepted

  Frame fraEntries_{*this, "fraEntries", "Diplexer"};
  Label lblMode_{*this, "lblMode", ""};
  Label lblOrder_{*this, "lblOrder", "Order: "};
  TextBox txtOrder_{*this, "txtOrder", "Order of each arm", "1 to 10"};
  Label lblRipple_{*this, "lblRipple", "Passband ripple (dB): "};
  TextBox txtRipple_{*this, "txtRipple", "Passband ripple", "In dB, .0001 to 3"};
  Label lblTermination_{*this, "lblTermination", "System Z (ohms): "};
  TextBox txtTermination_{*this, "txtTermination", "System impedance", "In ohms, 1 to 10k"};
  Label lblCrossover_{*this, "lblCrossover", "Crossover freq (Hz): "};
  TextBox txtCrossover_{*this, "txtCrossover", "Crossover frequency", "In Hz, such as 1M"};
  Label lblFlower_{*this, "lblFlower", "Lower bandedge (Hz): "};
  TextBox txtFlower_{*this, "txtFlower", "Lower band edge", "In Hz, such as 9.5M"};
  Label lblFupper_{*this, "lblFupper", "Upper bandedge (Hz): "};
  TextBox txtFupper_{*this, "txtFupper", "Upper band edge", "In Hz, at least 1.01 times the lower one"};
  Frame fraCorrection_{*this, "fraCorrection", "Where the arms cross"};
  OptionGroup corrections_;
  OptionButton optPartFactor_{*this, corrections_, "optPartFactor", "About 3 dB",
                              "Odd and even parts are stretched by factors of their own"};
  OptionButton optExact3dB_{*this, corrections_, "optExact3dB", "Exact 3 dB",
                            "All parts are stretched by the factor of the order: 3.0103 dB at every order"};
  Button cmdTopology_{*this, "cmdTopology", "Topology", "Change between lowpass/highpass and bandpass/bandstop"};
  Button cmdAccept_{*this, "cmdAccept", "Accept", "Design the parts from these entries"};
  PictureBox picDiplexer_{*this, "picDiplexer", "The circuit of the diplexer"};
  Button cmdPlot_{*this, "cmdPlot", "Plot", "The responses of both arms"};
  Button cmdPrint_{*this, "cmdPrint", "Print", "Print circuit and responses"};
  Button cmdSpiceSchematic_{*this, "cmdSpiceSchematic", "LTspice schematic", "Write the circuit as a file for LTspice"};
  Button cmdResonate_{*this, "cmdResonate", "Resonate series L",
                      "Capacitors that turn the lowpass arm's inductors into traps"};
  Button cmdExit_{*this, "cmdExit", "Return to Quilm design", "The diplexer stays as it is until the program ends"};
};

}  // namespace quilm
