#include "pages/start/frmAbout.h"

#include "shell/Session.h"
#include "shell/Version.h"

namespace quilm {

frmAbout::frmAbout(Session& session) : Page(session, PageId::About, "About Quilm") {
  lblName.emphasised = true;
  lblVersion.caption = ProgramVersion();
  cmdSysInfo.onClick = [this] { ShowSystemInformation(); };
  cmdOk.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk;
  cancelButton = &cmdOk;
  SetFocus(cmdOk);
}

void frmAbout::ShowSystemInformation() {
  if (session_.platform.ShowSystemInformation()) return;
  session_.platform.MessageBox("System Information Is Unavailable At This Time", Buttons::Ok, Icon::Exclamation, "");
}

Layout frmAbout::MakeLayout() {
  return Column(
      {Put(lblName), Put(lblVersion), Put(lblPurpose), Put(lblLicence), Row({Space(), Put(cmdSysInfo), Put(cmdOk)})});
}

}  // namespace quilm
