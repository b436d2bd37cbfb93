#include "schematic/Symbols.h"

#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "core/ElementCatalogue.h"
#include "schematic/PartSymbols.h"

namespace quilm {

namespace {

using Parts = std::span<const Part>;

constexpr std::array inductor = {Part::Inductor};
constexpr std::array mirroredInductor = {Part::MirroredInductor};
constexpr std::array capacitor = {Part::Capacitor};
constexpr std::array resistor = {Part::Resistor};

// From the line on: a resistor comes first.
std::vector<Part> PartsOf(const Element& element) {
  std::vector<Part> parts;
  if (element.Has(SlotCode::Resistance)) parts.push_back(Part::Resistor);
  if (element.Has(SlotCode::Inductance)) parts.push_back(Part::Inductor);
  if (element.Has(SlotCode::Capacitance)) parts.push_back(Part::Capacitor);
  return parts;
}

// From the rail on: a resistor comes last.
std::vector<Parts> BranchesOf(const Element& element) {
  std::vector<Parts> branches = {inductor, capacitor};
  if (element.Has(SlotCode::Resistance)) branches.push_back(resistor);
  return branches;
}

struct StageWidths {
  f32 schematic;
  f32 symbol;
};

StageWidths WidthsOf(i16 elementType) {
  static constexpr std::array<StageWidths, 22> widths = {{
      {0, 0},     {960, 640}, {960, 360}, {1000, 400}, {960, 360},  {1280, 820}, {960, 360},  {960, 800},
      {960, 640}, {880, 580}, {960, 360}, {1280, 880}, {960, 800},  {960, 800},  {1040, 800}, {1040, 800},
      {960, 720}, {0, 0},     {0, 0},     {1120, 720}, {1340, 360}, {960, 800},
  }};
  const bool known = elementType >= 0 && static_cast<std::size_t>(elementType) < widths.size();
  return known ? widths[static_cast<std::size_t>(elementType)] : StageWidths{0, 0};
}

class StageDrawing {
 public:
  StageDrawing(Canvas& canvas, const StageBox& box, Color color, RailForm form)
      : canvas_(canvas), box_(box), color_(color), form_(form) {}

  // Parts one behind the other in the line.
  void InLine(Parts parts) const {
    DrawChain(Rail(0), parts, 0, box_.width);
    Balanced() ? DrawChain(Rail(box_.gap), parts, 0, box_.width) : LowerRail();
  }

  // Branches side by side in the line, the first on the rail and the others between the rails.
  void InLineParallel(const std::vector<Parts>& branches) const {
    constexpr f32 mostSpread = 1.25F;
    constexpr f32 sharedSpread = 0.95F;  // both rails' branches share the room between them
    if (Balanced()) {
      HangBranches(branches, 0, sharedSpread);
      HangBranches(branches, box_.gap, -sharedSpread);
    } else {
      HangBranches(branches, 0, std::fmin(box_.gap / narrowRailGap, mostSpread));
      LowerRail();
    }
  }

  // Parts one below the other from the line to common.
  void ToCommon(Parts parts) const {
    UpperRail();
    Foot();
    DrawChain(Down(Middle()), parts, 0, box_.gap);
  }

  // Two branches to common, joined above and below.
  void ToCommonParallel(Parts left, Parts right) const {
    constexpr f32 half = 170;
    const f32 top = box_.gap * 0.13F;
    const f32 bottom = box_.gap - top;
    UpperRail();
    Foot();
    const Run branch = Down(Middle());
    branch.Lead(0, top);
    branch.Lead(bottom, box_.gap);
    for (const f32 joint : {top, bottom}) branch.Stroke(joint, -half, joint, half);
    DrawChain(Down(Middle() - half), left, top, bottom);
    DrawChain(Down(Middle() + half), right, top, bottom);
  }

  void LineInLine() const {
    LineOn(0);
    Balanced() ? LineOn(box_.gap) : LowerRail();
  }

  void StubInLine(bool shorted) const {
    constexpr f32 aloneAt = 0.45F;  // of the gap away from the rail
    constexpr f32 sharedAt = 0.28F;
    if (Balanced()) {
      StubOn(0, box_.gap * sharedAt, shorted);
      StubOn(box_.gap, -box_.gap * sharedAt, shorted);
    } else {
      StubOn(0, box_.gap * aloneAt, shorted);
      LowerRail();
    }
  }

