// How numbers are entered, and how a sweep and the scales are best chosen: a page to read.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmEntryAssistance : public Page {
 public:
  explicit frmEntryAssistance(Session& session);
  Layout MakeLayout() override;

  Label lblAssistance{*this, "lblAssistance", ""};
  Button cmdExit{*this, "cmdExit", "Exit", "Close the entry assistance"};
};

}  // namespace quilm
