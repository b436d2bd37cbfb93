#include "coils/WindingDrawing.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "coils/CoilUnits.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr Color dimensionColor = 0x808080;
constexpr Color hiddenColor = 0xB0B0B0;
constexpr f32 textSize = 9;

void PrintCentered(Canvas& canvas, f32 x, f32 y, const std::string& text) {
  canvas.PrintAt(x - canvas.TextWidth(text) / 2, y, text);
}

f32 Single(f64 x) { return static_cast<f32>(x); }

// The coil as it lies on the sheet.
struct CoilPlace {
  f64 left;
  f64 axis;    // height of the middle
  f64 length;  // of the winding
  f64 radius;
  f64 turns;  // that are drawn

  f64 Right() const { return left + length; }
};

CoilPlace PlaceCoil(const Coil& coil) {
  constexpr f64 mostLength = 3600;
  constexpr f64 mostDiameter = 2200;
  constexpr f64 leastSeen = 120;
  constexpr f64 leastPitch = 36;
  const f64 unit = std::min(mostLength / static_cast<f64>(coil.length), mostDiameter / static_cast<f64>(coil.diameter));
  const f64 length = std::max(static_cast<f64>(coil.length) * unit, leastSeen);
  const f64 diameter = std::max(static_cast<f64>(coil.diameter) * unit, leastSeen);
  const f64 turns = std::min(static_cast<f64>(coil.turns), length / leastPitch);
  constexpr f64 middle = 2700;
  return {middle - length / 2, 1700, length, diameter / 2, turns};
}

// A point of the winding after so many turns: a screw line, seen a little from one end.
Point OnCoil(const CoilPlace& place, f64 turn) {
  constexpr f64 slant = 0.18;  // of the circle's half width to its radius
  const f64 angle = 2 * Pi * turn;
  return {Single(place.left + place.length * turn / place.turns - slant * place.radius * std::sin(angle)),
          Single(place.axis - place.radius * std::cos(angle))};
}

// The halves of the turns that begin at a half turn, from `first` on: the front ones run downward, the back ones up.
void DrawHalves(const CoilPlace& place, int first, Color color, Canvas& canvas) {
  constexpr int pieces = 16;
  std::vector<Point> points;
  for (int half = first; half < 2 * place.turns; half += 2) {
    points.clear();
    for (int piece = 0; piece <= pieces; ++piece) {
      points.push_back(OnCoil(place, std::min((half + static_cast<f64>(piece) / pieces) / 2, place.turns)));
    }
    canvas.Polyline(points, color);
  }
}

// A line with ticks at its ends and a text at its middle, along x or along y.
void DrawLength(f32 from, f32 to, f32 y, const std::string& text, Canvas& canvas) {
  constexpr f32 tick = 70;
  canvas.Line(from, y, to, y, dimensionColor);
  for (const f32 x : {from, to}) canvas.Line(x, y - tick, x, y + tick, dimensionColor);
  PrintCentered(canvas, (from + to) / 2, y + tick, text);
}

void DrawDiameter(const CoilPlace& place, const std::string& text, Canvas& canvas) {
  constexpr f32 tick = 70;
  const f32 x = Single(place.Right() + 0.2 * place.radius) + 350;
  const f32 top = Single(place.axis - place.radius);
  const f32 bottom = Single(place.axis + place.radius);
  canvas.Line(x, top, x, bottom, dimensionColor);
  for (const f32 y : {top, bottom}) canvas.Line(x - tick, y, x + tick, y, dimensionColor);
  canvas.PrintAt(x + 2 * tick, Single(place.axis) - canvas.TextHeight(text) / 2, text);
}

}  // namespace

void DrawCoil(const Coil& coil, i16 units, Canvas& canvas) {
  canvas.SetScale(coilSheet);
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontSize = textSize;
  const CoilPlace place = PlaceCoil(coil);
  canvas.DrawWidth = 1;
  DrawHalves(place, 1, hiddenColor, canvas);
  canvas.DrawWidth = 2;
  DrawHalves(place, 0, colorBlack, canvas);
  // The leads go up, away from the dimensions.
  constexpr f32 lead = 300;
  for (const Point end : {OnCoil(place, 0), OnCoil(place, place.turns)}) {
    canvas.Line(end.x, end.y, end.x, Single(place.axis - place.radius) - lead, colorBlack);
  }
  canvas.DrawWidth = 1;
  const std::string name = " " + UnitName(units);
  DrawLength(Single(place.left), Single(place.Right()), Single(place.axis + place.radius) + 350,
             LengthText(coil.length, units) + name, canvas);
  DrawDiameter(place, LengthText(coil.diameter, units) + name, canvas);
  const std::string turns = TurnsText(coil.turns) + " turns";
  constexpr f32 lastLine = 3850;
  PrintCentered(canvas, Single(place.left + place.length / 2), lastLine, turns);
}

namespace {

constexpr f64 coreOuter = 1650;
constexpr f64 coreInner = 950;
constexpr f64 gap = 0.55;  // radians of the core that stay bare, for the leads
constexpr f64 middleOfCore = 2200;
constexpr f64 clearance = 90;  // of the wire from the core

Point OnCore(f64 radius, f64 angle) {
  return {Single(coilSheet.left + toroidSheet.width / 2 + radius * std::cos(angle)),
          Single(middleOfCore - radius * std::sin(angle))};
}

void DrawTurn(f64 angle, Canvas& canvas) {
  const Point inside = OnCore(coreInner - clearance, angle);
  const Point outside = OnCore(coreOuter + clearance, angle);
  canvas.Line(inside.x, inside.y, outside.x, outside.y, colorBlack);
}

// From a turn's end at the inner side of the core, behind it, to the next turn's beginning at the outer one.
void DrawBehind(f64 from, f64 to, Canvas& canvas) {
  const Point inside = OnCore(coreInner - clearance, from);
  const Point outside = OnCore(coreOuter + clearance, to);
  canvas.Line(inside.x, inside.y, outside.x, outside.y, hiddenColor);
}

}  // namespace

int ToroidTurnsDrawn(f32 turns) {
  constexpr f64 leastPitch = 55;  // where the turns lie closest
  constexpr f64 room = (2 * 3.14159 - gap) * (coreInner - clearance);
  return static_cast<int>(std::min(static_cast<f64>(turns), std::floor(room / leastPitch)));
}

void DrawToroid(f32 turns, Canvas& canvas) {
  canvas.SetScale(toroidSheet);
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontSize = textSize;
  const Point middle = OnCore(0, 0);
  const int drawn = ToroidTurnsDrawn(turns);
  // The winding begins right of the lowest place and goes around to the left of it.
  const f64 pitch = (2 * Pi - gap) / std::max(drawn, 1);
  const auto angleOf = [pitch](int turn) { return -Pi / 2 + gap / 2 + pitch * (turn + 0.5); };
  canvas.DrawWidth = 1;
  for (int turn = 0; turn + 1 < drawn; ++turn) DrawBehind(angleOf(turn), angleOf(turn + 1), canvas);
  canvas.DrawWidth = 2;
  for (const f64 radius : {coreInner, coreOuter}) canvas.Circle(middle.x, middle.y, Single(radius), dimensionColor);
  for (int turn = 0; turn < drawn; ++turn) DrawTurn(angleOf(turn), canvas);
  if (turns > static_cast<f32>(drawn)) {
    canvas.DrawWidth = 1;
    PrintCentered(canvas, middle.x, 4050, std::to_string(drawn) + " of the turns are drawn");
  }
}

}  // namespace quilm
