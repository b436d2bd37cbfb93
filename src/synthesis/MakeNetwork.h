// Denormalisation: from the prototype to the real parts of a topology.
#pragma once

#include "core/RecordFwd.h"

namespace quilm {

// Fills the stage list from Gj, Hj, Rratio, Order, Rsource[1], Width, Fcenter, Family and Topology, whatever it held
// before, and sets Stages and Rload[1]; Fcenter becomes 0 for a lowpass or highpass. Only the values of Lval and Cval
// are written, and those of the other parts cleared; tolerances stay.
//
// Throws a Fault when an entry is missing or leads out of the range of numbers, e.g. a bandwidth of 0 or below, a
// centre frequency of 0 in a bandpass, order 1 in "D" and "G", or no prototype at all. The places of the stage list
// then hold what was stored up to there, and Stages is 0: no network exists. Only finite values are stored.
//
// A letter without a routine ("M", a network made by hand) leaves the record alone.
void MakeNetwork(DesignRecord& record);

}  // namespace quilm
