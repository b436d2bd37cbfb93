// The points of a sweep, kept while the settings that they follow from stand.
#pragma once

#include "core/Responses.h"

namespace quilm {

// Makes `table` that of the settings; costs nothing when it is so already. Throws NumericFault when the frequencies do
// not exist (a logarithmic sweep from 0, for instance) or the number of intervals does not fit 16 bits, BoundFault when
// there are more points than the responses hold; nothing is kept then.
void KeepTable(SweepTable& table, const SweepSettings& settings);

// 360 times the step from one frequency to the next, in degrees per second of delay; two equal ones count as 1e-27 Hz
// apart, so that they give a huge delay and no failure.
f64 DegreesPerDelay(f32 from, f32 to);

}  // namespace quilm
