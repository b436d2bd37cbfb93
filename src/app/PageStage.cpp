#include "app/PageStage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "app/MainWindow.h"
#include "app/QtText.h"
#include "app/SideStack.h"
#include "shell/Acts.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// Counts those who wait, however the waiting ends.
class Waiting {
 public:
  explicit Waiting(int& count) : count_(count) { ++count_; }
  ~Waiting() { --count_; }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  int& count_;
};

}  // namespace

ModalWindow::ModalWindow(PageView& view, QWidget* parent) : QDialog(parent), view_(view) {
  setWindowModality(Qt::ApplicationModal);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* whole = new QVBoxLayout(this);
  constexpr int margin = 8;
  whole->setContentsMargins(margin, margin, margin, margin);
  whole->setSizeConstraint(QLayout::SetMinimumSize);
  whole->addWidget(&view);
}

void ModalWindow::reject() { onCloseBox(); }

void ModalWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  onCloseBox();
}

void ModalWindow::keyPressEvent(QKeyEvent* event) {
  if (!view_.TakeKey(*event)) QDialog::keyPressEvent(event);
}

void PageStage::Attach(Session& session, MainWindow& window) {
  session_ = &session;
  window_ = &window;
}

PageView* PageStage::ViewOf(const Page& page) const {
  const auto at =
      std::find_if(standing_.begin(), standing_.end(), [&page](const Standing& s) { return s.page == &page; });
  return at == standing_.end() ? nullptr : at->view;
}

PageView* PageStage::TopView() const { return standing_.empty() ? nullptr : standing_.back().view; }

QWidget* PageStage::FrontWindow() const {
  for (auto at = standing_.rbegin(); at != standing_.rend(); ++at) {
    if (at->window && at->window->isVisible()) return at->window;
  }
  return window_;
}

bool PageStage::IsOnTop(const Page& page) const { return session_->pages.Top() == &page; }

void PageStage::Show(Page& page) {
  const auto at =
      std::find_if(standing_.begin(), standing_.end(), [&page](const Standing& s) { return s.page == &page; });
  if (at != standing_.end()) {
    std::rotate(at, at + 1, standing_.end());
  } else {
    auto* view = new PageView(page, *this);
    standing_.push_back({&page, view, nullptr, nullptr});
    window_->AddPage(*view);
  }
  if (standing_.back().IsMain()) ShowTopMainPage();
  Sync();
}

void PageStage::ShowTopMainPage() {
  for (auto at = standing_.rbegin(); at != standing_.rend(); ++at) {
    if (!at->IsMain()) continue;
    window_->ShowPage(*at->view, ToQt(at->page->title));
    return;
  }
}

void PageStage::Unload(Page& page) {
  const auto at =
      std::find_if(standing_.begin(), standing_.end(), [&page](const Standing& s) { return s.page == &page; });
  if (at == standing_.end()) return;
  const Standing gone = *at;
  standing_.erase(at);
  gone.view->Detach();
  if (gone.IsMain()) {
    ShowTopMainPage();
    window_->RemovePage(*gone.view);
  } else if (!gone.panel.isNull()) {
    static_cast<SideStack*>(gone.panel->parentWidget())->Release(*gone.panel);
    gone.panel->deleteLater();
  } else {
    gone.window->hide();
    gone.window->deleteLater();
  }
  if (gone.loop != nullptr) gone.loop->quit();
}

std::function<void()> PageStage::CloseBoxOf(PageView& view) {
  return [this, &view] {
    if (Page* shown = view.Shown()) Perform([shown](Session& session) { quilm::PressCloseBox(session, *shown); });
  };
}

void PageStage::RunModal(Page& page) {
  Sync();
  auto* view = new PageView(page, *this);
  auto* window = new ModalWindow(*view, FrontWindow());
  window->setWindowTitle(page.title.empty() ? QStringLiteral("Quilm") : ToQt(page.title));
  window->onCloseBox = CloseBoxOf(*view);
  RunUntilClosed({&page, view, window, nullptr}, *window);
}

void PageStage::RunBeside(Page& tool, Page& main) {
  const PageView* below = ViewOf(main);
  if (below == nullptr || below->Side() == nullptr) throw Fault("There is nothing to stand beside.");
  const QPointer<QWidget> focused = QApplication::focusWidget();
  auto* view = new PageView(tool, *this);
  auto* panel = new SidePanel(*view, ToQt(tool.title));
  panel->onCloseBox = CloseBoxOf(*view);
  below->Side()->Take(*panel);
  Sync();
  RunUntilClosed({&tool, view, nullptr, panel}, *panel);
  if (focused.isNull()) return;
  // The page is locked until the handler that opened the tool goes on.
  QTimer::singleShot(0, focused, [focused] { focused->setFocus(Qt::OtherFocusReason); });
}

