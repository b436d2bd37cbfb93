// The limit areas as they are drawn: on the rectangular plots, and as signs on buttons.
#pragma once

#include <vector>

#include "core/LimitArea.h"
#include "display/PlotKinds.h"
#include "display/PlotSetup.h"
#include "shell/Picture.h"

namespace quilm {

inline constexpr Color limitFill = 0xE0E0FF;
inline constexpr Color limitOutline = 0x0000CC;

// The plot type, 1..6, whose areas a plot shows and takes: its own, or that of its left scale. 0 for the charts.
int LimitTypeOf(i16 plotCode);

// What the areas of a plot type limit.
Quantity LimitedQuantity(int type);

// The areas of the plot on display in the order of their table, none while they are hidden.
std::vector<LimitArea> ShownAreas(const PlotScales& scales, const LimitsAndMarkers& limits);

// Draws the areas of the setup into the frame, which holds them. Edges that were entered the wrong way round are drawn
// exchanged; an area with an edge at 0 Hz or below is left out. Throws NumericFault when the scale has no height or the
// axis no width.
void DrawLimitAreas(const PlotSetup& setup, Canvas& canvas);

// The same without the filling: areas that are about to be.
void DrawLimitOutlines(const PlotSetup& setup, Canvas& canvas);

// Draws what a shape 1..9 looks like into a box of the canvas; as a picture of 500 by 400 units.
void DrawLimitShape(int shape, const PlotBox& box, Canvas& canvas);
Picture LimitShapePicture(int shape);

// What it forbids: "Floor from DC".
const char* LimitShapeName(int shape);

}  // namespace quilm
