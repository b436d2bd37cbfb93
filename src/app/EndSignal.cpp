#include "app/EndSignal.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <system_error>
#include <utility>

#include <sys/socket.h>
#include <unistd.h>

namespace quilm {

namespace {

// A signal handler may do next to nothing; it writes one byte that the event loop reads.
std::array<int, 2> ends{-1, -1};
constexpr std::array signalsOfEnd{SIGTERM, SIGINT, SIGHUP};

extern "C" void TellEventLoop(int /*signal*/) {
  const char byte = 1;
  [[maybe_unused]] const auto written = ::write(ends[0], &byte, 1);
}

}  // namespace

EndSignal::EndSignal(std::function<void()> onSignal) : onSignal_(std::move(onSignal)) {
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
    throw std::system_error(errno, std::generic_category(), "socketpair");
  }
  auto* notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &EndSignal::Read);
  for (const int signal : signalsOfEnd) std::signal(signal, TellEventLoop);
}

EndSignal::~EndSignal() {
  for (const int signal : signalsOfEnd) std::signal(signal, SIG_DFL);
  ::close(ends[0]);
  ::close(ends[1]);
}

void EndSignal::Read() {
  char byte = 0;
  if (::read(ends[1], &byte, 1) == 1) onSignal_();
}

}  // namespace quilm
