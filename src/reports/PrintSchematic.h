// The printed report of the schematic.
#pragma once

#include "core/RecordFwd.h"
#include "core/SchematicView.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// Draws the title, the circuit in as many rows and sheets as it needs, with " >" where a row goes on in the next one,
// and the key data of the design on a printer, the date at the foot of each sheet, and ends the document. Balanced or
// not and with or without losses as in `view`; zoom and scrolling are the screen's.
void DrawSchematicReport(const DesignRecord& record, const SchematicView& view, const DateTime& today, Canvas& printer);

// Offers a printer for the schematic as it is looked at. A fault is told in a box "Printer Error".
void PrintSchematic(Session& session);

}  // namespace quilm
