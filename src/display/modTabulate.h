// The responses as a table of text.
#pragma once

#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/Canvas.h"

namespace quilm {

// One row a sweep point: frequency, transmission, angle, return, delay, VSWR, impedance and its angle, each
// right-justified in ten characters (longer texts take what they need).
std::vector<std::string> TabulatedRows(const DesignRecord& record, const Responses& responses);

// The headings over the rows, in the same fields.
std::string TabulatedHeadings();
std::string TabulatedUnits();

inline constexpr int rowsPerSheet = 40;

// Draws the title and all rows on a printer, forty rows to a sheet, with the headings on each and the design file's
// name at the foot, and ends the document.
void PrintTable(const DesignRecord& record, const Responses& responses, Canvas& printer);

}  // namespace quilm
