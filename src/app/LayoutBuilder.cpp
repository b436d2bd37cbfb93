#include "app/LayoutBuilder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "app/PlainViews.h"
#include "app/SideStack.h"

namespace quilm {

namespace {

constexpr int gridUnit = 8;
constexpr int closeUnit = 4;  // between rows that belong together
constexpr int groupGap = 16;  // between groups side by side

using Kind = Layout::Kind;

// Whether a part takes spare room in one direction.
bool TakesRoom(const Layout& node, bool horizontal) {
  if (node.fills) return true;
  const Kind along = horizontal ? Kind::Row : Kind::Column;
  return std::any_of(node.items.begin(), node.items.end(), [&](const Layout& item) {
    return item.kind == Kind::Space ? node.kind == along : TakesRoom(item, horizontal);
  });
}

bool IsControl(const Layout& node, ControlKind kind) {
  return node.kind == Kind::Control && node.control->kind == kind;
}

bool IsButton(const Layout& node, ButtonRole role) {
  return IsControl(node, ControlKind::Button) && static_cast<const Button*>(node.control)->role == role;
}

bool All(const Layout& node, bool (*test)(const Layout&)) {
  return !node.items.empty() && std::all_of(node.items.begin(), node.items.end(), test);
}

bool IsSegment(const Layout& node) { return IsButton(node, ButtonRole::Segment); }
bool IsAction(const Layout& node) { return IsButton(node, ButtonRole::Action); }
bool HoldsAction(const Layout& node) { return std::any_of(node.items.begin(), node.items.end(), IsAction); }
bool IsLeaf(const Layout& node) { return node.kind == Kind::Control || node.kind == Kind::Space; }
bool HoldsGroup(const Layout& node) {
  return node.kind == Kind::Group || std::any_of(node.items.begin(), node.items.end(), HoldsGroup);
}

int SpacingOf(const Layout& node, bool horizontal) {
  if (All(node, IsSegment)) return 0;  // one group
  if (HoldsAction(node)) return closeUnit;
  if (horizontal) return std::any_of(node.items.begin(), node.items.end(), HoldsGroup) ? groupGap : gridUnit;
  return All(node, IsLeaf) ? closeUnit : gridUnit;
}

// What a grid is higher than its rows stays below them.
void KeepRowsTogether(QGridLayout& grid, const Layout& node) {
  if (!TakesRoom(node, false)) grid.setRowStretch(grid.rowCount(), 1);
}

bool WantsSharedWidth(const Layout& node) {
  return IsButton(node, ButtonRole::Plain) || IsButton(node, ButtonRole::Tool);
}

// Plain buttons and tools side by side or one below the other share one width.
void ShareWidth(const QBoxLayout& box, const Layout& node) {
  int widest = 0;
  for (int i = 0; i < static_cast<int>(node.items.size()); ++i) {
    if (WantsSharedWidth(node.items[static_cast<std::size_t>(i)])) {
      widest = std::max(widest, box.itemAt(i)->widget()->sizeHint().width());
    }
  }
  for (int i = 0; i < static_cast<int>(node.items.size()); ++i) {
    if (WantsSharedWidth(node.items[static_cast<std::size_t>(i)])) box.itemAt(i)->widget()->setMinimumWidth(widest);
  }
}

}  // namespace

void LayoutBuilder::Build(const Layout& layout) {
  auto* frame = new QVBoxLayout(&root_);
  frame->setContentsMargins(gridUnit, gridUnit, gridUnit, gridUnit);
  frame->setSpacing(0);
  AddToBox(*frame, layout, {&root_, false, false}, false);
  if (!TakesRoom(layout, false)) frame->addStretch(1);
}

void LayoutBuilder::AddToBox(QBoxLayout& box, const Layout& item, const Place& place, bool horizontal) {
  if (item.kind == Kind::Space) {
    box.addStretch(1);
    return;
  }
  const int stretch = TakesRoom(item, horizontal) ? 1 : 0;
  if (QWidget* widget = BuildWidget(item, place)) {
    const bool leaf = item.kind == Kind::Control && !item.fills;
    // Single controls keep their size; a column aligns them to its left edge, a row to its middle.
    box.addWidget(widget, stretch, !leaf ? Qt::Alignment() : horizontal ? Qt::AlignVCenter : Qt::AlignLeft);
  } else {
    box.addLayout(BuildLayout(item, place), stretch);
  }
}

// The widget of a control or a group; nullptr for what is only a layout.
QWidget* LayoutBuilder::BuildWidget(const Layout& node, const Place& place) {
  const Place inner{place.parent, place.keepsPlace || node.keepsPlace, place.inGroup};
  if (node.kind == Kind::Control) return BuildControl(node, inner);
  if (node.kind == Kind::Group) return BuildGroup(node, inner);
  if (node.kind == Kind::SidePlace) return BuildSidePlace(node, inner);
  return nullptr;
}

QWidget* LayoutBuilder::BuildControl(const Layout& node, const Place& place) {
  QWidget* widget = viewOf_(*node.control, place.parent).Widget();
  QSizePolicy policy = widget->sizePolicy();
  if (node.fills) {
    policy.setHorizontalPolicy(QSizePolicy::Expanding);
    policy.setVerticalPolicy(node.control->kind == ControlKind::Text ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    widget->setMaximumWidth(QWIDGETSIZE_MAX);
  }
  policy.setRetainSizeWhenHidden(place.keepsPlace);
  widget->setSizePolicy(policy);
  return widget;
}

QWidget* LayoutBuilder::BuildSidePlace(const Layout& node, const Place& place) {
  auto* content = new QWidget;
  auto* side = new SideStack(*content, place.parent);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  AddToBox(*column, node.items.front(), {content, place.keepsPlace, place.inGroup}, false);
  return side;
}

QWidget* LayoutBuilder::BuildGroup(const Layout& node, const Place& place) {
  QWidget* box = node.control != nullptr ? viewOf_(*node.control, place.parent).Widget() : new QWidget(place.parent);
  QSizePolicy policy = box->sizePolicy();
  policy.setRetainSizeWhenHidden(place.keepsPlace);
  box->setSizePolicy(policy);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(closeUnit);
  const std::string& title = node.control != nullptr ? node.control->caption : node.title;
  QLabel* heading = MakeHeading(title, place.inGroup, box);
  heading->setObjectName(QStringLiteral("heading"));
  heading->setVisible(!title.empty());
  column->addWidget(heading);
  AddToBox(*column, node.items.front(), {box, place.keepsPlace, true}, false);
  if (!TakesRoom(node.items.front(), false)) column->addStretch(1);
  return box;
}

QLayout* LayoutBuilder::BuildLayout(const Layout& node, const Place& place) {
  const Place inner{place.parent, place.keepsPlace || node.keepsPlace, place.inGroup};
  switch (node.kind) {
    case Kind::Row:
      return BuildBox(node, inner, true);
    case Kind::Grid:
      return BuildGrid(node, inner);
    case Kind::Form:
      return BuildForm(node, inner);
    case Kind::Column:
    case Kind::Control:
    case Kind::Group:
    case Kind::SidePlace:
    case Kind::Space:
      break;
  }
  return BuildBox(node, inner, false);
}

QLayout* LayoutBuilder::BuildBox(const Layout& node, const Place& place, bool horizontal) {
  auto* box = new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  // What belongs to the page begins a little below the navigation row.
  box->setContentsMargins(0, 0, 0, horizontal && HoldsAction(node) ? gridUnit : 0);
  box->setSpacing(SpacingOf(node, horizontal));
  for (const Layout& item : node.items) AddToBox(*box, item, place, horizontal);
  ShareWidth(*box, node);
  const bool endsOpen = horizontal ? All(node, IsLeaf) : true;
  if (endsOpen && !TakesRoom(node, horizontal)) box->addStretch(1);
  return box;
}

void LayoutBuilder::AddCell(QGridLayout& grid, const Layout& item, const Place& place, int row, int column,
                            Qt::Alignment align) {
  if (item.kind == Kind::Space) return;
  if (QWidget* widget = BuildWidget(item, place)) {
    grid.addWidget(widget, row, column, item.kind == Kind::Control && !item.fills ? align : Qt::Alignment());
  } else {
    grid.addLayout(BuildLayout(item, place), row, column);
  }
}

QLayout* LayoutBuilder::BuildGrid(const Layout& node, const Place& place) {
  auto* grid = new QGridLayout;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gridUnit);
  grid->setVerticalSpacing(All(node, IsLeaf) ? closeUnit : gridUnit);
  const int columns = std::max(node.columns, 1);
  for (std::size_t i = 0; i < node.items.size(); ++i) {
    const Layout& item = node.items[i];
    const int row = static_cast<int>(i) / columns;
    const int column = static_cast<int>(i) % columns;
    const bool button = IsControl(item, ControlKind::Button);
    AddCell(*grid, item, place, row, column, button ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignVCenter);
    if (TakesRoom(item, false)) grid->setRowStretch(row, 1);
    if (!button) continue;
    // In a grid the cells decide the width of the buttons.
    QWidget* widget = grid->itemAtPosition(row, column)->widget();
    QSizePolicy policy = widget->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Minimum);
    widget->setSizePolicy(policy);
  }
  for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
  KeepRowsTogether(*grid, node);
  return grid;
}

QLayout* LayoutBuilder::BuildForm(const Layout& node, const Place& place) {
  auto* grid = new QGridLayout;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gridUnit);
  grid->setVerticalSpacing(closeUnit);
  const Qt::Alignment toBox = Qt::AlignRight | Qt::AlignVCenter;
  for (std::size_t i = 0; i < node.items.size(); ++i) {
    const Layout& item = node.items[i];
    const int row = static_cast<int>(i) / node.columns;
    const int column = static_cast<int>(i) % node.columns;
    if (item.across) {
      grid->addWidget(BuildWidget(item, place), row, 0, 1, node.columns, toBox);
    } else {
      AddCell(*grid, item, place, row, column, column == 0 ? toBox : Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (column > 0 && TakesRoom(item, false)) grid->setRowStretch(row, 1);
  }
  for (int column = 1; column < node.columns; ++column) grid->setColumnStretch(column, 1);
  KeepRowsTogether(*grid, node);
  return grid;
}

}  // namespace quilm
