// Where a network that is entered by hand begins.
#pragma once

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// Marks the design as one by hand without a topology.
void BeginByHand(DesignRecord& design);

// Discards the network and the entries that it came from: all places of the stage list, the responses of points 1 to
// NrIntervals, both elements of Rsource and Rload, and Stages, Apass, Astop, Family, Width, Fcenter, Fstopband and
// Order. The settings of the sweep stay, as the user is promised.
void ClearNetworkForManual(DesignRecord& design, Responses& responses);

// Zeroes the responses of points 1 to `lastPoint`, as far as there are so many.
void ClearResponses(Responses& responses, f32 lastPoint);

}  // namespace quilm
