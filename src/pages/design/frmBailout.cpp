#include "pages/design/frmBailout.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/NumberText.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 stopbandStep = 1.01F;
constexpr f64 noteSeconds = 2;

constexpr const char* increasing = "Increasing this value.";
constexpr const char* reducing = "Reducing this value.";

std::string TopologySentence(const std::string& letter) {
  const char* name = letter == "A"   ? "capacitor-input lowpass."
                     : letter == "B" ? "inductor-input lowpass."
                     : letter == "H" ? "Cauer bandpass."
                     : letter == "I" ? "capacitor-input highpass."
                                     : "inductor-input highpass.";
  return std::string("The filter topology is ") + name;
}

// Lines as they have always stood, the odd spelling of the shortest list included.
std::string Advice(bool highpass, bool lowestOrder) {
  std::string text = "To increase the passband ripple, you can";
  text += highpass ? "\r\n > increase the passband width," : "\r\n > decrease the passband width,";
  if (highpass) {
    text += "\r\n > or decrease the stopband width,";
  } else {
    text += lowestOrder ? "\r\n > or incecrease the stopband width," : "\r\n > or increase the stopband width,";
  }
  text += lowestOrder ? "\r\n > or increase the stopband depth." : "\r\n > or increase the stopband depth,";
  if (!lowestOrder) text += "\r\n> or decrease the order.";
  return text;
}

f32 WholeOrder(f32 order) { return std::floor(order); }

bool IsEven(f32 order) { return std::fmod(order, 2.0F) == 0; }

}  // namespace

frmBailout::frmBailout(Session& session) : Page(session, PageId::Bailout, "Cauer design") {
  entries.Bind({.box = txtPassbandFreq, .field = draft_.Width, .format = FormatFrequency});
  entries.Bind({.box = txtStopbandFreq, .field = draft_.Fstopband, .format = FormatFrequency});
  entries.Bind({.box = txtStopbandDepth, .field = draft_.Astop, .format = FormatValue});
  entries.Bind({.box = txtOrder, .field = draft_.Order, .format = PlainText, .hold = WholeOrder});
  cmdStopbandFreq.onClick = [this] { MoveStopband(); };
  cmdStopbandDepth.onClick = [this] { DeepenStopband(); };
  cmdOrder.onClick = [this] { ReduceOrder(); };
  cmdExitCauer.onClick = [this] { TakeEntries(); };
  acceptButton = &cmdExitCauer;
}

void frmBailout::Load() {
  ShowAdvice();
  ShowEntries();
  SetFocus(txtStopbandFreq);
}

void frmBailout::ShowAdvice() {
  const bool highpass = IsHighpass(session_.record.Topology);
  lblRipple.caption = ShortText(session_.record.Apass, LeadingZero::Drop);
  lblAdvice.caption = Advice(highpass, session_.record.Order == limitsOf::CauerOrder.lowest);
  lblTopology.caption = TopologySentence(session_.record.Topology);
  cmdStopbandFreq.caption = highpass ? "Increase Fstop and retry" : "Reduce Fstop and retry";
  lblPassbandHint.caption = highpass ? reducing : increasing;
  lblStopbandHint.caption = highpass ? increasing : reducing;
  lblDepthHint.caption = increasing;
  lblOrderHint.caption = reducing;
}

void frmBailout::ShowEntries() {
  const DesignRecord& record = session_.record;
  draft_ = {record.Width, record.Fstopband, record.Astop, WholeOrder(record.Order)};
  entries.Fill();
}

// The page closes, and the design is tried again with what the record now holds.
void frmBailout::Retry() {
  ForgetNetwork(session_.record);
  session_.retriesCauer = true;
  session_.pages.UnloadPage(Id());
}

void frmBailout::MoveStopband() {
  DesignRecord& record = session_.record;
  if (IsHighpass(session_.record.Topology)) {
    if (record.Fstopband < record.Width) record.Fstopband *= stopbandStep;
  } else if (record.Fstopband > record.Width) {
    record.Fstopband /= stopbandStep;
  }
  ShowEntries();
  Retry();
}

void frmBailout::DeepenStopband() {
  session_.record.Astop += 1;
  Retry();
}

void frmBailout::ReduceOrder() {
  f32& order = session_.record.Order;
  order = limitsOf::CauerOrder.Held(WholeOrder(order) - 1);
  if (IsEven(order)) order -= 1;
  lblNote.caption = "Order changed to " + PlainText(order);
  session_.platform.Pause(noteSeconds);
  Retry();
}

bool frmBailout::EdgesAreInOrder() {
  if (IsHighpass(session_.record.Topology)) {
    if (draft_.Fstopband < draft_.Width) return true;
    lblPassbandHint.caption = "Passband is less than stopband";
    lblStopbandHint.caption = "Stopband is greater than passband";
  } else {
    if (draft_.Fstopband > draft_.Width) return true;
    lblPassbandHint.caption = "Passband is greater than stopband";
    lblStopbandHint.caption = "Stopband is less than passband";
  }
  return false;
}

void frmBailout::TakeEntries() {
  if (!EdgesAreInOrder()) return;
  DesignRecord& record = session_.record;
  record.Width = draft_.Width;
  record.Fstopband = draft_.Fstopband;
  record.Astop = std::min(std::fabs(draft_.Astop), limitsOf::Astop.highest);
  record.Order = limitsOf::CauerOrder.Held(WholeOrder(draft_.Order));
  if (IsEven(record.Order)) {
    record.Order -= 1;
    session_.platform.MessageBox("We have reduced the order to the next-lowest odd value.", Buttons::Ok,
                                 Icon::Information, "");
  }
  Retry();
}

Layout frmBailout::MakeLayout() {
  return Column({Put(lblProblem), Row({Put(lblRippleNow), Put(lblRipple), Put(lblMinimum), Space()}), Put(lblAdvice),
                 Put(lblTopology), Put(lblConsider),
                 Form({{Put(lblPassbandFreq), Row({Put(txtPassbandFreq), Put(lblPassbandHint), Space()})},
                       {Put(lblStopbandFreq), Row({Put(txtStopbandFreq), Put(lblStopbandHint), Space()})},
                       {Put(lblStopbandDepth), Row({Put(txtStopbandDepth), Put(lblDepthHint), Space()})},
                       {Put(lblOrder), Row({Put(txtOrder), Put(lblOrderHint), Space()})}}),
                 Put(lblNote),
                 Grid(2, {Put(cmdStopbandFreq), Put(cmdStopbandDepth), Put(cmdOrder), Put(cmdExitCauer)})});
}

}  // namespace quilm
