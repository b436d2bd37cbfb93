// The Analysis page: what a sweep covers, and how the graphs are scaled.
#pragma once

#include "desk/DesignPreview.h"
#include "desk/NavigationRow.h"
#include "shell/Page.h"

namespace quilm {

class frmAnalyze : public Page {
 public:
  explicit frmAnalyze(Session& session);
  void Load() override;
  void CatchUp() override;
  void Reload() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void BindEntries();
  void BindScales();
  void ConnectOptions();
  void ConnectSpins();
  void Follow();
  void FollowWithSweep();
  void SetSweepMode(i16 mode);
  void SetRelative(bool relative);
  void SetXints(i32 intervals);
  void SetYints(f32 intervals);
  void SetLineWidth(i32 width);
  bool CheckAll();
  bool MayGoTo(PageId target);
  void ScaleToResponse();
  void FitToBand();
  void OpenStudy(PageId study);
  enum class Missing { AreFilled, Stay };
  void Show(Missing missing);
  void ShowOptions();
  void ShowLabels();
  Layout SweepGroup();
  Layout ScaleGroup();
  Layout QualityGroup();
  Layout ReferenceGroup();

  NavigationRow navigation_;
  DesignPreview preview_;

  Label lblFstart_{*this, "lblFstart", "Start (Hz)"};
  TextBox txtFstart_{*this, "txtFstart", "Starting frequency in Hz"};
  Label lblFstop_{*this, "lblFstop", "Stop (Hz)"};
  TextBox txtFstop_{*this, "txtFstop", "Stopping frequency in Hz"};
  Label lblSpanValue_{*this, "lblSpanValue", ""};
  Label lblSweepFault_{*this, "lblSweepFault", ""};
  Label lblNrIntervals_{*this, "lblNrIntervals", "Intervals"};
  TextBox txtNrIntervals_{*this, "txtNrIntervals", "Number of intervals of the sweep"};
  OptionGroup sweeps_;
  OptionButton optLinear_{*this, sweeps_, "optLinear", "Linear", "Equal steps in frequency"};
  OptionButton optLog_{*this, sweeps_, "optLog", "Logarithmic", "Equal ratios in frequency"};
  Label lblXints_{*this, "lblXints", "Grid across"};
  Label lblNrXints_{*this, "lblNrXints", ""};
  Spin UpDown1_{*this, "UpDown1", "Horizontal grid intervals", "Grid intervals across, 1 to 30"};
  Label lblPerInterval_{*this, "lblPerInterval", ""};

  Label lblLossBottom_{*this, "lblLossBottom", "Loss bottom (dB)"};
  TextBox txtLossBottom_{*this, "txtLossBottom", "Bottom of the transmission graph in dB"};
  Label lbldBper_{*this, "lbldBper", ""};
  Label lblDelayTop_{*this, "lblDelayTop", "Delay top (s)"};
  TextBox txtDelayTop_{*this, "txtDelayTop", "Top of the delay graph in seconds"};
  Label lblDelayPer_{*this, "lblDelayPer", ""};
  Label lblVSWRTop_{*this, "lblVSWRTop", "VSWR top"};
  TextBox txtVSWRTop_{*this, "txtVSWRTop", "Top of the VSWR graph"};
  Label lblVSWRPer_{*this, "lblVSWRPer", ""};
  Label lblImpedanceTop_{*this, "lblImpedanceTop", "Impedance top (ohms)"};
  TextBox txtImpedanceTop_{*this, "txtImpedanceTop", "Top of the impedance graph in ohms"};
  Label lblOhmsPer_{*this, "lblOhmsPer", ""};
  Label lblYints_{*this, "lblYints", "Grid upward"};
  Label lblNrYints_{*this, "lblNrYints", ""};
  Spin UpDown2_{*this, "UpDown2", "Vertical grid intervals", "Grid intervals upward"};
  Label lblLineWidth_{*this, "lblLineWidth", "Line width"};
  Label lblLineWidthInput_{*this, "lblLineWidthInput", ""};
  Spin UpDown3_{*this, "UpDown3", "Line width of plots", "Width of the traces, 1 to 6"};

  Label lblQinductor_{*this, "lblQinductor", "Inductor Q"};
  TextBox txtQinductor_{*this, "txtQinductor", "Q of the inductors"};
  Label lblQcapacitor_{*this, "lblQcapacitor", "Capacitor Q"};
  TextBox txtQcapacitor_{*this, "txtQcapacitor", "Q of the capacitors"};

  Label lblRetLossRef_{*this, "lblRetLossRef", "Reference (ohms)"};
  TextBox txtRetLossRef_{*this, "txtRetLossRef", "Reference of return loss and VSWR in ohms"};
  OptionGroup levels_;
  OptionButton optAbsolute_{*this, levels_, "optAbsolute", "Absolute", "0 dB is the power that the source can give"};
  OptionButton optRelative_{*this, levels_, "optRelative", "Relative", "0 dB is the peak of the response"};
  OptionGroup magnifications_;
  OptionButton optNormal_{*this, magnifications_, "optNormal", "Normal", "One scale on the transmission plot"};
  OptionButton optMagnify_{*this, magnifications_, "optMagnify", "Magnify", "A second trace, ten times as high"};

  Button cmdAutoScale_{*this, "cmdAutoScale", "AutoScale", "Set the scales from the response"};
  Button cmdFitSweep_{*this, "cmdFitSweep", "Fit sweep", "Set start and stop round the band (Ctrl+F)"};
  Button cmdStepsize_{*this, "cmdStepsize", "Stepsize %", "Set the step of each part"};
  Button cmdModulation_{*this, "cmdModulation", "Modulation", "See the modulation response"};
  Button cmdPhase_{*this, "cmdPhase", "Phase lin.", "See the phase linearity"};
  Button cmdNoise_{*this, "cmdNoise", "Noise", "See the noise bandwidth"};
  Button cmdTransient_{*this, "cmdTransient", "Transient", "See the transient response"};
  Button cmdAssistance_{*this, "cmdAssistance", "Entry assistance", "How numbers may be entered"};
};

}  // namespace quilm
