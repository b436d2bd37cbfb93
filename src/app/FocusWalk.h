// Several controls that are one stop of the Tab key: arrow keys go from one to its neighbour. In a group of options the
// arrow chooses where it goes; with Ctrl it only goes there.
#pragma once

#include <QObject>
#include <optional>
#include <vector>

#include "shell/HitArea.h"

class QKeyEvent;
class QWidget;

namespace quilm {

class ControlView;

// Of an arrow key; nothing for another one.
std::optional<Direction> DirectionOf(int key);

class FocusWalk : public QObject {
  Q_OBJECT

 public:
  // In reading order. All of them are options, or none is.
  FocusWalk(std::vector<ControlView*> members, QObject* parent);

  // After the controls' values were shown: which of them Tab comes to.
  void Sync();

  const QWidget* First() const;
  // Whether all of it stands in a widget.
  bool StandsIn(const QWidget& widget) const;

  // The one that Tab comes to; nullptr when none can be used.
  QWidget* Stop() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QWidget& from, const QKeyEvent& event);
  void GoTo(std::size_t index, bool chooses);
  HitAreas Places() const;
  bool IsOptions() const;

  std::vector<ControlView*> members_;
  std::size_t last_ = 0;  // where the keyboard was last
};

}  // namespace quilm
