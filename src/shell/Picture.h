// The retained picture: an ordered list of what was drawn, a plain value that can be compared, printed as text and
// replayed into any other canvas. Replaying a picture into an empty one gives an equal one.
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
  bool operator==(const TextOp&) const = default;
};

using PictureOp = std::variant<PolylineOp, RectangleOp, CircleOp, PointOp, TextOp>;

class Picture : public Canvas {
 public:
  Picture() = default;
  explicit Picture(const Scale& scale) { SetScale(scale); }

  const std::vector<PictureOp>& Operations() const { return operations_; }
  bool Empty() const { return operations_.empty(); }

  // Grows with every change, also by Clear; a view redraws when it has moved on.
  i32 Revision() const { return revision_; }

  // Draws all operations into `canvas`, which takes this picture's scale and background and is cleared first.
  void Replay(Canvas& canvas) const;

  // Draws all operations over what `canvas` holds, mapped so that this picture's scale fills the box given in the
  // canvas' scale (a small picture on a button, a corner plot). Text sizes follow the height of the box.
  void ReplayInto(Canvas& canvas, Point from, Point to) const;

  // One operation a line, for test reports and differences.
  std::string Dump() const;

  // Equal pictures show the same: same scale, background and operations. The pen at rest does not count.
  friend bool operator==(const Picture& a, const Picture& b);

 protected:
  void DrawPolyline(std::span<const Point> points, Color color) override;
  void DrawRectangle(Point from, Point to, Color color, bool filled) override;
  void DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) override;
  void DrawPoint(Point at, Color color) override;
  void DrawText(Point at, std::string_view text) override;
  void DrawClear() override;

 private:
  Pen PenOf(Color color) const { return Pen{color, DrawWidth, DrawStyle, DrawMode}; }
  void Append(PictureOp operation);

  std::vector<PictureOp> operations_;
  i32 revision_ = 0;
};

}  // namespace quilm
