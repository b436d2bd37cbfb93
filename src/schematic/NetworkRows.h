// Networks as schematics one below the other, to be compared.
#pragma once

#include <span>
#include <string>

#include "core/Network.h"
#include "core/RecordFwd.h"
#include "shell/Canvas.h"

namespace quilm {

struct TitledNetwork {
  std::string title;  // "Existing:"
  Network network;
};

// Draws them into an emptied canvas, each under its title with numbers, values and terminations of the schematic, in as
// many rows as a picture of useful proportions takes. A network without stages leaves its title alone. `design` is what
// they are networks of.
void DrawNetworks(const DesignRecord& design, std::span<const TitledNetwork> networks, Canvas& canvas);

}  // namespace quilm
