#include "pages/transforms/frmBisection.h"

#include <vector>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "desk/ResponseChange.h"
#include "network/Bisection.h"
#include "network/DesignStanding.h"
#include "schematic/NetworkRows.h"
#include "shell/Session.h"

namespace quilm {

frmBisection::frmBisection(Session& session)
    : TransformPage(session, PageId::Bisection, "Bisection Routine", Proposes::OnPress) {
  entries.Bind(
      {.box = txtNewOutput_, .field = newOutput_, .format = FormatValue, .ofZero = OfZero::Blank, .onTaken = [this] {
         cmdCompute_.enabled = symmetrical_ && newOutput_ > 0;
       }});
  for (TextBox* box : {&txtInput_, &txtOutput_, &txtMismatch_}) box->readOnly = true;
  cmdCompute_.onClick = [this] { Compute(); };
  cmdAccept_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { Ignore(); };
  acceptButton = &cmdCompute_;
  cancelButton = &cmdIgnore_;
}

void frmBisection::Begin() {
  symmetrical_ = IsSymmetrical(Found());
  newOutput_ = 0;
  entries.Fill();
  txtInput_.text = symmetrical_ ? EntryText(Found().Rsource[1], FormatValue) : "";
  txtOutput_.text = symmetrical_ ? EntryText(Found().Rload[1], FormatValue) : "";
  txtMismatch_.text.clear();
  cmdCompute_.enabled = false;
  Draw();
  SetFocus(txtNewOutput_);
  if (symmetrical_) return;
  session_.platform.MessageBox("The Bisection routine requires that the network be symmetrical end-to-end.",
                               Buttons::Ok, Icon::Exclamation, "");
}

// Each press goes on from the last one.
void frmBisection::Compute() {
  Network bisected;
  SetFocus(txtNewOutput_);
  if (!Computes([&] { bisected = Bisect(session_.network, newOutput_); })) return;
  Propose(bisected);
  StandByHand(session_.identity);
  const f64 K = f64{static_cast<f32>(f64{bisected.Rload[1]} / f64{bisected.Rsource[1]})};
  txtMismatch_.text = EntryText(static_cast<f32>(BisectionLoss(K)), FormatValue) + " dB";
  entries.Fill();
  txtOutput_.text = txtNewOutput_.text;
  session_.note = ResponseChangeText(LargestChange(session_, Found(), bisected));
  Draw();
}

void frmBisection::Draw() {
  std::vector<TitledNetwork> networks = {{"Existing:", Found()}};
  if (HasProposal()) networks.push_back({"After bisection:", session_.network});
  DrawNetworks(Found(), networks, picBisection_.picture);
  picBisection_.description = HasProposal() ? "The existing network and the bisected one" : "The existing network";
}

Layout frmBisection::MakeLayout() {
  const Layout form = Form({{Put(lblInput_), Put(txtInput_), Word("ohms", txtInput_)},
                            {Put(lblOutput_), Put(txtOutput_), Word("ohms", txtOutput_)},
                            {Put(lblNewOutput_), Put(txtNewOutput_), Word("ohms", txtNewOutput_)},
                            {Put(lblMismatch_), Put(txtMismatch_)},
                            Across(Put(cmdCompute_))});
  return Column({Fill(Put(picBisection_)), Row({Group("Bisection Routine", form), Space()}),
                 Row({Space(), Put(cmdAccept_), Put(cmdIgnore_)})});
}

}  // namespace quilm
