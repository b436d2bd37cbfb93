#include "app/PictureSheet.h"

#include <algorithm>

#include "app/QtText.h"

namespace quilm {

namespace {

constexpr f64 smallestPoints = 8;            // no text is shown smaller than this at 100%
constexpr f64 pixelsPerPoint = 96.0 / 72.0;  // at 100%

// Holds `now` in place of `held`. True when it is another drawing or has grown.
template <class Drawing>
bool TakeDrawing(const std::shared_ptr<const Drawing>& now, std::size_t length, std::shared_ptr<const Drawing>& held,
                 std::size_t& taken) {
  const bool changed = now != held || length != taken;
  held = now;
  taken = length;
  return changed;
}

}  // namespace

Surface PictureSheet::SurfaceOf(const QRectF& target) const {
  return {.target = target, .density = density_, .smallestText = smallestPoints * pixelsPerPoint, .medium = medium_};
}

bool PictureSheet::Take(const Picture& picture, const LiveLayer& live, const Picture& mark) {
  const bool other = picture.CurrentScale() != scale_ || picture.BackColor != paper_;
  if (other || picture.Drawing() != picture_) sheetStands_ = false;
  if (other || live.Drawing() != live_) layerStands_ = false;
  scale_ = picture.CurrentScale();
  paper_ = picture.BackColor;
  const bool drawn = TakeDrawing(picture.Drawing(), picture.Operations().size(), picture_, pictureTaken_);
  const bool tried = TakeDrawing(live.Drawing(), live.Present().Drawn(), live_, liveTaken_);
  const bool marked = TakeDrawing(mark.Drawing(), mark.Operations().size(), mark_, markTaken_);
  if (other || drawn || marked || !layerStands_) allChanged_ = true;
  return other || drawn || tried || marked;
}

void PictureSheet::SetPaper(QSize size, f64 density) {
  if (size == size_ && density == density_) return;
  size_ = size;
  density_ = density;
  sheetStands_ = false;
  layerStands_ = false;
  allChanged_ = true;
}

// An image that is there already is used again: the system hands out fresh memory page by page.
void PictureSheet::MakeBlank(QImage& image, QImage::Format format, const QColor& color) const {
  if (image.size() != size_ * density_) image = QImage(size_ * density_, format);
  image.setDevicePixelRatio(density_);
  image.fill(color);
}

void PictureSheet::CatchUpWithPicture() {
  if (!sheetStands_) {
    MakeBlank(sheet_, QImage::Format_RGB32, ToQt(paper_));
    sheetStands_ = true;
    picturePainted_ = 0;
  }
  if (picturePainted_ == picture_->size()) return;
  QPainter painter(&sheet_);
  QtCanvas canvas(painter, SurfaceOf(QRectF(QPointF(0, 0), size_)));
  canvas.SetScale(scale_);
  for (; picturePainted_ < picture_->size(); ++picturePainted_) DrawOperation((*picture_)[picturePainted_], canvas);
}

void PictureSheet::CatchUpWithLive() {
  if (size_.isEmpty()) return;
  if (!layerStands_) {
    if (live_->kept.empty()) return;
    MakeBlank(layer_, QImage::Format_ARGB32_Premultiplied, Qt::transparent);
    layerStands_ = true;
    livePainted_ = 0;
  }
  livePainted_ = std::max(livePainted_, live_->dropped);
  if (livePainted_ == live_->Drawn()) return;
  QPainter painter(&layer_);
  Surface surface = SurfaceOf(QRectF(QPointF(0, 0), size_));
  surface.paper = true;  // there is nothing below that an exclusive or could turn round
  QtCanvas canvas(painter, surface);
  canvas.SetScale(scale_);
  for (; livePainted_ < live_->Drawn(); ++livePainted_) {
    const PictureOp& operation = live_->kept[livePainted_ - live_->dropped];
    DrawOperation(operation, canvas);
    liveChange_ |= BoundsOf(operation);
  }
}

// Of traces, with the half of a pen and a pixel of softened edge around them; of all else the whole paper.
QRectF PictureSheet::BoundsOf(const PictureOp& operation) const {
  const auto* trace = std::get_if<PolylineOp>(&operation);
  if (trace == nullptr || trace->points.empty()) return {QPointF(0, 0), size_};
  const auto [left, right] = std::ranges::minmax(trace->points, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(trace->points, {}, &Point::y);
  const auto at = [this](f32 x, f32 y) {
    return QPointF(static_cast<f64>((x - scale_.left) / scale_.width) * size_.width(),
                   static_cast<f64>((y - scale_.top) / scale_.height) * size_.height());
  };
  const f64 margin = trace->pen.width + 1;
  return QRectF(at(left.x, top.y), at(right.x, bottom.y)).adjusted(-margin, -margin, margin, margin);
}

QRectF PictureSheet::TakeChange() {
  const QRectF change = allChanged_ ? QRectF(QPointF(0, 0), size_) : liveChange_;
  allChanged_ = false;
  liveChange_ = {};
  return change;
}

void PictureSheet::Paint(QPainter& painter, QPointF corner) {
  if (size_.isEmpty()) return;
  CatchUpWithPicture();
  CatchUpWithLive();
  painter.drawImage(corner, sheet_);
  if (layerStands_) painter.drawImage(corner, layer_);
  if (!mark_->empty()) PaintMark(painter, corner);
}

void PictureSheet::PaintMark(QPainter& painter, QPointF corner) const {
  QtCanvas canvas(painter, SurfaceOf(QRectF(corner, QSizeF(size_))));
  canvas.SetScale(scale_);
  for (const PictureOp& operation : *mark_) DrawOperation(operation, canvas);
}

Picture PictureSheet::Whole() const {
  Picture whole(scale_);
  whole.BackColor = paper_;
  for (const PictureOp& operation : *picture_) DrawOperation(operation, whole);
  for (const PictureOp& operation : live_->kept) DrawOperation(operation, whole);
  return whole;
}

}  // namespace quilm
