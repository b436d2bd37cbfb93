#include "shell/LongRun.h"

#include <utility>

#include "core/Fault.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

LongRun::LongRun(Session& session, Page& page, RunPlan plan)
    : session_(session), page_(page), plan_(std::move(plan)), cancelBefore_(page.cancelButton) {
  if (session.run != nullptr) throw Fault("A run is in progress.");
  LockPages();
  OfferStops();
  session.run = this;
}

LongRun::~LongRun() {
  PutBack();
  session_.run = nullptr;
  page_.cancelButton = cancelBefore_;
  for (std::size_t i = 0; i < plan_.stops.size(); ++i) {
    plan_.stops[i]->visible = before_[i].visible;
    plan_.stops[i]->enabled = before_[i].enabled;
  }
  if (plan_.startedBy != nullptr) page_.SetFocus(*plan_.startedBy);
}

void LongRun::LockPages() {
  for (Page* open : session_.pages.OpenPages()) {
    std::vector<const Control*> free;
    if (open == &page_) free.assign(plan_.stops.begin(), plan_.stops.end());
    locks_.push_back(std::make_unique<PageLock>(*open, std::move(free)));
  }
}

void LongRun::OfferStops() {
  for (Button* stop : plan_.stops) {
    before_.push_back({stop->visible, stop->enabled});
    stop->visible = stop->enabled = true;
  }
  if (plan_.stops.empty()) return;
  page_.cancelButton = plan_.stops.front();
  page_.SetFocus(*plan_.stops.front());
}

void LongRun::PutBack() const {
  if (plan_.putBack) plan_.putBack();
}

void LongRun::YieldWhenDue() {
  const auto now = std::chrono::steady_clock::now();
  const std::chrono::duration<f64> interval(session_.platform.YieldInterval());
  if (lastYield_ && now - *lastYield_ < interval) return;
  session_.platform.Yield();
  lastYield_ = std::chrono::steady_clock::now();
}

bool LongRun::Step() {
  ++steps_;
  session_.note = plan_.name + ": " + std::to_string(steps_) + " of " + std::to_string(plan_.steps);
  YieldWhenDue();
  return steps_ < plan_.steps && !stopped_ && page_.IsOpen();
}

}  // namespace quilm
