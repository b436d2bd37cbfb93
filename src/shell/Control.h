// The controls of a page: plain values with one handler each. Setting a value from code never fires a handler; only a
// user's act does (see Acts.h). The window shows whatever the values are after a handler has run.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/HitArea.h"
#include "shell/LiveLayer.h"
#include "shell/Picture.h"

namespace quilm {

class Page;
class Frame;

enum class ControlKind { Button, Option, Text, Label, Frame, List, Spin, Timer, Picture };

// The word for a kind in the script's page listing: "button", "option", ...
std::string_view KindName(ControlKind kind);

class Control {
 public:
  Control(Page& page, ControlKind kind, std::string name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const ControlKind kind;
  const std::string name;
  std::string caption;  // of buttons, options, labels and frames
  std::string toolTip;
  std::string accessibleName;  // for screen readers, where caption and tool tip say too little
  char mnemonic = 0;           // its letter together with Alt, where that is always the same; 0 leaves it to the window
  bool visible = true;
  bool enabled = true;
  Color foreColor = colorBlack;  // black stands for the palette's own text colour
  Color backColor = colorWhite;  // of boxes and labels; white stands for the palette's own
  Frame* container = nullptr;    // a hidden or disabled frame hides or disables what it holds

  // Whether the user sees it, and whether the user can act on it: it is enabled, and no lock of its page is on it.
  bool Shown() const;
  bool Usable() const { return Shown() && Active(); }
  bool Active() const;

  // The name that assistive tools speak: accessibleName, else the caption, else the tool tip, else the name.
  std::string SpokenName() const;

  // The page that it stands on.
  const Page& Owner() const { return page_; }

 private:
  bool EnabledWithContainer() const;

  const Page& page_;
};

// How a button looks, by what it is for.
enum class ButtonRole {
  Plain,      // dialogs and everything without a role of its own
  Segment,    // one of the six pages in the navigation row
  Action,     // an action of the navigation row: icon beside or above its caption
  Tool,       // one of an even grid of tools, with a small drawn sign
  Thumbnail,  // a picture alone: a kind of plot
  Corner,     // a small question mark in the corner of a card
};

class Button : public Control {
 public:
  Button(Page& page, std::string name, std::string caption, std::string toolTip = {});
  std::function<void()> onClick;
  Picture picture;  // drawn on the button when not empty
  ButtonRole role = ButtonRole::Plain;
  bool pressed = false;  // stands pressed: the present page, the plot on display
};

// Options of one group exclude one another.
class OptionButton;
class OptionGroup {
 public:
  // The option that is set, or nullptr.
  OptionButton* Chosen() const;
  void Clear();
  const std::vector<OptionButton*>& Members() const { return members_; }

 private:
  friend class OptionButton;
  std::vector<OptionButton*> members_;
};

class OptionButton : public Control {
 public:
  OptionButton(Page& page, OptionGroup& group, std::string name, std::string caption, std::string toolTip = {});
  std::function<void()> onClick;  // runs after the option was set
  bool Value() const { return value_; }
  void Set();  // sets this option and clears the others of its group
  void Unset() { value_ = false; }
  const OptionGroup& Group() const { return group_; }
  Picture picture;  // of what it stands for, drawn on its card

 private:
  OptionGroup& group_;
  bool value_ = false;
};

class TextBox : public Control {
 public:
  TextBox(Page& page, std::string name, std::string accessible, std::string toolTip = {});
  std::string text;
  std::function<void()> onChange;  // every keystroke
  std::function<void()> onLeave;   // when the focus goes elsewhere: the echo of what was understood
  bool readOnly = false;
  bool stepsDigits = true;  // arrow keys and wheel step the digit at the cursor; false for words
  i32 maxLength = 32767;

  // Replaces the text with a value that a limit put there; the window shows it briefly in the colour of a note.
  void Repair(std::string newText);
  i32 Repairs() const { return repairs_; }

 private:
  i32 repairs_ = 0;
};

class Label : public Control {
 public:
  Label(Page& page, std::string name, std::string caption);
  bool emphasised = false;
  bool fixedPitch = false;  // stands over a table in columns,
  i32 indent = 0;           // so many characters in from its left edge
};

class Frame : public Control {
 public:
  Frame(Page& page, std::string name, std::string caption);
  void Hold(std::initializer_list<Control*> controls);
};

class ListBox : public Control {
 public:
  ListBox(Page& page, std::string name, std::string accessible);
  std::vector<std::string> items;
  i32 selected = 0;         // 1-based, 0 for none
  bool fixedPitch = false;  // lines that are laid out by characters
  bool table = false;       // rows of columns: a font of fixed pitch, and many rows can be marked and copied
  // The headings of a table whose rows are cells: the fields of an item are set apart by blanks, one for each heading.
  std::vector<std::string> columns;
  i32 mostRows = 0;           // shown without scrolling; 0: as many as there is room for
  std::vector<Button*> menu;  // that the context menu of a table offers, too
  std::function<void()> onClick;
};

class Spin : public Control {
 public:
  Spin(Page& page, std::string name, std::string accessible, std::string toolTip = {});
  std::function<void()> onUp;
  std::function<void()> onDown;

  // The label that shows the whole number which the control steps, and what a number that is typed does. The handler
  // holds it to the range.
  void Count(Label& shown, std::function<void(i32)> onTyped);
  Label* number = nullptr;
  std::function<void(i32)> onSet;
  bool large = false;   // what its page is there for, and so a larger mark for the mouse
  bool oneAct = false;  // its steps in a row are taken back together, like the keystrokes in a box
  i32 room = 5;         // characters of what stands in it, so that its width is always the same
  i32 lowest = 0;       // for assistive tools, and for where the digits of a typed number end
  i32 highest = 0;

  // What the label shows; 0 where it shows no number.
  i32 Value() const;
};

class Timer : public Control {
 public:
  Timer(Page& page, std::string name, i32 milliseconds);
  i32 interval;  // milliseconds; runs while enabled
  std::function<void()> onTick;
};

enum class MouseButton { Left, Right };

class PictureBox : public Control {
 public:
  PictureBox(Page& page, std::string name, std::string accessible);
  // Shows a picture and a layer over it that stand elsewhere and outlive the page.
  PictureBox(Page& page, std::string name, std::string accessible, Picture& shown, LiveLayer& over);
  Picture& picture;
  LiveLayer& live;  // the traces of trials, drawn over the picture and not kept for long
  Picture mark;     // drawn over both and never part of it: the readout under the mouse
  std::function<void(f32 x, f32 y, MouseButton)> onMouseDown;
  std::function<void(f32 x, f32 y, MouseButton)> onMouseMove;
  std::function<void(f32 x, f32 y, MouseButton)> onMouseUp;

  HitAreas areas;
  std::string description;  // for assistive tools: what the picture shows just now

  // The area on top at a place, or of a name; nullptr for none.
  const HitArea* AreaAt(Point at) const;
  const HitArea* FindArea(std::string_view areaName) const;

  // All that the user sees: the picture, the live layer as far as it is kept, and the mark over both.
  Picture AsSeen() const;

 private:
  Picture own_;
  LiveLayer ownLive_;
};

}  // namespace quilm
