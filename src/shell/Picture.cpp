#include "shell/Picture.h"

#include <cmath>
#include <sstream>

namespace quilm {

namespace {

template <class... Handlers>
struct Overloaded : Handlers... {
  using Handlers::operator()...;
};
template <class... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

// Where a picture lands on the canvas that it is replayed into.
struct Placement {
  f32 xScale = 1;
  f32 xShift = 0;
  f32 yScale = 1;
  f32 yShift = 0;

  Point operator()(Point p) const { return Point{p.x * xScale + xShift, p.y * yScale + yShift}; }
};

void TakePen(Canvas& canvas, const Pen& pen) {
  canvas.DrawWidth = pen.width;
  canvas.DrawStyle = pen.style;
  canvas.DrawMode = pen.mode;
}

void Draw(const PictureOp& operation, Canvas& canvas, const Placement& place) {
  std::visit(Overloaded{
                 [&](const PolylineOp& op) {
                   TakePen(canvas, op.pen);
                   std::vector<Point> points = op.points;
                   for (Point& p : points) p = place(p);
                   canvas.Polyline(points, op.pen.color);
                 },
                 [&](const RectangleOp& op) {
                   TakePen(canvas, op.pen);
                   const Point from = place(op.from);
                   const Point to = place(op.to);
                   canvas.Rectangle(from.x, from.y, to.x, to.y, op.pen.color, op.filled);
                 },
                 [&](const CircleOp& op) {
                   TakePen(canvas, op.pen);
                   const Point center = place(op.center);
                   canvas.Circle(center.x, center.y, op.r * std::fabs(place.xScale), op.pen.color, op.start, op.stop,
                                 op.aspect * std::fabs(place.yScale / place.xScale));
                 },
                 [&](const PointOp& op) {
                   TakePen(canvas, op.pen);
                   const Point at = place(op.at);
                   canvas.PSet(at.x, at.y, op.pen.color);
                 },
                 [&](const TextOp& op) {
                   const Point at = place(op.at);
                   canvas.ForeColor = op.color;
                   canvas.FontName = op.font.name;
                   canvas.FontSize = op.font.size * std::fabs(place.yScale);
                   canvas.FontBold = op.font.bold;
                   canvas.CurrentX = at.x;
                   canvas.CurrentY = at.y;
                   canvas.Print(op.text);
                 },
             },
             operation);
}

std::ostream& operator<<(std::ostream& out, Point p) { return out << '(' << p.x << ", " << p.y << ')'; }

std::ostream& operator<<(std::ostream& out, const Pen& pen) {
  out << " color 0x" << std::hex << pen.color << std::dec << " width " << pen.width;
  if (pen.style != LineStyle::Solid) out << " style " << static_cast<int>(pen.style);
  if (pen.mode != PenMode::Copy) out << " mode " << static_cast<int>(pen.mode);
  return out;
}

}  // namespace

void Picture::Append(PictureOp operation) {
  operations_.push_back(std::move(operation));
  ++revision_;
}

void Picture::DrawPolyline(std::span<const Point> points, Color color) {
  Append(PolylineOp{{points.begin(), points.end()}, PenOf(color)});
}

void Picture::DrawRectangle(Point from, Point to, Color color, bool filled) {
  Append(RectangleOp{from, to, filled, PenOf(color)});
}

void Picture::DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) {
  Append(CircleOp{center, r, start, stop, aspect, PenOf(color)});
}

void Picture::DrawPoint(Point at, Color color) { Append(PointOp{at, PenOf(color)}); }

void Picture::DrawText(Point at, std::string_view text) {
  Append(TextOp{at, std::string(text), ForeColor, CurrentFont()});
}

void Picture::DrawClear() {
  operations_.clear();
  ++revision_;
}

void Picture::Replay(Canvas& canvas) const {
  canvas.SetScale(CurrentScale());
  canvas.BackColor = BackColor;
  canvas.Clear();
  for (const PictureOp& operation : operations_) Draw(operation, canvas, Placement{});
}

void Picture::ReplayInto(Canvas& canvas, Point from, Point to) const {
  Placement place;
  place.xScale = (to.x - from.x) / ScaleWidth;
  place.yScale = (to.y - from.y) / ScaleHeight;
  place.xShift = from.x - ScaleLeft * place.xScale;
  place.yShift = from.y - ScaleTop * place.yScale;
  for (const PictureOp& operation : operations_) Draw(operation, canvas, place);
}

std::string Picture::Dump() const {
  std::ostringstream out;
  for (const PictureOp& operation : operations_) {
    std::visit(Overloaded{
                   [&](const PolylineOp& op) {
                     out << "line";
                     for (const Point p : op.points) out << ' ' << p;
                     out << op.pen;
                   },
                   [&](const RectangleOp& op) {
                     out << (op.filled ? "box " : "rectangle ") << op.from << ' ' << op.to << op.pen;
                   },
                   [&](const CircleOp& op) {
                     out << "circle " << op.center << " r " << op.r << " from " << op.start << " to " << op.stop
                         << " aspect " << op.aspect << op.pen;
                   },
                   [&](const PointOp& op) { out << "point " << op.at << op.pen; },
                   [&](const TextOp& op) {
                     out << "text " << op.at << " \"" << op.text << "\" color 0x" << std::hex << op.color << std::dec
                         << ' ' << op.font.name << ' ' << op.font.size << (op.font.bold ? " bold" : "");
                   },
               },
               operation);
    out << '\n';
  }
  return out.str();
}

bool operator==(const Picture& a, const Picture& b) {
  return a.CurrentScale() == b.CurrentScale() && a.BackColor == b.BackColor && a.operations_ == b.operations_;
}

}  // namespace quilm
