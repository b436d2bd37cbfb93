// The twelve topologies: from a lowpass prototype to the parts of a ladder.
//
// Each routine fills the stages 1, 2, ... of one topology from the prototype of `scales` and returns how many places
// it used; a place may stay empty. Parts are scaled to the source resistance and to the cutoff or the bandwidth;
// bandpass and bandstop follow from the classical reactance transformations, the coupled forms from couplings that are
// constant over a narrow band. (G. L. Matthaei, L. Young, E. M. T. Jones, Microwave Filters, 1964, chapters 4 and 8;
// A. I. Zverev, Handbook of Filter Synthesis, 1967.)
//
// A division by zero, an overflow or an invalid operation throws NumericFault; the stages before it are filled.
#pragma once

#include "core/Entries.h"
#include "core/Network.h"
#include "core/NumericFault.h"
#include "core/RecordFwd.h"

namespace quilm {

// Stands for a part that the prototype does not have. It holds neither henries nor farads, and the clean-up after the
// topology routine takes it out again.
inline constexpr ElementCode emptyPlace = SeriesReactance;

// The figures that all topologies scale by, and the record they read and fill. Rounded to 32 bits like the record.
struct Scales {
  Scales(DesignRecord& design, NumericFaultScope& faults);

  f64 G(int j) const { return prototype.Gj[j]; }
  f64 H(int j) const { return prototype.Hj[j]; }

  // Stores one stage: its type, henries and farads.
  void Put(int s, ElementCode type, f64 henries, f64 farads);

  const Entries& entries;
  const Prototype& prototype;
  Network& network;
  NumericFaultScope& scope;
  int n;            // number of prototype elements
  f64 Rs;           // source, ohms
  f32 OmegaCenter;  // radians per second
  f32 OmegaWidth;   // radians per second
  f32 QLoaded;      // centre over width
};

// Lowpass and highpass, all-pole or with the transmission zeros of a prototype with CauerFlag 1.
int BuildCapInLowpass(Scales& scales);
int BuildIndInLowpass(Scales& scales);
int BuildCapInHighpass(Scales& scales);
int BuildIndInHighpass(Scales& scales);

// Geometrically symmetrical bandpass, and bandstop: a tuned pair at the centre for each prototype element.
int BuildShuntInBandpass(Scales& scales);
int BuildSeriesInBandpass(Scales& scales);
int BuildSeriesInBandstop(Scales& scales);
int BuildShuntInBandstop(Scales& scales);

// The bandpass of a Cauer or M-derived prototype. An even order with CauerTop 1 takes the zig-zag layout, which saves
// inductors; it exists up to order 10 and faults beyond. Sets Rload[1] itself.
int BuildCauerBandpass(Scales& scales);

// Coupled resonators; true to the prototype for narrow bands. At wide bands a part may come out negative: that is told
// nowhere, as the stage list shows it. The inductor-coupled and the mesh form need order 2 at least.
int BuildNodalCapacitorCoupled(Scales& scales);
int BuildNodalInductorCoupled(Scales& scales);
int BuildMeshCapacitorCoupled(Scales& scales);

}  // namespace quilm