  // The stub lies between the rails; one of its conductors hangs on the line and the other stands on common.
  void StubToCommon(bool shorted) const {
    const Stub stub{Middle() - 140, Middle() + 190, box_.y + box_.gap / 2};
    const f32 before = stub.from - 120;
    DrawStub(stub, shorted);
    UpperRail();
    LowerRail();
    for (const f32 side : {-lineHalf, lineHalf}) {
      Stroke(before, side < 0 ? box_.y : box_.y + box_.gap, before, stub.y + side);
      Stroke(before, stub.y + side, stub.from, stub.y + side);
    }
  }

  // Two windings that face one another: with a core that of a transformer, else coupled coils with their dots.
  void Windings(bool core) const {
    const f32 apart = core ? 190 : 150;
    const f32 left = Middle() - apart;
    const f32 right = Middle() + apart;
    Stroke(box_.x, box_.y, left, box_.y);
    Stroke(right, box_.y, box_.x + box_.width, box_.y);
    LowerRail();
    DrawChain(Down(left), inductor, 0, box_.gap);
    DrawChain(Down(right), mirroredInductor, 0, box_.gap);
    core ? Core() : Dots(left, right);
  }

 private:
  struct Stub {
    f32 from;
    f32 to;
    f32 y;
  };

  bool Balanced() const { return form_ == RailForm::Balanced; }
  f32 Middle() const { return box_.x + box_.width / 2; }
  Run Rail(f32 below) const { return {canvas_, {box_.x, box_.y + below}, Run::Way::Right, color_}; }
  Run Down(f32 at) const { return {canvas_, {at, box_.y}, Run::Way::Down, color_}; }
  void Stroke(f32 x1, f32 y1, f32 x2, f32 y2) const { canvas_.Line(x1, y1, x2, y2, color_); }
  void UpperRail() const { Rail(0).Lead(0, box_.width); }
  void LowerRail() const {
    if (form_ != RailForm::Grounded) Rail(box_.gap).Lead(0, box_.width);
  }

  // Where a branch from the upper rail ends.
  void Foot() const {
    LowerRail();
    if (form_ == RailForm::Grounded) DrawGround(canvas_, Middle(), box_.y + box_.gap, 1, color_);
  }

  // Below the rail for a positive spread, above it for a negative one.
  void HangBranches(const std::vector<Parts>& branches, f32 rail, f32 spread) const {
    constexpr f32 halfFrame = 320;
    constexpr f32 firstDrop = 210;
    constexpr f32 nextDrop = 230;
    const f32 left = box_.width / 2 - halfFrame;
    const f32 right = box_.width / 2 + halfFrame;
    f32 drop = 0;
    f32 last = 0;
    for (const Parts branch : branches) {
      DrawChain(Rail(rail + drop), branch, left, right);
      last = drop;
      drop += (drop == 0 ? firstDrop : nextDrop) * spread;
    }
    const Run line = Rail(rail);
    line.Lead(0, left);
    line.Lead(right, box_.width);
    for (const f32 side : {left, right}) line.Stroke(side, 0, side, -last);
  }

  void LineOn(f32 rail) const {
    constexpr f32 half = 300;
    const f32 left = box_.width / 2 - half;
    const f32 right = box_.width / 2 + half;
    Rail(rail).Lead(0, left);
    DrawLine(canvas_, box_.x + left, box_.x + right, box_.y + rail, color_);
    Rail(rail).Lead(right + lineBulge, box_.width);
  }

  // The rail is broken; the stub lies `away` below it, or above it where that is negative, and has one conductor at
  // each side of the break.
  void StubOn(f32 rail, f32 away, bool shorted) const {
    const f32 y = box_.y + rail;
    const Stub stub{Middle() - 110, Middle() + 220, y + away};
    const f32 far = stub.y + std::copysign(lineHalf, away);
    const f32 near = stub.y - std::copysign(lineHalf, away);
    const f32 before = stub.from - 180;
    const f32 behind = stub.from - 90;
    DrawStub(stub, shorted);
    Stroke(box_.x, y, before, y);
    Stroke(before, y, before, far);
    Stroke(before, far, stub.from, far);
    Stroke(behind, y, box_.x + box_.width, y);
    Stroke(behind, y, behind, near);
    Stroke(behind, near, stub.from, near);
  }

