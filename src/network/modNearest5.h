// Capacitors and inductors at the values that shops sell: the E24 series of IEC 60063, 5 % apart.
#pragma once

#include "core/Network.h"

namespace quilm {

// The value of the series that is nearest to V by ratio, not by difference; a tie goes to the upper one, and a value of
// the series stays what it is, to the bit. V in any unit, above 9.1e-15. 0 and what is beyond 1e38 come back as they
// are. For what is below the range, and for negative values, which no series has, the result is 9.1e-15.
f32 NearestE24(f32 V);

// The rounded parts by stage; 0 where a stage has no such part.
struct NearestParts {
  BoundedArray<f32, 0, stageBound> NearestC;
  BoundedArray<f32, 0, stageBound> NearestL;
};

// Of all stages of the network.
NearestParts RoundToNearest(const Network& network);

// Whether a capacitor or an inductor of the network is below 0, so that no value of the series is near it.
bool HasNegativeLC(const Network& network);

// What takes the rounded values.
enum class NearestTransfer {
  All,
  Capacitors,
  Inductors,
  CapacitorsRetuneInductors,  // L follows, so that L C of each stage stays; a stage without L keeps none
  InductorsRetuneCapacitors,  // the same with the parts exchanged
};

// Changes the values of the network's capacitors and inductors; tolerances stay. Throws NumericFault when a retuned
// part leaves the range of numbers; the network is then as it was.
void TransferNearest(Network& network, const NearestParts& nearest, NearestTransfer transfer);

}  // namespace quilm
