// A compiled ladder over the points of a sweep.
#pragma once

#include "analysis/Kernel.h"
#include "core/Responses.h"

namespace quilm {

// Prepares the points of a sweep: `responses.table`, RespFreq and the peak. Fails like KeepTable, and changes nothing
// then but the table.
void BeginSweep(Responses& responses, const SweepSettings& settings);

// After BeginSweep: fills the responses with those of the ladder, widens the extremes by them, and raises TransPeak. A
// point that fails repeats the figures of the one before it, at the first point zeros. Asking for a width that this
// processor lacks is an error of the caller.
void SweepPoints(const Ladder& ladder, Responses& responses, VectorWidth width);

// Zeros at those points, for a network without stages.
void SweepNothing(Responses& responses, VectorWidth width);

}  // namespace quilm
