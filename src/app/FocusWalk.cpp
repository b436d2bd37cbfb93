#include "app/FocusWalk.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <algorithm>
#include <optional>
#include <utility>

#include "app/ControlView.h"

namespace quilm {

std::optional<Direction> DirectionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Direction::Left;
    case Qt::Key_Right:
      return Direction::Right;
    case Qt::Key_Up:
      return Direction::Up;
    case Qt::Key_Down:
      return Direction::Down;
    default:
      return std::nullopt;
  }
}

FocusWalk::FocusWalk(std::vector<ControlView*> members, QObject* parent)
    : QObject(parent), members_(std::move(members)) {
  for (const ControlView* member : members_) member->Widget()->installEventFilter(this);
}

bool FocusWalk::IsOptions() const { return members_.front()->Shows().kind == ControlKind::Option; }

const QWidget* FocusWalk::First() const { return members_.front()->Widget(); }

bool FocusWalk::StandsIn(const QWidget& widget) const {
  return std::all_of(members_.begin(), members_.end(),
                     [&widget](const ControlView* member) { return widget.isAncestorOf(member->Widget()); });
}

QWidget* FocusWalk::Stop() const {
  const auto usable = [](const ControlView* member) { return member->Shows().Usable(); };
  if (IsOptions()) {
    for (const ControlView* member : members_) {
      if (usable(member) && static_cast<const OptionButton&>(member->Shows()).Value()) return member->Widget();
    }
  }
  if (usable(members_[last_])) return members_[last_]->Widget();
  const auto first = std::find_if(members_.begin(), members_.end(), usable);
  return first == members_.end() ? nullptr : (*first)->Widget();
}

void FocusWalk::Sync() {
  const QWidget* stop = Stop();
  for (const ControlView* member : members_) {
    const Qt::FocusPolicy policy = member->Widget() == stop ? Qt::StrongFocus : Qt::ClickFocus;
    if (member->Widget()->focusPolicy() != policy) member->Widget()->setFocusPolicy(policy);
  }
}

HitAreas FocusWalk::Places() const {
  HitAreas places;
  for (const ControlView* member : members_) {
    QWidget* widget = member->Widget();
    // The left end of its middle line: that is where members of a column agree, however wide they are.
    const QPoint place = widget->mapTo(widget->window(), QPoint(0, widget->height() / 2));
    const Point at{static_cast<f32>(place.x()), static_cast<f32>(place.y())};
    places.push_back({member->Shows().name, at, at, {}, member->Shows().Usable(), {}});
  }
  return places;
}

// Towards the neighbour; where none stands in that direction, to the one before or after in reading order, so that a
// list is walked by either pair of arrows.
bool FocusWalk::TakeKey(const QWidget& from, const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
  const auto direction = DirectionOf(event.key());
  if (!direction || (held & ~Qt::ControlModifier) != 0) return false;
  const auto at = std::find_if(members_.begin(), members_.end(),
                               [&from](const ControlView* member) { return member->Widget() == &from; });
  const auto start = static_cast<std::size_t>(at - members_.begin());
  const HitAreas places = Places();
  std::optional<std::size_t> target = AreaToward(places, start, *direction);
  const bool forwards = *direction == Direction::Right || *direction == Direction::Down;
  if (!target) target = AreaAfter(places, start, forwards ? +1 : -1);
  if (target) GoTo(*target, IsOptions() && held == Qt::NoModifier);
  return true;
}

void FocusWalk::GoTo(std::size_t index, bool chooses) {
  auto* button = qobject_cast<QAbstractButton*>(members_[index]->Widget());
  button->setFocus(Qt::TabFocusReason);
  if (chooses) button->click();
}

bool FocusWalk::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    return TakeKey(static_cast<const QWidget&>(*watched), static_cast<const QKeyEvent&>(*event));
  }
  if (event->type() == QEvent::FocusIn) {
    const auto at = std::find_if(members_.begin(), members_.end(),
                                 [watched](const ControlView* member) { return member->Widget() == watched; });
    last_ = static_cast<std::size_t>(at - members_.begin());
    Sync();
  }
  return false;
}

}  // namespace quilm
