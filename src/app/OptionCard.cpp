#include "app/OptionCard.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "app/SignIcon.h"

namespace quilm {

namespace {

constexpr int inside = 4;        // between the frame and what stands in it
constexpr int markGap = 4;       // between the mark and the caption
constexpr int usualHeight = 48;  // of the picture
constexpr int leastHeight = 32;

}  // namespace

OptionCard::OptionCard(const Picture& picture, QWidget* parent)
    : QRadioButton(parent), picture_(SignIcon(picture)), natural_(SignSize(picture, usualHeight)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_Hover);
}

QSize OptionCard::TitleSize() const {
  const int mark = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this);
  const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
  return {mark + markGap + text.width(), std::max(mark, text.height())};
}

QSize OptionCard::sizeHint() const {
  const QSize title = TitleSize();
  return {std::max(title.width(), natural_.width()) + 2 * inside, title.height() + natural_.height() + 2 * inside};
}

QSize OptionCard::minimumSizeHint() const {
  const QSize title = TitleSize();
  return {title.width() + 2 * inside, title.height() + leastHeight + 2 * inside};
}

QRect OptionCard::PictureRect() const {
  constexpr int below = 2;
  constexpr int aside = 28;  // the question mark in the corner, and as much at the other side
  return rect().adjusted(aside, inside + TitleSize().height(), -aside, -below);
}

void OptionCard::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QStyleOptionButton option;
  initStyleOption(&option);
  const QPalette& colors = palette();
  QColor field = isEnabled() ? colors.color(QPalette::Base) : colors.color(QPalette::Window);
  if (isEnabled() && (isDown() || underMouse())) field = colors.color(QPalette::AlternateBase);
  const bool chosen = isChecked();
  constexpr f64 corner = 3;
  const f64 thickness = chosen ? 2 : 1;
  painter.setPen(QPen(colors.color(QPalette::Active, chosen ? QPalette::Highlight : QPalette::Mid), thickness));
  painter.setBrush(field);
  const f64 half = thickness / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), corner, corner);

  const QSize title = TitleSize();
  const int mark = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this);
  QStyleOptionButton indicator = option;
  indicator.rect = QRect(inside, inside + (title.height() - mark) / 2, mark, mark);
  style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &indicator, &painter, this);
  const QRect caption(inside + mark + markGap, inside, title.width() - mark - markGap, title.height());
  painter.setPen(colors.color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
  picture_.paint(&painter, PictureRect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = caption.adjusted(-2, -1, 2, 1);
  focus.backgroundColor = field;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

}  // namespace quilm
