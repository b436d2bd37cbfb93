#include "app/QtCanvas.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "app/QtText.h"
#include "app/TraceMask.h"

namespace quilm {

namespace {

// Far outside any surface, and well within what the painter's rasteriser can count.
constexpr f64 farAway = 16000;

bool IsFinite(QPointF point) { return std::isfinite(point.x()) && std::isfinite(point.y()); }

bool IsNear(QPointF point) { return std::fabs(point.x()) <= farAway && std::fabs(point.y()) <= farAway; }

// Cuts a segment to the square of `farAway` around the origin. False when nothing of it lies inside, or when an end has
// no place.
// Liang and Barsky, A New Concept and Method for Line Clipping, ACM Transactions on Graphics 3 (1984).
bool CutSegment(QPointF& from, QPointF& to) {
  if (!IsFinite(from) || !IsFinite(to)) return false;
  const QPointF delta = to - from;
  f64 enter = 0;
  f64 leave = 1;
  const auto cut = [&](f64 slope, f64 room) {
    if (slope == 0) return room >= 0;
    const f64 at = room / slope;
    if (slope < 0) {
      enter = std::max(enter, at);
    } else {
      leave = std::min(leave, at);
    }
    return enter <= leave;
  };
  const bool inside = cut(-delta.x(), from.x() + farAway) && cut(delta.x(), farAway - from.x()) &&
                      cut(-delta.y(), from.y() + farAway) && cut(delta.y(), farAway - from.y());
  if (!inside) return false;
  const QPointF start = from;
  if (leave < 1) to = start + delta * leave;
  if (enter > 0) from = start + delta * enter;
  return true;
}

// Whether the next eight pixels are not covered at all.
bool EightAreBare(const std::uint8_t* cover) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, cover, sizeof eight);
  return eight == 0;
}

// Lays an opaque colour over pixels as far as they are covered. The alpha of a premultiplied pixel goes the same way as
// its colours. Of what lies near a trace most is bare.
void Blend(QRgb* pixels, const std::uint8_t* cover, int count, QRgb ink) {
  constexpr QRgb odd = 0x00FF00FF;
  constexpr QRgb whole = 256;
  constexpr int eight = 8;
  for (int i = 0; i < count; ++i) {
    while (i + eight <= count && EightAreBare(cover + i)) i += eight;
    if (i == count) return;
    if (cover[i] == 0) continue;
    // 255 becomes 256, so that full coverage leaves nothing of what was there.
    const QRgb part = cover[i] + (cover[i] >> 7U);
    const QRgb rest = whole - part;
    const QRgb low = ((ink & odd) * part + (pixels[i] & odd) * rest) >> 8U & odd;
    const QRgb high = ((ink >> 8U & odd) * part + (pixels[i] >> 8U & odd) * rest) & ~odd;
    pixels[i] = high | low;
  }
}

constexpr f64 linePitch = 1.15;  // of an em, as the font metrics have it
constexpr f64 baseline = 0.92;   // of an em below the top of the line

}  // namespace

QFont PainterFont(const Font& font, f64 emHeight, const QPaintDevice& device) {
  const bool fixed = font.name.find("Courier") != std::string::npos || font.name.find("Mono") != std::string::npos;
  QFont result;
  if (fixed) {
    result.setFamilies({"Courier New", "Liberation Mono", "DejaVu Sans Mono"});
    result.setStyleHint(QFont::TypeWriter);
  } else {
    result.setFamilies({"Arial", "Liberation Sans", "Nimbus Sans", "DejaVu Sans"});
    result.setStyleHint(QFont::SansSerif);
  }
  constexpr f64 pointsPerInch = 72;
  result.setPointSizeF(std::max(emHeight * pointsPerInch / device.logicalDpiY(), 0.1));
  result.setBold(font.bold);
  result.setHintingPreference(QFont::PreferVerticalHinting);
  return result;
}

QtCanvas::QtCanvas(QPainter& painter, const Surface& surface)
    : painter_(painter), image_(dynamic_cast<QImage*>(painter.device())), surface_(surface) {
  painter_.setClipRect(surface_.target);
}

QColor QtCanvas::Ink(Color color) const { return ToQt(color); }

QPointF QtCanvas::Map(Point point) const { return Map(point, UnitsPerX(), UnitsPerY()); }

