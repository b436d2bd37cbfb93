#include "shell/Ink.h"

#include <algorithm>

namespace quilm {

void Ink::Stroke(const std::vector<InkPoint>& points, Color color) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    const InkPoint a = points[i - 1];
    const InkPoint b = points[i];
    const int steps = 1 + static_cast<int>(std::hypot(b.x - a.x, b.y - a.y));
    for (int k = 0; k <= steps; ++k) {
      const f64 t = static_cast<f64>(k) / steps;
      dots_.push_back({{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}, color});
    }
  }
}

void Ink::Fill(const Box& box, Color color) { areas_.push_back({box, color}); }

bool Ink::Covers(const Box& box, Color color) const {
  const auto dotInside = [&](const Dot& dot) {
    return dot.color == color && dot.at.x >= box.left && dot.at.x <= box.right && dot.at.y >= box.top &&
           dot.at.y <= box.bottom;
  };
  const auto areaMeets = [&](const Area& area) {
    return area.color == color && area.box.left <= box.right && area.box.right >= box.left &&
           area.box.top <= box.bottom && area.box.bottom >= box.top;
  };
  return std::any_of(dots_.begin(), dots_.end(), dotInside) || std::any_of(areas_.begin(), areas_.end(), areaMeets);
}

std::vector<InkPoint> EllipsePoints(InkPoint center, f64 halfWidth, f64 halfHeight, f64 start, f64 sweep) {
  constexpr int steps = 180;
  std::vector<InkPoint> points;
  for (int i = 0; i <= steps; ++i) {
    const f64 angle = start + sweep * i / steps;
    points.push_back({center.x + halfWidth * std::cos(angle), center.y - halfHeight * std::sin(angle)});
  }
  return points;
}

}  // namespace quilm
