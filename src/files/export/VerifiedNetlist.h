// A design as a netlist of our own layout, for simulators that know dependent sources of frequency.
#pragma once

#include <string_view>

#include "core/RecordFwd.h"
#include "files/export/ExportText.h"

namespace quilm {

enum class SpiceDialect { Ngspice, LTspice };

// The deck; `date` is today's date in the system's short form. Every node and name is unique, values stand in full
// digits, and the losses are those of the analysis at every frequency.
ExportText VerifiedNetlist(const DesignRecord& record, SpiceDialect dialect, std::string_view date);

}  // namespace quilm
