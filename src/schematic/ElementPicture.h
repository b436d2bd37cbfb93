// Elements as single symbols of any size, for palettes and enlarged views.
#pragma once

#include <string_view>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "schematic/Symbols.h"
#include "shell/Canvas.h"

namespace quilm {

// "Inductor in the line", for tool tips and headings; "Empty place" for a code that is no element.
std::string_view ElementWords(i16 elementType);

// "L in line", to stand beside a symbol.
std::string_view ElementCaption(i16 elementType);

// A stage of any code between its rails: the symbols of Symbols.h, a box with "jX" for the forms of entry 17 and 18,
// and an empty box for what is no element. `box` is at least as wide as the symbol.
void DrawAnyStage(Canvas& canvas, i16 elementType, const StageBox& box, Color color);

// The width that DrawAnyStage needs at least.
f32 AnySymbolWidth(i16 elementType);

// The source and the load as they stand at the ends of a strip: generator and resistance, and resistance.
inline constexpr f32 sourceCell = 740;
inline constexpr f32 loadCell = 600;
void DrawSourceCell(Canvas& canvas, const StageBox& box, Color color);
void DrawLoadCell(Canvas& canvas, const StageBox& box, Color color);

// The symbol alone in the middle of the box between two corners, as large as that holds it and no larger than in the
// schematic: with near rails, and without the lower one where the part stands in the line.
void DrawElement(Canvas& canvas, i16 elementType, Point from, Point to, Color color);

// The enlarged view of a stage in the box (555, 3000)-(2800, 8600): number, name and values, and below them the symbol.
// `place` is 0 for the source, 1 to Stages for a stage and Stages + 1 for the load. Nothing for the codes 17 and 18.
void DrawLargePicture(const Network& network, int place, Canvas& canvas);

// The same of an element without values.
void DrawLargePicture(i16 elementType, Canvas& canvas);

}  // namespace quilm
