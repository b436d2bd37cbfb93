// The two lists of overlays: where the responses are kept, and which of those that are kept is laid over the plot.
#pragma once

#include <memory>
#include <vector>

#include "shell/Page.h"

namespace quilm {

class frmOverlaySaveList : public Page {
 public:
  explicit frmOverlaySaveList(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  std::vector<std::unique_ptr<Button>> saveButtons;  // cmdSave1 to cmdSave10
  Button cmdExit{*this, "cmdExit", "Return to Plot page", "Save nothing"};
};

class frmOverlayGetList : public Page {
 public:
  explicit frmOverlayGetList(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  std::vector<std::unique_ptr<Button>> getButtons;     // cmdGet1 to cmdGet10
  std::vector<std::unique_ptr<Button>> deleteButtons;  // cmdDel1 to cmdDel10
  Label lblEmpty{*this, "lblEmpty", "No overlays have been saved"};
  Button cmdHide{*this, "cmdHide", "Hide all overlays", "Draw the plot without overlays"};
  Button cmdExit{*this, "cmdExit", "Return to Plot page", "Leave the plot as it is"};

 private:
  void ShowUsedSlots();
};

}  // namespace quilm
