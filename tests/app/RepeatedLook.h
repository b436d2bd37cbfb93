// Looking at the window until it shows something.
#pragma once

#include <QTimer>
#include <functional>
#include <utility>

namespace quilm {

// Once started looks every tenth of a second whether it is `seen`, fifty times at most, and then goes on with `then`:
// when a machine that is busy has painted cannot be told beforehand.
class RepeatedLook : public QTimer {
 public:
  RepeatedLook(std::function<bool()> seen, std::function<void()> then) {
    constexpr int milliseconds = 100;
    setInterval(milliseconds);
    callOnTimeout(this, [this, seen = std::move(seen), then = std::move(then)] {
      if (!seen() && --left_ > 0) return;
      stop();
      then();
    });
  }

 private:
  int left_ = 50;
};

}  // namespace quilm
