// The table of the responses for spreadsheets and programs.
#pragma once

#include <string>

#include "core/RecordFwd.h"

namespace quilm {

struct Responses;

// The last sweep as comma-separated values (RFC 4180): a line with the quantities and their units, then one line a
// point, each ending with CR LF. Numbers have a decimal point in every locale and as few digits as give the same 32
// bits when they are read back: nothing is rounded, and nothing reads "<-120". A figure that is no number leaves its
// field empty.
std::string CsvTable(const SweepSettings& sweep, const Responses& responses);

}  // namespace quilm
