#include "display/LimitDrawing.h"

#include <algorithm>
#include <array>
#include <utility>

#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr i16 outlineWidth = 3;

// The two corners of what is drawn of an area.
struct Corners {
  Point upperLeft;
  Point lowerRight;
};

Corners CornersOf(const LimitArea& area, const HorizontalAxis& axis, const ValueScale& scale) {
  const auto x = [&axis](f32 frequency) {
    return std::clamp(FrameX(axis.Fraction(frequency)), plotFrame.left, plotFrame.Right());
  };
  return {{x(std::min(area.start, area.stop)), FrameY(scale, area.top)},
          {x(std::max(area.start, area.stop)), FrameY(scale, area.bottom)}};
}

void FillArea(const Corners& at, Canvas& canvas) {
  const auto& [from, to] = at;
  canvas.DrawWidth = 1;
  canvas.Rectangle(from.x, from.y, to.x, to.y, limitFill, true);
}

// Of an area without width, or without height, a line is seen everywhere; a flat box is not.
void OutlineArea(const Corners& at, i16 width, Canvas& canvas) {
  const auto& [from, to] = at;
  canvas.DrawWidth = width;
  if (from.x == to.x || from.y == to.y) {
    canvas.Line(from.x, from.y, to.x, to.y, limitOutline);
  } else {
    canvas.Rectangle(from.x, from.y, to.x, to.y, limitOutline, false);
  }
}

// A point has no room to be filled.
void DrawPointArea(Point at, Canvas& canvas) {
  constexpr f32 beyond = 30;
  canvas.DrawWidth = outlineWidth;
  canvas.Rectangle(at.x - beyond, at.y - beyond, at.x + beyond, at.y + beyond, colorRed, false);
}

bool IsPoint(const LimitArea& area) { return area.start == area.stop && area.top == area.bottom; }

enum class Filled { No, Yes };

void DrawAreas(const PlotSetup& setup, Filled filled, Canvas& canvas) {
  if (setup.areas.empty()) return;
  const PenScope pen(canvas);
  const ValueScale scale = ScaleOf(setup.scales, LimitedQuantity(LimitTypeOf(setup.scales.PlotCode)));
  for (const LimitArea& area : setup.areas) {
    // A frequency of 0 has no place on a logarithmic axis.
    if (!(area.start > 0 && area.stop > 0)) continue;
    const Corners corners = CornersOf(area, setup.axis, scale);
    if (IsPoint(area)) {
      DrawPointArea(corners.upperLeft, canvas);
      continue;
    }
    if (filled == Filled::Yes) FillArea(corners, canvas);
    OutlineArea(corners, outlineWidth, canvas);
  }
}

}  // namespace

int LimitTypeOf(i16 plotCode) {
  constexpr std::array types = {0, 1, 2, 3, 4, 5, 6, 6, 0, 6, 6, 0, 0, 5};
  return plotCode >= 0 && plotCode < static_cast<i16>(types.size()) ? types[static_cast<std::size_t>(plotCode)] : 0;
}

Quantity LimitedQuantity(int type) {
  constexpr std::array quantities = {Quantity::Transmission, Quantity::Return, Quantity::Angle,
                                     Quantity::Delay,        Quantity::VSWR,   Quantity::Zin};
  return quantities.at(static_cast<std::size_t>(type - 1));
}

std::vector<LimitArea> ShownAreas(const PlotScales& scales, const LimitsAndMarkers& limits) {
  const int type = LimitTypeOf(scales.PlotCode);
  std::vector<LimitArea> areas;
  if (limits.LimitsShown == 0 || type == 0) return areas;
  for (int j = 1; j <= limits.LimitCount[type]; ++j) areas.push_back(AreaAt(limits, type, j));
  return areas;
}

void DrawLimitAreas(const PlotSetup& setup, Canvas& canvas) { DrawAreas(setup, Filled::Yes, canvas); }

void DrawLimitOutlines(const PlotSetup& setup, Canvas& canvas) { DrawAreas(setup, Filled::No, canvas); }

namespace {

// From left to right, as parts of the width.
std::pair<f32, f32> SignReach(LimitReach reach) {
  switch (reach) {
    case LimitReach::FromDC:
      return {0, 0.5F};
    case LimitReach::Upward:
      return {0.5F, 1};
    case LimitReach::Band:
      return {0.3F, 0.7F};
    case LimitReach::Single:
      break;
  }
  return {0.5F, 0.5F};
}

// From top to bottom, as parts of the height.
std::pair<f32, f32> SignSide(LimitSide side) {
  switch (side) {
    case LimitSide::Floor:
      return {0.5F, 1};
    case LimitSide::Ceiling:
      return {0, 0.5F};
    case LimitSide::Point:
      break;
  }
  return {0.5F, 0.5F};
}

}  // namespace

void DrawLimitShape(int shape, const PlotBox& box, Canvas& canvas) {
  constexpr Color frame = 0x999999;
  constexpr f32 edge = 0.05F;  // of width and height
  constexpr f32 dot = 0.07F;
  const PenScope pen(canvas);
  const LimitShapeRow& row = ShapeOf(static_cast<f32>(shape));
  const PlotBox inner{box.left + edge * box.width, box.top + edge * box.height, (1 - 2 * edge) * box.width,
                      (1 - 2 * edge) * box.height};
  const auto place = [&inner](f32 x, f32 y) {
    return Point{inner.left + x * inner.width, inner.top + y * inner.height};
  };
  const auto [left, right] = SignReach(row.reach);
  const auto [top, bottom] = SignSide(row.side);
  canvas.Rectangle(inner.left, inner.top, inner.Right(), inner.Bottom(), frame, false);
  if (row.side == LimitSide::Point) {
    const Point from = place(left - dot, top - dot);
    const Point to = place(right + dot, bottom + dot);
    canvas.DrawWidth = 2;
    canvas.Rectangle(from.x, from.y, to.x, to.y, colorRed, false);
    return;
  }
  const Corners corners{place(left, top), place(right, bottom)};
  FillArea(corners, canvas);
  OutlineArea(corners, 2, canvas);
}

Picture LimitShapePicture(int shape) {
  constexpr PlotBox whole{0, 0, 500, 400};
  Picture picture(Scale{whole.left, whole.top, whole.width, whole.height});
  DrawLimitShape(shape, whole, picture);
  return picture;
}

const char* LimitShapeName(int shape) {
  static constexpr std::array<const char*, limitShapes> names = {
      "Floor from DC",          "Ceiling upward",           "Floor upward",
      "Ceiling from DC",        "Floor in a band",          "Ceiling in a band",
      "Floor at one frequency", "Ceiling at one frequency", "A point"};
  return names.at(static_cast<std::size_t>(shape - 1));
}

}  // namespace quilm
