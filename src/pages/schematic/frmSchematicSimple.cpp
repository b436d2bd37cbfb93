#include "pages/schematic/frmSchematicSimple.h"

#include "core/Network.h"
#include "reports/PrintSchematicSimple.h"
#include "shell/Session.h"

namespace quilm {

frmSchematicSimple::frmSchematicSimple(Session& session) : Page(session, PageId::SchematicSimple, "Artwork only") {
  cmdPrint_.onClick = [&session] { PrintSchematicSimple(session); };
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = cancelButton = &cmdExit_;
}

void frmSchematicSimple::Load() {
  DrawArtwork(session_.network, session_.schematicView.mode, picArtwork_.picture);
  picArtwork_.description = std::to_string(session_.network.Stages) + " stages";
  SetFocus(cmdExit_);
}

Layout frmSchematicSimple::MakeLayout() {
  return Column({Fill(Put(picArtwork_)), Row({Space(), Put(cmdPrint_), Put(cmdExit_)})});
}

}  // namespace quilm
