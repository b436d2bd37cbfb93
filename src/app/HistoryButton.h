// The quiet buttons of undo and redo in the status line: an arrow bent to the left or to the right.
#pragma once

#include <QKeySequence>
#include <QToolButton>
#include <functional>
#include <string>

namespace quilm {

inline QKeySequence UndoKeys() { return QKeySequence(Qt::CTRL | Qt::Key_Z); }
inline QKeySequence RedoKeys() { return QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z); }

class HistoryButton : public QToolButton {
  Q_OBJECT

 public:
  // `verb` is "Undo" or "Redo"; the arrow of the latter points to the right.
  HistoryButton(const QString& verb, const QKeySequence& keys, QWidget* parent = nullptr);

  std::function<void()> onPress;

  // Whether there is something to do, and what; the tool tip tells it.
  void Show(bool possible, const std::string& what);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString verb_;
  QString keys_;
};

}  // namespace quilm
