// A design as a schematic that LTspice opens (.ASC).
#pragma once

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "files/export/ExportText.h"

namespace quilm {

// The network between source and load, with the analysis as a directive. The finite Q of parts stands as Rser or Rpar
// of each, worked out at SpiceReferenceFrequency: the schematic has the losses of the analysis at that frequency alone.
//
// Of a transformer nothing is drawn. Values are texts of SpiceTexts, with their limits: a capacitor below 1 pF is
// written as 0, one of a farad as a femtofarad, and a part below zero without its sign. The name of a stub's path to
// common may be that of a resistor, and two pairs of coupled coils have directives of one name; LTspice refuses both.
//
// Fails where a division has no result: a capacitance, a line's frequency, the load or Qind of exactly 0, a sweep
// without decades, or no reference frequency for a capacitor. There is no text then: half a schematic is of no use.
ExportText LtspiceSchematic(const DesignRecord& record);

// The width of the sheet on LTspice's grid, at least 800.
i16 SheetWidthFor(const Network& network);

}  // namespace quilm