QPointF QtCanvas::Map(Point point, f64 perX, f64 perY) const {
  return {surface_.target.left() + (static_cast<f64>(point.x) - static_cast<f64>(ScaleLeft)) * perX,
          surface_.target.top() + (static_cast<f64>(point.y) - static_cast<f64>(ScaleTop)) * perY};
}

f64 QtCanvas::PenWidth() const {
  if (DrawWidth > 0) return DrawWidth * surface_.pixel;
  constexpr f64 thinOnPaper = 0.5;
  return surface_.medium == Medium::Paper ? thinOnPaper * surface_.pixel : 1 / surface_.density;
}

LineStyle QtCanvas::Style() const {
  if (DrawStyle != LineStyle::DashOnPaper) return DrawStyle;
  return surface_.medium == Medium::Paper ? LineStyle::Dash : LineStyle::Solid;
}

QPen QtCanvas::MakePen(const QColor& ink) const {
  const f64 width = PenWidth();
  QPen pen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (Style() == LineStyle::Solid) return pen;
  // The toolkit counts dashes in pen widths; they keep their length under wider pens.
  constexpr f64 dashLength = 6;
  constexpr f64 dotLength = 1.5;
  constexpr f64 gapLength = 3;
  const f64 mark = (Style() == LineStyle::Dash ? dashLength : dotLength) * surface_.pixel / width;
  pen.setDashPattern({mark, gapLength * surface_.pixel / width});
  pen.setCapStyle(Qt::FlatCap);
  return pen;
}

// The nearest place where a line of the present width covers whole device pixels.
f64 QtCanvas::OntoPixel(f64 coordinate) const {
  const f64 devicePixels = coordinate * surface_.density;
  const auto width = std::max<long>(std::lround(PenWidth() * surface_.density), 1);
  const f64 whole = width % 2 == 1 ? std::floor(devicePixels) + 0.5 : std::round(devicePixels);
  return whole / surface_.density;
}

QPointF QtCanvas::OntoPixels(QPointF point) const { return {OntoPixel(point.x()), OntoPixel(point.y())}; }

// Sets the painter up for one operation. False when nothing is to be drawn.
bool QtCanvas::Prepare(const QColor& ink, bool smooth) {
  if (ink.alpha() == 0) return false;
  const bool exclusiveOr = DrawMode == PenMode::ExclusiveOr;
  // A mark that a second drawing takes away again is a thing of the screen; paper cannot take it away.
  if (exclusiveOr && surface_.paper) return false;
  painter_.setCompositionMode(exclusiveOr ? QPainter::RasterOp_SourceXorDestination
                                          : QPainter::CompositionMode_SourceOver);
  painter_.setRenderHint(QPainter::Antialiasing, smooth && !exclusiveOr);
  painter_.setPen(MakePen(ink));
  painter_.setBrush(Qt::NoBrush);
  return true;
}

void QtCanvas::DrawPolyline(std::span<const Point> points, Color color) {
  const QColor ink = Ink(color);
  const bool upright = points.size() == 2 && (points[0].x == points[1].x || points[0].y == points[1].y);
  if (!upright) {
    if (SetsPixels(ink)) {
      SetTrace(points, ink);
    } else if (Prepare(ink, true)) {
      StrokeTrace(points);
    }
    return;
  }
  QPointF from = Map(points[0]);
  QPointF to = Map(points[1]);
  if (!CutSegment(from, to) || !Prepare(ink, false)) return;
  QPen pen = painter_.pen();
  if (Style() == LineStyle::Solid) pen.setCapStyle(Qt::SquareCap);
  painter_.setPen(pen);
  painter_.drawLine(OntoPixels(from), OntoPixels(to));
}

// Whether a line can be set pixel by pixel on the image.
bool QtCanvas::SetsPixels(const QColor& ink) const {
  constexpr int opaque = 255;
  if (image_ == nullptr || ink.alpha() != opaque) return false;
  // Of thin lines the toolkit has a fast way of its own.
  if (PenWidth() * painter_.deviceTransform().m11() <= 1) return false;
  const bool words =
      image_->format() == QImage::Format_RGB32 || image_->format() == QImage::Format_ARGB32_Premultiplied;
  return words && Style() == LineStyle::Solid && DrawMode == PenMode::Copy &&
         painter_.deviceTransform().type() <= QTransform::TxScale;
}

