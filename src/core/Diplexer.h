// A diplexer as it stands: its entries, the parts of its two arms, its markers. It is apart from the design, which it
// never touches, and stays for the run of the program.
#pragma once

#include "core/BoundedArray.h"
#include "core/Types.h"

namespace quilm {

using DiplexerParts = BoundedArray<f32, 0, 46>;  // by number, from 1 at the common port

struct Diplexer {
  i16 DipMode = 0;        // 1 lowpass and highpass, 2 bandpass and bandstop, 0 before the first design
  i16 DipOrder = 0;       // 1..10
  f32 DipRipple = 0;      // dB, 0.0001..3
  f32 DipZ = 0;           // ohms, 1..10000
  f32 DipZsmall = 0;      // a thousandth of it
  f32 DipCrossover = 0;   // Hz, 10..1E+10
  f32 DipFlower = 0;      // Hz, 0.1..1E+10
  f32 DipFupper = 0;      // Hz, at least 1.01 times the lower edge
  bool exact3dB = false;  // both arms lose 3.0103 dB at the crossover, whatever the order

  i16 DipFrozen = 0;  // 1 after a part was changed by hand: a redraw then designs nothing anew

  DiplexerParts DipGa;           // prototype in computing order
  DiplexerParts DipG;            // the same in element order
  DiplexerParts DipLowElem;      // odd: series inductors, H; even: shunt capacitors, F
  DiplexerParts DipHighElem;     // odd: series capacitors, F; even: shunt inductors, H
  DiplexerParts DipBpC, DipBpL;  // odd: series resonators; even: shunt resonators
  DiplexerParts DipBsC, DipBsL;  // odd: parallel resonators in the line; even: series resonators to common

  i16 DipMarkersOn = 0;
  BoundedArray<f32, 0, 8> DipMarker;  // Hz, 0 for none
};

}  // namespace quilm
