// The row of buttons that the six main pages share: the pages themselves as one group, and the actions.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "schematic/Icons.h"
#include "shell/Page.h"

namespace quilm {

class NavigationRow {
 public:
  // What a page does before it is left for `target`: false keeps it, after the user was told why.
  using Gate = std::function<bool(PageId target)>;

  // The gate of a page that shows a result: the way to the Design page is always open, every other one needs entries
  // that can be analysed.
  static Gate WithSoundEntries(Session& session);

  // `here` is the page that the row stands on: its own button is cmdHere, pressed and disabled.
  NavigationRow(Page& page, Session& session, Gate gate);

  // Refreshes what can be used. Buttons of pages that the program does not have, and actions without a handler, are
  // disabled.
  void Load();

  // Disables all of it for as long as something must be finished first.
  void Lock(bool locked);

  // What the button of a page does: the gate, then the page in the place of this one.
  void GoTo(PageId target);

  Layout MakeLayout();

  // The actions that depend on the page; empty ones leave their button disabled.
  std::function<void()> onPrint;
  std::function<void()> onSave;
  std::function<void()> onGet;

 private:
  struct Segment {
    PageId target;
    std::unique_ptr<Button> button;
  };

  void AddSegment(PageId target, Sign sign, char letter, const char* name, const char* caption, const char* toolTip);
  Button& AddAction(Sign sign, char letter, const char* name, const char* caption, const char* toolTip,
                    std::function<void()> act);

  Page& page_;
  Session& session_;
  Gate gate_;
  std::vector<Segment> segments_;
  std::vector<std::unique_ptr<Button>> actions_;
  Button* cmdPrint_ = nullptr;
  Button* cmdSave_ = nullptr;
  Button* cmdGet_ = nullptr;
  Button* cmdSpice_ = nullptr;
  bool locked_ = false;
};

}  // namespace quilm
