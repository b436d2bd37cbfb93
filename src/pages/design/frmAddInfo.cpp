#include "pages/design/frmAddInfo.h"

#include "core/Identity.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// A design file reads a line that begins with a parenthesis, or that is shorter than two characters, as none.
std::string Kept(const std::string& text) { return text.size() < 2 || text.front() == '(' ? " " : text; }

}  // namespace

frmAddInfo::frmAddInfo(Session& session) : Page(session, PageId::AddInfo, "Added information") {
  txtAddInfo.maxLength = 80;
  txtAddInfo.stepsDigits = false;
  cmdOk.onClick = [this] { Accept(); };
  cmdIgnore.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk;
  cancelButton = &cmdIgnore;
}

void frmAddInfo::Load() {
  txtAddInfo.text = session_.identity.AddedInfo == " " ? "" : session_.identity.AddedInfo;
  SetFocus(txtAddInfo);
}

void frmAddInfo::Accept() {
  session_.identity.AddedInfo = Kept(txtAddInfo.text);
  session_.pages.UnloadPage(Id());
}

Layout frmAddInfo::MakeLayout() {
  return Column({Put(lblAddInfo), Put(txtAddInfo), Put(lblLength), Row({Space(), Put(cmdOk), Put(cmdIgnore)})});
}

}  // namespace quilm
