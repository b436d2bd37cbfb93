// The way out that asks first.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmExit : public Page {
 public:
  explicit frmExit(Session& session);
  Layout MakeLayout() override;

  Label lblQuestion{*this, "lblQuestion", "Leave Quilm?"};
  Label lblNote{*this, "lblNote", ""};
  Button cmdSave{*this, "cmdSave", "Save and exit", "Save the design to disk, then exit"};
  Button cmdExit{*this, "cmdExit", "Exit", "Exit / quit the program"};
  Button cmdIgnore{*this, "cmdIgnore", "Go on", "Go back to the design"};

 private:
  void SaveAndLeave();
  void Leave();
};

}  // namespace quilm
