// The present design in one line, for the foot of the window.
#pragma once

#include <string>

#include "core/RecordFwd.h"

namespace quilm {

// "Capacitor-input lowpass", ... for the letters "A" to "L"; empty for any other.
std::string TopologyCaption(const std::string& letter);

// Family, order, topology, band, terminations, whether the network is edited by hand, and the name of the design file
// without its folders, such as
//   Chebyshev  |  order 7  |  Capacitor-input lowpass  |  1MHz  |  50 to 50 ohms  |  MINE.QLM
// Frequencies and resistances are in display format. What the design does not have yet is left out.
std::string DesignSummary(const DesignRecord& record);

}  // namespace quilm
