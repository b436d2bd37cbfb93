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

void OutlineArea(const Corners& at, Canvas& canvas) {
  const auto& [from, to] = at;
  canvas.DrawWidth = outlineWidth;
  canvas.Rectangle(from.x, from.y, to.x, to.y, limitOutline, false);
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
    OutlineArea(corners, canvas);
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

constexpr f32 signWidth = 500;
constexpr f32 signHeight = 400;
constexpr f32 signEdge = 20;
constexpr Point signMiddle{signWidth / 2, signHeight / 2};

// From left to right.
std::pair<f32, f32> SignReach(LimitReach reach) {
  constexpr f32 halfBand = 100;
  switch (reach) {
    case LimitReach::FromDC:
      return {signEdge, signMiddle.x};
    case LimitReach::Upward:
      return {signMiddle.x, signWidth - signEdge};
    case LimitReach::Band:
      return {signMiddle.x - halfBand, signMiddle.x + halfBand};
    case LimitReach::Single:
      break;
  }
  return {signMiddle.x, signMiddle.x};
}

// From top to bottom.
std::pair<f32, f32> SignSide(LimitSide side) {
  switch (side) {
    case LimitSide::Floor:
      return {signMiddle.y, signHeight - signEdge};
    case LimitSide::Ceiling:
      return {signEdge, signMiddle.y};
    case LimitSide::Point:
      break;
  }
  return {signMiddle.y, signMiddle.y};
}

}  // namespace

Picture LimitShapePicture(int shape) {
  constexpr Color frame = 0x999999;
  constexpr f32 dot = 30;
  const LimitShapeRow& row = ShapeOf(static_cast<f32>(shape));
  const auto [left, right] = SignReach(row.reach);
  const auto [top, bottom] = SignSide(row.side);
  Picture picture(Scale{0, 0, signWidth, signHeight});
  picture.Rectangle(signEdge, signEdge, signWidth - signEdge, signHeight - signEdge, frame, false);
  if (row.side == LimitSide::Point) {
    picture.DrawWidth = 2;
    picture.Rectangle(left - dot, top - dot, right + dot, bottom + dot, colorRed, false);
    return picture;
  }
  picture.Rectangle(left, top, right, bottom, limitFill, true);
  picture.DrawWidth = 2;
  picture.Rectangle(left, top, right, bottom, limitOutline, false);
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
