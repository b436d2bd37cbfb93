#include "support/CanvasConformance.h"

#include <numbers>

#include "shell/Ink.h"
#include "shell/LiveLayer.h"
#include "shell/Picture.h"
#include "shell/SvgCanvas.h"
#include "shell/SvgReader.h"

namespace quilm {
namespace {

constexpr Scale conformanceScale{0, 0, 1000, 500};

InkPoint ToInk(Point p) { return {static_cast<f64>(p.x), static_cast<f64>(p.y)}; }

struct Inker {
  Ink& ink;

  void operator()(const PolylineOp& op) const {
    std::vector<InkPoint> points;
    for (const Point p : op.points) points.push_back(ToInk(p));
    ink.Stroke(points, op.pen.color);
  }
  void operator()(const RectangleOp& op) const {
    const InkPoint a = ToInk(op.from);
    const InkPoint b = ToInk(op.to);
    if (op.filled)
      ink.Fill({std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)}, op.pen.color);
    ink.Stroke({a, {b.x, a.y}, b, {a.x, b.y}, a}, op.pen.color);
  }
  void operator()(const CircleOp& op) const {
    constexpr f64 turn = 2 * std::numbers::pi;
    f64 sweep = static_cast<f64>(op.stop) - static_cast<f64>(op.start);
    if (sweep < 0) sweep += turn;
    if (op.start == op.stop) sweep = turn;
    const f64 r = static_cast<f64>(op.r);
    ink.Stroke(EllipsePoints(ToInk(op.center), r, r * static_cast<f64>(op.aspect), static_cast<f64>(op.start), sweep),
               op.pen.color);
  }
  void operator()(const PointOp& op) const { ink.Stroke({ToInk(op.at), ToInk(op.at)}, op.pen.color); }
  void operator()(const TextOp& op) const {
    const InkPoint at = ToInk(op.at);
    const f64 width = StandardMetrics().WidthInPoints(op.text, op.font) * twipsPerPoint;
    const f64 height = StandardMetrics().HeightInPoints(op.text, op.font) * twipsPerPoint;
    ink.Fill({at.x, at.y, at.x + width, at.y + height}, op.color);
  }
};

struct PictureProbe {
  Canvas& Surface() { return picture; }
  bool Inked(const Box& box, Color color) const {
    Ink ink;
    for (const PictureOp& operation : picture.Operations()) std::visit(Inker{ink}, operation);
    return ink.Covers(box, color);
  }
  Picture picture{conformanceScale};
};
INSTANTIATE_TYPED_TEST_SUITE_P(Picture, CanvasConformance, PictureProbe);

struct LiveProbe {
  LiveProbe() { layer.SetScale(conformanceScale); }
  Canvas& Surface() { return layer; }
  bool Inked(const Box& box, Color color) const {
    Ink ink;
    for (const PictureOp& operation : layer.Present().kept) std::visit(Inker{ink}, operation);
    return ink.Covers(box, color);
  }
  LiveLayer layer;
};
INSTANTIATE_TYPED_TEST_SUITE_P(Live, CanvasConformance, LiveProbe);

struct SvgProbe {
  SvgProbe() { canvas.SetScale(conformanceScale); }
  Canvas& Surface() { return canvas; }
  bool Inked(const Box& box, Color color) const {
    constexpr f64 pixel = SvgCanvas::unitsPerPixel;
    const Box inPixels{box.left / pixel, box.top / pixel, box.right / pixel, box.bottom / pixel};
    return InkOf(ReadSvg(canvas.Text())).Covers(inPixels, color);
  }
  SvgCanvas canvas;
};
INSTANTIATE_TYPED_TEST_SUITE_P(Svg, CanvasConformance, SvgProbe);

}  // namespace
}  // namespace quilm
