// The Cauer family: from the entries of the Design page to its prototype.
#pragma once

#include "core/RecordFwd.h"

namespace quilm {

class Session;

// Fills Gj, Hj, FstopNorm and Rratio and sets CauerFlag. An even order takes the ripple Apass and the depth Astop and
// gives the stopband edge; an odd one takes the stopband edge and the depth and gives Apass, whatever was typed there.
// An order below 3 becomes 3, with a message.
//
// Where an odd order would have less ripple than can be computed, the failure page asks for other entries and the
// design is tried again with what it holds then; leaving that page by its close box gives up. Without a design the
// prototype is empty, of which ComputeReals then tells the user.
void ComputeCauer(Session& session);

// The same without a question, for whoever shows a design that is still being entered: false, with the ripple in Apass
// and the prototype as it was, where an odd order would have too little ripple. Throws a Fault where no figures come of
// the entries. Order must be 3 or more.
bool TryCauer(DesignRecord& record);

// The least ripple of a design, dB.
inline constexpr float leastCauerRipple = 0.0001F;

}  // namespace quilm
