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
    Form,       // rows of `columns` items: label, right-aligned, and fields (with units and readouts after them)
    Group,      // one item under a quiet heading: `title`, or the caption of the frame `control`
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

struct FormRow {
  Layout label;
  Layout field;
};

// Label and field in each row.
inline Layout Form(std::vector<FormRow> rows) {
  std::vector<Layout> items;
  for (FormRow& row : rows) {
    items.push_back(std::move(row.label));
    items.push_back(std::move(row.field));
  }
  return Of(Layout::Kind::Form, std::move(items), 2);
}

// A row of a form that has no label and is too wide for the field's column: it ends at the right of the form.
inline FormRow Across(Layout field) {
  field.across = true;
  return {Space(), std::move(field)};
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