void QtCanvas::SetTrace(std::span<const Point> points, const QColor& ink) {
  const QTransform toPixels = painter_.deviceTransform();
  const QRectF clip = toPixels.mapRect(surface_.target) & QRectF(image_->rect());
  // As the toolkit clips: a pixel belongs to the side where its centre lies.
  const auto firstInside = [](f64 edge) { return static_cast<int>(std::ceil(edge - 0.5)); };
  TraceMask mask(
      {firstInside(clip.left()), firstInside(clip.top()), firstInside(clip.right()), firstInside(clip.bottom())});
  const auto width = static_cast<f32>(PenWidth() * toPixels.m11());
  std::vector<Point> run;
  for (const QPolygonF& places : RunsOf(points, toPixels)) {
    run.clear();
    for (const QPointF& place : places) run.push_back({static_cast<f32>(place.x()), static_cast<f32>(place.y())});
    mask.AddTrace(run, width);
  }
  // The rows of an image lie pages apart, so that of a steep trace every row is a wait for memory unless it was asked
  // for some rows before.
  constexpr int rowsAhead = 8;
  const int lastRow = image_->height() - 1;
  const qsizetype toRow = image_->bytesPerLine();
  uchar* const bits = image_->bits();
  const auto pixelsAt = [=](int x, int y) { return reinterpret_cast<QRgb*>(bits + y * toRow) + x; };
  mask.ForEachRun([=, word = ink.rgb()](int x, int y, const std::uint8_t* cover, int count) {
    __builtin_prefetch(pixelsAt(x, std::min(y + rowsAhead, lastRow)), 1);
    Blend(pixelsAt(x, y), cover, count, word);
  });
}

void QtCanvas::StrokeTrace(std::span<const Point> points) {
  for (const QPolygonF& run : RunsOf(points, QTransform())) painter_.drawPolyline(run);
}

// The places of the points, in runs of two and more. A trace is broken where it leaves what the painter can count, or
// where a point has no place. Runs of trials and tuning draw thousands of points a frame, nearly all of them near.
std::vector<QPolygonF> QtCanvas::RunsOf(std::span<const Point> points, const QTransform& place) const {
  const f64 perX = UnitsPerX();
  const f64 perY = UnitsPerY();
  const auto placeOf = [&](Point point) {
    const QPointF at = Map(point, perX, perY);
    return QPointF(place.m11() * at.x() + place.m21() * at.y() + place.dx(),
                   place.m12() * at.x() + place.m22() * at.y() + place.dy());
  };
  std::vector<QPolygonF> runs;
  if (points.empty()) return runs;
  bool open = false;
  QPointF end = placeOf(points.front());
  for (const Point& point : points.subspan(1)) {
    QPointF from = end;
    QPointF to = end = placeOf(point);
    if (!(IsNear(from) && IsNear(to)) && !CutSegment(from, to)) {
      open = false;
      continue;
    }
    if (!open || runs.back().last() != from) {
      runs.emplace_back();
      runs.back().reserve(static_cast<qsizetype>(points.size()));
      runs.back() << from;
    }
    runs.back() << to;
    open = to == end;
  }
  return runs;
}

void QtCanvas::DrawRectangle(Point from, Point to, Color color, bool filled) {
  QPointF a = Map(from);
  QPointF b = Map(to);
  const QColor ink = Ink(color);
  if (!IsFinite(a) || !IsFinite(b) || !Prepare(ink, false)) return;
  const auto near = [](QPointF p) {
    return QPointF(std::clamp(p.x(), -farAway, farAway), std::clamp(p.y(), -farAway, farAway));
  };
  a = OntoPixels(near(a));
  b = OntoPixels(near(b));
  const QRectF box = QRectF(a, b).normalized();
  if (!filled) {
    QPen pen = painter_.pen();
    pen.setJoinStyle(Qt::MiterJoin);
    painter_.setPen(pen);
    painter_.drawRect(box);
    return;
  }
  const f64 half = 0.5 * PenWidth();
  painter_.fillRect(box.adjusted(-half, -half, half, half), ink);
}

