// A table of figures: headings over their columns, decimal points one below the other, each cell a cell to assistive
// tools. Rows are marked and copied whole.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QTableView>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/ControlView.h"

namespace quilm {

class CellModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  CellModel(const std::vector<std::string>& headings, QObject* parent);

  // Takes over the rows, their fields set apart by blanks. Other ones than before take all marks of the user away.
  void Show(const std::vector<std::string>& rows);

  // Characters from the decimal point on, of the longest figure of a column.
  int TailOf(int column) const { return tails_[static_cast<std::size_t>(column)]; }
  const QStringList& Headings() const { return headings_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QStringList headings_;
  std::vector<std::string> shown_;
  std::vector<QStringList> cells_;
  std::vector<int> tails_;
};

// Where the part of a figure begins that stands right of the decimal point's place.
int TailStart(const QString& figure);

class DecimalDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

// The key for copying is the table's while it has the focus, not the window's.
class CellTable : public QTableView {
  Q_OBJECT

 public:
  CellTable(CellModel& model, QWidget* parent);

  // What the context menu offers besides copying and marking: a caption, and what it does. Asked for when it opens.
  std::function<std::vector<std::pair<QString, std::function<void()>>>()> commands;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void CopyRows() const;

  CellModel& model_;
};

class TableView : public ControlView {
 public:
  TableView(ListBox& list, ActSink& sink, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  ListBox& list_;
  CellModel* cells_;
  CellTable* widget_;
};

}  // namespace quilm
