#include "app/LayoutBuilder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "app/GroupBox.h"
#include "app/OptionCard.h"
#include "app/QtText.h"
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

bool All(const Layout& node, bool (*test)(const Layout&)) {
  return !node.items.empty() && std::all_of(node.items.begin(), node.items.end(), test);
}

bool IsRow(const Layout& node) { return node.kind == Kind::Row; }

// The rows that stand in a part, one below the other, share the height alike.
int ShareOf(const Layout& node, bool horizontal) {
  if (node.kind == Kind::Group) return ShareOf(node.items.front(), horizontal);
  if (horizontal || node.kind != Kind::Column || !All(node, IsRow)) return 1;
  return static_cast<int>(node.items.size());
}

bool IsControl(const Layout& node, ControlKind kind) {
  return node.kind == Kind::Control && node.control->kind == kind;
}

bool IsButton(const Layout& node, ButtonRole role) {
  return IsControl(node, ControlKind::Button) && static_cast<const Button*>(node.control)->role == role;
}

bool IsSegment(const Layout& node) { return IsButton(node, ButtonRole::Segment); }
bool IsAction(const Layout& node) { return IsButton(node, ButtonRole::Action); }
bool HoldsAction(const Layout& node) { return std::any_of(node.items.begin(), node.items.end(), IsAction); }
// What is one control to the eye, and keeps its size unless it fills its place.
bool IsOne(const Layout& node) {
  return node.kind == Kind::Control || node.kind == Kind::Within || node.kind == Kind::Word;
}
bool IsLeaf(const Layout& node) { return IsOne(node) || node.kind == Kind::Space; }
bool IsGroup(const Layout& node) { return node.kind == Kind::Group; }
bool HoldsGroup(const Layout& node) {
  return node.kind == Kind::Group || std::any_of(node.items.begin(), node.items.end(), HoldsGroup);
}

int SpacingOf(const Layout& node, bool horizontal, bool inGroup) {
  if (All(node, IsSegment)) return 0;  // one group
  if (HoldsAction(node)) return closeUnit;
  if (horizontal) return std::any_of(node.items.begin(), node.items.end(), HoldsGroup) ? groupGap : gridUnit;
  // The headings of the groups within a group set its parts apart already.
  return All(node, IsLeaf) || (inGroup && All(node, IsGroup)) ? closeUnit : gridUnit;
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

// The first control of a row that takes entries; nullptr for none.
const Control* EntryOf(const Layout& node) {
  for (const Control* control : ControlsOf(node)) {
    if (control->kind == ControlKind::Text || control->kind == ControlKind::Spin) return control;
  }
  return nullptr;
}

// Cards of all rows stand one below the other: the widest caption decides for them all.
void ShareCardWidth(const QWidget& root) {
  const QList<OptionCard*> cards = root.findChildren<OptionCard*>();
  int widest = 0;
  for (const OptionCard* card : cards) widest = std::max(widest, card->minimumSizeHint().width());
  for (OptionCard* card : cards) card->setMinimumWidth(widest);
}

}  // namespace

void LayoutBuilder::Build(const Layout& layout) {
  auto* frame = new QVBoxLayout(&root_);
  frame->setContentsMargins(gridUnit, gridUnit, gridUnit, gridUnit);
  frame->setSpacing(0);
  AddToBox(*frame, layout, {&root_, false, false}, false);
  if (!TakesRoom(layout, false)) frame->addStretch(1);
  for (const auto& [control, word] : words_) built_.at(control)->Accompany(*word);
  ShareCardWidth(root_);
}

