// Bartlett's bisection: a network that is symmetrical end to end is cut at its middle and the half at the output scaled
// in impedance, so that it works into another termination with the response unchanged but for a constant loss
// (A. C. Bartlett, The Theory of Electrical Artificial Lines and Filters, 1930).
#pragma once

#include "core/Network.h"

namespace quilm {

// Whether inductors and capacitors are the same from both ends, within a part in ten thousand. Types are not compared,
// but an element of another kind than inductors and capacitors (a code above 8) is none of a symmetrical network; nor
// is a negative part, which no other one is within bounds of.
bool IsSymmetrical(const Network& network);

// The network with the load `newLoad` (ohms, above 0), which becomes the reference as well. K = newLoad / source scales
// all that lies behind the stage at Stages / 2 + 1, and the output half of that stage. With an even count the middle
// lies before that stage, and half of it is scaled all the same: what users have built on keeps its values. A second
// bisection scales what the first has left.
//
// Throws NumericFault where K or a part leaves the range of numbers.
Network Bisect(const Network& network, f32 newLoad);

// What a network loses that is bisected to K times its source: -10 log10(4 K / (K + 1)^2), dB. K above 0.
f64 BisectionLoss(f64 K);

}  // namespace quilm
