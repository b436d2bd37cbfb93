// Whether a sweep shows what a design is for, and one that does.
#pragma once

#include <optional>
#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// Two frequencies, Hz, the lower one first.
struct FrequencySpan {
  f32 from = 0;
  f32 to = 0;
  bool operator==(const FrequencySpan&) const = default;
};

// The edges of the design's band: of a lowpass or highpass its one edge twice, of a bandpass or bandstop both, which
// have the centre as their geometric mean. A network without a topology goes by its figures. Nothing when the width, or
// the centre of a topology that has one, is missing.
std::optional<FrequencySpan> BandOf(const DesignRecord& record);

// A sweep round the band in round figures: of a lowpass or highpass from a tenth to ten times its edge, of a bandpass
// or bandstop five widths about the centre, but where that would come down to zero a tenth of the lower edge instead.
// Rounded outward, and held within the limits of the sweep. Nothing when there is no band.
std::optional<FrequencySpan> FittingSweep(const DesignRecord& record);

// Whether the band lies within the sweep, its edges apart from start and stop; also when there is no band.
bool HoldsBand(const DesignRecord& record);

// What is wrong with start and stop, for the user; empty when the stop lies above the start.
std::string SweepFault(const SweepSettings& sweep);

}  // namespace quilm
