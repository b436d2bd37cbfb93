// A routine of many steps that the user watches and can stop: optimising, trying tolerances.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/Control.h"
#include "shell/PageLock.h"

namespace quilm {

class Session;

struct RunPlan {
  std::string name;              // for the status line: "Monte Carlo"
  i32 steps = 0;                 // the most there are
  std::vector<Button*> stops;    // what can be pressed meanwhile; the first has the focus and the Escape key
  Control* startedBy = nullptr;  // has the focus again afterwards
  // Makes the design what the run leaves of it; may be called at any step, and more than once. Must not throw.
  std::function<void()> putBack = {};
};

// Made in a handler of the page for as long as the run lasts:
//
//   LongRun run(session_, *this, {"Monte Carlo", 2000, {&cmdEnd, &cmdExtremes}, &cmdMonteCarlo});
//   do {
//     Trial();
//   } while (run.Step());
//
// The stop buttons are seen and can be pressed, all else on every open page is locked; only close boxes answer. However
// the run ends, also by an exception, the design is put back, the locks are taken away, and the stop buttons, the
// Escape key and the focus are what they were before. What the page shows after the run it decides when the run has
// gone.
class LongRun {
 public:
  // Throws Fault while another run is on.
  LongRun(Session& session, Page& page, RunPlan plan);
  ~LongRun();
  LongRun(const LongRun&) = delete;
  LongRun& operator=(const LongRun&) = delete;

  // One step is done: tells the progress in the status line, and lets the user's events in as often as the platform
  // wants it. False when that was the last step, when the run was stopped, or when its page has closed. The end of the
  // program leaves it as ProgramEnd and unwinds the run.
  bool Step();

  // Steps done.
  i32 Steps() const { return steps_; }

  // The handlers of the stop buttons call it through Session::run.
  void Stop() { stopped_ = true; }
  bool Stopped() const { return stopped_; }

  // For who keeps the design in the middle of the run, because the program ends: it is then that of no trial.
  void PutBack() const;

 private:
  struct StopBefore {
    bool visible;
    bool enabled;
  };

  void LockPages();
  void OfferStops();
  void YieldWhenDue();

  Session& session_;
  Page& page_;
  RunPlan plan_;
  std::vector<StopBefore> before_;  // of the stop buttons
  Button* cancelBefore_;
  std::vector<std::unique_ptr<PageLock>> locks_;
  std::optional<std::chrono::steady_clock::time_point> lastYield_;
  i32 steps_ = 0;
  bool stopped_ = false;
};

}  // namespace quilm
