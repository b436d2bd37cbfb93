#include "app/EntryView.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "app/HistoryButton.h"
#include "app/Palettes.h"
#include "app/QtText.h"
#include "shell/EntryStep.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int entryCharacters = 12;
constexpr int wordCharacters = 48;
constexpr int repairMilliseconds = 2000;

int WidthFor(const QLineEdit& box, int characters) {
  constexpr int margins = 12;  // frame and the room that the widget keeps beside the text
  return box.fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + margins;
}

}  // namespace

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent) {
  warmth_.setSingleShot(true);
  warmth_.setInterval(repairMilliseconds);
  connect(&warmth_, &QTimer::timeout, this, [this] { setPalette(resting_); });
  connect(this, &QLineEdit::textEdited, this, &EntryBox::Typed);
}

void EntryBox::Typed(const QString& text) {
  touched_ = true;
  if (onType) onType(text);
}

void EntryBox::ShowText(const QString& shown) {
  if (text() == shown) return;
  const QSignalBlocker quiet(this);
  ReplaceText(shown);
  if (!touched_) before_ = shown;
}

// The toolkit's box forgets its own undo with it. What was selected whole stays so.
void EntryBox::ReplaceText(const QString& shown) {
  const int cursor = cursorPosition();
  const bool whole = hasSelectedText() && selectedText() == text();
  setText(shown);
  setCursorPosition(std::min(cursor, static_cast<int>(shown.size())));
  if (whole) selectAll();
}

// From the program's palette, not from the box's own, which may be warm from a repair just before.
void EntryBox::ShowRepair() {
  QPalette warm = QApplication::palette(this);
  const QColor base = warm.color(QPalette::Base);
  constexpr int darkBelow = 128;
  warm.setColor(QPalette::Base, base.lightness() < darkBelow ? QColor(0x5c, 0x45, 0x16) : QColor(0xff, 0xe2, 0xa8));
  setPalette(warm);
  warmth_.start();
}

void EntryBox::ShowGround(Color ground) {
  resting_ = MarkedGround(ground, QPalette::Base, QPalette::Text);
  if (!warmth_.isActive()) setPalette(resting_);
}

void EntryBox::LeaveIfTouched() {
  if (!touched_) return;
  touched_ = false;
  before_ = text();
  ForgetTyping();
  if (onLeave) onLeave();
}

// What was typed is a step of the design once the box was left, and no longer the box's own to take back.
void EntryBox::ForgetTyping() {
  const QSignalBlocker quiet(this);
  ReplaceText(text());
}

bool EntryBox::StepAtCursor(int direction) {
  if (!stepsDigits || isReadOnly()) return false;
  const auto step = StepDigit(text().toStdString(), cursorPosition(), direction);
  if (!step) return true;
  setText(QString::fromStdString(step->text));
  setCursorPosition(step->cursor);
  Typed(text());
  setCursorPosition(std::min(step->cursor, static_cast<int>(text().size())));
  return true;
}

bool EntryBox::Restore() {
  if (text() == before_ || isReadOnly()) return false;
  const QString back = before_;
  setText(back);
  Typed(back);
  return true;
}

// Keys that the box takes for itself must not be taken for a shortcut of the window first.
bool EntryBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& press = *static_cast<QKeyEvent*>(event);
    if (press.key() == Qt::Key_Escape && text() != before_) {
      event->accept();
      return true;
    }
    if (IsForDesign(press)) {
      event->ignore();
      return true;
    }
  }
  return QLineEdit::event(event);
}

// The box takes back its own typing first; when nothing of it is left, the keys are for the design.
bool EntryBox::IsForDesign(const QKeyEvent& press) const {
  const QKeySequence keys(press.keyCombination());
  return (keys == UndoKeys() && !isUndoAvailable()) || (keys == RedoKeys() && !isRedoAvailable());
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool taken = (key == Qt::Key_Up && StepAtCursor(+1)) || (key == Qt::Key_Down && StepAtCursor(-1)) ||
                     (key == Qt::Key_Escape && Restore());
  if (taken) {
    event->accept();
  } else if (key == Qt::Key_Escape) {
    event->ignore();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

// A file is for the window; its name would be no entry.
void EntryBox::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) {
    event->ignore();
  } else {
    QLineEdit::dragEnterEvent(event);
  }
}

void EntryBox::wheelEvent(QWheelEvent* event) {
  if (!hasFocus() || !stepsDigits || isReadOnly()) {
    event->ignore();
    return;
  }
  const int notches = wheel_.Take(*event);
  for (int n = 0; n < std::abs(notches); ++n) StepAtCursor(notches > 0 ? +1 : -1);
  event->accept();
}

// Whichever way the focus came, what is typed next replaces the text. The first box of a page has it before its window
// is active and hears of it when the window is; coming back to the window later is not entering the box anew.
void EntryBox::focusInEvent(QFocusEvent* event) {
  const bool returned = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
  if (!returned || !touched_) before_ = text();
  QLineEdit::focusInEvent(event);
  if (std::exchange(entered_, true)) return;
  selectAll();
  enteredByPress_ = event->reason() == Qt::MouseFocusReason;
}

// The press that brought the focus has put the cursor where it was; who has drawn the mouse over a part of the text has
// chosen that part.
void EntryBox::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (std::exchange(enteredByPress_, false) && !hasSelectedText()) selectAll();
}

void EntryBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
  touched_ = entered_ = enteredByPress_ = false;
  deselect();
  ForgetTyping();
  if (onLeave) onLeave();
}

EntryView::EntryView(TextBox& box, ActSink& sink, QWidget* parent)
    : ControlView(box), box_(box), widget_(new EntryBox(parent)) {
  const bool words = !box.stepsDigits;
  widget_->setMaxLength(box.maxLength);
  widget_->stepsDigits = box.stepsDigits;
  widget_->setFixedWidth(WidthFor(*widget_, words ? wordCharacters : entryCharacters));
  widget_->onType = [this, &sink](const QString& text) {
    sink.Perform([this, typed = text.toStdString()](Session& session) { Type(session, box_, typed); });
  };
  widget_->onLeave = [this, &sink] {
    if (sink.IsOnTop()) sink.Perform([this](Session& session) { Leave(session, box_); });
  };
  SetWidget(widget_);
}

void EntryView::ShowValues() {
  widget_->ShowText(ToQt(box_.text));
  if (widget_->isReadOnly() != box_.readOnly) widget_->setReadOnly(box_.readOnly);
  if (box_.backColor != groundShown_) widget_->ShowGround(groundShown_ = box_.backColor);
  if (box_.Repairs() == repairsShown_) return;
  repairsShown_ = box_.Repairs();
  widget_->ShowRepair();
}

}  // namespace quilm
