#include "pages/design/DesignControls.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "desk/FamilyRules.h"
#include "network/DesignStanding.h"
#include "shell/Page.h"

namespace quilm {

namespace {

// The stopband edge is no field of its own in a stored design: it follows from the normalised one.
void DeriveStopband(DesignRecord& record) {
  if (record.Family != familyCauer || record.FstopNorm <= 0) return;
  record.Fstopband = StopbandEdge(record.Topology, record.Width, record.FstopNorm);
}

void WholeOrder(DesignRecord& record) {
  record.Order = std::trunc(record.Order);
  if (record.Order == 0) record.Order = 3;
}

f32 AtMostDeepest(f32 depth) { return std::min(depth, limitsOf::Astop.highest); }

EntryBinding Binding(TextBox& box, f32& field, Formatter format, const std::function<void()>& onEntry) {
  return {.box = box, .field = field, .format = format, .ofZero = OfZero::Blank, .onTaken = onEntry};
}

EntryBinding RippleBinding(TextBox& box, f32& field, const std::function<void()>& onEntry) {
  EntryBinding binding = Binding(box, field, FormatValue, onEntry);
  binding.hold = [](f32 entered) { return std::fabs(entered); };
  return binding;
}

EntryBinding DepthBinding(TextBox& box, f32& field, const std::function<void()>& onEntry) {
  EntryBinding binding = Binding(box, field, FormatValue, onEntry);
  binding.hold = AtMostDeepest;
  binding.showsHeld = ShowsHeld::AtOnce;
  return binding;
}

}  // namespace

DesignControls::DesignControls(Page& page, DesignRecord& record, const std::function<void()>& onEntry)
    : families(page),
      fraCauerType(page, "fraCauerType", "Even order"),
      optCauerTermBest(page, cauerTypes, "optCauerTermBest", "Best selectivity", "Unequal terminations"),
      optCauerTermsEqual(page, cauerTypes, "optCauerTermsEqual", "Equal terms.", "Equal terminations"),
      fraCauerBPFtop(page, "fraCauerBPFtop", "Bandpass layout"),
      optCauerTopNormal(page, cauerTops, "optCauerTopNormal", "Normal", "The layout for any order"),
      optCauerTopZigZag(page, cauerTops, "optCauerTopZigZag", "Zig-zag", "Fewer inductors, for even order only"),
      topologies(page),
      guides(page),
      lblOrder(page, "lblOrder", "Order  (N)"),
      lblOrderInput(page, "lblOrderInput", ""),
      UpDown1(page, "UpDown1", "Order"),
      lblBandwidth(page, "lblBandwidth", "Bandwidth (Hz)  (Fc)"),
      txtBandwidth(page, "txtBandwidth", "Bandwidth or cutoff, Hz"),
      lblRipple(page, "lblRipple", ""),
      lblCenterFrequency(page, "lblCenterFrequency", "Center frequency  (Fo)"),
      txtCenterFrequency(page, "txtCenterFrequency", "Center frequency, Hz"),
      lblInputTerm(page, "lblInputTerm", "Input termination  (Rs)"),
      txtInputTerm(page, "txtInputTerm", "Input termination, ohms"),
      lblPassbandRipple(page, "lblPassbandRipple", "Passband ripple (Ap)"),
      txtPassbandRipple(page, "txtPassbandRipple", "Passband ripple, dB"),
      lblVSWR(page, "lblVSWR", ""),
      lblStopbandFreq(page, "lblStopbandFreq", "Stopband width  (Fs)"),
      txtStopbandFreq(page, "txtStopbandFreq", "Stopband width, Hz"),
      lblStopbandDepth(page, "lblStopbandDepth", "Stopband depth (dB) (As)"),
      txtStopbandDepth(page, "txtStopbandDepth", "Stopband depth, dB"),
      txtDesignChange(page, "txtDesignChange", "(or design possibly altered)"),
      tools(page),
      width(page.entries.Bind(Binding(txtBandwidth, record.Width, FormatFrequency, onEntry))),
      center(page.entries.Bind(Binding(txtCenterFrequency, record.Fcenter, FormatFrequency, onEntry))),
      input(page.entries.Bind(Binding(txtInputTerm, record.Rsource[1], FormatResistance, onEntry))),
      ripple(page.entries.Bind(RippleBinding(txtPassbandRipple, record.Apass, onEntry))),
      stopband(page.entries.Bind(Binding(txtStopbandFreq, record.Fstopband, FormatFrequency, onEntry))),
      depth(page.entries.Bind(DepthBinding(txtStopbandDepth, record.Astop, onEntry))),
      entries_(page.entries),
      record_(record) {
  // A lowpass has a cutoff, a bandpass a bandwidth: the letter is one of both captions.
  lblBandwidth.mnemonic = 'F';
  fraCauerType.Hold({&optCauerTermBest, &optCauerTermsEqual});
  fraCauerBPFtop.Hold({&optCauerTopNormal, &optCauerTopZigZag});
}

void DesignControls::Settle() {
  // A letter that stands for no design is a network entered by hand.
  if (!record_.Topology.empty() && !IsTopologyLetter(record_.Topology)) {
    SettleByHand(record_);
  }
  WholeOrder(record_);
  DeriveStopband(record_);
}

void DesignControls::Fill() {
  restingCenter_ = 0;
  txtDesignChange.visible = false;
  lblOrder.caption = "Order (N) [" + std::to_string(record_.OrderMax) + " max]";
  FillOptions();
  SettleCauer();
  entries_.Fill();
  lblVSWR.caption = RippleReadout(record_.Apass);
  Refresh();
}

void DesignControls::FillOptions() {
  families.Enable(true);
  families.Choose(record_.Family);
  topologies.Choose(record_.Topology);
  (record_.CauerType == "C" ? optCauerTermsEqual : optCauerTermBest).Set();
  (record_.CauerTop == 1 ? optCauerTopZigZag : optCauerTopNormal).Set();
}

void DesignControls::Refresh() {
  const DesignView view = ViewOf(record_);
  lblOrderInput.caption = PlainText(record_.Order);
  UpDown1.lowest = LowestOrder(record_);
  UpDown1.highest = record_.OrderMax;
  fraCauerType.visible = view.cauerType;
  fraCauerBPFtop.visible = view.cauerTop;
  optCauerTopZigZag.enabled = view.zigZag;
  topologies.OfferFor(record_.Family);
  RefreshEntries(view);
  tools.Show(view);
}

void DesignControls::RefreshEntries(const DesignView& view) {
  // While the ripple was a result its box kept what was entered last, and that is the entry again.
  const bool entryAgain = view.ripple && !txtPassbandRipple.visible;
  if (entryAgain) ripple.Take();
  if (entryAgain || !view.ripple) lblVSWR.caption = RippleReadout(record_.Apass);
  lblBandwidth.caption = view.bandwidthCaption;
  lblRipple.caption = view.edge;
  lblRipple.visible = !view.edge.empty();
  lblCenterFrequency.visible = txtCenterFrequency.visible = view.center;
  lblPassbandRipple.visible = txtPassbandRipple.visible = view.ripple;
  lblVSWR.visible = view.readout;
  lblStopbandFreq.visible = txtStopbandFreq.visible = view.stopband;
  lblStopbandDepth.visible = txtStopbandDepth.visible = view.stopband;
  entries_.Refresh();
}

void DesignControls::TakeTopology(const std::string& letter) {
  record_.Topology = letter;
  topologies.Choose(letter);
  if (IsLowOrHighpass(letter)) {
    if (record_.Fcenter != 0) restingCenter_ = record_.Fcenter;
    record_.Fcenter = 0;
  } else if (record_.Fcenter == 0) {
    record_.Fcenter = restingCenter_;
  }
  center.Fill();
}

void DesignControls::SettleCauer() {
  if (record_.Family != familyCauer) return;
  if (IsEvenOrder(record_)) {
    record_.CauerType = optCauerTermsEqual.Value() ? "C" : "B";
  } else {
    record_.CauerType = "A";
    record_.CauerTop = 0;
    optCauerTopNormal.Set();
  }
}

std::string RippleReadout(f32 Apass) {
  if (!(Apass > 0 && Apass < 10)) return {};
  // 1 - 10^(-Apass / 10), exact for the smallest ripples too.
  const f64 reflected = -std::expm1(-f64{Apass} / 10 * std::numbers::ln10);
  const f64 rho = std::sqrt(reflected);
  const f64 VSWR = (1 + rho) / (1 - rho);
  const f64 Return = 20 * std::log10(rho);
  return "VSWR: " + EntryText(static_cast<f32>(VSWR), FormatValue) +
         "   Return: " + EntryText(static_cast<f32>(Return), FormatValue) + " dB";
}

}  // namespace quilm
