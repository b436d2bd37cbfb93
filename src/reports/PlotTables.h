// What a printed plot tells in words below it: the marked frequencies as a table, the limit areas as sentences.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/LimitArea.h"
#include "display/Markers.h"

namespace quilm {

inline constexpr std::size_t markerColumns = 10;

std::array<std::string, markerColumns> MarkerHeadings();

// The texts of a marker's row. Losses below -120 dB read "<-120", a VSWR above 1000 ">1000"; "-----" stands for an
// impedance above 1E+10 ohms or one that is none, and for the delay of a marker outside the sweep.
std::array<std::string, markerColumns> MarkerTexts(const MarkerReading& reading);

// What an area forbids: "From DC up to 1M magnitude is at least -3". Edges that were entered the wrong way round are
// told as they are drawn. `type` is the plot type, 1..6. Throws BoundFault for a shape that is none.
std::string LimitSentence(const LimitArea& area, int type);

struct LimitBlock {
  std::string heading;
  std::vector<std::string> sentences;
};

// One block for each plot type that has areas; none while limits are hidden.
std::vector<LimitBlock> LimitBlocks(const LimitsAndMarkers& limits);

}  // namespace quilm
