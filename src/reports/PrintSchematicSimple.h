// The printed report of the bare artwork.
#pragma once

#include "core/RecordFwd.h"
#include "core/SchematicView.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// Draws the title, the artwork and the name of the family on a printer, with the date at the foot, and ends the
// document. One sheet holds any network.
void DrawArtworkReport(const DesignRecord& record, SchematicMode mode, const DateTime& today, Canvas& printer);

// Offers a printer for the artwork as it is looked at. A fault is told in a box "Printer Error".
void PrintSchematicSimple(Session& session);

}  // namespace quilm
