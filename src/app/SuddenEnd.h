// The process ends while the event loop runs: the toolkit calls exit() when its display goes away.
#pragma once

#include <functional>

namespace quilm {

// While it lives, exit() calls `onEnd` first, in the middle of whatever runs. Nothing is called when the program
// returns from its main, or when another thread exits. One at a time.
class SuddenEnd {
 public:
  explicit SuddenEnd(std::function<void()> onEnd);
  ~SuddenEnd();
  SuddenEnd(const SuddenEnd&) = delete;
  SuddenEnd& operator=(const SuddenEnd&) = delete;
};

}  // namespace quilm
