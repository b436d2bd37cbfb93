// A page as widgets: built once from the page's layout, shown anew from its controls after every handler.
#pragma once

#include <QSet>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "app/ControlView.h"
#include "app/WheelNotches.h"

class QShortcut;

namespace quilm {

class FocusWalk;
class GroupBox;
class Page;
class PictureView;
class SideStack;

// Runs acts for all page views of the window.
class ActHost {
 public:
  virtual ~ActHost() = default;
  virtual void Perform(const std::function<void(Session&)>& act) = 0;
  // Whether the page is the one that the user can act on.
  virtual bool IsOnTop(const Page& page) const = 0;
};

class PageView : public QWidget, public ActSink {
  Q_OBJECT

 public:
  PageView(Page& page, ActHost& host, QWidget* parent = nullptr);
  ~PageView() override;

  // Shows every control's present values, and moves the focus where the page asked for it.
  void Sync();

  // The page has closed: from now on nothing is shown and no act is run.
  void Detach() { page_ = nullptr; }
  Page* Shown() const { return page_; }

  // The focus for a page that asks for none.
  void FocusFirst();

  // The widget of a control by its name, for tests and screenshots; nullptr when there is none. A tool that stands
  // beside the page has controls of its own, which may bear the same names.
  QWidget* Find(const QString& name) const;

  // Presses a control by its name if the page has it and the user could. False when not.
  bool PressNamed(const char* name);

  // Where tools stand beside the page; nullptr when it has no such place.
  SideStack* Side() const { return side_; }

  // Turns the page's `turned` by the notches of a wheel. False when it has none.
  bool TakeWheel(const QWheelEvent& event);

  // Return, Escape and the keys of the window that no widget took.
  bool TakeKey(const QKeyEvent& event);

  void Perform(const std::function<void(Session&)>& act) override;
  void Press(const std::function<void(Session&)>& act) override;
  bool IsOnTop() const override { return page_ != nullptr && host_.IsOnTop(*page_); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  ControlView& AddView(Control& control, QWidget* parent);
  void AddShortcuts();
  void AddWalks();
  void RefreshMnemonics();
  void MarkGroups();
  // Puts the focus where the page wishes it; false when it has no wish.
  bool FollowWish();
  bool IsContent(const ControlView& view) const;
  QWidget* FirstContent() const;
  void LeaveBox();
  bool PressButton(Button* button);
  bool PressFocused();
  bool TakeEntry();
  bool Turn(int direction);
  PictureView* PictureToCopy() const;
  bool HasTool() const;

  Page* page_;
  ActHost& host_;
  std::vector<std::unique_ptr<ControlView>> views_;  // in reading order
  std::map<const Control*, ControlView*> viewOf_;
  std::vector<QShortcut*> shortcuts_;
  std::vector<FocusWalk*> walks_;
  std::map<const ControlView*, QChar> letters_;
  QSet<QChar> takenLetters_;
  SideStack* side_ = nullptr;
  WheelNotches wheel_;  // over a picture
};

}  // namespace quilm
