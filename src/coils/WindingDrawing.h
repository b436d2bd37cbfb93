// What windings look like.
#pragma once

#include "coils/Solenoid.h"
#include "shell/Canvas.h"

namespace quilm {

// Draws a coil from the side into an emptied canvas, length and diameter in true proportion as far as both can be seen,
// with its dimensions in the units (CoilUnits.h) and its turns: all of them, or as many as can be told apart.
inline constexpr Scale coilSheet{0, 0, 6000, 4200};
void DrawCoil(const Coil& coil, i16 units, Canvas& canvas);

// Draws a toroidal core with so many turns (0 or more) into an emptied canvas, at most as many as can be told apart.
inline constexpr Scale toroidSheet{0, 0, 4800, 4800};
void DrawToroid(f32 turns, Canvas& canvas);

// How many turns of a winding are drawn on the core.
int ToroidTurnsDrawn(f32 turns);

}  // namespace quilm
