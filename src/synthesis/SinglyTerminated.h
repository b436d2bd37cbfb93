// The Chebyshev ladder between a source of almost no impedance and a load.
#pragma once

#include "core/BoundedArray.h"
#include "core/OrderLimit.h"
#include "core/RecordFwd.h"

namespace quilm {

// The prototype for a cutoff of 1 radian per second and a load of 1 ohm: element 1 is next to the source, element
// `order` (2..21) next to the load. Ripple in dB, 0.0001..10. The intermediates round to 32 bits where noted in the
// code. Source: L. Weinberg, "Network Analysis and Synthesis" (1962), chapter 13; the recursion counts from the far
// end, so that its values are written in reverse.
BoundedArray<f32, 0, orderLimit> SinglyTerminatedChebyshev(int order, f32 Apass);

struct SinglyTerminatedEntries {
  std::string Topology;  // "B", "F" or "I"
  f32 Order = 4;
  f32 Apass = 0.1F;
  f32 Width = 0;
  f32 Fcenter = 0;               // of "F" only
  f32 outputTermination = 1e4F;  // ohms
};

// Makes the network of the entries, driven from 0.01 ohm. It then stands as one entered by hand: Family 11,
// NetworkEdited 1. Throws Fault when it cannot be computed; the record is then as it was.
void MakeSinglyTerminated(DesignRecord& record, const SinglyTerminatedEntries& entries);

}  // namespace quilm
