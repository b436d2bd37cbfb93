// A filter of lines in a tube, as a table and as its mechanical drawing.
#pragma once

#include "core/RecordFwd.h"
#include "core/TubeData.h"
#include "network/TubularLines.h"
#include "shell/Canvas.h"

namespace quilm {

// A length in millimetres as it is told: "999 mm", and from a metre on "1 m".
std::string MetricLength(f32 mm);

// Writes the lengths of the lines of stages 1 to `stages` into an emptied canvas, in degrees, millimetres and inches,
// with their total below.
void PrintLineLengths(const TubularLines& lines, int stages, f32 frequency, Canvas& canvas);

// Draws rod and tube from the side into an emptied canvas: each section by its length and diameter, one scale for both,
// as large as fits, with the measures below. Lengths count by their magnitude.
void DrawTubular(const Network& network, const TubularLines& lines, const TubeData& tube, Canvas& canvas);

}  // namespace quilm
