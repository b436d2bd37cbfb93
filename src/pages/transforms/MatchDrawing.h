// The ends of a network with their matching sections, one below the other.
#pragma once

#include <string>
#include <vector>

#include "core/Network.h"
#include "network/ImpedanceMatch.h"
#include "shell/Canvas.h"

namespace quilm {

// An end of a network as it is, or as it would be.
struct MatchRow {
  std::string heading;  // "Option 1"
  std::string words;    // "Capacitor in the line"
  MatchSide side = MatchSide::Input;
  f32 ohms = 0;               // of the termination
  std::vector<Stage> stages;  // from the termination inward, as many as belong to the end
};

// What an option is made of: "Capacitor in the line".
const char* MatchWords(i16 code);

// Draws the rows into an emptied canvas: heading, and the end with symbols and values of the schematic between its
// termination and the beginning of the rest. A negative value is red. The upper rails lie at 1500, 3000, 4500, 6000.
void DrawMatchRows(const std::vector<MatchRow>& rows, Canvas& canvas);

// The band of row `index`, from 0, across the picture: two corners.
struct MatchBand {
  Point from;
  Point to;
};
MatchBand BandOfRow(int index);

}  // namespace quilm
