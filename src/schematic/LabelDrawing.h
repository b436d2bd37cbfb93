// The labels of stages on a canvas.
#pragma once

#include "schematic/StageLabels.h"
#include "shell/Canvas.h"

namespace quilm {

// Labels keep their size among the symbols: what was laid out between two boundaries stays there.
inline constexpr TextFit asLaidOut{.anchor = 0, .room = 1e-3F};

// Prints text and unit within `room` units from x, smaller where they would be wider; a negative value is red.
void PrintLabel(Canvas& canvas, f32 x, f32 y, f32 room, const StageLabel& label);

}  // namespace quilm
