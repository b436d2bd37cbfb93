#include "schematic/Symbols.h"

#include <array>
#include <cmath>

namespace quilm {

namespace {

constexpr f32 symbolLength = 640;  // of a part with its leads
constexpr f32 turnRadius = 80;
constexpr f32 plateGap = 90;
constexpr f32 plateHalf = 150;
constexpr f32 zigzagHalf = 80;
constexpr f32 branchLift = 300;  // between parallel branches
constexpr f32 tubeHalf = 70;     // half the width of a line's tube
constexpr f32 terminalRadius = 45;
const f32 halfTurn = static_cast<f32>(Pi);

// A straight run that parts are strung along, to the right or downward.
class Run {
 public:
  Run(Canvas& canvas, Point from, bool down, Color color) : canvas_(canvas), from_(from), down_(down), color_(color) {}

  // A point so far along the run and so far to its side: up beside a run to the right, right beside one downward.
  Point At(f32 along, f32 side) const {
    return down_ ? Point{from_.x + side, from_.y + along} : Point{from_.x + along, from_.y - side};
  }

  void Line(f32 along1, f32 side1, f32 along2, f32 side2) const {
    const Point a = At(along1, side1);
    const Point b = At(along2, side2);
    canvas_.Line(a.x, a.y, b.x, b.y, color_);
  }

  void Lead(f32 along1, f32 along2) const {
    if (along1 != along2) Line(along1, 0, along2, 0);
  }

  // Half a circle to the side of the run.
  void Turn(f32 along, f32 radius) const {
    const Point center = At(along, 0);
    if (down_) {
      canvas_.Circle(center.x, center.y, radius, color_, 1.5F * halfTurn, 0.5F * halfTurn);
    } else {
      canvas_.Circle(center.x, center.y, radius, color_, 0, halfTurn);
    }
  }

 private:
  Canvas& canvas_;
  Point from_;
  bool down_;
  Color color_;
};

// Parts between two points of a run, their symbol in the middle.
using PartDrawing = void (*)(const Run&, f32 from, f32 to);

void Inductor(const Run& run, f32 from, f32 to) {
  const f32 radius = std::fmin(turnRadius, (to - from) / 7);
  const f32 first = (from + to) / 2 - 2 * radius;
  run.Lead(from, first - radius);
  for (int turn = 0; turn < 3; ++turn) run.Turn(first + 2 * radius * static_cast<f32>(turn), radius);
  run.Lead(first + 5 * radius, to);
}

void Capacitor(const Run& run, f32 from, f32 to) {
  const f32 left = (from + to - plateGap) / 2;
  run.Lead(from, left);
  run.Line(left, -plateHalf, left, plateHalf);
  run.Line(left + plateGap, -plateHalf, left + plateGap, plateHalf);
  run.Lead(left + plateGap, to);
}

void Resistor(const Run& run, f32 from, f32 to) {
  const f32 step = std::fmin(70.0F, (to - from) / 8);
  const f32 left = (from + to) / 2 - 3 * step;
  run.Lead(from, left);
  f32 side = zigzagHalf;
  run.Line(left, 0, left + step / 2, side);
  for (int i = 0; i < 5; ++i) {
    const f32 at = left + step * (0.5F + static_cast<f32>(i));
    run.Line(at, side, at + step, -side);
    side = -side;
  }
  run.Line(left + 5.5F * step, side, left + 6 * step, 0);
  run.Lead(left + 6 * step, to);
}

// The tube of a line from end to end: two conductors, and its round ends.
void Tube(Canvas& canvas, const Run& run, f32 from, f32 to, Color color) {
  run.Line(from, tubeHalf, to, tubeHalf);
  run.Line(from, -tubeHalf, to, -tubeHalf);
  for (const f32 end : {from, to}) {
    const Point at = run.At(end, 0);
    canvas.Circle(at.x, at.y, tubeHalf, color, 0, 0, 1);
  }
}

struct StageDrawing {
  Canvas& canvas;
  f32 x;
  f32 y;
  f32 gap;
  f32 width;
  Color color;

