// Whether the network of a design stands or follows from the entries, and whether the last sweep is still that of the
// design. These marks are changed here and nowhere else; only the sweep itself says that its responses are valid.
#pragma once

#include "core/Identity.h"

namespace quilm {

// Something that a sweep depends on has changed.
void ForgetResponses(Identity& design);

// What every change of the design's entries does, and a file read: neither a network made by hand, nor an accepted
// match, nor a sweep holds any more. The family stays: a manual one (Family 11) keeps its network until another is
// chosen.
void ForgetNetwork(Identity& design);

// The network was changed or made by hand: from now on it is that of no family (Family 11), it is not computed from the
// entries any more (NetworkEdited 1), and the next page that needs responses sweeps it.
//
// The topology letter stays, since end sections, reports and file go by it; so do the entries and MatchAccepted: a
// match that is edited further is still not to be overwritten. What replaces a network as a whole calls ForgetNetwork
// first.
void StandByHand(Identity& design);

// StandByHand with an impedance match that was accepted (MatchAccepted 1), be it one that leaves both ends as they
// were: what the user has looked at and accepted is not recomputed.
void AcceptMatch(Identity& design);

// StandByHand for a design that is already one by hand and whose marks disagree, as those of a file do, which knows the
// family alone. Nothing of the network has changed, so its responses stay valid.
void SettleByHand(Identity& design);

// Whether the network was entered or changed by hand.
bool IsByHand(const Identity& design);

// Whether the present network is not to be recomputed: made by hand, or an accepted impedance match (MatchAccepted 1).
bool NetworkStands(const Identity& design);

}  // namespace quilm
