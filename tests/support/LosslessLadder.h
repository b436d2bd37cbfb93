// What a ladder without losses does, by plain chain matrices in 64 bits: independent of the program's own analysis.
#pragma once

#include "core/DesignRecord.h"

namespace quilm {

// Available power over the power in the load, dB. Takes the element types that synthesis makes and throws Fault for
// others.
f64 LosslessLoss(const DesignRecord& record, f64 frequency);

}  // namespace quilm
