// The printed report of the normalised values.
#pragma once

#include "core/DesignRecord.h"
#include "shell/Canvas.h"

namespace quilm {

// Prints the normalised values as the page shows them under "Normalized values", with the terminations, and ends the
// document.
void PrintNorms(const DesignRecord& record, Canvas& printer);

}  // namespace quilm
