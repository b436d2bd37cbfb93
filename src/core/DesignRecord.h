// The current design: every value that the pages and routines of the program share, in slices. A routine takes the
// slice that it uses, and the whole record only where it changes or keeps a whole design.
//
// Frequencies are in Hz, parts in henries, farads and ohms, attenuations in dB, lengths in degrees, times in seconds.
// All arrays are indexed from 1; element 0, where the bounds have one, is unused. The widths are behaviour: a value
// that passes through the record is rounded to them.
#pragma once

#include "core/Entries.h"
#include "core/Identity.h"
#include "core/LimitsAndMarkers.h"
#include "core/Network.h"
#include "core/PlotScales.h"
#include "core/Sweep.h"

namespace quilm {

struct DesignRecord : Identity, Entries, Prototype, Network, SweepSettings, PlotScales, LimitsAndMarkers {
  bool operator==(const DesignRecord&) const = default;
};

}  // namespace quilm
