#include "pages/transforms/frmNorton.h"

#include <vector>

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "desk/ResponseChange.h"
#include "network/DesignStanding.h"
#include "schematic/NetworkRows.h"
#include "shell/Session.h"

namespace quilm {

frmNorton::frmNorton(Session& session) : TransformPage(session, PageId::Norton, "Norton Transform", Proposes::AtOnce) {
  optCoupling_.onClick = [this] { Show(NortonRatio::Coupling); };
  optKeepResponse_.onClick = [this] { Show(NortonRatio::Level); };
  cmdAccept_.onClick = [this] { AcceptShown(); };
  cmdExit_.onClick = [this] { Ignore(); };
  acceptButton = &cmdAccept_;
  cancelButton = &cmdExit_;
}

void frmNorton::Begin() {
  transforms_ = HasNortonForm(Found());
  for (Control* control : std::initializer_list<Control*>{&optCoupling_, &optKeepResponse_, &lblCouplingChange_,
                                                          &lblKeepResponseChange_}) {
    control->visible = transforms_;
  }
  lblNoTransform_.visible = !transforms_;
  optCoupling_.Set();
  SetFocus(cmdAccept_);
  if (transforms_) ShowChanges();
  Show(NortonRatio::Coupling);
}

// The record takes the parts; it keeps its count of stages until they are accepted.
void frmNorton::Show(NortonRatio ratio) {
  if (transforms_) transforms_ = Computes([this, ratio] { proposed_ = NortonTransform(Found(), ratio); });
  if (transforms_) {
    Network held = proposed_;
    held.Stages = Found().Stages;
    Propose(held);
  }
  Draw();
}

void frmNorton::Draw() {
  std::vector<TitledNetwork> networks = {{"Existing:", Found()}};
  if (transforms_) networks.push_back({"Proposed transform:", proposed_});
  DrawNetworks(Found(), networks, picNorton_.picture);
  picNorton_.description =
      transforms_ ? "The existing network of 3 stages and the proposed one of 7" : "The existing network";
}

void frmNorton::ShowChanges() {
  const auto changeBy = [this](NortonRatio ratio) {
    try {
      return ResponseChangeText(LargestChange(session_, Found(), NortonTransform(Found(), ratio)));
    } catch (const Fault&) {
      return ResponseChangeText(std::nullopt);
    }
  };
  lblCouplingChange_.caption = changeBy(NortonRatio::Coupling);
  lblKeepResponseChange_.caption = changeBy(NortonRatio::Level);
}

// Without a transform the list stays, but the network is one by hand from now on: accepting says so.
void frmNorton::AcceptShown() {
  if (transforms_) {
    Accept(proposed_);
    return;
  }
  SettleByHand(session_.identity);
  Accept();
}

Layout frmNorton::MakeLayout() {
  const Layout ratios =
      Grid(2, {Put(optCoupling_), Put(lblCouplingChange_), Put(optKeepResponse_), Put(lblKeepResponseChange_)});
  return Column({Fill(Put(picNorton_)), Put(lblNoTransform_), Row({ratios, Space(), Put(cmdAccept_), Put(cmdExit_)})});
}

}  // namespace quilm
