// A message box. The toolkit's own grows with its text beyond the screen and takes its buttons along.
#pragma once

#include <QDialog>

#include "shell/Platform.h"

class QLabel;
class QScrollArea;

namespace quilm {

// Shows a text, which scrolls when the screen is lower than it, and under it the buttons, which are always in sight.
// Escape and the close box answer No to a question. exec() returns QDialog::Accepted for Ok and Yes.
class MessageWindow : public QDialog {
  Q_OBJECT

 public:
  MessageWindow(const QString& title, const QString& text, Buttons buttons, Icon icon, QWidget* parent);

  QString Text() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QSize TextSize(int widest) const;
  void FitToScreen();

  QLabel* text_;
  QScrollArea* area_;
};

}  // namespace quilm
