// Turns a page's layout tree into the toolkit's layouts: the one place that knows spacings, alignments and which part
// takes the spare room.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "app/ControlView.h"
#include "shell/Layout.h"

class QBoxLayout;
class QGridLayout;
class QLayout;

namespace quilm {

class LayoutBuilder {
 public:
  // Gives the adapter of a control, made as a child of `parent`.
  using ViewOf = std::function<ControlView&(Control& control, QWidget* parent)>;

  LayoutBuilder(QWidget& root, ViewOf viewOf) : root_(root), viewOf_(std::move(viewOf)) {}

  // Fills the root widget with the layout.
  void Build(const Layout& layout);

 private:
  // Where an item is built: the widget that becomes its parent, whether it keeps its place while hidden, and whether a
  // group is around it.
  struct Place {
    QWidget* parent;
    bool keepsPlace;
    bool inGroup;
  };

  void AddToBox(QBoxLayout& box, const Layout& item, const Place& place, bool horizontal);
  QWidget* BuildWidget(const Layout& node, const Place& place);
  QLayout* BuildLayout(const Layout& node, const Place& place);
  QLayout* BuildBox(const Layout& node, const Place& place, bool horizontal);
  QLayout* BuildGrid(const Layout& node, const Place& place);
  QLayout* BuildForm(const Layout& node, const Place& place);
  QWidget* BuildControl(const Layout& node, const Place& place);
  QWidget* BuildWithin(const Layout& node, const Place& place);
  QWidget* BuildCard(const Layout& node, const Place& place);
  QWidget* BuildWord(const Layout& node, const Place& place);
  QWidget* BuildSidePlace(const Layout& node, const Place& place);
  QWidget* BuildGroup(const Layout& node, const Place& place);
  void AddCell(QGridLayout& grid, const Layout& item, const Place& place, int row, int column, Qt::Alignment align);
  void JoinLabels(const Layout& form);

  QWidget& root_;
  ViewOf viewOf_;
  std::map<const Control*, ControlView*> built_;
  std::vector<std::pair<const Control*, QWidget*>> words_;  // with the control that each stands beside
};

}  // namespace quilm
