// Small steps of a design's entries, each with the network that follows from it: bandwidth, centre, ripple.
//
// A network that stands (NetworkStands) is not computed anew: the entry moves alone, but that a network made by hand is
// scaled by steps of its bandwidth. The sweep is to be made anew in every case. Each throws a Fault where a value would
// leave the range of numbers or the entries would give no network, with the design as it was.
#pragma once

#include "core/RecordFwd.h"
#include "network/TuneList.h"

namespace quilm {

// Multiplies Width, or divides it downward, and Fstopband with it, which is FstopNorm x Width in lowpass and highpass
// alike. A network made by hand has no bandwidth to compute from: its inductors and capacitors are multiplied instead,
// so that the response moves down by a step up.
void StepWidth(DesignRecord& design, f32 multiplier, StepWay way);

// Moves Fcenter by `percent` of the bandwidth. Width and Fcenter must be above 0.
void StepCenter(DesignRecord& design, f32 percent, StepWay way);

// Multiplies Apass, or divides it downward, within 0.0001..10 dB, and makes the prototype anew.
void StepRipple(DesignRecord& design, f32 multiplier, StepWay way);

}  // namespace quilm
