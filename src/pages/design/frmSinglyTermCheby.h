// The singly terminated Chebyshev design.
#pragma once

#include "shell/Page.h"
#include "synthesis/SinglyTerminated.h"

namespace quilm {

class frmSinglyTermCheby : public Page {
 public:
  explicit frmSinglyTermCheby(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  void BindEntries();
  // Why an entry will not do; empty when it will.
  std::string RefuseOrder(f32 order) const;
  std::string RefuseCenter(f32 center) const;
  void ChooseTopology(const char* letter);
  bool EntriesAreUsable();
  void Accept();
  void Return();

  SinglyTerminatedEntries design_;
  OptionGroup topologies_;
  OptionButton Option1_{*this, topologies_, "Option1", "Inductor-input lowpass"};
  OptionButton Option2_{*this, topologies_, "Option2", "Series-input bandpass"};
  OptionButton Option3_{*this, topologies_, "Option3", "Capacitor-input highpass"};
  Label lblOrder_{*this, "lblOrder", "Order (N)"};
  TextBox txtOrder_{*this, "txtOrder", "Order", "2 to 21"};
  Label lblRipple_{*this, "lblRipple", "Passband ripple (dB)"};
  TextBox txtRipple_{*this, "txtRipple", "Passband ripple, dB"};
  Label lblBandwidth_{*this, "lblBandwidth", "Bandwidth (Hz)"};
  TextBox txtBandwidth_{*this, "txtBandwidth", "Bandwidth, Hz"};
  Label lblCenterFrequency_{*this, "lblCenterFrequency", "Center frequency (Hz)"};
  TextBox txtCenterFrequency_{*this, "txtCenterFrequency", "Center frequency, Hz"};
  Label lblOutputTermination_{*this, "lblOutputTermination", "Output termination (ohms)"};
  TextBox txtOutputTermination_{*this, "txtOutputTermination", "Output termination, ohms"};
  Label lblNote_{*this, "lblNote", "The source has .01 ohm. A relative display shows the passband at 0 dB."};
  Button cmdExit_{*this, "cmdExit", "Accept and return to Design page", "Make the network of these entries"};
  Button cmdIgnore_{*this, "cmdIgnore", "Ignore", "Leave the design as it was"};
};

}  // namespace quilm
