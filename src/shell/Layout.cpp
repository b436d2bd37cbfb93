#include "shell/Layout.h"

#include <algorithm>

namespace quilm {

Layout Form(std::vector<FormRow> rows) {
  const bool units = std::any_of(rows.begin(), rows.end(), [](const FormRow& row) {
    return row.field.under || row.unit.kind != Layout::Kind::Space;
  });
  std::vector<Layout> items;
  for (FormRow& row : rows) {
    items.push_back(std::move(row.label));
    items.push_back(std::move(row.field));
    if (units) items.push_back(std::move(row.unit));
  }
  return Of(Layout::Kind::Form, std::move(items), units ? 3 : 2);
}

std::vector<Control*> ControlsOf(const Layout& layout) {
  std::vector<Control*> controls;
  if (layout.control != nullptr && layout.kind != Layout::Kind::Word) controls.push_back(layout.control);
  for (const Layout& item : layout.items) {
    const std::vector<Control*> inner = ControlsOf(item);
    controls.insert(controls.end(), inner.begin(), inner.end());
  }
  return controls;
}

bool HasSidePlace(const Layout& layout) {
  return layout.kind == Layout::Kind::SidePlace || std::any_of(layout.items.begin(), layout.items.end(), HasSidePlace);
}

}  // namespace quilm
