// The bare artwork of the network.
#pragma once

#include "schematic/modSchematic.h"
#include "shell/Page.h"

namespace quilm {

class frmSchematicSimple : public Page {
 public:
  explicit frmSchematicSimple(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  PictureBox picArtwork_{*this, "picArtwork", "Artwork of the network"};
  Button cmdPrint_{*this, "cmdPrint", "Print", "Print the artwork"};
  Button cmdExit_{*this, "cmdExit", "Return", "Return to the Schematic page"};
};

}  // namespace quilm
