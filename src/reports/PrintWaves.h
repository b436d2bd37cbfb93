// The printed report of the waves of a transient analysis.
#pragma once

#include "core/RecordFwd.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"
#include "timedomain/Waves.h"

namespace quilm {

class Session;

// Draws the title of the design, the waves with their frame from (2000, 1000) to (11000, 7000) and traces 1 wide, and
// the date at the foot on a printer, and ends the document.
void DrawWavesReport(const Identity& design, const Waves& waves, const DateTime& today, Canvas& printer);

// Offers a printer for them. Cancelling is quiet; a fault is told in a box "Printer Error".
void PrintWaves(Session& session, const Waves& waves);

}  // namespace quilm
