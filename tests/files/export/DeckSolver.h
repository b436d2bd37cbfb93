// A deck of LTspice solved at a frequency by nodal analysis, as its manual tells the parts: for figures where the
// program itself cannot be run.
#pragma once

#include <complex>
#include <string>

#include "core/Types.h"

namespace quilm {

// The voltage of a node of a deck of R, L (1 mohm in series unless Rser says otherwise), C, K, V, E, F, T and of
// sources G behind a Laplace expression NUMBER*sqrt(-s*s). Throws Fault for whatever else stands in it, for a name that
// is there twice, and where there is no solution.
std::complex<f64> VoltageOf(const std::string& deck, const std::string& node, f64 frequency);

}  // namespace quilm
