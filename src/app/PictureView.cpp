#include "app/PictureView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>

#include "app/PictureFiles.h"

namespace quilm {

namespace {

constexpr f64 twipsPerPixel = 15;            // at 96 pixels to the inch
constexpr f64 smallestPoints = 8;            // no text is shown smaller than this at 100%
constexpr f64 pixelsPerPoint = 96.0 / 72.0;  //

// The largest place of the picture's proportions in the middle of `room`, on whole pixels.
QRectF Fit(const Picture& picture, QSizeF room) {
  const f64 proportion = static_cast<f64>(picture.ScaleWidth) / static_cast<f64>(picture.ScaleHeight);
  QSizeF size(room.width(), room.width() / proportion);
  if (size.height() > room.height()) size = QSizeF(room.height() * proportion, room.height());
  size = QSizeF(std::floor(size.width()), std::floor(size.height()));
  return QRectF(QPointF(std::floor((room.width() - size.width()) / 2), std::floor((room.height() - size.height()) / 2)),
                size);
}

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::ClickFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent, false);
}

QSize PictureView::sizeHint() const {
  return QSize(static_cast<int>(static_cast<f64>(picture_.ScaleWidth) / twipsPerPixel),
               static_cast<int>(static_cast<f64>(picture_.ScaleHeight) / twipsPerPixel));
}

// Half its natural size: below that no text could be read.
QSize PictureView::minimumSizeHint() const { return sizeHint() / 2; }

void PictureView::Show(const Picture& picture, const Picture& mark) {
  // Two pictures may have the same revision and show different things, so equal ones are compared as values.
  const bool samePicture = picture.Revision() == picture_.Revision() && picture == picture_;
  const bool sameMark = mark.Revision() == mark_.Revision() && mark == mark_;
  if (samePicture && sameMark) return;
  if (!samePicture) {
    const bool sameScale = picture.CurrentScale() == picture_.CurrentScale();
    picture_ = picture;
    sheet_ = QImage();
    if (!sameScale) updateGeometry();
  }
  if (!sameMark) mark_ = mark;
  update();
}

QRectF PictureView::Paper() const { return Fit(picture_, QSizeF(size())); }

Point PictureView::ToUser(QPointF place) const {
  const QRectF paper = Paper();
  const f64 x = (place.x() - paper.left()) / paper.width();
  const f64 y = (place.y() - paper.top()) / paper.height();
  return Point{static_cast<f32>(static_cast<f64>(picture_.ScaleLeft) + x * static_cast<f64>(picture_.ScaleWidth)),
               static_cast<f32>(static_cast<f64>(picture_.ScaleTop) + y * static_cast<f64>(picture_.ScaleHeight))};
}

QImage PictureView::Render(QSize size, f64 density) const {
  QImage image(size * density, QImage::Format_RGB32);
  image.setDevicePixelRatio(density);
  image.fill(Qt::white);
  QPainter painter(&image);
  QtCanvas canvas(painter, Surface{.target = QRectF(QPointF(0, 0), QSizeF(size)),
                                   .density = density,
                                   .smallestText = smallestPoints * pixelsPerPoint});
  picture_.Replay(canvas);
  return image;
}

void PictureView::RefreshSheet() {
  const QSize size = Paper().size().toSize();
  const f64 density = devicePixelRatioF();
  if (sheet_.size() == size * density && sheet_.devicePixelRatio() == density) return;
  sheet_ = Render(size, density);
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
  const QRectF paper = Paper();
  if (paper.isEmpty()) return;
  RefreshSheet();
  QPainter painter(this);
  if (mark_.Empty()) {
    painter.drawImage(paper.topLeft(), sheet_);
    return;
  }
  QImage marked = sheet_;  // its own copy as soon as the mark is drawn
  {
    QPainter over(&marked);
    QtCanvas canvas(over, Surface{.target = QRectF(QPointF(0, 0), paper.size()),
                                  .density = sheet_.devicePixelRatio(),
                                  .smallestText = smallestPoints * pixelsPerPoint});
    canvas.SetScale(picture_.CurrentScale());
    const Scale& scale = mark_.CurrentScale();
    mark_.ReplayInto(canvas, {scale.left, scale.top}, {scale.left + scale.width, scale.top + scale.height});
  }
  painter.drawImage(paper.topLeft(), marked);
}

// Hands a mouse event to the page. False when the page is not concerned: outside the paper it gets nothing but the
// release of a button that went down on it, without which it would take the button for held.
bool PictureView::Pass(MouseAct act, QMouseEvent* event) {
  const bool right = event->button() == Qt::RightButton || (event->buttons() & Qt::RightButton) != 0;
  bool& down = right ? rightDown_ : leftDown_;
  const bool release = act == MouseAct::Up && down;
  if (!onMouse || !(release || Paper().contains(event->position()))) return false;
  if (act != MouseAct::Move) down = act == MouseAct::Down;
  const Point at = ToUser(event->position());
  onMouse(act, at.x, at.y, right ? MouseButton::Right : MouseButton::Left);
  return true;
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  if (!Pass(MouseAct::Down, event)) QWidget::mousePressEvent(event);
}

void PictureView::mouseMoveEvent(QMouseEvent* event) { Pass(MouseAct::Move, event); }

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  if (!Pass(MouseAct::Up, event)) QWidget::mouseReleaseEvent(event);
}

// The menu takes the release of the button that opens it; the page must not wait for that.
void PictureView::ReleaseForMenu(QPointF place) {
  if (!rightDown_) return;
  rightDown_ = false;
  const Point at = ToUser(place);
  onMouse(MouseAct::Up, at.x, at.y, MouseButton::Right);
}

void PictureView::contextMenuEvent(QContextMenuEvent* event) {
  ReleaseForMenu(event->pos());
  QMenu menu(this);
  menu.addAction(tr("&Copy picture"), QKeySequence::Copy, this, [this] { Copy(); });
  menu.addAction(tr("&Save picture as..."), this, [this] { emit SaveRequested(); });
  menu.exec(event->globalPos());
}

void PictureView::Copy() const {
  constexpr f64 copyDensity = 2;  // for documents that are printed
  QImage image = Render(sizeHint(), copyDensity);
  image.setDevicePixelRatio(1);
  QApplication::clipboard()->setImage(image);
}

bool PictureView::SaveAs(const QString& path) const {
  const QString kind = QFileInfo(path).suffix().toLower();
  if (kind == QLatin1String("svg")) return SavePictureAsSvg(picture_, path);
  if (kind == QLatin1String("pdf")) return SavePictureAsPdf(picture_, path);
  constexpr f64 fileDensity = 2;
  QImage image = Render(sizeHint(), fileDensity);
  image.setDevicePixelRatio(1);
  return image.save(path, "PNG");
}

}  // namespace quilm
