// The Cauer (elliptic) lowpass prototype, computed from theta-function series.
//
// Source: P. Amstutz, "Elliptic approximation and elliptic filter design on small computers", IEEE Transactions on
// Circuits and Systems 25 (1978): elliptic sines as products in the nome, and the ladder by moving the transmission
// zeros into its branches one after the other. BestSelectivity and EqualTerminations are the types b and c of R. Saal
// and E. Ulbrich, "On the design of filters by synthesis", IRE Transactions on Circuit Theory 5 (1958).
//
// Both routines return the element values of a doubly terminated ladder for 1 ohm and 1 radian per second: odd
// positions are shunt capacitors G, even positions a branch of an inductor H with a capacitor G across it, so that its
// transmission zero lies at 1 / sqrt(H G).
#pragma once

#include "core/BoundedArray.h"
#include "core/DesignRecord.h"
#include "core/Types.h"

namespace quilm {

// How an even-order design trades selectivity against its terminations.
enum class CauerVariant {
  Natural,            // as BestSelectivity, with the phase at the zeros formed from half angles
  BestSelectivity,    // the highest zero moved to infinity; unequal terminations
  EqualTerminations,  // the lowest attenuation peak of the passband moved to DC as well; equal terminations
};

struct CauerPrototype {
  BoundedArray<f32, 0, orderLimit> Gj;
  BoundedArray<f32, 0, orderLimit> Hj;
  f32 FstopNorm = 0;  // stopband edge over passband edge
  f32 Rratio = 1;     // load over source
};

// Even order 4..20, passband ripple and stopband depth in dB, depth above ripple. Gives FstopNorm. Throws NumericFault
// where the ladder does not exist: shallow depths at high orders end in a root of a negative number.
CauerPrototype EvenCauerPrototype(int order, f64 Apass, f64 Astop, CauerVariant variant);

// The ripple in dB that an odd order 3..21 has with a stopband edge at FstopNorm (above 1) and a depth Astop. Returns 0
// when it is too small to be formed.
f32 OddCauerRipple(int order, f64 FstopNorm, f64 Astop);

// Odd order 3..21. Throws NumericFault as above.
CauerPrototype OddCauerPrototype(int order, f64 FstopNorm, f64 Astop);

}  // namespace quilm
