// The stages of a network as circuit symbols: drawn once here and used wherever a network shows, on buttons, in the
// schematic and in the guide.
//
// A stage stands between an upper rail at y and a lower one at y + gap. Its leads end on both rails at both of its
// sides, so that stages set side by side make the circuit. Nothing rises further above the upper rail than half a
// capacitor's plate, which leaves the room above it to labels.
#pragma once

#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr f32 railGap = 1040;       // of the schematic
inline constexpr f32 narrowRailGap = 640;  // the least for which the symbols are made; smaller pictures use it

// The place of a stage in user scale: its left end on the upper rail, its width and the distance of the rails.
struct StageBox {
  f32 x = 0;
  f32 y = 0;
  f32 width = 0;
  f32 gap = railGap;
};

// The width of a stage of this type in the schematic, with room for labels; 0 for codes that draw nothing.
f32 StageWidth(i16 elementType);

// The width that the bare symbol needs, for artwork; 0 for codes that draw nothing.
f32 SymbolWidth(i16 elementType);

// Series elements stand on the upper rail, or in a balanced network on both. A grounded network has no lower rail: what
// goes to common ends on a ground.
enum class RailForm { Unbalanced, Balanced, Grounded };

// Draws a stage of this type in the middle of `box`, which is at least SymbolWidth wide. Codes that are no element draw
// nothing. What stands between the rails is the same in all forms.
void DrawStage(Canvas& canvas, i16 elementType, const StageBox& box, Color color, RailForm form = RailForm::Unbalanced);

// The same as wide as in the schematic: from x to x + StageWidth.
void DrawStage(Canvas& canvas, i16 elementType, f32 x, f32 y, f32 gap, Color color);

// How far below the upper rail a stage of the schematic has room for a line of text between its rails, clear of a
// symbol that stands in the line; 0 where there is none.
f32 SymbolDrop(i16 elementType, RailForm form);

// Plain rails from x to x + width.
void DrawRails(Canvas& canvas, const StageBox& box, Color color);

// The end of both rails: a terminal on each, about x.
void DrawTerminals(Canvas& canvas, f32 x, f32 y, f32 gap, Color color);

}  // namespace quilm
