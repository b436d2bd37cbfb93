// The operations of a retained drawing: plain values that can be compared, printed as text and drawn anywhere.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "shell/Canvas.h"

namespace quilm {

// The pen of an operation that draws lines.
struct Pen {
  Color color = colorBlack;
  i16 width = 1;
  LineStyle style = LineStyle::Solid;
  PenMode mode = PenMode::Copy;
  Medium showOn = Medium::Everywhere;
  bool operator==(const Pen&) const = default;
};

struct PolylineOp {
  std::vector<Point> points;  // two of them are a plain line
  Pen pen;
  bool operator==(const PolylineOp&) const = default;
};

struct RectangleOp {
  Point from;
  Point to;
  bool filled = false;
  Pen pen;
  bool operator==(const RectangleOp&) const = default;
};

struct CircleOp {
  Point center;
  f32 r = 0;
  f32 start = 0;
  f32 stop = 0;
  f32 aspect = 1;
  Pen pen;
  bool operator==(const CircleOp&) const = default;
};

struct PointOp {
  Point at;
  Pen pen;
  bool operator==(const PointOp&) const = default;
};

struct TextOp {
  Point at;
  std::string text;
  Color color = colorBlack;
  Font font;
  TextFit fit = {};
  Medium showOn = Medium::Everywhere;
  bool operator==(const TextOp&) const = default;
};

using PictureOp = std::variant<PolylineOp, RectangleOp, CircleOp, PointOp, TextOp>;

// Where a drawing lands on the canvas that it is drawn into: coordinates times a scale, and shifted.
struct PicturePlace {
  f32 xScale = 1;
  f32 xShift = 0;
  f32 yScale = 1;
  f32 yShift = 0;

  Point operator()(Point p) const { return Point{p.x * xScale + xShift, p.y * yScale + yShift}; }
  bool operator==(const PicturePlace&) const = default;
};

// Draws one operation with its own pen or font, which the canvas keeps. Text sizes follow the vertical scale.
void DrawOperation(const PictureOp& operation, Canvas& canvas, const PicturePlace& place = {});

// One line, for test reports and differences.
std::string DumpOperation(const PictureOp& operation);

}  // namespace quilm
