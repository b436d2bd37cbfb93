// The network as a strip of cells from left to right: source, stages, load. Pages on which stages are chosen show it.
//
// User scale: the upper rail lies at y = 1500, texts and symbols between 700 and 3300, and the mark of the selected
// cell from 500 to 700.
#pragma once

#include <optional>
#include <vector>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr f32 stripTop = 700;
inline constexpr f32 stripBottom = 3300;

// The width of a stage's cell: that of its symbol with room for labels; for places without a symbol as much as most.
f32 StripCellWidth(i16 elementType);

// Source, all stages and load.
f32 StripLength(const Network& network);

// The left edges of all cells of a strip that begins at `origin`, and the right edge of the last one: entry 0 is the
// source, entry k stage k, then the load.
std::vector<f32> StageEdges(const Network& network, f32 origin);

// The last cell whose edge is not right of x; nothing left of the first one, and nothing at or right of the end.
std::optional<int> CellAt(const std::vector<f32>& edges, f32 x);

// Draws the strip from `origin` on, with a mark above the cell `marked`.
void DrawStageStrip(const Network& network, f32 origin, std::optional<int> marked, Canvas& canvas);

}  // namespace quilm
