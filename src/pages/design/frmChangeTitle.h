// Edits the title of the circuit.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmChangeTitle : public Page {
 public:
  explicit frmChangeTitle(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  Label lblTitle{*this, "lblTitle", "You may enter a title for the printouts:"};
  TextBox txtTitle{*this, "txtTitle", "Title of the circuit"};
  Button cmdOk{*this, "cmdOk", "Ok", "Keep this title"};
  Button cmdIgnore{*this, "cmdIgnore", "Ignore", "Leave the title as it was"};

 private:
  void Accept();
};

}  // namespace quilm
