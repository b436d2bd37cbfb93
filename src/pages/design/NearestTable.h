// The table of a network's parts before and after they are rounded to the 5 % series.
#pragma once

#include <string>
#include <vector>

#include "network/modNearest5.h"

namespace quilm {

// One line a stage, for a font of fixed pitch: its number, capacitor, rounded capacitor, inductor, rounded inductor and
// the resonance of the two as they are, each from a column of its own. What a stage does not have stays blank.
std::vector<std::string> NearestTable(const Network& network, const NearestParts& nearest);

}  // namespace quilm
