// Guards the design before a network is entered by hand in its place.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmManualEntryOptions : public Page {
 public:
  explicit frmManualEntryOptions(Session& session);
  void Load() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void Return();
  void Continue();

  Label lblReturn_{*this, "lblReturn",
                   "You have come to this window from the Design screen.  If you wish to return to that screen with no "
                   "changes to the various design or analysis parameters then click on the 'Return' button."};
  Label lblContinue_{*this, "lblContinue",
                     "If you wish to continue on to manually enter a network then click on the 'Continue' button.  Be "
                     "advised that all existing component values will be discarded although the analysis parameters "
                     "will remain intact."};
  Button cmdReturnToDesign_{*this, "cmdReturnToDesign", "Return to Design screen"};
  Button cmdContinueToManual_{*this, "cmdContinueToManual", "Continue to Manual Entry routine"};
};

}  // namespace quilm
