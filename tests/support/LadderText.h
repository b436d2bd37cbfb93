// Ladders for programs of another language that check what the analysis says (support/ladder.py).
#pragma once

#include <ostream>

#include "core/DesignRecord.h"

namespace quilm {

// Terminations, reference, qualities, the frequency at which inductor Q is quoted, and the number of stages; then a
// line for each stage with its type, inductance and capacitance. All digits; leaves the stream writing nine.
void WriteLadder(const DesignRecord& record, f32 Fq, std::ostream& out);

}  // namespace quilm
