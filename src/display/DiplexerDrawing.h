// The circuit of a diplexer: its two arms, one above the other, on their common source.
//
// User scale: the upper rails lie at 2500 and 4580, parts stand 800 apart. The page is as wide as the circuit needs.
#pragma once

#include <string>
#include <string_view>

#include "core/Diplexer.h"
#include "shell/Canvas.h"

namespace quilm {

// The first arm's colour, and the second one's: on the circuit as on the plot.
inline constexpr Color firstArmColor = colorBlue;
inline constexpr Color secondArmColor = colorRed;

// Where the circuit stands: the scale that holds source, both arms and their terminations.
Scale DiplexerCircuitScale(i16 DipOrder);

// Source, arms and terminations into a canvas of that scale.
void DrawDiplexerCircuit(const Diplexer& diplexer, Canvas& canvas);

// "Capacitors: 2.1", the largest over the smallest of both arms; a single one of its kind has a ratio of 1.
std::string DiplexerCapacitorRatio(const Diplexer& diplexer);
std::string DiplexerInductorRatio(const Diplexer& diplexer);

// The page into an emptied canvas: summary, `note` below it, circuit, ratios.
void DrawDiplexer(const Diplexer& diplexer, std::string_view note, Canvas& canvas);

// A parallel-tuned pair (H, F) in the line, alone, with its values: into an emptied canvas.
void DrawTrap(f32 L, f32 C, Canvas& canvas);

}  // namespace quilm
