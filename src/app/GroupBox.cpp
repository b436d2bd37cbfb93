#include "app/GroupBox.h"

#include <QEvent>

#include "app/ControlView.h"

namespace quilm {

GroupHeading::GroupHeading(const QString& title, bool nested, QWidget* parent) : QLabel(title, parent) {
  setTextFormat(Qt::PlainText);
  setObjectName(QStringLiteral("heading"));
  if (nested) {
    setForegroundRole(QPalette::PlaceholderText);
  } else {
    QFont demi = font();
    demi.setWeight(QFont::DemiBold);
    setFont(demi);
  }
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

bool GroupHeading::event(QEvent* event) {
  if (event->type() == QEvent::Shortcut && onLetter) {
    onLetter();
    return true;
  }
  return QLabel::event(event);
}

GroupHeading& GroupBox::AddHeading(const QString& title, bool nested) {
  heading_ = new GroupHeading(title, nested, this);
  // The toolkit marks a label's letter for the sake of a partner only.
  heading_->setBuddy(this);
  SetTitle(title);
  return *heading_;
}

void GroupBox::SetTitle(const QString& title) {
  title_ = title;
  setAccessibleName(title);
  ShowTitle();
}

void GroupBox::SetMnemonic(QChar letter) {
  mnemonic_ = letter;
  ShowTitle();
}

void GroupBox::ShowTitle() {
  const QString shown = MarkedCaption(title_.toStdString(), mnemonic_);
  if (heading_->text() != shown) heading_->setText(shown);
  if (heading_->isHidden() != title_.isEmpty()) heading_->setVisible(!title_.isEmpty());
}

}  // namespace quilm
