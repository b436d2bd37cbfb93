// Draws the stage list as a circuit diagram, in one pass from left to right: nothing about a stage needs another one.
//
// User scale: the page is 9600 wide, or as wide as a longer network needs; the upper rail lies at y = 1500, and the
// band that holds the stages reaches from 700 to 5400.
#pragma once

#include <vector>

#include "core/RecordFwd.h"
#include "core/SchematicView.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr f32 schematicPage = 9600;

// What the page shows at a zoom of 1: source, stages and load, at least `schematicPage`.
f32 SchematicWidth(const Network& network);

// Draws band, source, stages, load and the design data below them into an emptied canvas. Stages above StagesMax are
// left out, and with none the canvas stays empty. In both balanced modes series parts stand on both rails; in BalancedA
// each shows half of its value. A negative value is red. No label reaches over its stage's boundaries.
void DrawSchematic(const DesignRecord& record, const SchematicView& view, Canvas& canvas);

// The circuit in rows, for paper: which stages a row holds, and which of the circuit's ends.
struct SchematicRow {
  int first = 1;
  int last = 0;
  bool source = false;
  bool load = false;
  f32 length = 0;
};

// The rows of a network in so much room: what would pass its end begins a new row. None without stages.
std::vector<SchematicRow> SchematicRows(const Network& network, f32 room);

// Draws a row into an emptied canvas as DrawSchematic draws the whole circuit, from x = 0 on, with " >" behind it where
// the circuit goes on. The scale is as high as labels, losses and tolerances of the whole network need.
void DrawSchematicRow(const DesignRecord& record, const SchematicView& view, const SchematicRow& row, Canvas& canvas);

// Draws the bare ladder: stage numbers and symbols, in as many rows as it needs, and the ratios of its parts below.
void DrawArtwork(const Network& network, SchematicMode mode, Canvas& canvas);

// Whether any stage has a value below 0.
bool HasNegativePart(const Network& network);

}  // namespace quilm
