#include "shell/Page.h"

#include <algorithm>
#include <utility>

#include "shell/PageLock.h"
#include "shell/Session.h"

namespace quilm {

Page::Page(Session& session, PageId id, std::string pageTitle)
    : title(std::move(pageTitle)), entries(session), session_(session), id_(id) {}

void Page::CloseBox() { session_.pages.UnloadPage(id_); }

Control* Page::Find(std::string_view name) const {
  for (Control* control : controls_) {
    if (control->name == name) return control;
  }
  return nullptr;
}

bool Page::IsOpen() const { return session_.pages.Find(id_) == this; }

bool Page::Locks(const Control& control) const {
  return std::any_of(locks_.begin(), locks_.end(),
                     [&control](const PageLock* lock) { return !lock->LeavesFree(control); });
}

Control* Page::TakeFocusWish() { return std::exchange(focusWish_, nullptr); }

}  // namespace quilm
