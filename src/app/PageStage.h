// Where pages stand: main pages one at a time in the main window, modal pages over it, each in a nested event loop.
// Every act of the user runs through here; no exception passes the toolkit's event loop.
#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QPointer>
#include <functional>
#include <vector>

#include "app/PageView.h"

namespace quilm {

class MainWindow;
class SidePanel;

// A modal page's window. Its close box is the page's.
class ModalWindow : public QDialog {
  Q_OBJECT

 public:
  ModalWindow(PageView& view, QWidget* parent);
  std::function<void()> onCloseBox;
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PageView& view_;
};

class PageStage : public ActHost {
 public:
  void Attach(Session& session, MainWindow& window);

  void Show(Page& page);
  void Unload(Page& page);
  // Returns when the page has closed. Throws ProgramEnd when the program has ended meanwhile.
  void RunModal(Page& page);
  // The same for a tool that stands in the side place of `main`.
  void RunBeside(Page& tool, Page& main);

  void Perform(const std::function<void(Session&)>& act) override;
  bool IsOnTop(const Page& page) const override;

  // Shows the present values of everything that is seen.
  void Sync();

  // Lets pending events run, those of the user or not.
  void RunEvents(QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
  // Waits; no act of the user is taken meanwhile.
  void Wait(int milliseconds);
  // Runs a dialog to its result; nothing else is acted on meanwhile. Rejected at once when nobody is there to answer.
  int RunDialog(QDialog& dialog);

  // The close box of the main window.
  void PressCloseBox();

  // The system ends the program in the middle of whatever is open: runs `last` as a handler and ends. From now on
  // nobody is asked or told anything, since nobody would answer.
  void EndBySystem(const std::function<void(Session&)>& last);
  // The same when the display is gone: no widget is touched any more.
  void EndWithoutDisplay(const std::function<void(Session&)>& last) noexcept;
  bool IsUnattended() const { return unattended_; }

  // Before the window goes: from now on no event reaches a page.
  void Close();

  // The view of an open page; nullptr when it has none.
  PageView* ViewOf(const Page& page) const;
  PageView* TopView() const;
  // The window that dialogs stand over.
  QWidget* FrontWindow() const;

  // Called once, when the program has ended.
  std::function<void()> onEnded;

 private:
  struct Standing {
    Page* page;
    PageView* view;
    QPointer<ModalWindow> window;  // of a modal page
    QPointer<SidePanel> panel;     // of a tool that stands beside a page
    QEventLoop* loop = nullptr;

    bool IsMain() const { return window.isNull() && panel.isNull(); }
  };

  std::function<void()> CloseBoxOf(PageView& view);
  void RunUntilClosed(Standing standing, QWidget& frame);
  void Run(QEventLoop& loop, QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
  void Forget(const QEventLoop& loop);
  void ThrowIfEnded() const;
  void Do(const std::function<void(Session&)>& act);
  void End();
  void ShowTopMainPage();

  Session* session_ = nullptr;
  MainWindow* window_ = nullptr;
  std::vector<Standing> standing_;  // bottom to top
  std::vector<QEventLoop*> loops_;
  int waiting_ = 0;  // handlers that wait for a dialog or for time to pass
  bool unattended_ = false;
  bool endTold_ = false;
};

}  // namespace quilm
