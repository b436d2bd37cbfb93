// Which pages there are and which are open. One main page shows at a time; modal pages stand over it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "shell/PageId.h"

namespace quilm {

class Control;
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

  // Loads the page if it is not loaded, runs its load step and shows it on top. A load step that ends in a fault is
  // told to the user, and the page shows what it has. A page that the program does not have, or that cannot be made, is
  // a Fault, and the page before it stays.
  void ShowPage(PageId id);

  // The same with the page's Reload in place of its load step: it shows the session as it stands.
  void ShowAnew(PageId id);

  // As ShowPage, and returns when the page has closed. A page that is open is not opened again, here or beside another
  // one: whoever asks for it is refused (ActRefused, Acts.h).
  void ShowModal(PageId id);

  // The same for a tool that works on the page on top, which stays in sight and is shown anew after each handler: the
  // tool takes the side place of that page's layout (Layout::Kind::SidePlace; a page without one is a Fault). Until the
  // tool has closed the user can act on nothing of that page but the controls in `free`: its picture, where the tool is
  // told places by the mouse. A tool that opens another one this way gives its place to it for so long.
  void ShowBeside(PageId id, std::vector<const Control*> free = {});

  // The page that the one on top stands beside; nullptr when it stands alone.
  Page* Beside() const;

  // Whether the user can act on the page: it is on top, or the one on top stands beside it.
  bool TakesActs(const Page& page) const;

  // Closes the page, with what stands beside it; nothing when it is not open. The page object lives on until the
  // handler that runs has returned.
  void UnloadPage(PageId id);

  // The page on top, modal ones included; nullptr before the first.
  Page* Top() const;
  Page* Find(PageId id) const;
  std::vector<Page*> OpenPages() const;  // bottom to top

  // Destroys the pages that were unloaded. Called when no handler runs.
  void Sweep();

 private:
  struct Pair {
    Page* tool;
    Page* page;  // that it stands beside
  };

  void Show(PageId id, void (Page::*load)());
  Page& Open(PageId id, void (Page::*load)());
  void RequireClosed(PageId id) const;
  Page* BesideOf(const Page& tool) const;

  Session& session_;
  PageDirectory directory_;
  std::vector<std::unique_ptr<Page>> open_;      // bottom to top
  std::vector<std::unique_ptr<Page>> unloaded_;  // their handlers may still run
  std::vector<Pair> beside_;                     // in the order in which they were opened
};

}  // namespace quilm
