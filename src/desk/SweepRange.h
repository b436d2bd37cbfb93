// The range of the sweep as pages set it, and what they tell of it.
#pragma once

namespace quilm {

class Session;

// Sets start and stop round the band of the design, linear or logarithmic as chosen, and says so in the note. Without a
// band the sweep stays, and the note says why.
void FitSweep(Session& session);

// Notes what keeps the present sweep from showing the design: no range from start to stop, or a band outside it, with
// the key that helps. Else the note stays.
void TellOfSweep(Session& session);

}  // namespace quilm
