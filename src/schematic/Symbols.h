// The circuit symbols: drawn once here and used wherever a network shows, on buttons, in the schematic and in the
// guide.
//
// A stage stands between an upper rail at y and a lower one at y + gap and is as wide as its type needs. One stroke
// weight; inductors are three arcs, capacitors two plates, resistors a zigzag, lines a tube.
#pragma once

#include "core/DesignRecord.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr f32 railGap = 1040;  // of the schematic; smaller drawings bring the rails nearer

// The width of a stage of this type, in user scale; 0 for codes that draw nothing.
f32 StageWidth(i16 elementType);

// Draws a stage of this type from x to x + StageWidth on the rails y and y + gap (at least 560). Codes that are no
// element draw nothing.
void DrawStage(Canvas& canvas, i16 elementType, f32 x, f32 y, f32 gap, Color color);

// The same between rails that end here: a terminal on each.
void DrawTerminals(Canvas& canvas, f32 x, f32 y, f32 gap, Color color);

}  // namespace quilm
