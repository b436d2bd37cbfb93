#include "shell/Layout.h"

#include <algorithm>

namespace quilm {

std::vector<Control*> ControlsOf(const Layout& layout) {
  std::vector<Control*> controls;
  if (layout.control != nullptr) controls.push_back(layout.control);
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
