// Which version of the program this is.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmAbout : public Page {
 public:
  explicit frmAbout(Session& session);
  Layout MakeLayout() override;

  Label lblName{*this, "lblName", "Quilm"};
  Label lblVersion{*this, "lblVersion", ""};
  Label lblPurpose{*this, "lblPurpose", "Design and analysis of passive LC filters"};
  Label lblLicence{*this, "lblLicence", "Free software under the MIT licence, by the Quilm authors"};
  Button cmdSysInfo{*this, "cmdSysInfo", "System info", "Start the system information tool"};
  Button cmdOk{*this, "cmdOk", "Ok", "Close this page"};

 private:
  void ShowSystemInformation();
};

}  // namespace quilm
