// A quiet heading with what stands under it; assistive tools hear it as a group of its heading's name.
#pragma once

#include <QLabel>
#include <QString>
#include <functional>

namespace quilm {

// A heading. Its letter, when it has one, leads into the group.
class GroupHeading : public QLabel {
  Q_OBJECT

 public:
  GroupHeading(const QString& title, bool nested, QWidget* parent);

  // Called when its letter is pressed together with Alt.
  std::function<void()> onLetter;

 protected:
  bool event(QEvent* event) override;
};

class GroupBox : public QWidget {
  Q_OBJECT

 public:
  explicit GroupBox(QWidget* parent) : QWidget(parent) {}

  // Gives it its heading, quieter within another group; hidden while it is empty.
  GroupHeading& AddHeading(const QString& title, bool nested);
  void SetTitle(const QString& title);
  void SetMnemonic(QChar letter);

  GroupHeading* Heading() const { return heading_; }
  const QString& Title() const { return title_; }

 private:
  void ShowTitle();

  GroupHeading* heading_ = nullptr;
  QString title_;
  QChar mnemonic_;
};

}  // namespace quilm
