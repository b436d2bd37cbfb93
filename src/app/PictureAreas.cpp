#include "app/PictureAreas.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "app/AccessibleAreas.h"
#include "app/FocusWalk.h"
#include "app/PictureView.h"
#include "app/QtText.h"

namespace quilm {

namespace {

constexpr int markWidth = 2;
constexpr int markGap = 2;  // between the area and its mark

}  // namespace

PictureAreas::PictureAreas(PictureView& view) : QWidget(&view), view_(view) {
  InstallAccessiblePictures();
  setAttribute(Qt::WA_TransparentForMouseEvents);
  view.installEventFilter(this);
  hide();
}

void PictureAreas::Show(const HitAreas& areas) {
  if (!SameToTheUser(areas, areas_)) {
    const std::string name = present_ ? areas_[*present_].name : std::string();
    areas_ = areas;
    const auto at = std::find_if(areas_.begin(), areas_.end(), [&](const HitArea& area) { return area.name == name; });
    present_.reset();
    if (at != areas_.end() && at->enabled) present_ = static_cast<std::size_t>(at - areas_.begin());
    view_.setFocusPolicy(areas_.empty() ? Qt::ClickFocus : Qt::StrongFocus);
    QAccessibleEvent changed(&view_, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&changed);
  }
  PlaceMark();
}

QRect PictureAreas::PlaceOf(const HitArea& area) const {
  const QRectF paper = view_.Paper();
  const Point first = view_.ToUser(paper.topLeft());
  const Point last = view_.ToUser(paper.bottomRight());
  const auto place = [&](Point at) {
    const f64 x = static_cast<f64>(at.x - first.x) / static_cast<f64>(last.x - first.x);
    const f64 y = static_cast<f64>(at.y - first.y) / static_cast<f64>(last.y - first.y);
    return QPointF(paper.left() + x * paper.width(), paper.top() + y * paper.height());
  };
  return QRectF(place(area.from), place(area.to)).normalized().toAlignedRect();
}

const HitArea* PictureAreas::AreaAt(QPoint place) const {
  const Point at = view_.ToUser(place);
  const auto found =
      std::find_if(areas_.rbegin(), areas_.rend(), [at](const HitArea& area) { return area.Contains(at); });
  return found == areas_.rend() ? nullptr : &*found;
}

void PictureAreas::Press(std::size_t index) {
  if (index >= areas_.size() || !areas_[index].enabled || !onPress) return;
  const std::string name = areas_[index].name;  // the press may lay out other areas
  onPress(name);
}

// False when there is no such area: the key goes on its way.
bool PictureAreas::MoveTo(std::optional<std::size_t> index) {
  if (!index) return false;
  present_ = index;
  PlaceMark();
  QAccessibleEvent focus(&view_, QAccessible::Focus);
  focus.setChild(static_cast<int>(*index));
  QAccessible::updateAccessibility(&focus);
  return true;
}

void PictureAreas::WalkTo(std::optional<std::size_t> index) {
  if (index && MoveTo(index) && areas_[*index].walked) Press(*index);
}

// The first area (+1) or the last (-1); within a walk, its own.
std::optional<std::size_t> PictureAreas::OuterArea(int step) const {
  if (!present_ || !areas_[*present_].walked) return AreaAfter(areas_, std::nullopt, step);
  std::optional<std::size_t> outer;
  for (std::size_t i = 0; i < areas_.size(); ++i) {
    const bool sooner = step > 0 && outer.has_value();
    if (areas_[i].walked && areas_[i].enabled && !sooner) outer = i;
  }
  return outer;
}

// The walk goes on from the area that was clicked, where one of them is always the present one.
void PictureAreas::FollowClick(QPoint place) {
  const HitArea* area = AreaAt(place);
  if (area != nullptr && area->walked && area->enabled) present_ = static_cast<std::size_t>(area - areas_.data());
}

bool PictureAreas::TakeKey(const QKeyEvent& event) {
  if (areas_.empty() || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
  if (const auto direction = DirectionOf(event.key())) {
    // An arrow key never leaves the picture.
    WalkTo(present_ ? AreaToward(areas_, *present_, *direction) : AreaAfter(areas_, std::nullopt, +1));
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Tab:
      return MoveTo(AreaAfter(areas_, present_, +1));
    case Qt::Key_Backtab:
      return MoveTo(AreaAfter(areas_, present_, -1));
    case Qt::Key_Home:
      WalkTo(OuterArea(+1));
      return true;
    case Qt::Key_End:
      WalkTo(OuterArea(-1));
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (!present_) return false;
      Press(*present_);
      return true;
    default:
      return false;
  }
}

// By Tab the walk begins at its start, backwards at its end; whoever clicks goes on from where he was.
void PictureAreas::Enter(Qt::FocusReason reason) {
  if (reason == Qt::TabFocusReason) MoveTo(AreaAfter(areas_, std::nullopt, +1));
  if (reason == Qt::BacktabFocusReason) MoveTo(AreaAfter(areas_, std::nullopt, -1));
  PlaceMark();
}

bool PictureAreas::ShowTip(const QHelpEvent& event) {
  const HitArea* area = AreaAt(event.pos());
  if (area == nullptr || area->toolTip.empty()) return false;
  QToolTip::showText(event.globalPos(), ToQt(area->toolTip), &view_, PlaceOf(*area));
  return true;
}

void PictureAreas::PlaceMark() {
  const bool marked = present_.has_value() && view_.hasFocus();
  if (marked) {
    constexpr int around = markWidth + markGap;
    setGeometry(PlaceOf(areas_[*present_]).adjusted(-around, -around, around, around));
    raise();
  }
  setVisible(marked);
}

bool PictureAreas::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &view_) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress:
      return TakeKey(static_cast<const QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
      FollowClick(static_cast<const QMouseEvent&>(*event).pos());
      return false;
    case QEvent::FocusIn:
      Enter(static_cast<const QFocusEvent&>(*event).reason());
      return false;
    case QEvent::FocusOut:
      hide();
      return false;
    case QEvent::Resize:
      PlaceMark();
      return false;
    case QEvent::ToolTip:
      return ShowTip(static_cast<const QHelpEvent&>(*event));
    default:
      return false;
  }
}

void PictureAreas::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), markWidth));
  painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

}  // namespace quilm
