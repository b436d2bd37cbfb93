// A page of the program: named controls with handlers, a load step, a close step and a layout.
//
// A page that is left is unloaded and destroyed; its load step runs afresh on every visit. Whatever a page must
// remember lives in the session.
#pragma once

#include <string>
#include <vector>

#include "shell/Control.h"
#include "shell/Entry.h"
#include "shell/Layout.h"
#include "shell/PageId.h"

namespace quilm {

class PageLock;
class Session;

class Page {
 public:
  Page(Session& session, PageId id, std::string title);
  virtual ~Page() = default;
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  PageId Id() const { return id_; }
  std::string_view Name() const { return FormName(id_); }

  // Rebuilds the controls from the session. Runs on every visit, before the page is seen.
  virtual void Load() {}

  // Shows the session as it stands while the page stays, after an undo: nothing of the design before may stay in its
  // controls and members. A page whose load step repairs the design says how it shows it without.
  virtual void Reload() { Load(); }

  // Runs after each act while the page is on top: what it shows of the design beside its entries follows here, whatever
  // has changed it. Changes nothing but controls.
  virtual void CatchUp() {}

  // The page where undo leads that takes back what was done here. A tool that takes the place of another page, and has
  // nothing to show once it is done, names that one.
  virtual PageId Home() const { return id_; }

  // The program ends while the page is open: a design that the page has only proposed becomes what it was before. Must
  // not throw.
  virtual void PutBack() {}

  // The window's own close box. Unless a page says otherwise it just closes the page.
  virtual void CloseBox();

  virtual Layout MakeLayout() = 0;

  // In order of declaration.
  const std::vector<Control*>& Controls() const { return controls_; }
  Control* Find(std::string_view name) const;

  // Moves the keyboard focus; a box that loses it fires its onLeave first, as when the user leaves it.
  void SetFocus(Control& control) { focusWish_ = &control; }
  // The control that code wants focused, once: asking takes the wish away.
  Control* TakeFocusWish();

  // False once the page was unloaded.
  bool IsOpen() const;

  // Whether a PageLock keeps the user from the control.
  bool Locks(const Control& control) const;

  std::string title;
  EntryList entries;               // its boxes with the fields behind them
  Button* acceptButton = nullptr;  // pressed by Enter
  Button* cancelButton = nullptr;  // pressed by Escape
  // Of a tool beside another page: stepped by the wheel wherever it turns over the two, and by the arrow keys that
  // nothing else takes.
  Spin* turned = nullptr;

 protected:
  Session& session_;

 private:
  friend class Control;
  friend class PageLock;
  void Register(Control& control) { controls_.push_back(&control); }

  PageId id_;
  std::vector<Control*> controls_;
  Control* focusWish_ = nullptr;
  std::vector<const PageLock*> locks_;
};

}  // namespace quilm