void PageStage::RunUntilClosed(Standing standing, QWidget& frame) {
  QEventLoop loop;
  standing.loop = &loop;
  standing_.push_back(standing);
  frame.show();
  standing.view->FocusFirst();
  try {
    Run(loop);
  } catch (const ProgramEnd&) {
    frame.hide();
    Forget(loop);
    throw;
  }
  Sync();
}

void PageStage::Forget(const QEventLoop& loop) {
  for (Standing& each : standing_) {
    if (each.loop == &loop) each.loop = nullptr;
  }
}

void PageStage::Close() {
  for (const Standing& each : standing_) each.view->Detach();
  standing_.clear();
}

// A press can still be on its way when a dialog opens; the handler that waits for its answer knows of no other act.
// What was typed in that moment is taken out of its box again.
void PageStage::Perform(const std::function<void(Session&)>& act) {
  if (waiting_ == 0) {
    Do(act);
  } else {
    Sync();
  }
}

void PageStage::Do(const std::function<void(Session&)>& act) {
  if (session_->ended) return;
  try {
    act(*session_);
  } catch (const ProgramEnd&) {
    // The nested loops are told below; whoever runs them goes on unwinding.
  } catch (const ActRefused&) {
    // The control has become unusable between the user's press and its event: nothing happens.
  }
  if (session_->ended) {
    End();
  } else {
    Sync();
  }
}

void PageStage::Sync() {
  // Showing values may move the focus and so run handlers that open or close pages.
  const std::vector<Standing> seen = standing_;
  for (const Standing& each : seen) {
    const bool stillThere =
        std::any_of(standing_.begin(), standing_.end(), [&each](const Standing& s) { return s.view == each.view; });
    if (stillThere) each.view->Sync();
  }
  window_->SyncStatus();
}

void PageStage::ThrowIfEnded() const {
  if (session_->ended) throw ProgramEnd{};
}

void PageStage::Run(QEventLoop& loop, QEventLoop::ProcessEventsFlags flags) {
  loops_.push_back(&loop);
  if (!session_->ended) loop.exec(flags);
  loops_.pop_back();
  ThrowIfEnded();
}

void PageStage::RunEvents(QEventLoop::ProcessEventsFlags flags) {
  Sync();
  QApplication::processEvents(flags);
  ThrowIfEnded();
}

void PageStage::Wait(int milliseconds) {
  if (unattended_) return;
  Sync();
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  const Waiting waiting(waiting_);
  Run(loop, QEventLoop::ExcludeUserInputEvents);
}

int PageStage::RunDialog(QDialog& dialog) {
  if (unattended_) return QDialog::Rejected;
  Sync();
  const Waiting waiting(waiting_);
  const int result = dialog.exec();
  ThrowIfEnded();
  return result;
}

void PageStage::PressCloseBox() {
  for (auto at = standing_.rbegin(); at != standing_.rend(); ++at) {
    if (!at->IsMain()) continue;
    Page* page = at->page;
    Perform([page](Session& session) { quilm::PressCloseBox(session, *page); });
    return;
  }
  session_->ended = true;  // no page could be shown: there is nothing to ask
  End();
}

void PageStage::EndBySystem(const std::function<void(Session&)>& last) {
  unattended_ = true;
  Do([&last](Session& session) { RunHandler(session, [&] { last(session); }); });
  if (session_->ended) return;
  session_->ended = true;  // it ends, whatever kept `last` from its own end
  End();
}

void PageStage::EndWithoutDisplay(const std::function<void(Session&)>& last) noexcept {
  if (session_->ended) return;
  unattended_ = true;
  try {
    RunHandler(*session_, [&] { last(*session_); });
  } catch (...) {
    // ProgramEnd, or a fault that nobody can be told of.
  }
}

// Ends all nested loops: those of dialogs, also of the ones that a dialog has opened in its turn, and our own, the
// innermost first.
void PageStage::End() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<QDialog*>(window);
    if (dialog != nullptr && dialog->isVisible() && qobject_cast<ModalWindow*>(dialog) == nullptr) dialog->reject();
  }
  for (auto loop = loops_.rbegin(); loop != loops_.rend(); ++loop) (*loop)->quit();
  if (endTold_) return;
  endTold_ = true;
  if (onEnded) onEnded();
}

}  // namespace quilm
