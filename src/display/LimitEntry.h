// Entering limit areas on the plot with the mouse: a shape is chosen, then a click, or two for a band, makes an area of
// it. It goes on until another plot is drawn or the plot type has all the areas that it can.
//
// The session's plot sheet holds what is in progress (LimitEntry in shell/PlotSheet.h). Pages that offer the shapes
// show them while it is.
#pragma once

#include "core/LimitArea.h"
#include "core/PlotScales.h"
#include "display/PlotFrame.h"
#include "shell/PlotSheet.h"

namespace quilm {

class Session;

// Who asks for areas. The Limits page has no prompt for the angle; the optimizer, which refuses to run without areas,
// has one for each of the plot types' own plots. Neither has one for the other plots.
enum class LimitsWantedBy { LimitsPage, Optimizer };

// Begins the entry for the plot on display: shows the limits, forgets the shape chosen before, and draws the plot anew
// with prompt and palette. Charts take no areas: they are drawn anew and nothing begins.
void BeginLimitEntry(Session& session, LimitsWantedBy who);

// Goes on with an entry that a change of the page has ended, without its first click.
void ResumeLimitEntry(Session& session, LimitEntry entry);

// Ends the entry and draws the plot without its prompt.
void EndLimitEntry(Session& session);

bool EntersLimits(const Session& session);

// The shape of the areas that follow, 1..9.
void ChooseLimitShape(Session& session, i16 shape);

// What a click did.
enum class LimitClick { Nothing, FirstOfTwo, Area, NoRoom };

// A click at a place of the plot's scale. Nothing happens outside the frame or before a shape is chosen. With ten areas
// of the type the entry ends (NoRoom).
LimitClick TakeLimitClick(Session& session, f32 x, f32 y);

// Draws frequency and value under the pointer, and the area that a click would make there; nothing for a place outside
// the frame. The canvas has the plot's scale.
void DrawLimitPointer(const Session& session, f32 x, f32 y, Canvas& canvas);

// Draws prompt and palette of an entry in progress, on the screen alone; nothing without one.
void DrawLimitEntry(const LimitEntry& entry, Canvas& canvas);

// A cell of the palette, 1..9.
PlotBox LimitCell(int shape);

// Upper and lower end of a plot type's areas, in its unit. Losses end far below what any plot shows.
ValueScale LimitEnds(const PlotScales& scales, int type);

// The area of a shape whose edges were pointed at: of all shapes but the bands both frequencies are the same.
LimitArea MakeLimitArea(i16 shape, f32 first, f32 second, f32 value, const ValueScale& ends);

}  // namespace quilm
