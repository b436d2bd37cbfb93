#include "shell/PageDesk.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/Fault.h"
#include "shell/Page.h"
#include "shell/Platform.h"
#include "shell/Session.h"

namespace quilm {

PageDesk::PageDesk(Session& session, PageDirectory directory) : session_(session), directory_(std::move(directory)) {}

PageDesk::~PageDesk() = default;

bool PageDesk::Has(PageId id) const { return directory_.contains(id); }

Page* PageDesk::Find(PageId id) const {
  for (const auto& page : open_) {
    if (page->Id() == id) return page.get();
  }
  return nullptr;
}

Page* PageDesk::Top() const { return open_.empty() ? nullptr : open_.back().get(); }

// Makes the page, or brings it to the top if it is open, and runs its load step.
Page& PageDesk::Open(PageId id) {
  const auto at = std::find_if(open_.begin(), open_.end(), [id](const auto& page) { return page->Id() == id; });
  if (at != open_.end()) {
    std::rotate(at, at + 1, open_.end());
  } else {
    const auto factory = directory_.find(id);
    if (factory == directory_.end()) throw Fault("There is no page " + std::string(FormName(id)));
    open_.push_back(factory->second(session_));
  }
  Page& page = *open_.back();
  const History::Following following(session_);
  page.Load();
  return page;
}

void PageDesk::ShowPage(PageId id) {
  Page& page = Open(id);
  // A load step may itself lead elsewhere or close its page.
  if (Top() == &page) session_.platform.PageShown(page);
}

void PageDesk::ShowModal(PageId id) {
  Page& page = Open(id);
  if (Find(id) == &page) session_.platform.RunModal(page);
}

void PageDesk::UnloadPage(PageId id) {
  const auto at = std::find_if(open_.begin(), open_.end(), [id](const auto& page) { return page->Id() == id; });
  if (at == open_.end()) return;
  unloaded_.push_back(std::move(*at));
  open_.erase(at);
  session_.platform.PageUnloaded(*unloaded_.back());
}

void PageDesk::Sweep() { unloaded_.clear(); }

}  // namespace quilm
