// The signals by which a program is ended from outside: SIGTERM, SIGINT, SIGHUP.
#pragma once

#include <atomic>
#include <csignal>
#include <functional>
#include <thread>

namespace quilm {

// From its construction the signals wait; from Start on one of them runs `clean`, in a thread of its own because the
// program may be waiting for its next line, and then ends the program as that signal does. A signal that was ignored
// before stays ignored. When the watch ends, signals act as they did before.
class SignalWatch {
 public:
  SignalWatch();
  ~SignalWatch();
  SignalWatch(const SignalWatch&) = delete;
  SignalWatch& operator=(const SignalWatch&) = delete;

  // `clean` runs beside whatever the program is doing, and must hold what it needs.
  void Start(std::function<void()> clean);

 private:
  void Wait(const std::function<void()>& clean) const;

  sigset_t watched_{};
  sigset_t before_{};
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

}  // namespace quilm
