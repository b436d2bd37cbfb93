#include "app/PictureView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "app/PictureFiles.h"

namespace quilm {

namespace {

constexpr f64 twipsPerPixel = 15;  // at 96 pixels to the inch
constexpr int frameMilliseconds = 16;

f64 ProportionIn(const Scale& scale, QSizeF room) {
  const Shape& shape = scale.shape;
  if (shape.mostProportion <= 0) {
    return static_cast<f64>(scale.NaturalWidth()) / static_cast<f64>(scale.NaturalHeight());
  }
  return std::clamp(room.width() / std::max(room.height(), 1.0), static_cast<f64>(shape.leastProportion),
                    static_cast<f64>(shape.mostProportion));
}

// The largest place of the scale's proportions in the middle of `room`, on whole pixels.
QRectF PlaceIn(const Scale& scale, QSizeF room) {
  const f64 proportion = ProportionIn(scale, room);
  QSizeF size(room.width(), room.width() / proportion);
  if (size.height() > room.height()) size = QSizeF(room.height() * proportion, room.height());
  constexpr f64 hair = 1e-3;  // a room of just these proportions loses no pixel to rounding
  size = QSizeF(std::floor(size.width() + hair), std::floor(size.height() + hair));
  return QRectF(QPointF(std::floor((room.width() - size.width()) / 2), std::floor((room.height() - size.height()) / 2)),
                size);
}

}  // namespace

QKeySequence SavePictureKeys() { return QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S); }

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::ClickFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent, false);
  nextFrame_.setSingleShot(true);
  connect(&nextFrame_, &QTimer::timeout, this, [this] { update(changed_); });
}

QSize PictureView::sizeHint() const {
  const Scale& scale = sheet_.PictureScale();
  return QSize(static_cast<int>(static_cast<f64>(scale.NaturalWidth()) / twipsPerPixel),
               static_cast<int>(static_cast<f64>(scale.NaturalHeight()) / twipsPerPixel));
}

// Half its natural size: below that no text could be read.
QSize PictureView::minimumSizeHint() const { return sizeHint() / 2; }

void PictureView::Show(const Picture& picture, const LiveLayer& live, const Picture& mark) {
  const Scale before = sheet_.PictureScale();
  if (!sheet_.Take(picture, live, mark)) return;
  if (sheet_.PictureScale() != before) updateGeometry();
  if (isVisible()) {
    RefreshPaper();
    sheet_.CatchUpWithLive();
  }
  RequestRepaint(sheet_.TakeChange().translated(Paper().topLeft()).toAlignedRect());
}

// A run shows its trials as fast as they come; nobody sees more of them than the screen has frames.
void PictureView::RequestRepaint(const QRect& changed) {
  changed_ |= changed;
  const qint64 elapsed = sincePaint_.isValid() ? sincePaint_.elapsed() : frameMilliseconds;
  if (elapsed >= frameMilliseconds) {
    update(changed_);
  } else if (!nextFrame_.isActive()) {
    nextFrame_.start(static_cast<int>(frameMilliseconds - elapsed));
  }
}

QRectF PictureView::Paper() const { return PlaceIn(sheet_.PictureScale(), QSizeF(size())); }

Point PictureView::ToUser(QPointF place) const {
  const QRectF paper = Paper();
  const Scale& scale = sheet_.PictureScale();
  const f64 x = (place.x() - paper.left()) / paper.width();
  const f64 y = (place.y() - paper.top()) / paper.height();
  return Point{static_cast<f32>(static_cast<f64>(scale.left) + x * static_cast<f64>(scale.width)),
               static_cast<f32>(static_cast<f64>(scale.top) + y * static_cast<f64>(scale.height))};
}

void PictureView::RefreshPaper() { sheet_.SetPaper(Paper().size().toSize(), devicePixelRatioF()); }

void PictureView::paintEvent(QPaintEvent* /*event*/) {
  nextFrame_.stop();
  sincePaint_.start();
  changed_ = {};
  RefreshPaper();
  QPainter painter(this);
  sheet_.Paint(painter, Paper().topLeft());
}

// Hands a mouse event to the page. False when the page is not concerned: outside the paper it gets nothing but the
// release of a button that went down on it, without which it would take the button for held.
bool PictureView::Pass(MouseAct act, QMouseEvent* event) {
  // A press or a release is of one button, whichever others are held.
  const bool right =
      act == MouseAct::Move ? (event->buttons() & Qt::RightButton) != 0 : event->button() == Qt::RightButton;
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

// The menu takes the release of the button that opens it, and of one that was held before; the page must not wait for
// either.
void PictureView::ReleaseForMenu(QPointF place) {
  const Point at = ToUser(place);
  if (std::exchange(leftDown_, false)) onMouse(MouseAct::Up, at.x, at.y, MouseButton::Left);
  if (std::exchange(rightDown_, false)) onMouse(MouseAct::Up, at.x, at.y, MouseButton::Right);
}

void PictureView::contextMenuEvent(QContextMenuEvent* event) {
  ReleaseForMenu(event->pos());
  // A child on the heap, in no loop of its own: the page can go while it is open, and takes it along.
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(tr("&Copy picture"), QKeySequence::Copy, this, [this] { Copy(); });
  menu->addAction(tr("&Save picture as..."), SavePictureKeys(), this, [this] { emit SaveRequested(0); });
  menu->addAction(tr("Save as PNG of a &width..."), this, [this] { AskWidth(); });
  menu->popup(event->globalPos());
}

void PictureView::Copy() const { QApplication::clipboard()->setMimeData(ClipboardForms(sheet_.Whole()).release()); }

WriteOutcome PictureView::SaveAs(const QString& path, int width) const {
  return SavePicture(sheet_.Whole(), path, width);
}

// A child on the heap, as the menu.
void PictureView::AskWidth() {
  constexpr int least = 100;
  constexpr int most = 12000;
  auto* dialog = new QInputDialog(this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(tr("Save picture"));
  dialog->setLabelText(tr("Width in pixels:"));
  dialog->setInputMode(QInputDialog::IntInput);
  dialog->setIntRange(least, most);
  dialog->setIntValue(PrintWidth(sheet_.Whole()));
  connect(dialog, &QInputDialog::intValueSelected, this, &PictureView::SaveRequested);
  dialog->open();
}

}  // namespace quilm
