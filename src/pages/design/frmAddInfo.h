// Edits the line of information that a design file carries.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmAddInfo : public Page {
 public:
  explicit frmAddInfo(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  Label lblAddInfo{*this, "lblAddInfo", "You may enter text to add to the Quilm file:"};
  TextBox txtAddInfo{*this, "txtAddInfo", "Added information"};
  Label lblLength{*this, "lblLength", "You can enter up to 80 characters in this line of text."};
  Button cmdOk{*this, "cmdOk", "Ok", "Keep this text"};
  Button cmdIgnore{*this, "cmdIgnore", "Ignore", "Leave the text as it was"};

 private:
  void Accept();
};

}  // namespace quilm
