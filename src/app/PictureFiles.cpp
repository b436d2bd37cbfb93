#include "app/PictureFiles.h"

#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>

#include "app/QtCanvas.h"
#include "shell/SvgCanvas.h"

namespace quilm {

bool SavePictureAsSvg(const Picture& picture, const QString& path) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  file.write(QByteArray::fromStdString(SvgText(picture)));
  return file.commit();
}

bool SavePictureAsPdf(const Picture& picture, const QString& path) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  QPdfWriter writer(&file);
  constexpr int resolution = 1200;
  constexpr f64 pixelsPerInch = 96;
  writer.setResolution(resolution);
  const Scale scale = picture.CurrentScale();
  const QSizeF points(static_cast<f64>(scale.NaturalWidth()) / twipsPerPoint,
                      static_cast<f64>(scale.NaturalHeight()) / twipsPerPoint);
  writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter;
  if (!painter.begin(&writer)) return false;
  QtCanvas canvas(painter, Surface{.target = QRectF(0, 0, writer.width(), writer.height()),
                                   .pixel = resolution / pixelsPerInch,
                                   .paper = true,
                                   .medium = Medium::Paper});
  picture.Replay(canvas);
  painter.end();
  return file.commit();
}

bool SaveImageAsPng(const QImage& image, const QString& path) {
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit();
}

}  // namespace quilm
