#include "app/ControlView.h"

#include "app/ButtonView.h"
#include "app/EntryView.h"
#include "app/ListView.h"
#include "app/PlainViews.h"
#include "app/QtText.h"
#include "app/TableView.h"

namespace quilm {

void ControlView::SetWidget(QWidget* widget) {
  widget_ = widget;
  widget_->setObjectName(ToQt(control_.name));
  FocusWidget()->setAccessibleName(ToQt(control_.SpokenName()));
}

void ControlView::Sync() {
  if (widget_ != nullptr) {
    if (widget_->isHidden() == control_.Shown()) widget_->setVisible(control_.Shown());
    if (widget_->isEnabled() != control_.Active()) widget_->setEnabled(control_.Active());
    const QString tip = ToQt(control_.toolTip);
    if (widget_->toolTip() != tip) widget_->setToolTip(tip);
    const QString spoken = ToQt(control_.SpokenName());
    if (FocusWidget()->accessibleName() != spoken) FocusWidget()->setAccessibleName(spoken);
  }
  for (QWidget* beside : companions_) {
    if (beside->isHidden() == control_.Shown()) beside->setVisible(control_.Shown());
    if (beside->isEnabled() != control_.Active()) beside->setEnabled(control_.Active());
  }
  ShowValues();
}

QString MarkedCaption(const std::string& caption, QChar letter) {
  const QString plain = ToQt(caption);
  const qsizetype at = letter.isNull() ? -1 : plain.indexOf(letter, 0, Qt::CaseInsensitive);
  if (at < 0) return LiteralCaption(caption);
  return LiteralCaption(plain.left(at).toStdString()) + QLatin1Char('&') + LiteralCaption(plain.mid(at).toStdString());
}

std::unique_ptr<ControlView> MakeControlView(Control& control, ActSink& sink, QWidget* parent) {
  switch (control.kind) {
    case ControlKind::Button:
      return std::make_unique<ButtonView>(static_cast<Button&>(control), sink, parent);
    case ControlKind::Option:
      return std::make_unique<OptionView>(static_cast<OptionButton&>(control), sink, parent);
    case ControlKind::Text:
      return std::make_unique<EntryView>(static_cast<TextBox&>(control), sink, parent);
    case ControlKind::Label:
      if (control.caption.size() > longestLabel) {
        return std::make_unique<ReadingView>(static_cast<Label&>(control), parent);
      }
      return std::make_unique<LabelView>(static_cast<Label&>(control), parent);
    case ControlKind::Frame:
      return std::make_unique<FrameView>(static_cast<Frame&>(control), parent);
    case ControlKind::List:
      if (!static_cast<ListBox&>(control).columns.empty()) {
        return std::make_unique<TableView>(static_cast<ListBox&>(control), sink, parent);
      }
      return std::make_unique<ListView>(static_cast<ListBox&>(control), sink, parent);
    case ControlKind::Spin:
      return std::make_unique<SpinView>(static_cast<Spin&>(control), sink, parent);
    case ControlKind::Timer:
      return std::make_unique<TimerView>(static_cast<Timer&>(control), sink, parent);
    case ControlKind::Picture:
      return std::make_unique<PictureBoxView>(static_cast<PictureBox&>(control), sink, parent);
  }
  return nullptr;
}

}  // namespace quilm
