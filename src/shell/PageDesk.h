// Which pages there are and which are open. One main page shows at a time; modal pages stand over it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "shell/PageId.h"

namespace quilm {

class Page;
class Session;

using PageFactory = std::function<std::unique_ptr<Page>(Session&)>;
using PageDirectory = std::map<PageId, PageFactory>;

class PageDesk {
 public:
  PageDesk(Session& session, PageDirectory directory);
  ~PageDesk();
  PageDesk(const PageDesk&) = delete;
  PageDesk& operator=(const PageDesk&) = delete;

  // Whether the program has such a page.
  bool Has(PageId id) const;

  // Loads the page if it is not loaded, runs its load step and shows it on top. A page that the program does not have
  // is a Fault.
  void ShowPage(PageId id);

  // The same, and returns when the page has closed.
  void ShowModal(PageId id);

  // Closes the page; nothing when it is not open. The page object lives on until the handler that runs has returned.
  void UnloadPage(PageId id);

  // The page on top, modal ones included; nullptr before the first.
  Page* Top() const;
  Page* Find(PageId id) const;
  std::vector<Page*> OpenPages() const;  // bottom to top

  // Destroys the pages that were unloaded. Called when no handler runs.
  void Sweep();

 private:
  Page& Open(PageId id);

  Session& session_;
  PageDirectory directory_;
  std::vector<std::unique_ptr<Page>> open_;      // bottom to top
  std::vector<std::unique_ptr<Page>> unloaded_;  // their handlers may still run
};

}  // namespace quilm
