// What a drawing covers, as strokes of short segments and filled boxes: enough to ask what lies where.
#pragma once

#include <vector>

#include "shell/Canvas.h"
#include "support/CanvasConformance.h"

namespace quilm {

struct InkPoint {
  f64 x = 0;
  f64 y = 0;
};

class Ink {
 public:
  void Stroke(const std::vector<InkPoint>& points, Color color);
  void Fill(const Box& box, Color color);
  // Whether anything of the colour lies in the box. Strokes are sampled every unit.
  bool Covers(const Box& box, Color color) const;

 private:
  struct Dot {
    InkPoint at;
    Color color;
  };
  struct Area {
    Box box;
    Color color;
  };
  std::vector<Dot> dots_;
  std::vector<Area> areas_;
};

// The points of an ellipse from one angle on, anticlockwise as seen.
std::vector<InkPoint> EllipsePoints(InkPoint center, f64 halfWidth, f64 halfHeight, f64 start, f64 sweep);

}  // namespace quilm
