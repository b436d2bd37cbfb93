#include "pages/transforms/frmMeshTeePi.h"

#include <vector>

#include "core/DesignRecord.h"
#include "desk/ResponseChange.h"
#include "network/TeeToPi.h"
#include "schematic/NetworkRows.h"
#include "shell/Session.h"

namespace quilm {

frmMeshTeePi::frmMeshTeePi(Session& session)
    : TransformPage(session, PageId::MeshTeePi, "Mesh capacitor-coupled Tee-to-Pi transform", Proposes::AtOnce) {
  lblTooLarge_.foreColor = colorRed;
  cmdAccept_.onClick = [this] { Accept(); };
  cmdExit_.onClick = [this] { Ignore(); };
  acceptButton = &cmdAccept_;
  cancelButton = &cmdExit_;
}

void frmMeshTeePi::Begin() {
  const f32 order = Found().Order;
  const bool tooLarge = order > mostTeeToPiOrder;
  const bool mesh = HasMeshForm(Found(), order);
  lblTooLarge_.visible = tooLarge;
  lblNoMesh_.visible = !tooLarge && !mesh;
  const bool transformed = !tooLarge && mesh && Computes([this] { Propose(MeshTeeToPi(Found())); });
  cmdAccept_.enabled = transformed;
  lblChange_.caption =
      transformed ? ResponseChangeText(LargestChange(session_, Found(), session_.network)) : std::string();
  Draw(transformed);
  SetFocus(transformed ? cmdAccept_ : cmdExit_);
}

void frmMeshTeePi::Draw(bool transformed) {
  std::vector<TitledNetwork> networks = {{"Existing:", Found()}};
  if (transformed) networks.push_back({"After tee to pi transform:", session_.network});
  DrawNetworks(Found(), networks, picMeshTeePi_.picture);
  picMeshTeePi_.description = "The existing network of " + std::to_string(Found().Stages) + " stages";
  if (transformed)
    picMeshTeePi_.description += " and the transformed one of " + std::to_string(session_.network.Stages);
}

Layout frmMeshTeePi::MakeLayout() {
  return Column({Fill(Put(picMeshTeePi_)), Put(lblTooLarge_), Put(lblNoMesh_),
                 Row({Put(lblChange_), Space(), Put(cmdAccept_), Put(cmdExit_)})});
}

}  // namespace quilm
