#include "display/PlotCurve.h"

#include <variant>
#include <vector>

namespace quilm {

void DrawCurve(const Curve& curve, const ValueScale& scale, Color color, const PlotPlane& plane, Canvas& canvas) {
  if (curve.frequencies.empty()) return;
  const std::span<const f64> fractions = FractionsAlong(plane.axis, curve.frequencies, plane.kept);
  std::vector<Point> points =
      std::visit([&](const auto& values) { return FramePoints(fractions, scale, values, plane.box); }, curve.values);
  points.insert(points.begin(), points.front());
  canvas.Polyline(points, color);
}

}  // namespace quilm
