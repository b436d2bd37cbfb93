// Windings on toroidal cores.
#pragma once

#include "core/Types.h"

namespace quilm {

// The whole number of turns that come nearest to `inductance` (henries, above 0) on a core of `AL` microhenries per 100
// turns (above 0), a half upward: N = 100 sqrt(L / AL), as makers of iron powder cores state AL. Throws NumericFault
// where that leaves the range of numbers.
f32 ToroidTurns(f32 inductance, f32 AL);

}  // namespace quilm
