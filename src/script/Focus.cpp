#include "script/Focus.h"

#include "shell/Acts.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

void Focus::MoveTo(Page& page, std::string_view next) {
  const auto at = boxes_.find(&page);
  if (at == boxes_.end() || at->second->name == next) return;
  TextBox& box = *at->second;
  boxes_.erase(at);
  Leave(session_, box);
}

void Focus::FollowWish() {
  Page* page = session_.pages.Top();
  Control* wish = page == nullptr ? nullptr : page->TakeFocusWish();
  if (wish == nullptr) return;
  MoveTo(*page, wish->name);
  auto* box = dynamic_cast<TextBox*>(wish);
  if (box != nullptr && session_.pages.Top() == page && box->Usable()) Give(*page, *box);
}

}  // namespace quilm
