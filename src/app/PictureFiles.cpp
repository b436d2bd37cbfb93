#include "app/PictureFiles.h"

#include <QBuffer>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "app/QtCanvas.h"
#include "app/QtText.h"
#include "shell/SvgCanvas.h"

namespace quilm {

namespace {

constexpr f64 twipsPerInch = 1440;
constexpr f64 pixelsPerInch = 96;  // what a pen width counts
constexpr f64 printedPerInch = 300;

QSizeF NaturalInches(const Picture& picture) {
  const Scale scale = picture.CurrentScale();
  return {static_cast<f64>(scale.NaturalWidth()) / twipsPerInch,
          static_cast<f64>(scale.NaturalHeight()) / twipsPerInch};
}

QByteArray PngOf(const Picture& picture, int width) {
  QByteArray bytes;
  QBuffer file(&bytes);
  file.open(QIODevice::WriteOnly);
  if (!ImageOf(picture, width).save(&file, "PNG")) bytes.clear();
  return bytes;
}

QByteArray PdfOf(const Picture& picture) {
  QByteArray bytes;
  QBuffer file(&bytes);
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  constexpr int resolution = 1200;
  writer.setResolution(resolution);
  writer.setPageSize(QPageSize(NaturalInches(picture), QPageSize::Inch, {}, QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter;
  if (!painter.begin(&writer)) return {};
  QtCanvas canvas(painter, Surface{.target = QRectF(0, 0, writer.width(), writer.height()),
                                   .pixel = resolution / pixelsPerInch,
                                   .paper = true,
                                   .medium = Medium::Paper});
  picture.Replay(canvas);
  painter.end();
  return bytes;
}

}  // namespace

int PrintWidth(const Picture& picture) {
  return std::max(static_cast<int>(std::lround(NaturalInches(picture).width() * printedPerInch)), 1);
}

QImage ImageOf(const Picture& picture, int width) {
  const QSizeF inches = NaturalInches(picture);
  const f64 perInch = width / inches.width();
  QImage image(width, std::max(static_cast<int>(std::lround(perInch * inches.height())), 1), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(ToQt(picture.BackColor));
  QPainter painter(&image);
  QtCanvas canvas(
      painter,
      Surface{.target = image.rect(), .pixel = perInch / pixelsPerInch, .paper = true, .medium = Medium::Paper});
  picture.Replay(canvas);
  painter.end();
  constexpr f64 inchesPerMetre = 1 / 0.0254;
  const int perMetre = static_cast<int>(std::lround(perInch * inchesPerMetre));
  image.setDotsPerMeterX(perMetre);
  image.setDotsPerMeterY(perMetre);
  return image;
}

std::unique_ptr<QMimeData> ClipboardForms(const Picture& picture) {
  auto forms = std::make_unique<QMimeData>();
  const int width = PrintWidth(picture);
  forms->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(SvgText(picture)));
  forms->setData(QStringLiteral("image/png"), PngOf(picture, width));
  forms->setImageData(ImageOf(picture, width));
  return forms;
}

WriteOutcome SavePicture(const Picture& picture, const QString& path, int width) {
  const QString kind = QFileInfo(path).suffix().toLower();
  QByteArray bytes;
  if (kind == QLatin1String("svg")) {
    bytes = QByteArray::fromStdString(SvgText(picture));
  } else if (kind == QLatin1String("pdf")) {
    bytes = PdfOf(picture);
  } else if (kind == QLatin1String("png")) {
    bytes = PngOf(picture, width > 0 ? width : PrintWidth(picture));
  } else {
    return {"its name ends with none of .png, .svg and .pdf"};
  }
  if (bytes.isEmpty()) return {"there is not enough memory for a picture of this size"};
  return WriteTextFile(path.toStdString(), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace quilm
