#include "app/PageView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QRadioButton>
#include <QShortcut>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "app/AccessibleControls.h"
#include "app/EntryView.h"
#include "app/FocusWalk.h"
#include "app/GroupBox.h"
#include "app/HistoryButton.h"
#include "app/LayoutBuilder.h"
#include "app/Mnemonics.h"
#include "app/PictureView.h"
#include "app/QtText.h"
#include "app/SideStack.h"
#include "shell/Acts.h"
#include "shell/HelpPages.h"
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
          {QKeySequence(Qt::CTRL | Qt::Key_F), "cmdFitSweep"},
          {QKeySequence(Qt::CTRL | Qt::Key_Plus), "cmdZoomIn"},
          {QKeySequence(Qt::CTRL | Qt::Key_Equal), "cmdZoomIn"},  // the same key without Shift on many keyboards
          {QKeySequence(Qt::CTRL | Qt::Key_Minus), "cmdZoomOut"},
          {QKeySequence(Qt::CTRL | Qt::Key_0), "cmdZoomFit"},
          {QKeySequence(Qt::Key_Delete), "cmdDeletePart"},
          {QKeySequence(Qt::Key_Insert), "cmdInsertPart"},
          {QKeySequence(Qt::CTRL | Qt::Key_1), "cmdDesign"},
          {QKeySequence(Qt::CTRL | Qt::Key_2), "cmdSchematic"},
          {QKeySequence(Qt::CTRL | Qt::Key_3), "cmdEdit"},
          {QKeySequence(Qt::CTRL | Qt::Key_4), "cmdAnalysis"},
          {QKeySequence(Qt::CTRL | Qt::Key_5), "cmdPlot"},
          {QKeySequence(Qt::CTRL | Qt::Key_6), "cmdTabulate"}};
}

// Buttons of one role in one group are walked together; plain ones are not.
bool IsWalked(const Control& control) {
  return control.kind == ControlKind::Button && static_cast<const Button&>(control).role != ButtonRole::Plain;
}

GroupBox* GroupOf(const QWidget* widget) {
  for (QWidget* around = widget->parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (auto* group = qobject_cast<GroupBox*>(around)) return group;
  }
  return nullptr;
}

}  // namespace

