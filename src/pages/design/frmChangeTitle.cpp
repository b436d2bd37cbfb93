#include "pages/design/frmChangeTitle.h"

#include "core/Identity.h"
#include "shell/Session.h"

namespace quilm {

frmChangeTitle::frmChangeTitle(Session& session) : Page(session, PageId::ChangeTitle, "Title") {
  txtTitle.maxLength = 80;  // what the design file keeps of it
  txtTitle.stepsDigits = false;
  cmdOk.onClick = [this] { Accept(); };
  cmdIgnore.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk;
  cancelButton = &cmdIgnore;
}

void frmChangeTitle::Load() {
  txtTitle.text = session_.identity.CircuitTitle;
  SetFocus(txtTitle);
}

void frmChangeTitle::Accept() {
  session_.identity.CircuitTitle = txtTitle.text;
  session_.pages.UnloadPage(Id());
}

Layout frmChangeTitle::MakeLayout() {
  return Column({Put(lblTitle), Put(txtTitle), Row({Space(), Put(cmdOk), Put(cmdIgnore)})});
}

}  // namespace quilm
