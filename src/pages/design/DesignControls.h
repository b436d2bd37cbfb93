// The entries of the Design page: its options and boxes, what they show of a design, and how they change it.
#pragma once

#include <functional>
#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "pages/design/DesignTools.h"
#include "pages/design/FamilyOptions.h"
#include "pages/design/TopologyOptions.h"
#include "shell/Control.h"
#include "shell/Entry.h"

namespace quilm {

struct DesignView;

class DesignControls {
 public:
  // `onEntry` follows each keystroke in one of the boxes.
  DesignControls(Page& page, DesignRecord& record, const std::function<void()>& onEntry);

  // What a design that comes from elsewhere needs before it is shown: a whole order, the stopband edge of its
  // prototype, and the manual family when its letter stands for no design.
  void Settle();

  // Rebuilds everything from the record.
  void Fill();

  // Shows and hides what the design asks for, and the order, and what has changed behind the boxes.
  void Refresh();

  // Makes `letter` the topology. A lowpass or highpass has no centre frequency; the one that a bandpass had rests here
  // until the next.
  void TakeTopology(const std::string& letter);

  // Sets CauerType and CauerTop of a Cauer design by its options and its order: odd orders know one type, and no
  // zig-zag layout.
  void SettleCauer();

  FamilyOptions families;
  Frame fraCauerType;
  OptionGroup cauerTypes;
  OptionButton optCauerTermBest;
  OptionButton optCauerTermsEqual;
  Frame fraCauerBPFtop;
  OptionGroup cauerTops;
  OptionButton optCauerTopNormal;
  OptionButton optCauerTopZigZag;
  TopologyOptions topologies;
  TopologyGuides guides;
  Label lblOrder;
  Label lblOrderInput;
  Spin UpDown1;
  Label lblBandwidth;
  TextBox txtBandwidth;
  Label lblRipple;
  Label lblCenterFrequency;
  TextBox txtCenterFrequency;
  Label lblInputTerm;
  TextBox txtInputTerm;
  Label lblPassbandRipple;
  TextBox txtPassbandRipple;
  Label lblVSWR;
  Label lblStopbandFreq;
  TextBox txtStopbandFreq;
  Label lblStopbandDepth;
  TextBox txtStopbandDepth;
  Label txtDesignChange;
  DesignTools tools;

  Entry& width;
  Entry& center;
  Entry& input;
  Entry& ripple;
  Entry& stopband;
  Entry& depth;

 private:
  void FillOptions();
  void RefreshEntries(const DesignView& view);

  EntryList& entries_;
  DesignRecord& record_;
  f32 restingCenter_ = 0;
};

// What a ripple in dB means at the input of a lossless filter, "VSWR: 1.3554   Return: -16.428 dB" for 0.1 dB: the
// reflection is rho = sqrt(1 - 10^(-Apass / 10)) where the ripple is deepest. Empty unless Apass is above 0 and below
// 10.
std::string RippleReadout(f32 Apass);

}  // namespace quilm
