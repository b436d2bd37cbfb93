#include "pages/design/frmSinglyTermCheby.h"

#include <cmath>

#include "core/Fault.h"
#include "core/NumberText.h"
#include "core/modGeneral.h"
#include "shell/EntryText.h"
#include "shell/Session.h"

namespace quilm {

namespace {

std::string OrderText(f32 order) { return ShortText(order, LeadingZero::Keep); }

}  // namespace

// What an entry must fulfil, and what is said when it does not.
struct frmSinglyTermCheby::Check {
  bool fulfilled;
  std::string message;
  TextBox& box;
};

frmSinglyTermCheby::frmSinglyTermCheby(Session& session)
    : Page(session, PageId::SinglyTermCheby, "Singly-terminated Chebyshev Design") {
  Option1_.onClick = [this] { ChooseTopology("B"); };
  Option2_.onClick = [this] { ChooseTopology("F"); };
  Option3_.onClick = [this] { ChooseTopology("I"); };
  const auto connect = [](TextBox& box, f32& field, Formatter format) {
    box.onChange = [&box, &field, format] { ParseBox(box, field, format); };
    box.onLeave = [&box, &field, format] { EchoBox(box, field, format); };
  };
  connect(txtOrder_, entries_.Order, OrderText);
  connect(txtRipple_, entries_.Apass, FormatValue);
  connect(txtBandwidth_, entries_.Width, FormatFrequency);
  connect(txtCenterFrequency_, entries_.Fcenter, FormatFrequency);
  connect(txtOutputTermination_, entries_.outputTermination, FormatResistance);
  cmdExit_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdExit_;
  cancelButton = &cmdIgnore_;
}

void frmSinglyTermCheby::Load() {
  entries_ = SinglyTerminatedEntries{};
  entries_.Width = session_.record.Width;
  entries_.Fcenter = session_.record.Fcenter;
  txtOrder_.text = "4";
  txtRipple_.text = ".1";
  txtOutputTermination_.text = "10000";
  txtBandwidth_.text = FilledText(entries_.Width, FormatFrequency);
  txtCenterFrequency_.text = FilledText(entries_.Fcenter, FormatFrequency);
  Option1_.Set();
  ChooseTopology("B");
  SetFocus(txtOrder_);
}

void frmSinglyTermCheby::ChooseTopology(const char* letter) {
  entries_.Topology = letter;
  lblCenterFrequency_.visible = txtCenterFrequency_.visible = entries_.Topology == "F";
}

bool frmSinglyTermCheby::EntriesAreUsable() {
  const SinglyTerminatedEntries& e = entries_;
  const i16 most = session_.record.OrderMax;
  const bool whole = e.Order == std::floor(e.Order);
  const Check checks[] = {
      {whole && e.Order >= 2 && e.Order <= most, "Please enter an order, 2 to " + std::to_string(most), txtOrder_},
      {e.outputTermination >= 0.01F && e.outputTermination <= 1e6F,
       "Please enter an output termination, .01 min to 1M max", txtOutputTermination_},
      {e.Apass >= 0.0001F && e.Apass <= 10, "Please enter a passband ripple, .0001 min to 10 max", txtRipple_},
      {e.Width >= 0.1F, "Please enter a bandwidth .1 minimum", txtBandwidth_},
      {e.Topology != "F" || e.Fcenter > 0, "Please enter a center frequency", txtCenterFrequency_},
  };
  for (const Check& check : checks) {
    if (check.fulfilled) continue;
    session_.platform.MessageBox(check.message, Buttons::Ok, Icon::Exclamation, "Error Checker");
    SetFocus(check.box);
    return false;
  }
  return true;
}

void frmSinglyTermCheby::Accept() {
  if (!EntriesAreUsable()) return;
  try {
    MakeSinglyTerminated(session_.record, entries_);
  } catch (const Fault&) {
    session_.platform.MessageBox("We could not calculate the parts values.", Buttons::Ok, Icon::Exclamation,
                                 "Error Checker");
    return;
  }
  session_.familyOption = familyManual;
  session_.pages.UnloadPage(Id());
}

Layout frmSinglyTermCheby::MakeLayout() {
  return Column({Column({Put(Option1_), Put(Option2_), Put(Option3_)}),
                 Form({{Put(lblOrder_), Put(txtOrder_)},
                       {Put(lblRipple_), Put(txtRipple_)},
                       {Put(lblBandwidth_), Put(txtBandwidth_)},
                       {KeepPlace(Put(lblCenterFrequency_)), KeepPlace(Put(txtCenterFrequency_))},
                       {Put(lblOutputTermination_), Put(txtOutputTermination_)}}),
                 Put(lblNote_), Row({Space(), Put(cmdExit_), Put(cmdIgnore_)})});
}

}  // namespace quilm
