#include "network/DesignStanding.h"

namespace quilm {

void ForgetResponses(Identity& design) { design.ResponsesValid = 0; }

void ForgetNetwork(Identity& design) {
  design.NetworkEdited = 0;
  design.MatchAccepted = 0;
  design.DesignChanged = 0;
  ForgetResponses(design);
}

void StandByHand(Identity& design) {
  SettleByHand(design);
  ForgetResponses(design);
}

void AcceptMatch(Identity& design) {
  StandByHand(design);
  design.MatchAccepted = 1;
}

void SettleByHand(Identity& design) {
  design.Family = familyManual;
  design.NetworkEdited = 1;
}

bool IsByHand(const Identity& design) { return design.NetworkEdited == 1 || design.Family == familyManual; }

bool NetworkStands(const Identity& design) { return IsByHand(design) || design.MatchAccepted == 1; }

}  // namespace quilm
