#include "app/HistoryButton.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "app/QtText.h"

namespace quilm {

namespace {

// An arrow that comes from below and turns back to the left, in a square of 16.
QPainterPath BackArrow() {
  QPainterPath arrow(QPointF(13, 13));
  arrow.cubicTo(QPointF(14, 7.5), QPointF(10, 6), QPointF(3, 6));
  arrow.moveTo(QPointF(6.5, 2.5));
  arrow.lineTo(QPointF(3, 6));
  arrow.lineTo(QPointF(6.5, 9.5));
  return arrow;
}

constexpr qreal square = 16;

}  // namespace

HistoryButton::HistoryButton(const QString& verb, const QKeySequence& keys, QWidget* parent)
    : QToolButton(parent), verb_(verb), keys_(keys.toString(QKeySequence::NativeText)) {
  setAutoRaise(true);
  // The focus stays in the page, so that its box is left as for any other act.
  setFocusPolicy(Qt::NoFocus);
  connect(this, &QToolButton::clicked, this, [this] {
    if (onPress) onPress();
  });
  Show(false, {});
}

void HistoryButton::Show(bool possible, const std::string& what) {
  setEnabled(possible);
  const QString told =
      possible ? verb_ + QStringLiteral(": ") + ToQt(what) : QStringLiteral("Nothing to ") + verb_.toLower();
  setAccessibleName(told);
  setToolTip(told + QStringLiteral(" (") + keys_ + QLatin1Char(')'));
}

QSize HistoryButton::sizeHint() const {
  constexpr int aboveAndBelow = 6;
  const int side = fontMetrics().height() + aboveAndBelow;
  return QSize(side, side);
}

void HistoryButton::paintEvent(QPaintEvent* /*event*/) {
  QStyleOptionToolButton option;
  initStyleOption(&option);
  QStylePainter painter(this);
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal side = fontMetrics().height();
  painter.translate(width() / 2.0, height() / 2.0);
  painter.scale(side / square, side / square);
  if (verb_ == QLatin1String("Redo")) painter.scale(-1, 1);
  painter.translate(-square / 2, -square / 2);
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  constexpr qreal stroke = 1.5;
  painter.setPen(
      QPen(palette().color(group, QPalette::WindowText), stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(BackArrow());
}

}  // namespace quilm
