// The printed grids under the two round plots, and where a point of the complex plane stands on them.
//
// P. H. Smith, "Transmission line calculator", Electronics 12 (1939): a circle of constant normalised resistance r has
// its centre at r / (r + 1) and the radius 1 / (r + 1); an arc of constant reactance x belongs to the circle of radius
// 1/x about (1, 1/x).
#pragma once

#include <vector>

#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr Point chartCenter{6500, 4000};
inline constexpr f32 chartRadius = 3000;  // of the unit circle without zoom

// A chart's stretch in x, in units of the scale, and its zoom about the centre.
struct ChartScale {
  f32 aspect = 1;
  f32 zoom = 1;

  // Of a point of the plane; w, the imaginary part, points up.
  Point At(f64 u, f64 w) const;
};

struct ChartBox {
  f32 left;
  f32 top;
  f32 right;
  f32 bottom;
  constexpr bool Holds(Point p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
};

// Lines from point to point within a box. A point outside is not drawn and breaks the path.
class BoxedPath {
 public:
  BoxedPath(Canvas& canvas, const ChartBox& box, Color color) : canvas_(canvas), box_(box), color_(color) {}
  ~BoxedPath() { Break(); }
  BoxedPath(const BoxedPath&) = delete;
  BoxedPath& operator=(const BoxedPath&) = delete;

  void To(Point point);
  void Break();

 private:
  Canvas& canvas_;
  ChartBox box_;
  Color color_;
  std::vector<Point> run_;
};

// Circles of resistance, arcs of reactance, rim, axis and their labels.
void DrawSmithGrid(const ChartScale& scale, Canvas& canvas);

// Rings of 2 dB down to -20 dB, spokes every 30 degrees, and their labels.
void DrawPolarGrid(const ChartScale& scale, Canvas& canvas);

}  // namespace quilm