void QtCanvas::DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) {
  const QPointF middle = Map(center);
  const f64 halfWidth = static_cast<f64>(r) * std::fabs(UnitsPerX());
  const f64 halfHeight = static_cast<f64>(r) * static_cast<f64>(aspect) * std::fabs(UnitsPerY());
  if (!IsFinite(middle) || !IsFinite({halfWidth, halfHeight}) || !Prepare(Ink(color), true)) return;
  if (start == stop) {
    painter_.drawEllipse(middle, halfWidth, halfHeight);
    return;
  }
  constexpr f64 degreesPerRadian = 180 / std::numbers::pi;
  f64 sweep = (static_cast<f64>(stop) - static_cast<f64>(start)) * degreesPerRadian;
  if (sweep < 0) sweep += 360;
  const QRectF box(middle.x() - halfWidth, middle.y() - halfHeight, 2 * halfWidth, 2 * halfHeight);
  const f64 startDegrees = static_cast<f64>(start) * degreesPerRadian;
  QPainterPath path;
  path.arcMoveTo(box, startDegrees);
  path.arcTo(box, startDegrees, sweep);
  painter_.drawPath(path);
}

// A single pixel is square, a wider point round.
void QtCanvas::DrawPoint(Point at, Color color) {
  const QPointF place = Map(at);
  const QColor ink = Ink(color);
  if (!IsFinite(place) || !Prepare(ink, true)) return;
  const f64 half = 0.5 * PenWidth();
  if (DrawWidth <= 1) {
    painter_.fillRect(QRectF(OntoPixels(place) - QPointF(half, half), QSizeF(2 * half, 2 * half)), ink);
    return;
  }
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ink);
  painter_.drawEllipse(place, half, half);
}

void QtCanvas::DrawText(Point at, std::string_view text) {
  const QColor ink = Ink(ForeColor);
  const QPointF place = Map(at);
  if (ink.alpha() == 0 || !IsFinite(place)) return;
  painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter_.setPen(ink);

  const f64 em = EmHeight(text);
  // A text that is drawn in another size than it was laid out grows upward and downward alike.
  const f64 wider = WidthInEms(text) * em - static_cast<f64>(TextWidth(text)) * std::fabs(UnitsPerX());
  const f64 higher = HeightInEms(text) * em - static_cast<f64>(TextHeight(text)) * std::fabs(UnitsPerY());
  QPointF line = place - QPointF(wider * static_cast<f64>(Fit.anchor), higher / 2);
  for (const QString& part : ToQt(std::string(text)).split(QLatin1Char('\n'))) {
    DrawTextLine(part, line, em);
    line.ry() += em * linePitch;
  }
}

f64 QtCanvas::WidthInEms(std::string_view text) const {
  return Metrics().WidthInPoints(text, CurrentFont()) / static_cast<f64>(FontSize);
}

f64 QtCanvas::HeightInEms(std::string_view text) const {
  return Metrics().HeightInPoints(text, CurrentFont()) / static_cast<f64>(FontSize);
}

// As given, but large enough to be read as far as there is room for it.
f64 QtCanvas::EmHeight(std::string_view text) const {
  const f64 given = static_cast<f64>(FontSize) * twipsPerPoint * std::fabs(UnitsPerY());
  f64 enlarged = std::max(given, surface_.smallestText);
  const f64 width = WidthInEms(text);
  if (Fit.room > 0 && width > 0) {
    enlarged = std::min(enlarged, static_cast<f64>(Fit.room) * std::fabs(UnitsPerX()) / width);
  }
  return std::max(given, enlarged);
}

// The metrics decide how wide a line is; where the machine's font is another one, it is drawn as wide as that.
void QtCanvas::DrawTextLine(const QString& line, QPointF topLeft, f64 emHeight) {
  const QFont font = PainterFont(CurrentFont(), emHeight, *painter_.device());
  painter_.setFont(font);
  const f64 drawn = QFontMetricsF(font, painter_.device()).horizontalAdvance(line);
  if (drawn <= 0) return;
  const f64 due = WidthInEms(line.toStdString()) * emHeight;
  constexpr f64 closeEnough = 0.02;
  const f64 stretch = std::fabs(due / drawn - 1) < closeEnough ? 1 : due / drawn;
  painter_.save();
  painter_.translate(topLeft.x(), topLeft.y() + baseline * emHeight);
  if (stretch != 1) painter_.scale(stretch, 1);
  painter_.drawText(QPointF(0, 0), line);
  painter_.restore();
}

void QtCanvas::DrawClear() {
  const QColor paper = Ink(BackColor);
  if (surface_.paper || paper.alpha() == 0) return;
  painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter_.fillRect(surface_.target, paper);
}

}  // namespace quilm