void LayoutBuilder::AddToBox(QBoxLayout& box, const Layout& item, const Place& place, bool horizontal) {
  if (item.kind == Kind::Space) {
    box.addStretch(1);
    return;
  }
  const int stretch = TakesRoom(item, horizontal) ? ShareOf(item, horizontal) : 0;
  if (QWidget* widget = BuildWidget(item, place)) {
    const bool leaf = IsOne(item) && !item.fills;
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
  if (node.kind == Kind::Within) return BuildWithin(node, inner);
  if (node.kind == Kind::Word) return BuildWord(node, inner);
  if (node.kind == Kind::Group) return BuildGroup(node, inner);
  if (node.kind == Kind::SidePlace) return BuildSidePlace(node, inner);
  return nullptr;
}

QWidget* LayoutBuilder::BuildControl(const Layout& node, const Place& place) {
  ControlView& view = viewOf_(*node.control, place.parent);
  built_[node.control] = &view;
  QWidget* widget = view.Widget();
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

QWidget* LayoutBuilder::BuildWithin(const Layout& node, const Place& place) {
  if (node.control->kind == ControlKind::Option) return BuildCard(node, place);
  QWidget* widget = BuildControl(Put(*node.control), place);
  built_[node.control]->Hold(*BuildWidget(node.items.front(), {widget, place.keepsPlace, place.inGroup}));
  return widget;
}

// The button lies over its card and is none of its parts: it can be pressed while the option cannot.
QWidget* LayoutBuilder::BuildCard(const Layout& node, const Place& place) {
  constexpr int fromFrame = 3;
  auto* both = new QWidget(place.parent);
  auto* grid = new QGridLayout(both);
  grid->setContentsMargins(0, 0, 0, 0);
  const Place inside{both, place.keepsPlace, place.inGroup};
  grid->addWidget(BuildControl(Fill(Put(*node.control)), inside), 0, 0);
  auto* corner = new QVBoxLayout;
  corner->setContentsMargins(fromFrame, fromFrame, fromFrame, fromFrame);
  corner->addWidget(BuildWidget(node.items.front(), inside), 0, Qt::AlignRight | Qt::AlignBottom);
  grid->addLayout(corner, 0, 0);
  return both;
}

QWidget* LayoutBuilder::BuildWord(const Layout& node, const Place& place) {
  auto* word = new QLabel(ToQt(node.title), place.parent);
  word->setTextFormat(Qt::PlainText);
  word->setForegroundRole(QPalette::PlaceholderText);
  QSizePolicy policy = word->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  word->setSizePolicy(policy);
  words_.emplace_back(node.control, word);
  return word;
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
  auto* box = node.control != nullptr ? qobject_cast<GroupBox*>(viewOf_(*node.control, place.parent).Widget())
                                      : new GroupBox(place.parent);
  QSizePolicy policy = box->sizePolicy();
  policy.setRetainSizeWhenHidden(place.keepsPlace);
  box->setSizePolicy(policy);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(closeUnit);
  const std::string& title = node.control != nullptr ? node.control->caption : node.title;
  column->addWidget(&box->AddHeading(ToQt(title), place.inGroup));
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
    case Kind::Within:
    case Kind::Word:
    case Kind::Space:
      break;
  }
  return BuildBox(node, inner, false);
}

QLayout* LayoutBuilder::BuildBox(const Layout& node, const Place& place, bool horizontal) {
  auto* box = new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  // What belongs to the page begins a little below the navigation row.
  box->setContentsMargins(0, 0, 0, horizontal && HoldsAction(node) ? gridUnit : 0);
  box->setSpacing(SpacingOf(node, horizontal, place.inGroup));
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
    grid.addWidget(widget, row, column, IsOne(item) && !item.fills ? align : Qt::Alignment());
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
  const Qt::Alignment fromBox = Qt::AlignLeft | Qt::AlignVCenter;
  for (std::size_t i = 0; i < node.items.size(); ++i) {
    const Layout& item = node.items[i];
    const int row = static_cast<int>(i) / node.columns;
    const int column = static_cast<int>(i) % node.columns;
    if (item.across) {
      grid->addWidget(BuildWidget(item, place), row, 0, 1, node.columns, toBox);
    } else if (item.under) {
      if (QWidget* widget = BuildWidget(item, place)) {
        grid->addWidget(widget, row, column, 1, node.columns - column, fromBox);
      } else {
        grid->addLayout(BuildLayout(item, place), row, column, 1, node.columns - column, fromBox);
      }
    } else {
      AddCell(*grid, item, place, row, column, column == 0 ? toBox : fromBox);
    }
    if (column > 0 && TakesRoom(item, false)) grid->setRowStretch(row, 1);
  }
  // A unit stands right after its box.
  grid->setColumnStretch(node.columns - 1, 1);
  KeepRowsTogether(*grid, node);
  JoinLabels(node);
  return grid;
}

// The label of a row names its box, for assistive tools and for the letter that leads there.
void LayoutBuilder::JoinLabels(const Layout& form) {
  const auto columns = static_cast<std::size_t>(form.columns);
  for (std::size_t i = 0; i + 1 < form.items.size(); i += columns) {
    const Control* entry = EntryOf(form.items[i + 1]);
    if (entry == nullptr || !IsControl(form.items[i], ControlKind::Label)) continue;
    auto* label = qobject_cast<QLabel*>(built_[form.items[i].control]->Widget());
    label->setBuddy(built_[entry]->FocusWidget());
  }
}

}  // namespace quilm
