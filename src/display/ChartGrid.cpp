#include "display/ChartGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "display/PlotText.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr Color pale = 0xE6DFD2;
constexpr Color dark = 0x9A8F80;
constexpr Color rim = 0x444444;
constexpr ChartBox page{-1000, -1000, 13000, 10000};  // somewhat more than the picture
// Labels that a zoom has moved off the chart are left out.
constexpr ChartBox labelFrame{1000, 700, 11400, 7200};

constexpr f32 besideSpoke = 50;
constexpr f64 radian = 57.29577951308232;  // degrees

// Values of resistance and reactance of the fine grid.
const std::vector<f64>& FineValues() {
  static const std::vector<f64> values = [] {
    std::vector<f64> list;
    for (int i = 1; i <= 10; ++i) list.push_back(i * 0.1);
    for (int i = 6; i <= 10; ++i) list.push_back(i * 0.2);
    for (int i = 3; i <= 5; ++i) list.push_back(i);
    return list;
  }();
  return values;
}

constexpr std::array<f64, 5> strongValues = {2, 1, 0.5, 0.2, 5};

// An arc of the plane about (u, w), angles in degrees, anticlockwise for a positive sign and mirrored at the axis for a
// negative one.
struct Arc {
  f64 u;
  f64 w;
  f64 radius;
  f64 start;
  f64 stop;
  int sign = 1;
};

// Draws the arc in steps of `step` degrees. Large ones go in finer steps, so that the break at the page's bound, which
// takes a whole step, stays out of the picture. Points within the innermost strong circle are left out on demand.
class ArcDrawing {
 public:
  ArcDrawing(const ChartScale& scale, Canvas& canvas, Color color) : scale_(scale), path_(canvas, page, color) {}

  bool keepOutOfInnermost = false;

  void Draw(const Arc& arc, f64 step) {
    const f64 fine = step / Substeps(arc.radius, step);
    for (f64 angle = arc.start;; angle = std::min(angle + fine, arc.stop)) {
      const f64 u = arc.u + arc.radius * std::cos(angle / radian);
      const f64 w = arc.sign * (arc.w + arc.radius * std::sin(angle / radian));
      if (keepOutOfInnermost && InsideInnermost(u, w)) {
        path_.Break();
      } else {
        path_.To(scale_.At(u, w));
      }
      if (angle >= arc.stop) return;
    }
  }

 private:
  // Within the circle of resistance 5 the strong arcs would run into one another.
  static bool InsideInnermost(f64 u, f64 w) { return std::hypot(u - 5.0 / 6, w) < 1.0 / 6; }

  f64 Substeps(f64 radius, f64 step) const {
    constexpr f64 longestChord = 400;  // in user scale
    const f64 chord = radius * static_cast<f64>(chartRadius) * static_cast<f64>(scale_.zoom) * step / radian;
    return std::max(std::ceil(chord / longestChord), 1.0);
  }

  const ChartScale& scale_;
  BoxedPath path_;
};

void ResistanceCircle(const ChartScale& scale, Canvas& canvas, f64 r, Color color) {
  ArcDrawing(scale, canvas, color).Draw({r / (r + 1), 0, 1 / (r + 1), 0, 360}, 2);
}

// The two arcs of reactance x and -x from the rim to the point of infinite impedance.
void ReactanceArcs(const ChartScale& scale, Canvas& canvas, f64 x, Color color, bool strong) {
  const f64 radius = 1 / x;
  const f64 square = x * x;
  // Seen from the arc's centre at (1, radius): the rim is met at `start`, the right end of the axis at 270 degrees.
  f64 start = std::atan2(2 * x / (square + 1) - radius, -2 / (square + 1)) * radian;
  if (start < 0) start += 360;
  for (const int sign : {1, -1}) {
    ArcDrawing drawing(scale, canvas, color);
    drawing.keepOutOfInnermost = strong;
    drawing.Draw({1, radius, radius, start, 270, sign}, 2);
  }
}

// A circle about the centre.
void Ring(const ChartScale& scale, Canvas& canvas, f64 radius, Color color) {
  ArcDrawing(scale, canvas, color).Draw({0, 0, radius, 0, 360}, 3);
}

void Axis(const ChartScale& scale, Canvas& canvas) {
  const f32 left = std::max(scale.At(-1, 0).x, page.left);
  const f32 right = std::min(scale.At(1, 0).x, page.right);
  canvas.Line(left, chartCenter.y, right, chartCenter.y, rim);
}

// A label about a point, unless it lies outside the frame of the chart.
void Label(Canvas& canvas, Point at, const std::string& text) {
  if (labelFrame.Holds(at)) PrintAbout(canvas, at, text);
}

