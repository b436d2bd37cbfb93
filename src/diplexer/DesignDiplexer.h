// The parts of a diplexer from its entries: two singly terminated Chebyshev arms that share a source without
// resistance, so that what one of them rejects the other accepts.
#pragma once

#include "core/Diplexer.h"

namespace quilm {

// Fills the prototype and the parts of the arms of the mode from order, ripple, impedance and edges, which hold their
// limits; the arms of the other mode stay as they are. Does nothing while DipFrozen is 1.
//
// The arms' input conductances are proportional to the power that they pass, so they add up to that of the termination
// where the responses cross at 3 dB. Two corrections bring them there. The one preselected stretches odd parts by the 3
// dB frequency of an odd order and even parts by that of an even order; at the crossover both arms then lose about 3 dB
// (3.0561 dB at order 3 and 0.1 dB). With `exact3dB` all parts are stretched by the factor of the order, and the loss
// is 3.0103 dB at every order. Source: H. J. Orchard, Formulae for ladder filters, Wireless Engineer, January 1953, for
// the prototype.
void DesignDiplexer(Diplexer& diplexer);

// The frequency at which a Chebyshev response of the ripple (dB, above 0 and at most 3) has fallen by 3.0103 dB from
// its value at 0, over the edge of its ripple band. Odd orders are at a crest at 0, even ones in a trough.
f64 Chebyshev3dBFrequency(i16 order, bool odd, f32 ripple);

// The capacitor (F) that resonates with L (H) at the frequency (Hz), all above 0.
f32 ResonatingCapacitor(f32 L, f32 frequency);

}  // namespace quilm
