#include "app/ProgramIcon.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace quilm {

namespace {

constexpr qreal side = 64;  // of the tile with what is left free about it, in units of the drawing
constexpr QRectF tile(2, 2, 60, 60);
constexpr qreal corner = 12;
constexpr QColor tileColor(0x1f, 0x4e, 0x8c);

constexpr QLineF axes[] = {{9, 54, 55, 54}, {9, 10, 9, 55}};
constexpr qreal axisWidth = 2;
constexpr QColor axisColor(0x9d, 0xb9, 0xdd);

// Passband, stopband zero and the hump behind it: where the curve begins, then two points that bend it and the next one
// on it, again and again.
constexpr QPointF response[] = {{9, 22},  {12, 16}, {16, 16}, {19, 20}, {22, 24}, {25, 24}, {28, 19},
                                {33, 11}, {36, 34}, {39, 52}, {41, 40}, {46, 34}, {55, 41}};
constexpr qreal responseWidth = 5;

QPainterPath ResponsePath() {
  QPainterPath path(response[0]);
  for (std::size_t i = 1; i < std::size(response); i += 3) path.cubicTo(response[i], response[i + 1], response[i + 2]);
  return path;
}

void Draw(QPainter& painter, int pixels) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(pixels / side, pixels / side);
  painter.setPen(Qt::NoPen);
  painter.setBrush(tileColor);
  painter.drawRoundedRect(tile, corner, corner);
  painter.setBrush(Qt::NoBrush);
  // At the smallest sizes there is room for the curve alone, and for a stroke of two pixels.
  constexpr int smallestWithAxes = 32;
  if (pixels >= smallestWithAxes) {
    painter.setPen(QPen(axisColor, axisWidth, Qt::SolidLine, Qt::FlatCap));
    for (const QLineF& axis : axes) painter.drawLine(axis);
  }
  constexpr qreal thinnest = 1.75;  // pixels
  painter.setPen(
      QPen(Qt::white, std::max(responseWidth, thinnest * side / pixels), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(ResponsePath());
}

QByteArray Number(qreal value) { return QByteArray::number(value); }

QByteArray Place(const QPointF& at) { return Number(at.x()) + ' ' + Number(at.y()); }

QByteArray Path(const QByteArray& steps, const QColor& color, qreal width) {
  return "  <path d=\"" + steps + "\" stroke=\"" + color.name().toLatin1() + "\" stroke-width=\"" + Number(width) +
         "\"";
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int pixels : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    Draw(painter, pixels);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

QByteArray ProgramIconSvg() {
  QByteArray lines;
  for (const QLineF& axis : axes) lines += 'M' + Place(axis.p1()) + 'L' + Place(axis.p2());
  QByteArray curve = 'M' + Place(response[0]);
  for (std::size_t i = 1; i < std::size(response); ++i) curve += (i % 3 == 1 ? 'C' : ' ') + Place(response[i]);
  const QByteArray whole = Number(side);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + whole + "\" height=\"" + whole + "\" viewBox=\"0 0 " +
         whole + ' ' + whole + "\" fill=\"none\">\n  <rect x=\"" + Number(tile.x()) + "\" y=\"" + Number(tile.y()) +
         "\" width=\"" + Number(tile.width()) + "\" height=\"" + Number(tile.height()) + "\" rx=\"" + Number(corner) +
         "\" fill=\"" + tileColor.name().toLatin1() + "\"/>\n" + Path(lines, axisColor, axisWidth) + "/>\n" +
         Path(curve, Qt::white, responseWidth) + " stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n</svg>\n";
}

}  // namespace quilm
