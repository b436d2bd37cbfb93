// Prototypes beside the doubly terminated families: image-parameter ladders with M-derived sections, and the Chebyshev
// ladder between a zero source and a load.
#pragma once

#include <span>
#include <vector>

#include "core/BoundedArray.h"
#include "core/DesignRecord.h"
#include "core/Types.h"

namespace quilm {

struct SpecialPrototype {
  int order = 0;
  BoundedArray<f32, 0, orderLimit> Gj;
  BoundedArray<f32, 0, orderLimit> Hj;
};

// The m of a section whose zero lies at `zero` times the cutoff, for a lowpass (zero above 1): sqrt(1 - 1 / zero^2). A
// highpass takes the reciprocal.
f32 SectionM(f64 zero);

// A chain of M-derived sections around one constant-K section, with an M-derived half section at each end. `zeros` are
// the sections' zeros over the cutoff of a lowpass, above 1, at most five, in the order of the sections; those after
// the first lie on the load side. A single zero serves both ends. Without zeros the order is 0.
//
// Odd positions are shunt arms Gj, even ones series arms Hj with a capacitor Gj across them. Source: O. J. Zobel,
// "Theory and design of uniform and composite electric wave filters", Bell System Technical Journal 2 (1923).
SpecialPrototype MderivedPrototype(std::span<const f64> zeros);

// The ladder of a singly terminated Chebyshev lowpass of order 2..21 and ripple in dB (0.0001..10), element 1 next to
// the source of zero impedance. Source: L. Weinberg, "Network Analysis and Synthesis" (1962), chapter 13.
SpecialPrototype SinglyTerminatedChebyshev(int order, f32 Apass);

}  // namespace quilm
