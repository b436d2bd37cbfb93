// The responses of a sweep as a table of text, for spreadsheets and for reading.
#pragma once

#include <string>

#include "display/ResponseCurves.h"

namespace quilm {

// A row a frequency: frequency (Hz), transmission (dB), angle (degrees), return loss (dB), delay (s), VSWR, input
// impedance (ohms) and its angle (degrees). Plain numbers in cells of 14 characters.
std::string ScientificTable(const ResponseSpans& sweep);

// The same in display formats, aligned at the right of cells of 10 characters.
std::string EasyTable(const ResponseSpans& sweep);

}  // namespace quilm
