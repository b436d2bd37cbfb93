#include "shell/Recorder.h"

namespace quilm {

void Recorder::DrawPolyline(std::span<const Point> points, Color color) {
  Append(PolylineOp{{points.begin(), points.end()}, PenOf(color)});
}

void Recorder::DrawRectangle(Point from, Point to, Color color, bool filled) {
  Append(RectangleOp{from, to, filled, PenOf(color)});
}

void Recorder::DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) {
  Append(CircleOp{center, r, start, stop, aspect, PenOf(color)});
}

void Recorder::DrawPoint(Point at, Color color) { Append(PointOp{at, PenOf(color)}); }

void Recorder::DrawText(Point at, std::string_view text) {
  Append(TextOp{at, std::string(text), ForeColor, CurrentFont(), Fit, ShowOn});
}

}  // namespace quilm
