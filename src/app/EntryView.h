// Text boxes: every keystroke is a change, leaving the box echoes what was understood.
#pragma once

#include <QLineEdit>
#include <QPalette>
#include <QTimer>
#include <functional>

#include "app/ControlView.h"
#include "app/WheelNotches.h"

namespace quilm {

class EntryBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit EntryBox(QWidget* parent);

  std::function<void(const QString&)> onType;  // the text after a keystroke
  std::function<void()> onLeave;
  bool stepsDigits = true;

  // Shows another text, the cursor where it was.
  void ShowText(const QString& text);
  // Shows briefly that a limit has replaced the text.
  void ShowRepair();
  // Marks the box by the colour of its ground, until it is white, which stands for the palette's own.
  void ShowGround(Color ground);
  // Whether anything was typed since it was entered or left last.
  bool IsTouched() const { return touched_; }
  // Leaves the box in the program's eyes while it keeps the focus; nothing when nothing was typed since.
  void LeaveIfTouched();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Typed(const QString& text);
  bool StepAtCursor(int direction);
  bool Restore();
  void ReplaceText(const QString& shown);
  void ForgetTyping();
  bool IsForDesign(const QKeyEvent& press) const;

  QPalette resting_;  // its colours while no repair shows
  QTimer warmth_;     // runs as long as a repair shows
  QString before_;    // when the box was entered
  bool touched_ = false;
  bool entered_ = false;         // it keeps the focus, also while another window or a menu has the keyboard
  bool enteredByPress_ = false;  // by the mouse button that is still down
  WheelNotches wheel_;
};

class EntryView : public ControlView {
 public:
  EntryView(TextBox& box, ActSink& sink, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  TextBox& box_;
  EntryBox* widget_;
  i32 repairsShown_ = 0;
  Color groundShown_ = colorWhite;
};

}  // namespace quilm
