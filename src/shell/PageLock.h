// Keeps the user from a page for a while: during a long run, or while a tool stands beside it.
#pragma once

#include <vector>

namespace quilm {

class Control;
class Page;

// While it lives, nothing on the page can be acted on but what is left free; the window shows the rest disabled. What
// the controls say of themselves (visible, enabled) is not touched, so that handlers may change it meanwhile. Several
// locks of one page hold together: free is what all of them leave free. It must not outlive the page, which a handler
// need not care about: pages are destroyed when no handler runs.
class PageLock {
 public:
  PageLock(Page& page, std::vector<const Control*> free);
  ~PageLock();
  PageLock(const PageLock&) = delete;
  PageLock& operator=(const PageLock&) = delete;

  bool LeavesFree(const Control& control) const;

 private:
  Page& page_;
  std::vector<const Control*> free_;
};

}  // namespace quilm
