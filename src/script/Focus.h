// Which text box has the focus, page by page. Moving on to another control leaves the box first, as in the window.
#pragma once

#include <map>
#include <string_view>

namespace quilm {

class Page;
class Session;
class TextBox;

class Focus {
 public:
  explicit Focus(Session& session) : session_(session) {}

  // Leaves the box of `page` that has the focus unless it is the one named `next`.
  void MoveTo(Page& page, std::string_view next);

  void Give(Page& page, TextBox& box) { boxes_[&page] = &box; }

  // Whether the box has it on its page.
  bool Has(const Page& page, const TextBox& box) const {
    const auto at = boxes_.find(&page);
    return at != boxes_.end() && at->second == &box;
  }

  // Obeys where the code of the page on top wants the focus.
  void FollowWish();

  // The page is gone, and its focus with it.
  void Forget(const Page& page) { boxes_.erase(&page); }

 private:
  Session& session_;
  std::map<const Page*, TextBox*> boxes_;
};

}  // namespace quilm
