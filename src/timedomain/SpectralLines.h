// The transmission of the design at a list of frequencies, such as the lines of a signal's spectrum.
#pragma once

#include <span>
#include <vector>

#include "core/RecordFwd.h"
#include "core/Sweep.h"
#include "core/Types.h"

namespace quilm {

struct LineResponse {
  f64 TransDB = 0;  // dB, 0 = all available power reaches the load, whatever the display is relative to
  f64 Angle = 0;    // degrees, -180..180
};

// The voltage at the load relative to the one at which all available power reaches it.
f64 VoltageRatio(const LineResponse& line);

// The response at each frequency (Hz, of either sign) in their order, by one call of the engine. Inductors have their Q
// at the frequency that the sweep would take. A frequency at which the ladder fails repeats the figures of the one
// before it, zeros at the first. Changes nothing of the design, its responses included. Throws NumericFault when the
// frequency of the Q does not exist.
std::vector<LineResponse> ResponseAtLines(const DesignRecord& record, std::span<const f32> frequencies);

// The frequencies of a sweep, Hz, as those of the responses are spaced; 2050 at most. Throws NumericFault when they do
// not exist, BoundFault when there are more.
std::vector<f32> FrequenciesOf(const SweepSettings& sweep);

}  // namespace quilm
