// The report of a phase's linearity.
#pragma once

#include "core/RecordFwd.h"
#include "display/LinearityDrawing.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// Draws the plot on a printer, with the title of the design, and ends the document.
void DrawLinearityReport(const Identity& design, const LinearityPlot& plot, const DateTime& today, Canvas& printer);

// Offers a printer for it. Cancelling is quiet; a fault is told in a box "Printer Error".
void PrintLinearity(Session& session, const LinearityPlot& plot);

}  // namespace quilm
