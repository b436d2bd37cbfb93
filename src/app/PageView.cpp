#include "app/PageView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QRadioButton>
#include <QShortcut>
#include <algorithm>

#include "app/EntryView.h"
#include "app/HistoryButton.h"
#include "app/LayoutBuilder.h"
#include "app/Mnemonics.h"
#include "app/PictureView.h"
#include "app/QtText.h"
#include "app/SideStack.h"
#include "shell/Acts.h"
#include "shell/Page.h"

namespace quilm {

namespace {

struct WindowKey {
  QKeySequence keys;
  const char* control;
};

// The standard keys, where a page has the control.
std::vector<WindowKey> WindowKeys() {
  return {{QKeySequence::Open, "cmdGet"},
          {QKeySequence::Save, "cmdSave"},
          {QKeySequence::Print, "cmdPrint"},
          {QKeySequence(Qt::CTRL | Qt::Key_Q), "cmdExit"},
          {QKeySequence(Qt::Key_F1), "cmdHelp"},
          {QKeySequence(Qt::CTRL | Qt::Key_F), "cmdFitSweep"},
          {QKeySequence(Qt::CTRL | Qt::Key_1), "cmdDesign"},
          {QKeySequence(Qt::CTRL | Qt::Key_2), "cmdSchematic"},
          {QKeySequence(Qt::CTRL | Qt::Key_3), "cmdEdit"},
          {QKeySequence(Qt::CTRL | Qt::Key_4), "cmdAnalysis"},
          {QKeySequence(Qt::CTRL | Qt::Key_5), "cmdPlot"},
          {QKeySequence(Qt::CTRL | Qt::Key_6), "cmdTabulate"}};
}

// Who chooses a mnemonic first: a page's own buttons before those of the navigation row, which have keys of their own.
int MnemonicRank(const Control& control) {
  if (control.kind == ControlKind::Option) return 1;
  switch (static_cast<const Button&>(control).role) {
    case ButtonRole::Action:
      return 2;
    case ButtonRole::Segment:
      return 3;
    case ButtonRole::Plain:
    case ButtonRole::Tool:
    case ButtonRole::Thumbnail:
      break;
  }
  return 0;
}

bool ShowsCaption(const Control& control) {
  if (control.caption.empty()) return false;
  if (control.kind == ControlKind::Option) return true;
  return control.kind == ControlKind::Button && static_cast<const Button&>(control).role != ButtonRole::Thumbnail;
}

}  // namespace

PageView::PageView(Page& page, ActHost& host, QWidget* parent) : QWidget(parent), page_(&page), host_(host) {
  setFocusPolicy(Qt::ClickFocus);
  LayoutBuilder builder(*this,
                        [this](Control& control, QWidget* owner) -> ControlView& { return AddView(control, owner); });
  builder.Build(page.MakeLayout());
  side_ = findChild<SideStack*>();
  for (Control* control : page.Controls()) {
    if (control->kind == ControlKind::Timer) AddView(*control, this);
  }
  MarkMnemonics();
  if (const auto accept = viewOf_.find(page.acceptButton); accept != viewOf_.end()) accept->second->SetDefault(true);
  AddShortcuts();
  Sync();
}

// Hidden while all of it is there: the box with the focus loses it now.
PageView::~PageView() {
  Detach();
  hide();
}

// The layout is walked in reading order, so the order of making is the tab order.
ControlView& PageView::AddView(Control& control, QWidget* parent) {
  views_.push_back(MakeControlView(control, *this, parent));
  ControlView& view = *views_.back();
  viewOf_[&control] = &view;
  view.Sync();
  return view;
}

void PageView::MarkMnemonics() {
  std::vector<ControlView*> marked;
  for (const auto& view : views_) {
    if (ShowsCaption(view->Shows())) marked.push_back(view.get());
  }
  std::stable_sort(marked.begin(), marked.end(), [](const ControlView* a, const ControlView* b) {
    return MnemonicRank(a->Shows()) < MnemonicRank(b->Shows());
  });
  std::vector<QString> captions;
  for (const ControlView* view : marked) captions.push_back(ToQt(view->Shows().caption));
  const std::vector<QChar> letters = ChooseMnemonics(captions);
  for (std::size_t i = 0; i < marked.size(); ++i) marked[i]->SetMnemonic(letters[i]);
}

void PageView::AddShortcuts() {
  for (const WindowKey& key : WindowKeys()) {
    if (page_->Find(key.control) == nullptr) continue;
    auto* shortcut = new QShortcut(key.keys, this);
    connect(shortcut, &QShortcut::activated, this, [this, name = key.control] { PressNamed(name); });
    shortcuts_.push_back(shortcut);
  }
  // A box takes these keys for itself while it has something of its own to take back.
  auto* undo = new QShortcut(UndoKeys(), this);
  connect(undo, &QShortcut::activated, this, [this] { Press(Undo); });
  auto* redo = new QShortcut(RedoKeys(), this);
  connect(redo, &QShortcut::activated, this, [this] { Press(Redo); });
  auto* copy = new QShortcut(QKeySequence::Copy, this);
  connect(copy, &QShortcut::activated, this, [this] {
    if (const PictureView* picture = PictureToCopy()) picture->Copy();
  });
  shortcuts_.insert(shortcuts_.end(), {undo, redo, copy});
}

bool PageView::HasTool() const { return side_ != nullptr && side_->Panel() != nullptr; }

// The picture with the focus, else the largest one that is seen, be it of the page beside which this one stands.
PictureView* PageView::PictureToCopy() const {
  if (auto* focused = qobject_cast<PictureView*>(QApplication::focusWidget())) return focused;
  PictureView* largest = nullptr;
  for (PictureView* picture : window()->findChildren<PictureView*>()) {
    const bool larger =
        largest == nullptr || picture->width() * picture->height() > largest->width() * largest->height();
    if (picture->isVisible() && larger) largest = picture;
  }
  return largest;
}

void PageView::Sync() {
  if (page_ == nullptr) return;
  for (const auto& view : views_) view->Sync();
  // The same key of two pages in one window would mean neither: it is the tool's.
  for (QShortcut* shortcut : shortcuts_) shortcut->setEnabled(!HasTool());
  const auto wished = viewOf_.find(page_->TakeFocusWish());
  if (wished == viewOf_.end() || wished->second->Widget() == nullptr) return;
  // As if reached by Tab: a box has its text selected.
  wished->second->FocusWidget()->setFocus(Qt::TabFocusReason);
}

void PageView::FocusFirst() {
  if (QWidget* wished = focusWidget(); wished != nullptr && wished != this) {
    wished->setFocus(Qt::TabFocusReason);
    return;
  }
  for (const auto& view : views_) {
    const bool entry = view->Shows().kind == ControlKind::Text && view->Shows().Usable();
    if (!entry) continue;
    view->FocusWidget()->setFocus(Qt::TabFocusReason);
    return;
  }
  const auto accept = page_ == nullptr ? viewOf_.end() : viewOf_.find(page_->acceptButton);
  if (accept != viewOf_.end()) {
    accept->second->FocusWidget()->setFocus(Qt::OtherFocusReason);
  } else {
    setFocus(Qt::OtherFocusReason);
  }
}

QWidget* PageView::Find(const QString& name) const { return findChild<QWidget*>(name); }

void PageView::Perform(const std::function<void(Session&)>& act) {
  if (page_ != nullptr) host_.Perform(act);
}

void PageView::LeaveBox() {
  if (auto* box = qobject_cast<EntryBox*>(QApplication::focusWidget()); box != nullptr && isAncestorOf(box)) {
    box->LeaveIfTouched();
  }
}

void PageView::Press(const std::function<void(Session&)>& act) {
  LeaveBox();
  Perform(act);
}

bool PageView::PressButton(Button* button) {
  if (button == nullptr || !button->Usable()) return false;
  Press([button](Session& session) { Click(session, *button); });
  return true;
}

bool PageView::PressNamed(const char* name) {
  if (page_ == nullptr) return false;
  return PressButton(dynamic_cast<Button*>(page_->Find(name)));
}

// Return presses the button that has the focus.
bool PageView::PressFocused() {
  auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
  if (button == nullptr || qobject_cast<QRadioButton*>(button) != nullptr || !isAncestorOf(button)) return false;
  button->click();
  return true;
}

bool PageView::TakeKey(const QKeyEvent& event) {
  if (page_ == nullptr) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (PressFocused() || PressButton(page_->acceptButton)) return true;
      LeaveBox();
      return true;
    case Qt::Key_Escape:
      return PressButton(page_->cancelButton);
    default:
      return false;
  }
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const bool taken = HasTool() ? side_->Panel()->TakeKey(*event) : TakeKey(*event);
  if (taken) {
    event->accept();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace quilm
