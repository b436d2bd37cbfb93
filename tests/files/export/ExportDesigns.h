// Designs of every topology and order, for the proofs of what is written for simulators.
#pragma once

#include <string>
#include <vector>

#include "core/DesignRecord.h"

namespace quilm {

// Logarithmic.
void SetSweep(DesignRecord& record, f32 Fstart, f32 Fstop, f32 intervals);

// Butterworth and Chebyshev designs of the eleven topologies that take them, order 1 or 2 to 21, of 1 MHz, about 5 MHz
// where they have a centre, with a sweep well beyond the band.
std::vector<DesignRecord> AllPoleDesigns();

// Cauer designs of the same band in the five topologies that take them, orders 3 to 21, and the zig-zag bandpass, which
// ends at order 10.
std::vector<DesignRecord> CauerDesigns();

}  // namespace quilm
