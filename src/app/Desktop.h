// The program in a window, put together: platform, session and main window.
#pragma once

#include <QString>
#include <functional>

#include "app/MainWindow.h"
#include "app/WindowPlatform.h"
#include "shell/Session.h"

namespace quilm {

class Desktop {
 public:
  // Keeps its files in `folder`; an empty one stands for those of the user's desktop.
  explicit Desktop(PageDirectory directory, const QString& folder = {});
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // Shows the window and runs the start of the program as a handler.
  void Start(const std::function<void(Session&)>& start);

  // Opens a design file as if it had been chosen in the dialog of the button that gets one. Nothing where the page on
  // top has no such button, or none that could be pressed just now.
  void OpenFile(const QString& path);

  // The view of the page on top; nullptr before the first.
  PageView* TopView() { return platform.Stage().TopView(); }

  WindowPlatform platform;
  Session session;
  MainWindow window;

  // Called once, when the program has ended; the window's place was kept.
  std::function<void()> onEnded;
};

}  // namespace quilm
