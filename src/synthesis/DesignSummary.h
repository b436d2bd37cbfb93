// The present design in one line, for the foot of the window.
#pragma once

#include <string>

#include "core/RecordFwd.h"

namespace quilm {

// "Capacitor-input lowpass", ... for the letters "A" to "L"; empty for any other.
std::string TopologyCaption(const std::string& letter);

// The name of the design file without its folders, with an asterisk unless the design is `saved`: "MINE.QLM*". Empty
// for a design that has no file yet.
std::string DesignName(const DesignRecord& record, bool saved);

// Family, order, topology, band, terminations, whether the network is edited by hand, and the name of the design, such
// as
//   Chebyshev  |  order 7  |  Capacitor-input lowpass  |  1MHz  |  50 to 50 ohms  |  MINE.QLM
// Frequencies and resistances are in display format. What the design does not have yet is left out.
std::string DesignSummary(const DesignRecord& record, bool saved);

}  // namespace quilm
