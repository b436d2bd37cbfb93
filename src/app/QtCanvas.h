// The drawing surface over the toolkit's painter: the picture on the screen, the printed sheet, the PDF file and the
// signs on buttons.
#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QRectF>
#include <vector>

#include "shell/Canvas.h"

namespace quilm {

// Where and how a canvas draws, in the painter's units.
struct Surface {
  QRectF target;         // the user scale fills it
  f64 pixel = 1;         // what DrawWidth counts: one on the screen, 1/96 inch on paper
  f64 density = 1;       // device pixels a unit, for lines that fall on whole pixels
  f64 smallestText = 0;  // no text is drawn lower than this
  bool paper = false;    // what was drawn stays: no exclusive or, nothing to clear
  Medium medium = Medium::Screen;
};

class QtCanvas : public Canvas {
 public:
  // Draws with `painter` for as long as both live. The clip becomes the surface's target.
  // On an image, solid traces wider than a device pixel are set pixel by pixel, past the painter.
  QtCanvas(QPainter& painter, const Surface& surface);

 protected:
  void DrawPolyline(std::span<const Point> points, Color color) override;
  void DrawRectangle(Point from, Point to, Color color, bool filled) override;
  void DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) override;
  void DrawPoint(Point at, Color color) override;
  void DrawText(Point at, std::string_view text) override;
  void DrawClear() override;
  Medium SurfaceMedium() const override { return surface_.medium; }

  // What a colour looks like here; fully transparent ones are not drawn.
  virtual QColor Ink(Color color) const;

 private:
  f64 UnitsPerX() const { return surface_.target.width() / static_cast<f64>(ScaleWidth); }
  f64 UnitsPerY() const { return surface_.target.height() / static_cast<f64>(ScaleHeight); }
  QPointF Map(Point point) const;
  QPointF Map(Point point, f64 perX, f64 perY) const;
  f64 PenWidth() const;
  LineStyle Style() const;
  QPen MakePen(const QColor& ink) const;
  f64 OntoPixel(f64 coordinate) const;
  QPointF OntoPixels(QPointF point) const;
  bool Prepare(const QColor& ink, bool smooth);
  bool SetsPixels(const QColor& ink) const;
  std::vector<QPolygonF> RunsOf(std::span<const Point> points, const QTransform& place) const;
  void StrokeTrace(std::span<const Point> points);
  void SetTrace(std::span<const Point> points, const QColor& ink);
  f64 WidthInEms(std::string_view text) const;
  f64 HeightInEms(std::string_view text) const;
  f64 EmHeight(std::string_view text) const;
  void DrawTextLine(const QString& line, QPointF topLeft, f64 emHeight);

  QPainter& painter_;
  QImage* image_;  // that is painted on; nullptr for anything else
  Surface surface_;
};

// The toolkit's font for one of a picture's, by the height of its em in the painter's units on `device`.
QFont PainterFont(const Font& font, f64 emHeight, const QPaintDevice& device);

}  // namespace quilm
