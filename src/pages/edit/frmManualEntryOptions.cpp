#include "pages/edit/frmManualEntryOptions.h"

#include "network/ManualNetwork.h"
#include "shell/Session.h"

namespace quilm {

frmManualEntryOptions::frmManualEntryOptions(Session& session)
    : Page(session, PageId::ManualEntryOptions, "Manual Entry Options") {
  cmdReturnToDesign_.onClick = [this] { Return(); };
  cmdContinueToManual_.onClick = [this] { Continue(); };
  cancelButton = &cmdReturnToDesign_;
}

void frmManualEntryOptions::Load() { SetFocus(cmdReturnToDesign_); }

void frmManualEntryOptions::CloseBox() { Return(); }

// The Design page waits below, as it was left.
void frmManualEntryOptions::Return() {
  session_.ManualFromDesign = 0;
  session_.pages.UnloadPage(Id());
  session_.pages.UnloadPage(PageId::ManualEntry);
  if (session_.pages.Find(PageId::Design) == nullptr) session_.pages.ShowPage(PageId::Design);
}

void frmManualEntryOptions::Continue() {
  session_.ManualFromDesign = 0;
  BeginByHand(session_.record);
  ClearNetworkForManual(session_.record, session_.responses);
  session_.pages.UnloadPage(Id());
}

Layout frmManualEntryOptions::MakeLayout() {
  return Column(
      {Put(lblReturn_), Put(lblContinue_), Row({Space(), Put(cmdReturnToDesign_), Put(cmdContinueToManual_)})});
}

}  // namespace quilm
