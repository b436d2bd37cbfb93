#include "shell/PictureOp.h"

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

void TakePen(Canvas& canvas, const Pen& pen) {
  canvas.DrawWidth = pen.width;
  canvas.DrawStyle = pen.style;
  canvas.DrawMode = pen.mode;
  canvas.ShowOn = pen.showOn;
}

// Most drawings land where they were made, and a trace has thousands of points.
void DrawLine(const PolylineOp& op, Canvas& canvas, const PicturePlace& place) {
  TakePen(canvas, op.pen);
  if (place == PicturePlace{}) {
    canvas.Polyline(op.points, op.pen.color);
    return;
  }
  std::vector<Point> points = op.points;
  for (Point& p : points) p = place(p);
  canvas.Polyline(points, op.pen.color);
}

std::ostream& operator<<(std::ostream& out, Point p) { return out << '(' << p.x << ", " << p.y << ')'; }

std::ostream& operator<<(std::ostream& out, Medium medium) {
  if (medium == Medium::Everywhere) return out;
  return out << (medium == Medium::Screen ? " on screen" : " on paper");
}

std::ostream& operator<<(std::ostream& out, const TextFit& fit) {
  if (fit.anchor != TextFit{}.anchor) out << " anchor " << fit.anchor;
  if (fit.room != 0) out << " room " << fit.room;
  return out;
}

std::ostream& operator<<(std::ostream& out, const Pen& pen) {
  out << " color 0x" << std::hex << pen.color << std::dec << " width " << pen.width;
  if (pen.style != LineStyle::Solid) out << " style " << static_cast<int>(pen.style);
  if (pen.mode != PenMode::Copy) out << " mode " << static_cast<int>(pen.mode);
  return out << pen.showOn;
}

}  // namespace

void DrawOperation(const PictureOp& operation, Canvas& canvas, const PicturePlace& place) {
  std::visit(Overloaded{
                 [&](const PolylineOp& op) { DrawLine(op, canvas, place); },
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
                   canvas.Fit = {op.fit.anchor, op.fit.room * std::fabs(place.xScale)};
                   canvas.ShowOn = op.showOn;
                   canvas.CurrentX = at.x;
                   canvas.CurrentY = at.y;
                   canvas.Print(op.text);
                 },
             },
             operation);
}

std::string DumpOperation(const PictureOp& operation) {
  std::ostringstream out;
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
                       << ' ' << op.font.name << ' ' << op.font.size << (op.font.bold ? " bold" : "") << op.fit
                       << op.showOn;
                 },
             },
             operation);
  return out.str();
}

}  // namespace quilm
