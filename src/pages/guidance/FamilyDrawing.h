// The pictures of the family guide.
#pragma once

#include "display/ResponseCurves.h"
#include "pages/guidance/FamilyComparison.h"
#include "shell/Canvas.h"

namespace quilm {

// The example of one family into an emptied canvas: its transmission in blue, its delay in red.
void DrawExample(const Comparison& example, Canvas& canvas);

// The transmission or the delay of all families that there are into an emptied canvas, each in a colour of its own with
// its name above, the family of the place `chosen` in the guide with a wider pen.
void DrawFamilies(const Comparison& all, Quantity quantity, i16 chosen, Canvas& canvas);

}  // namespace quilm
