// The data sheet of a coil, for whoever winds it.
#pragma once

#include "coils/Solenoid.h"
#include "core/RecordFwd.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// Draws the data of a coil and the coil itself on a printer, in the units of the design, and ends the document.
// `QuotedStage` is the stage that the coil is meant for, 0 for none.
void PrintWinding(const Identity& design, const Winding& winding, i16 QuotedStage, const DateTime& today,
                  Canvas& printer);

// Offers a printer for it. Cancelling is quiet; a fault is told in a box "Printer Error".
void PrintCoil(Session& session, const Winding& winding, i16 QuotedStage);

}  // namespace quilm