  f32 Middle() const { return x + width / 2; }
  Run Upper() const { return {canvas, {x, y}, false, color}; }
  Run Down(f32 at) const { return {canvas, {at, y}, true, color}; }
  void Line(f32 x1, f32 y1, f32 x2, f32 y2) const { canvas.Line(x1, y1, x2, y2, color); }
  void LowerRail() const { Line(x, y + gap, x + width, y + gap); }
  void UpperRail() const { Line(x, y, x + width, y); }
};

void InLine(const StageDrawing& stage, std::initializer_list<PartDrawing> parts) {
  const Run rail = stage.Upper();
  const f32 length = symbolLength * static_cast<f32>(parts.size());
  f32 at = (stage.width - length) / 2;
  rail.Lead(0, at);
  for (const PartDrawing part : parts) {
    part(rail, at, at + symbolLength);
    at += symbolLength;
  }
  rail.Lead(at, stage.width);
  stage.LowerRail();
}

// Branches side by side in the line: the first on the rail, the others above and below it.
void InLineParallel(const StageDrawing& stage, std::initializer_list<PartDrawing> parts) {
  const f32 left = (stage.width - symbolLength) / 2;
  const f32 right = left + symbolLength;
  const Run rail = stage.Upper();
  rail.Lead(0, left);
  rail.Lead(right, stage.width);
  const std::array<f32, 3> lifts = {parts.size() == 2 ? -branchLift / 2 : 0.0F,
                                    parts.size() == 2 ? branchLift / 2 : branchLift, -branchLift};
  std::size_t i = 0;
  f32 highest = 0;
  f32 lowest = 0;
  for (const PartDrawing part : parts) {
    const f32 lift = lifts[i++];
    part(Run(stage.canvas, {stage.x, stage.y - lift}, false, stage.color), left, right);
    highest = std::fmax(highest, lift);
    lowest = std::fmin(lowest, lift);
  }
  rail.Line(left, lowest, left, highest);
  rail.Line(right, lowest, right, highest);
  stage.LowerRail();
}

void ToCommon(const StageDrawing& stage, std::initializer_list<PartDrawing> parts) {
  stage.UpperRail();
  stage.LowerRail();
  const Run branch = stage.Down(stage.Middle());
  const f32 each = stage.gap / static_cast<f32>(parts.size());
  f32 at = 0;
  for (const PartDrawing part : parts) {
    part(branch, at, at + each);
    at += each;
  }
}

// Two branches to common, joined above and below.
void ToCommonParallel(const StageDrawing& stage, PartDrawing left, PartDrawing right) {
  stage.UpperRail();
  stage.LowerRail();
  const f32 half = branchLift / 2 + 30;
  const f32 top = stage.gap * 0.14F;
  const f32 bottom = stage.gap - top;
  const f32 middle = stage.Middle();
  stage.Line(middle, stage.y, middle, stage.y + top);
  stage.Line(middle - half, stage.y + top, middle + half, stage.y + top);
  left(stage.Down(middle - half), top, bottom);
  right(stage.Down(middle + half), top, bottom);
  stage.Line(middle - half, stage.y + bottom, middle + half, stage.y + bottom);
  stage.Line(middle, stage.y + bottom, middle, stage.y + stage.gap);
}

void LineInLine(const StageDrawing& stage) {
  const f32 end = 240;
  const Run rail = stage.Upper();
  rail.Lead(0, end - tubeHalf);
  Tube(stage.canvas, rail, end, stage.width - end, stage.color);
  rail.Lead(stage.width - end + tubeHalf, stage.width);
  stage.LowerRail();
}

// A stub hangs down; its far end is closed by a bar when shorted.
void StubBody(const StageDrawing& stage, f32 left, f32 right, f32 top, f32 bottom, bool shorted) {
  stage.Line(left, top, left, bottom);
  stage.Line(right, top, right, bottom);
  if (shorted) stage.Line(left, bottom, right, bottom);
}

void StubInLine(const StageDrawing& stage, bool shorted) {
  const f32 half = 110;
  const f32 middle = stage.Middle();
  stage.Line(stage.x, stage.y, middle - half, stage.y);
  stage.Line(middle + half, stage.y, stage.x + stage.width, stage.y);
  StubBody(stage, middle - half, middle + half, stage.y, stage.y + stage.gap * 0.62F, shorted);
  stage.LowerRail();
}

void StubToCommon(const StageDrawing& stage, bool shorted) {
  const f32 half = 110;
  const f32 middle = stage.Middle();
  const f32 far = stage.y + stage.gap * 0.66F;
  stage.UpperRail();
  stage.LowerRail();
  stage.Line(middle - half, stage.y, middle - half, far);
  stage.Line(middle + half, stage.y + stage.gap * 0.2F, middle + half, far);
  // The other conductor belongs to common.
  const f32 side = middle + half + 130;
  stage.Line(middle + half, stage.y + stage.gap * 0.2F, side, stage.y + stage.gap * 0.2F);
  stage.Line(side, stage.y + stage.gap * 0.2F, side, stage.y + stage.gap);
  if (shorted) stage.Line(middle - half, far, middle + half, far);
}

void Windings(const StageDrawing& stage, bool core) {
  const f32 apart = 230;
  const f32 left = stage.Middle() - apart;
  const f32 right = stage.Middle() + apart;
  stage.Line(stage.x, stage.y, left, stage.y);
  stage.Line(right, stage.y, stage.x + stage.width, stage.y);
  stage.LowerRail();
  Inductor(stage.Down(left), 0, stage.gap);
  Inductor(stage.Down(right), 0, stage.gap);
  if (!core) return;
  for (const f32 at : {stage.Middle() - 30, stage.Middle() + 40}) {
    stage.Line(at, stage.y + stage.gap * 0.25F, at, stage.y + stage.gap * 0.75F);
  }
}

}  // namespace

f32 StageWidth(i16 elementType) {
  static constexpr std::array<f32, 22> widths = {0,    960, 960, 1000, 960,  1280, 960, 960, 960,  880,  960,
                                                 1280, 960, 960, 1040, 1040, 960,  0,   0,   1120, 1340, 960};
  return elementType < 1 || elementType > 21 ? 0 : widths[static_cast<std::size_t>(elementType)];
}

void DrawStage(Canvas& canvas, i16 elementType, f32 x, f32 y, f32 gap, Color color) {
  const StageDrawing stage{canvas, x, y, gap, StageWidth(elementType), color};
  switch (elementType) {
    case SeriesL:
      return InLine(stage, {Inductor});
    case SeriesC:
      return InLine(stage, {Capacitor});
    case SeriesR:
      return InLine(stage, {Resistor});
    case SeriesSLC:
      return InLine(stage, {Inductor, Capacitor});
    case SeriesPLC:
      return InLineParallel(stage, {Capacitor, Inductor});
    case SeriesRLC:
      return InLineParallel(stage, {Resistor, Inductor, Capacitor});
    case ShuntL:
      return ToCommon(stage, {Inductor});
    case ShuntC:
      return ToCommon(stage, {Capacitor});
    case ShuntR:
      return ToCommon(stage, {Resistor});
    case ShuntSLC:
      return ToCommon(stage, {Inductor, Capacitor});
    case ShuntRLC:
      return ToCommon(stage, {Resistor, Inductor, Capacitor});
    case ShuntPLC:
      return ToCommonParallel(stage, Inductor, Capacitor);
    case TransLine:
      return LineInLine(stage);
    case SeriesShortStub:
    case SeriesOpenStub:
      return StubInLine(stage, elementType == SeriesShortStub);
    case ShuntShortStub:
    case ShuntOpenStub:
      return StubToCommon(stage, elementType == ShuntShortStub);
    case Transformer:
    case CoupledInductors:
      return Windings(stage, elementType == Transformer);
    default:
      return;
  }
}

void DrawTerminals(Canvas& canvas, f32 x, f32 y, f32 gap, Color color) {
  canvas.Circle(x, y, terminalRadius, color);
  canvas.Circle(x, y + gap, terminalRadius, color);
}

}  // namespace quilm
