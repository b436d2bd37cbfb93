// The printed report of the tabulated responses.
#pragma once

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr int rowsPerSheet = 40;

// Draws the title and all rows on a printer, forty rows to a sheet, with the headings on each and the design file's
// name at the foot, and ends the document.
void PrintTable(const DesignRecord& record, const Responses& responses, Canvas& printer);

}  // namespace quilm
