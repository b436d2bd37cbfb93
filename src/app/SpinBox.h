// A number with two small arrows: one control for the keyboard, the wheel and assistive tools.
#pragma once

#include <QString>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "app/WheelNotches.h"

class QStyleOptionSpinBox;

namespace quilm {

class SpinBox : public QWidget {
  Q_OBJECT

 public:
  explicit SpinBox(QWidget* parent);

  std::function<void(int direction)> onStep;
  std::function<void(int number)> onNumber;  // typed; empty where no number stands in it
  std::function<int()> value;
  bool large = false;
  int room = 0;  // digits
  int lowest = 0;
  int highest = 0;

  // Shows the number in it, at the left of the arrows.
  void Hold(QWidget& number);

  QSize sizeHint() const override;
  // Of an arrow, for a press in its middle.
  QRect ArrowRect(int direction) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Describe(QStyleOptionSpinBox& option) const;
  void Step(int direction);
  bool TypeDigit(const QString& text);
  bool EraseDigit();
  void Set();
  void Release();

  QWidget* number_ = nullptr;
  QTimer repeat_;
  QTimer pause_;   // runs as long as a further digit belongs to the number
  QString typed_;  // the digits of the number so far
  int pressed_ = 0;
  WheelNotches wheel_;
};

}  // namespace quilm
