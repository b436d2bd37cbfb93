// The symbols of single parts, drawn along a straight run: what stages and signs are made of.
//
// One stroke weight; inductors are three arcs, capacitors two plates, resistors a zigzag, ground three bars. At size 1
// the measures are those of the schematic, in its user scale; every other size keeps the proportions.
#pragma once

#include <span>

#include "shell/Canvas.h"

namespace quilm {

// A straight line from a point to the right or downward, along which parts are strung.
class Run {
 public:
  enum class Way { Right, Down };

  Run(Canvas& canvas, Point from, Way way, Color color) : canvas_(&canvas), from_(from), way_(way), color_(color) {}

  // The place so far along the run and so far to its side: above a run to the right, right of one downward.
  Point At(f32 along, f32 side) const;

  void Stroke(f32 along1, f32 side1, f32 along2, f32 side2) const;

  // A piece of the run itself; none where its ends meet.
  void Lead(f32 along1, f32 along2) const;

  // Half a circle about a point of the run, bulging to its side, or to the other one.
  void Turn(f32 along, f32 radius, bool otherSide) const;

 private:
  Canvas* canvas_;
  Point from_;
  Way way_;
  Color color_;
};

// A mirrored inductor bulges to the other side of its run.
enum class Part { Inductor, MirroredInductor, Capacitor, Resistor };

// How much of a run the part takes at size 1, without leads.
f32 BodyLength(Part part);

// The symbol of `part` at `along`, its first end, without leads.
void DrawPart(const Run& run, Part part, f32 along, f32 size);

// The parts in series from `from` to `to`, with equal leads before, between and behind them. They are drawn at `size`,
// or smaller where that leaves no leads.
void DrawChain(const Run& run, std::span<const Part> parts, f32 from, f32 to, f32 size = 1);

// Ground hanging from (x, y): a lead and three bars, each shorter than the one above.
void DrawGround(Canvas& canvas, f32 x, f32 y, f32 size, Color color);

// A transmission line lying about the height y from `from` to `to`: two conductors and the round ends of their sheath.
void DrawLine(Canvas& canvas, f32 from, f32 to, f32 y, Color color);
inline constexpr f32 lineHalf = 100;  // half the distance of its conductors
inline constexpr f32 lineBulge = 45;  // of its right end beyond `to`

// A terminal, or with a smaller radius the dot at a winding's beginning.
inline constexpr f32 terminalRadius = 45;
void DrawTerminal(Canvas& canvas, f32 x, f32 y, Color color);

}  // namespace quilm
