// Shows a picture box: its picture on white paper, as large as the room allows, in its own proportions or in those of
// the room as far as it goes with them.
#pragma once

#include <QElapsedTimer>
#include <QKeySequence>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "app/PictureFiles.h"
#include "app/PictureSheet.h"
#include "shell/Acts.h"

namespace quilm {

// The keys of "Save picture as..." and, where there is none, of saving what a page shows in its stead.
QKeySequence SavePictureKeys();

class PictureView : public QWidget {
  Q_OBJECT

 public:
  explicit PictureView(QWidget* parent = nullptr);

  // Takes over what the box shows; cheap when nothing has changed. The window is repainted once a frame at most.
  void Show(const Picture& picture, const LiveLayer& live, const Picture& mark);

  // Called with the position in user scale. The pages get no event outside the paper, but for a release.
  std::function<void(MouseAct, f32 x, f32 y, MouseButton)> onMouse;

  // Puts the picture on the clipboard, as vectors and as an image.
  void Copy() const;

  // Writes it to a file: PNG, SVG or PDF by the ending (SavePicture).
  WriteOutcome SaveAs(const QString& path, int width = 0) const;

  // Asks how many pixels wide an image of it should be, and then for it to be saved.
  void AskWidth();

  // The paper within the widget.
  QRectF Paper() const;
  Point ToUser(QPointF place) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // In a width in pixels as PNG; for 0 the user chooses the kind of file.
  void SaveRequested(int width);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void RefreshPaper();
  void RequestRepaint(const QRect& changed);
  bool Pass(MouseAct act, QMouseEvent* event);
  void ReleaseForMenu(QPointF place);

  PictureSheet sheet_;
  QElapsedTimer sincePaint_;
  QRect changed_;  // since the last frame
  QTimer nextFrame_;
  bool leftDown_ = false;  // the page was told
  bool rightDown_ = false;
};

}  // namespace quilm