// A label beside a point of the rim: outside by the same distance at any zoom, or inside where the small plot is.
void RimLabel(const ChartScale& scale, Canvas& canvas, f64 u, f64 w, const std::string& text) {
  constexpr ChartBox smallPlot{700, 600, 3800, 3350};
  const f64 distance = 0.06 / static_cast<f64>(scale.zoom);
  const Point outside = scale.At(u * (1 + distance), w * (1 + distance));
  Label(canvas, smallPlot.Holds(outside) ? scale.At(u * (1 - distance), w * (1 - distance)) : outside, text);
}

struct Reactance {
  f64 x;
  const char* text;
};

void ReactanceLabels(const ChartScale& scale, Canvas& canvas) {
  static constexpr std::array<Reactance, 11> labels = {{{2, "+2"},
                                                        {1, "+1"},
                                                        {0.5, "+.5"},
                                                        {0.2, "+.2"},
                                                        {0.1, "+.1"},
                                                        {0, "0"},
                                                        {-0.1, "-.1"},
                                                        {-0.2, "-.2"},
                                                        {-0.5, "-.5"},
                                                        {-1, "-1"},
                                                        {-2, "-2"}}};
  for (const Reactance& label : labels) {
    const f64 square = label.x * label.x;
    RimLabel(scale, canvas, (square - 1) / (square + 1), 2 * label.x / (square + 1), label.text);
  }
}

struct AxisLabel {
  f64 r;
  const char* text;
  f32 fromZoom;
};

void ResistanceLabels(const ChartScale& scale, Canvas& canvas) {
  static constexpr f32 row = 3900;
  static constexpr std::array<AxisLabel, 11> labels = {{{0.2, ".2", 1},
                                                        {0.5, ".5", 1},
                                                        {0.6, ".6", 4},
                                                        {0.7, ".7", 4},
                                                        {0.8, ".8", 4},
                                                        {0.9, ".9", 4},
                                                        {1, "1", 1},
                                                        {1.2, "1.2", 4},
                                                        {1.4, "1.4", 4},
                                                        {2, "2", 1},
                                                        {5, "5", 1}}};
  for (const AxisLabel& label : labels) {
    if (scale.zoom < label.fromZoom) continue;
    const f32 x = scale.At((label.r - 1) / (label.r + 1), 0).x;
    Label(canvas, {x, row}, label.text);
  }
}

}  // namespace

Point ChartScale::At(f64 u, f64 w) const {
  const f64 unit = static_cast<f64>(chartRadius) * static_cast<f64>(zoom);
  return {static_cast<f32>(static_cast<f64>(chartCenter.x) + static_cast<f64>(aspect) * unit * u),
          static_cast<f32>(static_cast<f64>(chartCenter.y) - unit * w)};
}

void BoxedPath::To(Point point) {
  if (box_.Holds(point)) {
    run_.push_back(point);
  } else {
    Break();
  }
}

void BoxedPath::Break() {
  // A point between two that are left out still shows.
  if (run_.size() == 1) run_.push_back(run_.front());
  canvas_.Polyline(run_, color_);
  run_.clear();
}

void DrawSmithGrid(const ChartScale& scale, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = 0;
  ResistanceCircle(scale, canvas, 0, pale);
  for (const f64 value : FineValues()) {
    ResistanceCircle(scale, canvas, value, pale);
    ReactanceArcs(scale, canvas, value, pale, false);
  }
  for (const f64 value : strongValues) {
    ResistanceCircle(scale, canvas, value, dark);
    ReactanceArcs(scale, canvas, value, dark, true);
  }
  canvas.DrawWidth = 1;
  Ring(scale, canvas, 1, rim);
  Axis(scale, canvas);
  canvas.ForeColor = colorBlack;
  canvas.FontSize = labelSize;
  ReactanceLabels(scale, canvas);
  ResistanceLabels(scale, canvas);
}

void DrawPolarGrid(const ChartScale& scale, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = 0;
  for (int decibels = -20; decibels <= -2; decibels += 2) {
    Ring(scale, canvas, std::pow(10.0, decibels / 20.0), pale);
  }
  for (int t = 0; t < 360; t += 30) {
    const Point center = scale.At(0, 0);
    const Point end = scale.At(std::cos(t / radian), std::sin(t / radian));
    canvas.Line(center.x, center.y, end.x, end.y, pale);
  }
  canvas.DrawWidth = 1;
  Ring(scale, canvas, 1, rim);
  canvas.ForeColor = colorBlack;
  canvas.FontSize = labelSize;
  for (int t = -150; t <= 180; t += 30) {
    RimLabel(scale, canvas, std::cos(t / radian), std::sin(t / radian), std::to_string(t));
  }
  // Beside the spoke that points up: there rings keep their distance at any aspect.
  for (int decibels = -12; decibels <= 0; decibels += 2) {
    const std::string text = std::to_string(decibels);
    Point at = scale.At(0, std::pow(10.0, decibels / 20.0));
    at.x += besideSpoke + canvas.TextWidth(text) / 2;
    Label(canvas, at, text);
  }
}

}  // namespace quilm
