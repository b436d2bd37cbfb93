#include "pages/design/frmSinglyTermCheby.h"

#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "shell/Session.h"

namespace quilm {

namespace {

std::string RefuseOutside(const EntryLimits& limits, f32 value, const std::string& entry) {
  if (limits.Contain(value)) return {};
  return "Please enter " + entry + ", " + limits.lowestText + " min to " + limits.highestText + " max";
}

std::string RefuseRipple(f32 ripple) { return RefuseOutside(limitsOf::Apass, ripple, "a passband ripple"); }

std::string RefuseOutput(f32 termination) {
  return RefuseOutside(limitsOf::OutputTermination, termination, "an output termination");
}

std::string RefuseBandwidth(f32 width) {
  const EntryLimits& limits = limitsOf::SinglyTerminatedWidth;
  return limits.Contain(width) ? "" : std::string("Please enter a bandwidth ") + limits.lowestText + " minimum";
}

}  // namespace

frmSinglyTermCheby::frmSinglyTermCheby(Session& session)
    : Page(session, PageId::SinglyTermCheby, "Singly-terminated Chebyshev Design") {
  Option1_.onClick = [this] { ChooseTopology("B"); };
  Option2_.onClick = [this] { ChooseTopology("F"); };
  Option3_.onClick = [this] { ChooseTopology("I"); };
  BindEntries();
  cmdExit_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { Return(); };
  acceptButton = &cmdExit_;
  cancelButton = &cmdIgnore_;
}

// In the order in which they are checked.
void frmSinglyTermCheby::BindEntries() {
  SinglyTerminatedEntries& d = design_;
  entries.Bind(
      {.box = txtOrder_, .field = d.Order, .format = PlainText, .ofZero = OfZero::Blank, .refusal = [this](f32 order) {
         return RefuseOrder(order);
       }});
  entries.Bind({.box = txtOutputTermination_,
                .field = d.outputTermination,
                .format = FormatResistance,
                .ofZero = OfZero::Blank,
                .refusal = RefuseOutput});
  entries.Bind(
      {.box = txtRipple_, .field = d.Apass, .format = FormatValue, .ofZero = OfZero::Blank, .refusal = RefuseRipple});
  entries.Bind({.box = txtBandwidth_,
                .field = d.Width,
                .format = FormatFrequency,
                .ofZero = OfZero::Blank,
                .refusal = RefuseBandwidth});
  entries.Bind({.box = txtCenterFrequency_,
                .field = d.Fcenter,
                .format = FormatFrequency,
                .ofZero = OfZero::Blank,
                .refusal = [this](f32 center) { return RefuseCenter(center); }});
}

std::string frmSinglyTermCheby::RefuseOrder(f32 order) const {
  const i16 most = session_.record.OrderMax;
  if (order == std::floor(order) && order >= limitsOf::leastSinglyTerminatedOrder && order <= most) return {};
  return "Please enter an order, " + PlainText(limitsOf::leastSinglyTerminatedOrder) + " to " + std::to_string(most);
}

std::string frmSinglyTermCheby::RefuseCenter(f32 center) const {
  return design_.Topology != "F" || center > 0 ? "" : "Please enter a center frequency";
}

void frmSinglyTermCheby::Load() {
  design_ = SinglyTerminatedEntries{};
  design_.Width = session_.record.Width;
  design_.Fcenter = session_.record.Fcenter;
  entries.Fill();
  // The two that the page proposes in the words of a data sheet, until their boxes are left.
  txtRipple_.text = ".1";
  txtOutputTermination_.text = "10000";
  Option1_.Set();
  ChooseTopology("B");
  SetFocus(txtOrder_);
}

void frmSinglyTermCheby::ChooseTopology(const char* letter) {
  design_.Topology = letter;
  lblCenterFrequency_.visible = txtCenterFrequency_.visible = design_.Topology == "F";
}

bool frmSinglyTermCheby::EntriesAreUsable() {
  Entry* refused = entries.FirstRefused();
  if (refused == nullptr) return true;
  session_.platform.MessageBox(refused->Refusal(), Buttons::Ok, Icon::Exclamation, "Error Checker");
  SetFocus(refused->Box());
  return false;
}

void frmSinglyTermCheby::Accept() {
  if (!EntriesAreUsable()) return;
  try {
    MakeSinglyTerminated(session_.record, design_);
  } catch (const Fault&) {
    session_.platform.MessageBox("We could not calculate the parts values.", Buttons::Ok, Icon::Exclamation,
                                 "Error Checker");
    return;
  }
  session_.familyOption = familyManual;
  Return();
}

void frmSinglyTermCheby::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

Layout frmSinglyTermCheby::MakeLayout() {
  const Layout form = Form({{Put(lblOrder_), Put(txtOrder_)},
                            {Put(lblRipple_), Put(txtRipple_)},
                            {Put(lblBandwidth_), Put(txtBandwidth_)},
                            {KeepPlace(Put(lblCenterFrequency_)), KeepPlace(Put(txtCenterFrequency_))},
                            {Put(lblOutputTermination_), Put(txtOutputTermination_)}});
  const Layout page =
      Group("Singly-terminated Chebyshev", Column({Put(Option1_), Put(Option2_), Put(Option3_), form, Put(lblNote_)}));
  return Row({Space(), Column({Space(), page, Row({Space(), Put(cmdExit_), Put(cmdIgnore_)}), Space()}), Space()});
}

}  // namespace quilm
