// What a picture view shows, as images in device pixels: the picture on its paper, and over it the live layer on a
// transparent sheet of its own. Each operation is painted once; only another size, density or drawing begins anew. The
// mark is painted with every repaint and stays on neither.
#pragma once

#include <QImage>
#include <QPainter>
#include <memory>

#include "app/QtCanvas.h"
#include "shell/LiveLayer.h"
#include "shell/Picture.h"

namespace quilm {

class PictureSheet {
 public:
  // For the screen, or for an image that is copied or saved.
  explicit PictureSheet(Medium medium = Medium::Screen) : medium_(medium) {}

  // Takes over what is to be shown. True when it differs from what was taken before. The drawings are shared, not
  // copied: what is painted later is what they hold then.
  bool Take(const Picture& picture, const LiveLayer& live, const Picture& mark);

  // The scale of the picture, which the live layer and the mark are drawn in too.
  const Scale& PictureScale() const { return scale_; }

  // The size of the paper in the painter's units, and the device pixels to one of them.
  void SetPaper(QSize size, f64 density);

  // Paints what is new of the live layer now, before it can be dropped. Nothing before there is paper.
  void CatchUpWithLive();

  // What has to be painted anew since this was asked last, in the painter's units from the paper's corner: the part of
  // the live layer that new traces lie in, when nothing else has changed.
  QRectF TakeChange();

  // Paints everything with the paper's upper left corner at a place of a widget.
  void Paint(QPainter& painter, QPointF corner);

  // Picture and live layer, as far as it is kept, as one picture: for copies and files.
  Picture Whole() const;

 private:
  void MakeBlank(QImage& image, QImage::Format format, const QColor& color) const;
  void CatchUpWithPicture();
  void PaintMark(QPainter& painter, QPointF corner) const;
  QRectF BoundsOf(const PictureOp& operation) const;

  Surface SurfaceOf(const QRectF& target) const;

  Medium medium_;
  QSize size_;
  f64 density_ = 1;
  Scale scale_;
  Color paper_ = colorWhite;

  std::shared_ptr<const PictureOps> picture_ = std::make_shared<PictureOps>();
  std::shared_ptr<const LiveLayer::Run> live_ = std::make_shared<LiveLayer::Run>();
  std::shared_ptr<const PictureOps> mark_ = std::make_shared<PictureOps>();
  // How long they were when they were taken.
  std::size_t pictureTaken_ = 0;
  std::size_t liveTaken_ = 0;
  std::size_t markTaken_ = 0;

  QImage sheet_;  // the first picturePainted_ operations of the picture
  bool sheetStands_ = false;
  std::size_t picturePainted_ = 0;
  QImage layer_;  // the live layer up to operation livePainted_
  bool layerStands_ = false;
  std::size_t livePainted_ = 0;
  bool allChanged_ = true;
  QRectF liveChange_;
};

}  // namespace quilm
