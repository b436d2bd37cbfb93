// The Norton transformation of the coupling capacitor of a three-resonator bandpass.
//
// The series capacitor C2 is taken as two of 2 C2, one at each side of the resonator between them. A series capacitor C
// followed by an ideal transformer of ratio n is the same two-port as a pi of capacitors, (1 - n) C, n C and
// n (n - 1) C (G. L. Matthaei, L. Young, E. M. T. Jones, Microwave Filters, 1964, fig. 11.03 and the like), so that the
// resonator in the middle comes to another level of impedance and its inductor to another value.
#pragma once

#include "core/Network.h"

namespace quilm {

// The ratio n of the transformation at each side, C being the shunt capacitor at that side.
//
// Coupling is sqrt(C2 / C), which brings the middle to a level where the inductor of the first stage does not resonate
// with it: the response changes. Level is its inverse sqrt(C / C2): of a network whose resonators are alike at both
// ends and tuned to one frequency the inductor in the middle becomes that of the ends, and the response stays.
enum class NortonRatio { Coupling, Level };

// Whether the network has three stages with capacitors above 0; types are not asked for.
bool HasNortonForm(const Network& network);

// The network of seven stages: shunt L C, C, C, L, C, C, shunt L C, with the first stage's inductor three times. What
// is not an inductor or a capacitor stays in its stage. The network must have the form (BoundFault); throws
// NumericFault where a part leaves the range of numbers.
Network NortonTransform(const Network& network, NortonRatio ratio);

}  // namespace quilm
