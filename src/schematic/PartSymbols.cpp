#include "schematic/PartSymbols.h"

#include <array>
#include <cmath>

namespace quilm {

namespace {

constexpr f32 turnRadius = 80;
constexpr int turns = 3;
constexpr f32 plateGap = 100;
constexpr f32 plateHalf = 130;
constexpr f32 zigzagStep = 70;
constexpr int zigzagSteps = 6;
constexpr f32 zigzagHalf = 80;
constexpr f32 leastLead = 50;
const f32 halfTurn = static_cast<f32>(Pi);

void DrawInductor(const Run& run, f32 along, f32 size, bool mirrored) {
  const f32 radius = turnRadius * size;
  for (int turn = 0; turn < turns; ++turn) run.Turn(along + radius * static_cast<f32>(2 * turn + 1), radius, mirrored);
}

void DrawCapacitor(const Run& run, f32 along, f32 size) {
  const f32 half = plateHalf * size;
  for (const f32 plate : {along, along + plateGap * size}) run.Stroke(plate, -half, plate, half);
}

void DrawResistor(const Run& run, f32 along, f32 size) {
  const f32 step = zigzagStep * size;
  f32 side = zigzagHalf * size;
  run.Stroke(along, 0, along + step / 2, side);
  for (int i = 0; i + 1 < zigzagSteps; ++i) {
    const f32 at = along + step * (0.5F + static_cast<f32>(i));
    run.Stroke(at, side, at + step, -side);
    side = -side;
  }
  run.Stroke(along + step * (zigzagSteps - 0.5F), side, along + step * zigzagSteps, 0);
}

}  // namespace

Point Run::At(f32 along, f32 side) const {
  return way_ == Way::Down ? Point{from_.x + side, from_.y + along} : Point{from_.x + along, from_.y - side};
}

void Run::Stroke(f32 along1, f32 side1, f32 along2, f32 side2) const {
  const Point a = At(along1, side1);
  const Point b = At(along2, side2);
  canvas_->Line(a.x, a.y, b.x, b.y, color_);
}

void Run::Lead(f32 along1, f32 along2) const {
  if (along1 != along2) Stroke(along1, 0, along2, 0);
}

void Run::Turn(f32 along, f32 radius, bool otherSide) const {
  const Point center = At(along, 0);
  const f32 first = way_ == Way::Down ? 1.5F * halfTurn : 0;
  const f32 second = way_ == Way::Down ? 0.5F * halfTurn : halfTurn;
  canvas_->Circle(center.x, center.y, radius, color_, otherSide ? second : first, otherSide ? first : second);
}

f32 BodyLength(Part part) {
  switch (part) {
    case Part::Inductor:
    case Part::MirroredInductor:
      return 2 * turnRadius * turns;
    case Part::Capacitor:
      return plateGap;
    case Part::Resistor:
      return zigzagStep * zigzagSteps;
  }
  return 0;
}

void DrawPart(const Run& run, Part part, f32 along, f32 size) {
  switch (part) {
    case Part::Inductor:
    case Part::MirroredInductor:
      return DrawInductor(run, along, size, part == Part::MirroredInductor);
    case Part::Capacitor:
      return DrawCapacitor(run, along, size);
    case Part::Resistor:
      return DrawResistor(run, along, size);
  }
}

void DrawChain(const Run& run, std::span<const Part> parts, f32 from, f32 to, f32 size) {
  const f32 leads = static_cast<f32>(parts.size() + 1);
  f32 bodies = 0;
  for (const Part part : parts) bodies += BodyLength(part);
  const f32 fitting = std::fmin(size, (to - from - leads * leastLead * size) / bodies);
  const f32 lead = (to - from - bodies * fitting) / leads;
  f32 at = from;
  for (const Part part : parts) {
    run.Lead(at, at + lead);
    DrawPart(run, part, at + lead, fitting);
    at += lead + BodyLength(part) * fitting;
  }
  run.Lead(at, to);
}

void DrawGround(Canvas& canvas, f32 x, f32 y, f32 size, Color color) {
  constexpr f32 lead = 100;
  constexpr f32 pitch = 70;
  canvas.Line(x, y, x, y + lead * size, color);
  f32 at = y + lead * size;
  for (const f32 half : {150.0F, 95.0F, 40.0F}) {
    canvas.Line(x - half * size, at, x + half * size, at, color);
    at += pitch * size;
  }
}

void DrawLine(Canvas& canvas, f32 from, f32 to, f32 y, Color color) {
  constexpr f32 aspect = lineHalf / lineBulge;
  for (const f32 side : {-lineHalf, lineHalf}) canvas.Line(from, y + side, to, y + side, color);
  // Both ends bulge to the right; the near one shows its whole rim.
  canvas.Circle(from, y, lineBulge, color, 0.5F * halfTurn, 1.5F * halfTurn, aspect);
  for (const f32 end : {from, to}) {
    canvas.Circle(end, y, lineBulge, color, 1.5F * halfTurn, 0.5F * halfTurn, aspect);
  }
}

void DrawTerminal(Canvas& canvas, f32 x, f32 y, Color color) { canvas.Circle(x, y, terminalRadius, color); }

}  // namespace quilm
