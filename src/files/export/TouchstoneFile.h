// S-parameter files of one and two ports, versions 1.0 and 2.0, as simulators and network analysers read them.
#pragma once

#include <string_view>

#include "core/ExportChoices.h"
#include "core/RecordFwd.h"
#include "core/Types.h"
#include "display/ResponseCurves.h"
#include "files/export/ExportText.h"
#include "files/export/ReverseSweep.h"

namespace quilm {

// The angle in degrees, -180..180, of the reflection at an impedance of the magnitude Zmag (ohms) and the angle Zangle
// (degrees) in a line of Rstandard (ohms, not 0): that of (z - 1) / (z + 1) with z = Z / Rstandard. Each step is
// rounded to 32 bits. Throws NumericFault where a step leaves the range of numbers, as with z = -1.
f32 ReflAngle(f32 Zmag, f32 Zangle, f32 Rstandard);

// The file of a design: `sweep` is its last sweep, `reverse` that of the network end for end at the same frequencies.
// Of the choices the ports, version, unit and format count, each in its range. `date` is today's date in the system's
// short form.
//
// Readers of version 1.0 take the reference from the option line, which only the file of two ports gives as the source
// termination; in the others it is 50. The angle of S11 in a file of one port is that of the input impedance itself.
// The magnitudes of S11 and S22 are the return losses of the sweeps, and like their angles refer to Rstandard.
//
// A point whose figures leave the range of numbers ends the text before its row.
ExportText TouchstoneText(const DesignRecord& record, const ResponseSpans& sweep, const ReverseResponses& reverse,
                          const ExportChoices& choices, std::string_view date);

}  // namespace quilm
