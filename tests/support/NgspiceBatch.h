// Circuits through ngspice, many in one process.
#pragma once

#include <complex>
#include <string>
#include <vector>

#include "core/Types.h"

namespace quilm {

struct NgspiceCircuit {
  std::string deck;    // the title in the first line, then parts; commands and ".end" may be there
  std::string sweep;   // "dec 10 1000 1e6", "lin 1 1e6 1e6"
  std::string output;  // the node that is measured
};

struct NgspicePoint {
  f64 frequency = 0;  // Hz
  std::complex<f64> voltage;
};

// Runs the circuits one after the other; the points of each, none where ngspice refused it. `log`, where given, is what
// ngspice printed, errors included. Throws Fault when ngspice is not there.
std::vector<std::vector<NgspicePoint>> RunNgspice(const std::vector<NgspiceCircuit>& circuits,
                                                  std::string* log = nullptr);

struct NgspiceTransient {
  std::string deck;    // likewise
  std::string steps;   // "step stop start largest-step", in seconds
  std::string output;  // the node that is measured
};

struct NgspiceMoment {
  f64 time = 0;  // s
  f64 voltage = 0;
};

// The same for transient analyses: the moments that ngspice has computed, as close together as its steps were.
std::vector<std::vector<NgspiceMoment>> RunNgspiceTransients(const std::vector<NgspiceTransient>& circuits,
                                                             std::string* log = nullptr);

}  // namespace quilm
