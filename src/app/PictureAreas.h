// The named areas of a picture in the window: the keyboard walks them, a mark stands around the one it is at, the mouse
// reads their tool tips.
//
// Walked areas (HitArea.h) are one stop, and an arrow key presses the one that it comes to. Else Tab and Shift+Tab go
// from one to the next and then out of the picture, arrow keys to the neighbour, Home and End to the first and last;
// Return, Enter and Space press. Presses of the mouse go their own way (Acts.h).
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "shell/HitArea.h"

class QHelpEvent;
class QKeyEvent;

namespace quilm {

class PictureView;

// Lies over the view as its child, no larger than its mark, and takes the view's keys.
class PictureAreas : public QWidget {
  Q_OBJECT

 public:
  explicit PictureAreas(PictureView& view);

  // Takes over what the box has; cheap when the user sees no change.
  void Show(const HitAreas& areas);

  // Called with the name of the area that is pressed.
  std::function<void(const std::string& name)> onPress;
  void Press(std::size_t index);

  const HitAreas& Areas() const { return areas_; }
  // The area that the keyboard is at.
  std::optional<std::size_t> Present() const { return present_; }
  // Its place within the view.
  QRect PlaceOf(const HitArea& area) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& event);
  bool MoveTo(std::optional<std::size_t> index);
  void WalkTo(std::optional<std::size_t> index);
  std::optional<std::size_t> OuterArea(int step) const;
  void FollowClick(QPoint place);
  void Enter(Qt::FocusReason reason);
  bool ShowTip(const QHelpEvent& event);
  const HitArea* AreaAt(QPoint place) const;
  void PlaceMark();

  PictureView& view_;
  HitAreas areas_;
  std::optional<std::size_t> present_;
};

}  // namespace quilm
