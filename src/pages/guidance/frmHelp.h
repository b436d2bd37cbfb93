// The guide to the topologies: their names, and the ladder of the chosen one.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmHelp : public Page {
 public:
  explicit frmHelp(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  Label lblNonCauer{*this, "lblNonCauer", "Non-Cauer"};
  ListBox lstTopology{*this, "lstTopology", "Topologies"};
  PictureBox picTopology{*this, "picTopology", "The ladder of the topology"};
  Button cmdExit{*this, "cmdExit", "Exit", "Close the guide"};

 private:
  void Draw();
};

}  // namespace quilm
