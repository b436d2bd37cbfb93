// The responses as a table of text.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/RecordFwd.h"

namespace quilm {

// A row of the table by columns: frequency, transmission, angle, return, delay, VSWR, impedance and its angle.
using TableRow = std::array<std::string, 8>;

TableRow TableHeadings();
TableRow TableUnits();

// The texts of the sweep point `i`. Transmission and return below -120 dB read "<-120".
TableRow TableFields(const Responses& responses, int i);

// One row a sweep point, each text right-justified in ten characters (longer ones take what they need).
std::vector<std::string> TabulatedRows(const DesignRecord& record, const Responses& responses);

// What stands over the columns on the screen: "Delay (seconds)".
std::vector<std::string> TableCaptions();

}  // namespace quilm
