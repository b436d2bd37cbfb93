#include "script/SignalWatch.h"

#include <pthread.h>

#include <utility>

namespace quilm {

namespace {

bool IsIgnored(int signal) {
  struct sigaction action {};
  return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

SignalWatch::SignalWatch() {
  sigemptyset(&watched_);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    if (!IsIgnored(signal)) sigaddset(&watched_, signal);
  }
  pthread_sigmask(SIG_BLOCK, &watched_, &before_);
}

void SignalWatch::Start(std::function<void()> clean) {
  // One that is in no case ignored wakes the thread in the end.
  sigaddset(&watched_, SIGUSR1);
  pthread_sigmask(SIG_BLOCK, &watched_, nullptr);
  thread_ = std::thread([this, clean = std::move(clean)] { Wait(clean); });
}

void SignalWatch::Wait(const std::function<void()>& clean) const {
  int signal = 0;
  if (sigwait(&watched_, &signal) != 0 || over_) return;
  clean();
  std::signal(signal, SIG_DFL);
  sigset_t own;
  sigemptyset(&own);
  sigaddset(&own, signal);
  pthread_sigmask(SIG_UNBLOCK, &own, nullptr);
  raise(signal);
}

SignalWatch::~SignalWatch() {
  if (thread_.joinable()) {
    over_ = true;
    pthread_kill(thread_.native_handle(), SIGUSR1);
    thread_.join();
  }
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

}  // namespace quilm
