#include "app/SignIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPalette>
#include <algorithm>
#include <cmath>
#include <utility>

#include "app/QtCanvas.h"
#include "app/QtText.h"

namespace quilm {

namespace {

class SignCanvas : public QtCanvas {
 public:
  SignCanvas(QPainter& painter, const Surface& surface, QPalette::ColorGroup group)
      : QtCanvas(painter, surface), group_(group) {}

 protected:
  QColor Ink(Color color) const override {
    if (color == colorWhite) return Qt::transparent;
    const QPalette palette = QApplication::palette();
    const QColor text = palette.color(group_, QPalette::ButtonText);
    if (group_ == QPalette::Disabled) return text;
    return ReadableOn(palette.color(QPalette::Button), text, color);
  }

 private:
  QPalette::ColorGroup group_;
};

class SignEngine : public QIconEngine {
 public:
  explicit SignEngine(const Picture& picture) : picture_(picture) {}

  QIconEngine* clone() const override { return new SignEngine(picture_); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    Draw(*painter, rect, mode, painter->device()->devicePixelRatio());
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/, qreal density) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    pixmap.setDevicePixelRatio(density);
    QPainter painter(&pixmap);
    Draw(painter, QRectF(QPointF(0, 0), QSizeF(size) / density), mode, density);
    return pixmap;
  }

 private:
  void Draw(QPainter& painter, const QRectF& room, QIcon::Mode mode, f64 density) const {
    QSizeF size(static_cast<f64>(picture_.ScaleWidth), static_cast<f64>(picture_.ScaleHeight));
    size.scale(room.size(), Qt::KeepAspectRatio);
    QRectF target(QPointF(0, 0), size);
    target.moveCenter(room.center());
    painter.save();
    SignCanvas canvas(painter, Surface{.target = target, .density = density},
                      mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Normal);
    canvas.SetScale(picture_.CurrentScale());
    const Point from{picture_.ScaleLeft, picture_.ScaleTop};
    picture_.ReplayInto(canvas, from, {from.x + picture_.ScaleWidth, from.y + picture_.ScaleHeight});
    painter.restore();
  }

  Picture picture_;
};

}  // namespace

QIcon SignIcon(const Picture& picture) { return QIcon(new SignEngine(picture)); }

QSize SignSize(const Picture& picture, int height) {
  const f64 proportion = static_cast<f64>(picture.ScaleWidth) / static_cast<f64>(picture.ScaleHeight);
  return QSize(std::max(1, static_cast<int>(std::lround(height * proportion))), height);
}

}  // namespace quilm
