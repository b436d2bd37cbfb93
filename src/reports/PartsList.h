// The printed list of parts, for the shop that orders them and the bench that solders them.
#pragma once

#include "core/RecordFwd.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// Draws the title, the entries that the design has, its terminations and one line a stage on a printer, with the name
// of the design file and the date at the foot of each sheet, and ends the document.
void PrintParts(const DesignRecord& record, const DateTime& today, Canvas& printer);

// Offers a printer for the list of the present design. Cancelling is quiet; a printer that fails is told in the status
// line alone, for the list is printed from a page where nothing is lost by it.
void PrintPartsList(Session& session);

}  // namespace quilm
