// The painter's canvas keeps the rules of every canvas.
#include <QImage>
#include <QPainter>

#include "app/QtCanvas.h"
#include "support/CanvasConformance.h"

namespace quilm {
namespace {

// 1000 by 500 user units on as many pixels, so that a unit is a pixel.
class PainterProbe {
 public:
  PainterProbe() : image_(1000, 500, QImage::Format_RGB32), painter_((image_.fill(Qt::white), &image_)) {
    canvas_.SetScale({0, 0, 1000, 500});
    canvas_.Clear();
  }

  Canvas& Surface() { return canvas_; }

  // Anti-aliased strokes are paler at their edges: whatever leans to the colour counts.
  bool Inked(const Box& box, Color color) {
    for (int y = std::max(0, static_cast<int>(box.top)); y <= std::min(499, static_cast<int>(box.bottom)); ++y) {
      for (int x = std::max(0, static_cast<int>(box.left)); x <= std::min(999, static_cast<int>(box.right)); ++x) {
        if (IsNear(image_.pixelColor(x, y), color)) return true;
      }
    }
    return false;
  }

 private:
  static bool IsNear(const QColor& pixel, Color color) {
    const auto channel = [color](int shift) { return static_cast<int>(color >> shift & 0xFFU); };
    constexpr int tolerance = 300;  // half of what separates a colour from the paper, and a little
    return pixel != QColor(Qt::white) && std::abs(pixel.red() - channel(0)) + std::abs(pixel.green() - channel(8)) +
                                                 std::abs(pixel.blue() - channel(16)) <=
                                             tolerance;
  }

  QImage image_;
  QPainter painter_;
  QtCanvas canvas_{painter_, quilm::Surface{.target = QRectF(0, 0, 1000, 500)}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Painter, CanvasConformance, PainterProbe);

}  // namespace
}  // namespace quilm
