#include "app/SpinBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyleOptionSpinBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace quilm {

namespace {

constexpr int arrowsWidth = 20;
constexpr int textMargin = 5;
constexpr int pauseMilliseconds = 2000;
constexpr int firstRepeat = 300;
constexpr int nextRepeat = 75;

}  // namespace

SpinBox::SpinBox(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  pause_.setSingleShot(true);
  pause_.setInterval(pauseMilliseconds);
  connect(&pause_, &QTimer::timeout, this, [this] { typed_.clear(); });
  connect(&repeat_, &QTimer::timeout, this, [this] {
    repeat_.setInterval(nextRepeat);
    Step(pressed_);
  });
}

void SpinBox::Hold(QWidget& number) {
  number_ = &number;
  number.setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(textMargin, 0, arrowsWidth + textMargin, 0);
  row->addWidget(&number);
}

QSize SpinBox::sizeHint() const {
  QStyleOptionSpinBox option;
  Describe(option);
  const int aboveAndBelow = large ? 20 : 4;
  const int text = number_ == nullptr ? 0 : room * fontMetrics().horizontalAdvance(QLatin1Char('0')) + textMargin;
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option,
                                   QSize(text + arrowsWidth, fontMetrics().height() + aboveAndBelow), this);
}

void SpinBox::Describe(QStyleOptionSpinBox& option) const {
  option.initFrom(this);
  option.frame = true;
  option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
  option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
  option.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
  if (number_ != nullptr) option.subControls |= QStyle::SC_SpinBoxEditField;
  option.activeSubControls = QStyle::SC_None;
  if (pressed_ == 0) return;
  option.activeSubControls = pressed_ > 0 ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
  option.state |= QStyle::State_Sunken;
}

QRect SpinBox::ArrowRect(int direction) const {
  QStyleOptionSpinBox option;
  Describe(option);
  return style()->subControlRect(QStyle::CC_SpinBox, &option,
                                 direction > 0 ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown, this);
}

void SpinBox::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionSpinBox option;
  Describe(option);
  painter.drawComplexControl(QStyle::CC_SpinBox, option);
}

void SpinBox::Step(int direction) {
  typed_.clear();
  if (onStep) onStep(direction);
}

// A digit goes on with the number that is being typed as long as the range has room for it, else it begins another.
bool SpinBox::TypeDigit(const QString& text) {
  if (!onNumber || text.size() != 1 || text[0] < QLatin1Char('0') || text[0] > QLatin1Char('9')) return false;
  const QString longer = typed_ + text;
  typed_ = longer.toLongLong() <= highest ? longer : text;
  Set();
  return true;
}

bool SpinBox::EraseDigit() {
  if (typed_.isEmpty()) return false;
  typed_.chop(1);
  if (!typed_.isEmpty()) Set();
  return true;
}

void SpinBox::Set() {
  pause_.start();
  onNumber(typed_.toInt());
}

void SpinBox::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_PageUp:
      return Step(+1);
    case Qt::Key_Down:
    case Qt::Key_PageDown:
      return Step(-1);
    case Qt::Key_Backspace:
      if (EraseDigit()) return;
      break;
    default:
      if (plain && TypeDigit(event->text())) return;
      break;
  }
  QWidget::keyPressEvent(event);
}

void SpinBox::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  const int notches = wheel_.Take(*event);
  for (int n = 0; n < std::abs(notches); ++n) Step(notches > 0 ? +1 : -1);
  event->accept();
}

void SpinBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  for (const int direction : {+1, -1}) {
    if (ArrowRect(direction).contains(event->position().toPoint())) pressed_ = direction;
  }
  if (pressed_ == 0) return;
  repeat_.start(firstRepeat);
  update();
  Step(pressed_);
}

void SpinBox::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Release();
}

void SpinBox::Release() {
  repeat_.stop();
  pressed_ = 0;
  update();
}

void SpinBox::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void SpinBox::focusOutEvent(QFocusEvent* event) {
  typed_.clear();
  Release();
  QWidget::focusOutEvent(event);
}

}  // namespace quilm
