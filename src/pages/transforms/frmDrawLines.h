// The mechanical drawing of a filter of lines in a tube.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmDrawLines : public Page {
 public:
  explicit frmDrawLines(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  PictureBox picLines_{*this, "picLines", "Mechanical drawing"};
  Button cmdExit_{*this, "cmdExit", "Exit", "Back to the lengths of the lines"};
};

}  // namespace quilm