  // The conductors go on a little beyond the sheath, so that a short or an open end shows.
  void DrawStub(const Stub& stub, bool shorted) const {
    constexpr f32 beyond = 170;
    const f32 end = stub.to + beyond;
    DrawLine(canvas_, stub.from, stub.to, stub.y, color_);
    for (const f32 side : {-lineHalf, lineHalf}) Stroke(stub.to, stub.y + side, end, stub.y + side);
    if (shorted) Stroke(end, stub.y - lineHalf, end, stub.y + lineHalf);
  }

  void Core() const {
    constexpr f32 half = 240;
    constexpr f32 bar = 35;
    const f32 middle = box_.y + box_.gap / 2;
    for (const f32 side : {-bar, bar}) Stroke(Middle() + side, middle - half, Middle() + side, middle + half);
  }

  void Dots(f32 left, f32 right) const {
    constexpr f32 radius = 22;
    constexpr f32 beside = 75;
    const f32 top = box_.y + box_.gap / 2 - BodyLength(Part::Inductor) / 2;
    canvas_.Circle(left - beside, top, radius, color_);
    canvas_.Circle(right + beside, top, radius, color_);
  }

  Canvas& canvas_;
  StageBox box_;
  Color color_;
  RailForm form_;
};

}  // namespace

f32 StageWidth(i16 elementType) { return WidthsOf(elementType).schematic; }

f32 SymbolWidth(i16 elementType) { return WidthsOf(elementType).symbol; }

f32 SymbolDrop(i16 elementType, RailForm form) {
  constexpr f32 belowOne = 150;
  constexpr f32 belowTwo = 370;
  constexpr f32 belowStub = 620;
  constexpr f32 betweenStubs = 430;
  const Element* element = FindElement(elementType);
  if (element == nullptr) return 0;
  if (element->joint == Joint::Line) return belowOne;
  if (element->placement != Placement::Series) return 0;
  switch (element->joint) {
    case Joint::Chain:
      return belowOne;
    case Joint::Parallel:
      return element->Has(SlotCode::Resistance) ? 0 : belowTwo;
    case Joint::ShortStub:
    case Joint::OpenStub:
      return form == RailForm::Balanced ? betweenStubs : belowStub;
    default:
      return 0;
  }
}

void DrawStage(Canvas& canvas, i16 elementType, const StageBox& box, Color color, RailForm form) {
  const StageDrawing stage(canvas, box, color, form);
  const Element* element = FindElement(elementType);
  if (element == nullptr) return;
  const bool series = element->placement == Placement::Series;
  switch (element->joint) {
    case Joint::Chain:
      return series ? stage.InLine(PartsOf(*element)) : stage.ToCommon(PartsOf(*element));
    case Joint::Parallel:
      return series ? stage.InLineParallel(BranchesOf(*element)) : stage.ToCommonParallel(mirroredInductor, capacitor);
    case Joint::Line:
      return stage.LineInLine();
    case Joint::ShortStub:
    case Joint::OpenStub:
      return series ? stage.StubInLine(element->joint == Joint::ShortStub)
                    : stage.StubToCommon(element->joint == Joint::ShortStub);
    case Joint::Transformer:
    case Joint::Coupled:
      return stage.Windings(element->joint == Joint::Transformer);
    case Joint::Reactance:
      return;
  }
}

void DrawStage(Canvas& canvas, i16 elementType, f32 x, f32 y, f32 gap, Color color) {
  DrawStage(canvas, elementType, StageBox{x, y, StageWidth(elementType), gap}, color);
}

void DrawRails(Canvas& canvas, const StageBox& box, Color color) {
  for (const f32 y : {box.y, box.y + box.gap}) canvas.Line(box.x, y, box.x + box.width, y, color);
}

void DrawTerminals(Canvas& canvas, f32 x, f32 y, f32 gap, Color color) {
  DrawTerminal(canvas, x, y, color);
  DrawTerminal(canvas, x, y + gap, color);
}

}  // namespace quilm
