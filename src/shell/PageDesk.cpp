#include "shell/PageDesk.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "core/Fault.h"
#include "shell/Acts.h"
#include "shell/History.h"
#include "shell/Page.h"
#include "shell/PageLock.h"
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

std::vector<Page*> PageDesk::OpenPages() const {
  std::vector<Page*> pages;
  for (const auto& page : open_) pages.push_back(page.get());
  return pages;
}

// Makes the page, or brings it to the top if it is open, and runs its load step.
Page& PageDesk::Open(PageId id, void (Page::*load)()) {
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
  try {
    (page.*load)();
  } catch (const ActRefused&) {
    throw;
  } catch (const std::exception& fault) {
    // Better a page with what it has than none.
    TellFault(session_, fault);
  }
  return page;
}

void PageDesk::ShowPage(PageId id) { Show(id, &Page::Load); }

void PageDesk::ShowAnew(PageId id) { Show(id, &Page::Reload); }

void PageDesk::Show(PageId id, void (Page::*load)()) {
  Page& page = Open(id, load);
  // A load step may itself lead elsewhere or close its page.
  if (Top() == &page) session_.platform.PageShown(page);
}

// A second press of the button that opens it must not run the page's loop twice.
void PageDesk::RequireClosed(PageId id) const {
  if (Find(id) != nullptr) throw ActRefused(std::string(FormName(id)) + " is open");
}

void PageDesk::ShowModal(PageId id) {
  RequireClosed(id);
  Page& page = Open(id, &Page::Load);
  if (Find(id) == &page) session_.platform.RunModal(page);
}

Page* PageDesk::BesideOf(const Page& tool) const {
  const auto at =
      std::find_if(beside_.begin(), beside_.end(), [&tool](const Pair& pair) { return pair.tool == &tool; });
  return at == beside_.end() ? nullptr : at->page;
}

bool PageDesk::TakesActs(const Page& page) const { return Top() == &page || Beside() == &page; }

Page* PageDesk::Beside() const { return open_.empty() ? nullptr : BesideOf(*open_.back()); }

void PageDesk::ShowBeside(PageId id, std::vector<const Control*> free) {
  Page* opener = Top();
  if (opener == nullptr) throw Fault("There is no page to stand beside");
  Page* main = BesideOf(*opener) == nullptr ? opener : BesideOf(*opener);
  if (!HasSidePlace(main->MakeLayout())) throw Fault(std::string(main->Name()) + " has no place beside its picture");
  RequireClosed(id);
  Page& tool = Open(id, &Page::Load);
  if (Find(id) != &tool) return;
  const PageLock mainLock(*main, std::move(free));
  std::optional<PageLock> openerLock;
  if (opener != main) openerLock.emplace(*opener, std::vector<const Control*>{});
  beside_.push_back({&tool, main});
  session_.platform.RunBeside(tool, *main);
}

void PageDesk::UnloadPage(PageId id) {
  Page* page = Find(id);
  if (page == nullptr) return;
  // What stands beside it goes first, the last one opened before the others.
  const std::vector<Pair> pairs(beside_.rbegin(), beside_.rend());
  for (const Pair& pair : pairs) {
    if (pair.page == page) UnloadPage(pair.tool->Id());
  }
  std::erase_if(beside_, [page](const Pair& pair) { return pair.tool == page; });
  const auto at = std::find_if(open_.begin(), open_.end(), [page](const auto& open) { return open.get() == page; });
  unloaded_.push_back(std::move(*at));
  open_.erase(at);
  session_.platform.PageUnloaded(*page);
}

void PageDesk::Sweep() { unloaded_.clear(); }

}  // namespace quilm
