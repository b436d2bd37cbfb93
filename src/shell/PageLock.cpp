#include "shell/PageLock.h"

#include <algorithm>
#include <utility>

#include "shell/Page.h"

namespace quilm {

PageLock::PageLock(Page& page, std::vector<const Control*> free) : page_(page), free_(std::move(free)) {
  page_.locks_.push_back(this);
}

PageLock::~PageLock() { std::erase(page_.locks_, this); }

// A frame must not take what it holds along, and neither it nor a label takes any act.
bool PageLock::LeavesFree(const Control& control) const {
  if (control.kind == ControlKind::Frame || control.kind == ControlKind::Label) return true;
  return std::find(free_.begin(), free_.end(), &control) != free_.end();
}

}  // namespace quilm
