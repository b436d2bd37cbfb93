// Where the controls of a page stand, said once and declaratively. The window turns the tree into its own layouts in
// one place; a page needs no toolkit code. A control is placed exactly once; timers are not placed.
//
//   Layout frmX::MakeLayout() {
//     return Column({Form({{Put(lblWidth), Put(txtWidth)}}), Row({Space(), Put(cmdOk)})});
//   }
#pragma once

#include <string>
#include <vector>

#include "shell/Control.h"

namespace quilm {

struct Layout {
  enum class Kind {
    Control,    // one control
    Row,        // items side by side
    Column,     // items one below the other
    Grid,       // items in rows of `columns`, all cells of one width
    Form,       // rows of `columns` items: label, right-aligned, field, and the unit after it where the form has any
    Group,      // one item under a quiet heading: `title`, or the caption of the frame `control`
    Within,     // a control with one item inside it: a number with its arrows, a card with its question mark
    Word,       // a quiet word beside `control`, and shown with it: a unit
    Space,      // takes spare room
    SidePlace,  // one item, whose place a tool takes while it stands beside the page (PageDesk::ShowBeside)
  };

  Kind kind = Kind::Space;
  Control* control = nullptr;
  std::string title;
  int columns = 0;
  std::vector<Layout> items;
  bool fills = false;       // takes all spare room in both directions
  bool keepsPlace = false;  // holds its room while hidden, so that nothing jumps
  bool across = false;      // in a form: over all its columns
  bool under = false;       // in a form: below the field of the row before, over it and the unit
};

inline Layout Put(Control& control) {
  Layout node;
  node.kind = Layout::Kind::Control;
  node.control = &control;
  return node;
}

inline Layout Of(Layout::Kind kind, std::vector<Layout> items, int columns = 0) {
  Layout node;
  node.kind = kind;
  node.items = std::move(items);
  node.columns = columns;
  return node;
}

inline Layout Row(std::vector<Layout> items) { return Of(Layout::Kind::Row, std::move(items)); }
inline Layout Column(std::vector<Layout> items) { return Of(Layout::Kind::Column, std::move(items)); }
inline Layout Grid(int columns, std::vector<Layout> items) { return Of(Layout::Kind::Grid, std::move(items), columns); }
inline Layout Space() { return Of(Layout::Kind::Space, {}); }

// A spin control with the number that it steps.
inline Layout Number(Label& number, Spin& spin) {
  Layout node = Of(Layout::Kind::Within, {Put(number)});
  node.control = &spin;
  return node;
}

// An option as a framed card: its mark and caption, the picture of what it stands for, and in the corner a small button
// that tells more of it. A click anywhere else on the card is a click on the option.
inline Layout Card(OptionButton& option, Button& more) {
  Layout node = Of(Layout::Kind::Within, {Put(more)});
  node.control = &option;
  node.fills = true;
  return node;
}

inline Layout Word(std::string text, Control& besides) {
  Layout node = Of(Layout::Kind::Word, {});
  node.control = &besides;
  node.title = std::move(text);
  return node;
}

struct FormRow {
  Layout label;
  Layout field;
  Layout unit = Space();
};

// Label and field in each row, and a unit after the field where one is given.
Layout Form(std::vector<FormRow> rows);

// A row of a form that has no label and is too wide for the field's column: it ends at the right of the form.
inline FormRow Across(Layout field) {
  field.across = true;
  return {Space(), std::move(field)};
}

// What belongs to the field of the row before, directly under it.
inline FormRow Under(Layout readout) {
  readout.under = true;
  return {Space(), std::move(readout)};
}

inline Layout Group(std::string title, Layout content) {
  Layout node = Of(Layout::Kind::Group, {std::move(content)});
  node.title = std::move(title);
  return node;
}

// A group that is the page's own frame: hidden and disabled with it.
inline Layout Group(Frame& frame, Layout content) {
  Layout node = Of(Layout::Kind::Group, {std::move(content)});
  node.control = &frame;
  return node;
}

inline Layout Fill(Layout node) {
  node.fills = true;
  return node;
}

inline Layout KeepPlace(Layout node) {
  node.keepsPlace = true;
  return node;
}

// At most once on a page. What it holds is hidden while a tool stands there.
inline Layout SidePlace(Layout content) { return Of(Layout::Kind::SidePlace, {std::move(content)}); }

bool HasSidePlace(const Layout& layout);

// Every control of the tree in reading order, frames before what they hold.
std::vector<Control*> ControlsOf(const Layout& layout);

}  // namespace quilm
