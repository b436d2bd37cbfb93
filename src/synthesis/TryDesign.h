// Whether the entries make a design, found out on a copy: for what shows a design while it is entered.
#pragma once

#include <string>

#include "core/Configuration.h"
#include "core/RecordFwd.h"

namespace quilm {

// Makes in `design`, which is a copy, the network that its entries give: what a press of a button that needs a network
// would make, but that nothing is asked and nobody is told. Entries outside their limits are held as there; of what is
// missing only an order is chosen. A network that stands (NetworkStands) is left as it is.
//
// Returns why there is no network, in words for the user; empty when there is one. Nothing is a fault.
std::string TryDesign(DesignRecord& design, const Configuration& configuration);

}  // namespace quilm
