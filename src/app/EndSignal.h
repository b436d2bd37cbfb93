// The system's wish that the program end: SIGTERM, SIGINT, SIGHUP.
#pragma once

#include <QObject>
#include <functional>

namespace quilm {

// While it lives, these signals call `onSignal` from the event loop instead of ending the process. One at a time.
class EndSignal : public QObject {
  Q_OBJECT

 public:
  explicit EndSignal(std::function<void()> onSignal);
  ~EndSignal() override;

 private:
  void Read();

  std::function<void()> onSignal_;
};

}  // namespace quilm