PageView::PageView(Page& page, ActHost& host, QWidget* parent) : QWidget(parent), page_(&page), host_(host) {
  setFocusPolicy(Qt::ClickFocus);
  InstallAccessibleControls();
  LayoutBuilder builder(*this,
                        [this](Control& control, QWidget* owner) -> ControlView& { return AddView(control, owner); });
  builder.Build(page.MakeLayout());
  side_ = findChild<SideStack*>();
  for (Control* control : page.Controls()) {
    if (control->kind == ControlKind::Timer) AddView(*control, this);
  }
  for (const Control* control : page.Controls()) {
    if (control->mnemonic != 0) takenLetters_.insert(QChar(QLatin1Char(control->mnemonic)).toLower());
  }
  AddWalks();
  RefreshMnemonics();
  MarkGroups();
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

void PageView::AddWalks() {
  using Key = std::pair<const void*, int>;  // a group of options, or a group's widget and a role
  std::vector<std::pair<Key, std::vector<ControlView*>>> walks;
  for (const auto& view : views_) {
    const Control& control = view->Shows();
    Key key{nullptr, -1};
    if (control.kind == ControlKind::Option) {
      key.first = &static_cast<const OptionButton&>(control).Group();
    } else if (IsWalked(control)) {
      const ButtonRole role = static_cast<const Button&>(control).role;
      // The question marks of all cards are one walk, as the cards are.
      key = {role == ButtonRole::Corner ? nullptr : GroupOf(view->Widget()), static_cast<int>(role)};
    } else {
      continue;
    }
    auto at = std::find_if(walks.begin(), walks.end(), [&key](const auto& walk) { return walk.first == key; });
    if (at == walks.end()) at = walks.insert(at, {key, {}});
    at->second.push_back(view.get());
  }
  for (auto& walk : walks) walks_.push_back(new FocusWalk(std::move(walk.second), this));
}

// Each letter is chosen once and then stays, so that it is the same whatever can be used just now; what cannot be used
// shows none, and has taken none from the others if it could not be used when the page came.
void PageView::RefreshMnemonics() {
  std::vector<const ControlView*> without;
  std::vector<QString> captions;
  for (const auto& view : views_) {
    if (!view->TakesMnemonic() || !view->Shows().Usable() || letters_.count(view.get()) != 0) continue;
    if (view->Shows().mnemonic != 0) {
      letters_[view.get()] = QLatin1Char(view->Shows().mnemonic);
    } else {
      without.push_back(view.get());
      captions.push_back(ToQt(view->Shows().caption));
    }
  }
  const std::vector<QChar> chosen = ChooseMnemonics(captions, takenLetters_);
  for (std::size_t i = 0; i < without.size(); ++i) letters_[without[i]] = chosen[i];
  for (const auto& view : views_) {
    const auto letter = letters_.find(view.get());
    view->SetMnemonic(letter != letters_.end() && view->Shows().Usable() ? letter->second : QChar());
  }
}

// The letter of a group leads to the walk in it. Groups that are seen when the page comes choose first.
void PageView::MarkGroups() {
  std::vector<GroupBox*> groups;
  for (FocusWalk* walk : walks_) {
    GroupBox* group = GroupOf(walk->First());
    while (group != nullptr && !walk->StandsIn(*group)) group = GroupOf(group);
    if (group == nullptr || group->Title().isEmpty() || group->Heading()->onLetter) continue;
    group->Heading()->onLetter = [walk] {
      if (QWidget* stop = walk->Stop()) stop->setFocus(Qt::ShortcutFocusReason);
    };
    groups.push_back(group);
  }
  std::ranges::stable_partition(groups, [this](const GroupBox* group) { return group->isVisibleTo(this); });
  std::vector<QString> captions;
  for (const GroupBox* group : groups) captions.push_back(group->Title());
  const std::vector<QChar> chosen = ChooseMnemonics(captions, takenLetters_);
  for (std::size_t i = 0; i < groups.size(); ++i) groups[i]->SetMnemonic(chosen[i]);
}

void PageView::AddShortcuts() {
  for (const WindowKey& key : WindowKeys()) {
    if (page_->Find(key.control) == nullptr) continue;
    auto* shortcut = new QShortcut(key.keys, this);
    connect(shortcut, &QShortcut::activated, this, [this, name = key.control] { PressNamed(name); });
    shortcuts_.push_back(shortcut);
  }
  // Of every page, whether it has a button for it or not.
  auto* help = new QShortcut(QKeySequence(Qt::Key_F1), this);
  connect(help, &QShortcut::activated, this, [this] {
    if (page_ != nullptr) Perform([id = page_->Id()](Session& session) { OpenHelp(session, id); });
  });
  // A box takes these keys for itself while it has something of its own to take back.
  auto* undo = new QShortcut(UndoKeys(), this);
  connect(undo, &QShortcut::activated, this, [this] { Press(Undo); });
  auto* redo = new QShortcut(RedoKeys(), this);
  connect(redo, &QShortcut::activated, this, [this] { Press(Redo); });
  auto* copy = new QShortcut(QKeySequence::Copy, this);
  connect(copy, &QShortcut::activated, this, [this] {
    if (const PictureView* picture = PictureToCopy()) picture->Copy();
  });
  auto* save = new QShortcut(SavePictureKeys(), this);
  connect(save, &QShortcut::activated, this, [this] {
    if (PressNamed("cmdSaveTable")) return;
    if (PictureView* picture = PictureToCopy()) emit picture->SaveRequested(0);
  });
  shortcuts_.insert(shortcuts_.end(), {help, undo, redo, copy, save});
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
  RefreshMnemonics();
  for (const auto& view : views_) view->Sync();
  for (FocusWalk* walk : walks_) walk->Sync();
  // The same key of two pages in one window would mean neither: it is the tool's.
  for (QShortcut* shortcut : shortcuts_) shortcut->setEnabled(!HasTool());
  // A page that is not seen yet keeps its wish: what it had of the focus is lost when it comes into its window.
  if (isVisible()) FollowWish();
}

bool PageView::FollowWish() {
  const auto wished = viewOf_.find(page_->TakeFocusWish());
  if (wished == viewOf_.end() || wished->second->Widget() == nullptr) return false;
  // As if reached by Tab: a box has its text selected.
  wished->second->FocusWidget()->setFocus(Qt::TabFocusReason);
  return true;
}

// Not the navigation: who comes to a page wants to work on it.
bool PageView::IsContent(const ControlView& view) const {
  const auto* button = dynamic_cast<const Button*>(&view.Shows());
  return button == nullptr || (button->role != ButtonRole::Segment && button->role != ButtonRole::Action);
}

// The first box, else the button that Enter presses, else whatever comes first.
QWidget* PageView::FirstContent() const {
  if (page_ == nullptr) return nullptr;
  for (const auto& view : views_) {
    if (view->Shows().kind == ControlKind::Text && view->Shows().Usable()) return view->FocusWidget();
  }
  if (const auto accept = viewOf_.find(page_->acceptButton); accept != viewOf_.end() && page_->acceptButton->Usable()) {
    return accept->second->FocusWidget();
  }
  for (const auto& view : views_) {
    const bool stop = view->Widget() != nullptr && (view->FocusWidget()->focusPolicy() & Qt::TabFocus) != 0;
    if (stop && IsContent(*view) && view->Shows().Usable()) return view->FocusWidget();
  }
  return nullptr;
}

void PageView::FocusFirst() {
  if (page_ != nullptr && FollowWish()) return;
  // When a page comes up, the toolkit puts the focus on what stands first of all.
  QWidget* wished = focusWidget();
  const bool navigates = std::any_of(views_.begin(), views_.end(), [this, wished](const auto& view) {
    return view->Widget() == wished && wished != nullptr && !IsContent(*view);
  });
  if (wished == nullptr || wished == this || navigates) wished = FirstContent();
  if (wished != nullptr) {
    wished->setFocus(Qt::TabFocusReason);
  } else {
    setFocus(Qt::OtherFocusReason);
  }
}

QWidget* PageView::Find(const QString& name) const {
  const auto viewAround = [](const QWidget* widget) {
    while (widget != nullptr && dynamic_cast<const PageView*>(widget) == nullptr) widget = widget->parentWidget();
    return widget;
  };
  for (QWidget* widget : findChildren<QWidget*>(name)) {
    if (viewAround(widget) == this) return widget;
  }
  return nullptr;
}

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

bool PageView::Turn(int direction) {
  if (page_ == nullptr || page_->turned == nullptr || !page_->turned->Usable()) return false;
  Press([spin = page_->turned, direction](Session& session) { Step(session, *spin, direction); });
  return true;
}

bool PageView::TakeWheel(const QWheelEvent& event) {
  if (page_ == nullptr || page_->turned == nullptr) return false;
  const int notches = wheel_.Take(event);
  for (int n = 0; n < std::abs(notches); ++n) Turn(notches > 0 ? +1 : -1);
  return true;
}

// The wheel over a picture turns the page's zoom, notch by notch, or what the tool beside it is there for.
void PageView::wheelEvent(QWheelEvent* event) {
  event->ignore();
  if (HasTool() ? side_->Panel()->TakeWheel(*event) : TakeWheel(*event)) return event->accept();
  if (qobject_cast<PictureView*>(childAt(event->position().toPoint())) == nullptr) return;
  const int notches = wheel_.Take(*event);
  for (int n = 0; n < std::abs(notches); ++n) {
    if (PressNamed(notches > 0 ? "cmdZoomIn" : "cmdZoomOut")) event->accept();
  }
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

// Where there are several boxes, Return in one that was typed in shows what was understood and keeps the page: the
// other boxes may still be waiting.
bool PageView::TakeEntry() {
  const auto* box = qobject_cast<EntryBox*>(QApplication::focusWidget());
  if (box == nullptr || !isAncestorOf(box) || !box->IsTouched()) return false;
  const auto boxes = std::count_if(views_.begin(), views_.end(), [](const auto& view) {
    return view->Shows().kind == ControlKind::Text && view->Shows().Usable();
  });
  if (boxes < 2) return false;
  LeaveBox();
  return true;
}

bool PageView::TakeKey(const QKeyEvent& event) {
  if (page_ == nullptr) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (PressFocused() || TakeEntry() || PressButton(page_->acceptButton)) return true;
      LeaveBox();
      return true;
    case Qt::Key_Escape:
      return PressButton(page_->cancelButton);
    case Qt::Key_Up:
      return Turn(+1);
    case Qt::Key_Down:
      return Turn(-1);
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
