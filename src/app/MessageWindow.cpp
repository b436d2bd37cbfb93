#include "app/MessageWindow.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <optional>

#include "app/FirstPlace.h"

namespace quilm {

namespace {

std::optional<QStyle::StandardPixmap> SignOf(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QStyle::SP_MessageBoxInformation;
    case Icon::Question:
      return QStyle::SP_MessageBoxQuestion;
    case Icon::Exclamation:
      return QStyle::SP_MessageBoxWarning;
    case Icon::Critical:
      return QStyle::SP_MessageBoxCritical;
    case Icon::None:
      break;
  }
  return std::nullopt;
}

// By key the text scrolls from the button that has the focus.
std::optional<QAbstractSlider::SliderAction> ScrollOf(int key) {
  switch (key) {
    case Qt::Key_PageUp:
      return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
      return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
      return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
      return QAbstractSlider::SliderToMaximum;
    default:
      return std::nullopt;
  }
}

}  // namespace

MessageWindow::MessageWindow(const QString& title, const QString& text, Buttons buttons, Icon icon, QWidget* parent)
    : QDialog(parent), text_(new QLabel(text)), area_(new QScrollArea) {
  setWindowTitle(title);
  setWindowModality(Qt::ApplicationModal);
  setAccessibleDescription(text);
  text_->setTextFormat(Qt::PlainText);
  text_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setWidgetResizable(true);
  area_->setWidget(text_);
  auto* row = new QDialogButtonBox(buttons == Buttons::YesNo ? QDialogButtonBox::Yes | QDialogButtonBox::No
                                                             : QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
  connect(row, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* grid = new QGridLayout(this);
  constexpr int gap = 16;
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(gap);
  if (const auto sign = SignOf(icon)) {
    auto* picture = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    picture->setPixmap(style()->standardIcon(*sign, nullptr, this).pixmap(size));
    grid->addWidget(picture, 0, 0, Qt::AlignTop);
  }
  grid->addWidget(area_, 0, 1);
  grid->addWidget(row, 1, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  // Who types on and presses Return by chance has agreed to nothing.
  if (QPushButton* no = row->button(QDialogButtonBox::No)) {
    no->setDefault(true);
    no->setFocus();
  }
  FitToScreen();
}

QString MessageWindow::Text() const { return text_->text(); }

// The text's size in lines no longer than that. A word that is longer still, a path say, is not broken.
QSize MessageWindow::TextSize(int widest) const {
  text_->setWordWrap(false);
  const int width = std::min(text_->sizeHint().width(), widest);
  text_->setWordWrap(true);
  return QSize(std::max(width, text_->minimumSizeHint().width()), text_->heightForWidth(width));
}

void MessageWindow::FitToScreen() {
  constexpr int widestText = 640;
  constexpr QSize any(400, 100);  // wider than the row of buttons
  area_->setFixedSize(any);
  const QSize around = layout()->totalSizeHint() - any;
  const QSize room = RoomOn(screen()->availableGeometry()).size();
  const QSize most = room - around;
  const QSize wanted = TextSize(std::min(widestText, room.width() / 2));
  QSize given = wanted.boundedTo(most);
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  if (wanted.height() > most.height()) given.setWidth(std::min(given.width() + bar, most.width()));
  if (wanted.width() > most.width()) given.setHeight(std::min(given.height() + bar, most.height()));
  area_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  area_->setMinimumSize(given);
  resize(given + around);
}

void MessageWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void MessageWindow::keyPressEvent(QKeyEvent* event) {
  if (const auto scroll = ScrollOf(event->key())) {
    area_->verticalScrollBar()->triggerAction(*scroll);
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace quilm
