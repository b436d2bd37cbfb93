#include "app/ProgramIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace quilm {

namespace {

constexpr qreal tile = 64;  // units to the side

// Passband, stopband zero and the hump behind it.
QPainterPath Response() {
  QPainterPath path(QPointF(9, 22));
  path.cubicTo(QPointF(12, 16), QPointF(16, 16), QPointF(19, 20));
  path.cubicTo(QPointF(22, 24), QPointF(25, 24), QPointF(28, 19));
  path.cubicTo(QPointF(33, 11), QPointF(36, 34), QPointF(39, 52));
  path.cubicTo(QPointF(41, 40), QPointF(46, 34), QPointF(55, 41));
  return path;
}

void Draw(QPainter& painter, int side) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / tile, side / tile);
  constexpr qreal edge = 2;
  constexpr qreal corner = 12;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x1f, 0x4e, 0x8c));
  painter.drawRoundedRect(QRectF(edge, edge, tile - 2 * edge, tile - 2 * edge), corner, corner);
  painter.setBrush(Qt::NoBrush);
  // At the smallest sizes there is room for the curve alone, and for a stroke of two pixels.
  constexpr int smallestWithAxes = 32;
  if (side >= smallestWithAxes) {
    painter.setPen(QPen(QColor(0x9d, 0xb9, 0xdd), 2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(9, 54), QPointF(55, 54));
    painter.drawLine(QPointF(9, 10), QPointF(9, 55));
  }
  constexpr qreal stroke = 5;
  constexpr qreal pixels = 1.75;
  painter.setPen(QPen(Qt::white, std::max(stroke, pixels * tile / side), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(Response());
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    Draw(painter, side);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace quilm
