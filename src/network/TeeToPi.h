// The capacitor tees of a mesh-coupled bandpass made pis: the star-delta rule, by which the response stays.
#pragma once

#include <vector>

#include "core/Network.h"

namespace quilm {

// The highest order whose network of pis, 4 N - 3 stages, has room in a stage list.
inline constexpr int mostTeeToPiOrder = 11;

// A tee of capacitors a, c in the line and b to common, as a pi of x and z to common and y in the line: x = a b / s,
// y = a c / s, z = b c / s with s = a + b + c. In any unit; s must not be 0 (NumericFault scopes see a division by it).
void TeeToPi(f64 a, f64 b, f64 c, f64& x, f64& y, f64& z);

// Farads, the first shunt arm, the series arm and the second shunt arm.
struct CapacitorPi {
  f64 first = 0;
  f64 series = 0;
  f64 second = 0;
};

// Whether the network is a mesh of N resonators: 2 N - 1 stages, series-tuned ones in the line at the odd places, and
// capacitors to common between them; N at least 2, for one resonator has no tee.
bool HasMeshForm(const Network& network, f32 order);

// The pis of the N - 1 tees, in 64 bits. At both ends the capacitor counts whole; each one between is two in series of
// twice its value, one for the tee at either side. Throws NumericFault where a tee has no sum.
std::vector<CapacitorPi> PisOfMesh(const Network& network);

// The network of pis: the first inductor, and then for each tee a shunt, a series and a shunt capacitor and the next
// inductor. The network must be a mesh (BoundFault, also above mostTeeToPiOrder); throws NumericFault where a part
// leaves the range of numbers.
Network MeshTeeToPi(const Network& network);

}  // namespace quilm
