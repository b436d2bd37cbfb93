#include "shell/Canvas.h"

#include <array>

namespace quilm {

bool Canvas::ShowsHere() const {
  const Medium here = SurfaceMedium();
  return ShowOn == Medium::Everywhere || here == Medium::Everywhere || ShowOn == here;
}

void Canvas::Line(f32 x1, f32 y1, f32 x2, f32 y2, Color color) {
  const std::array<Point, 2> ends{Point{x1, y1}, Point{x2, y2}};
  Polyline(ends, color);
}

void Canvas::Polyline(std::span<const Point> points, Color color) {
  if (points.size() < 2) return;
  if (ShowsHere()) DrawPolyline(points, color);
  CurrentX = points.back().x;
  CurrentY = points.back().y;
}

void Canvas::Rectangle(f32 x1, f32 y1, f32 x2, f32 y2, Color color, bool filled) {
  if (ShowsHere()) DrawRectangle(Point{x1, y1}, Point{x2, y2}, color, filled);
}

void Canvas::Circle(f32 x, f32 y, f32 r, Color color, f32 start, f32 stop, f32 aspect) {
  if (ShowsHere()) DrawCircle(Point{x, y}, r, color, start, stop, aspect);
}

void Canvas::PSet(f32 x, f32 y, Color color) {
  if (ShowsHere()) DrawPoint(Point{x, y}, color);
}

void Canvas::Print(std::string_view text) {
  if (ShowsHere()) DrawText(Point{CurrentX, CurrentY}, text);
  CurrentY += TextHeight(text);
}

void Canvas::PrintAt(f32 x, f32 y, std::string_view text) {
  CurrentX = x;
  CurrentY = y;
  Print(text);
}

f32 Canvas::TextWidth(std::string_view text) const {
  const f64 twips = Metrics().WidthInPoints(text, CurrentFont()) * twipsPerPoint;
  return static_cast<f32>(twips / static_cast<f64>(ScaleShape.xUnit));
}

f32 Canvas::TextHeight(std::string_view text) const {
  return static_cast<f32>(Metrics().HeightInPoints(text, CurrentFont()) * twipsPerPoint);
}

void Canvas::Clear() {
  DrawClear();
  CurrentX = 0;
  CurrentY = 0;
}

void Canvas::SetScale(const Scale& scale) {
  ScaleLeft = scale.left;
  ScaleTop = scale.top;
  ScaleWidth = scale.width;
  ScaleHeight = scale.height;
  ScaleShape = scale.shape;
}

}  // namespace quilm
