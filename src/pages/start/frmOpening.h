// The opening page: a new design, the last one, an older one, or a network entered by hand.
#pragma once

#include "files/modReadQuilmFiles.h"
#include "shell/Page.h"

namespace quilm {

class frmOpening : public Page {
 public:
  explicit frmOpening(Session& session);
  void Load() override;
  void CloseBox() override;
  Layout MakeLayout() override;

  Label lblTitle{*this, "lblTitle", "Quilm"};
  Label lblPurpose{*this, "lblPurpose", "Passive LC filters: design, response, real parts"};
  PictureBox imgOpening{*this, "imgOpening", "A ladder of inductors and capacitors"};
  Button cmdDesignNew{*this, "cmdDesignNew", "New design", "Have the computer help with a new design"};
  Button cmdLastSession{*this, "cmdLastSession", "Last session", "Restart where you left off last time"};
  Button cmdRetrieveOld{*this, "cmdRetrieveOld", "Get old design", "Get an older design which you stored"};
  Button cmdManualEntry{*this, "cmdManualEntry", "Manual parts entry", "Analyze an arbitrary ladder network"};
  Button cmdGoTo{*this, "cmdGoTo", "Check for updates"};
  Button cmdExitOpening{*this, "cmdExitOpening", "Exit/Quit", "Exit the program immediately"};
  Label lblVersion{*this, "lblVersion", ""};

 private:
  void Leave();
  void ContinueLastSession();
  void GoOn(Got got);
  void GoTo(PageId target);
};

}  // namespace quilm
