// List boxes: a few lines to choose from, or a table of thousands of rows.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string>
#include <vector>

#include "app/ControlView.h"

namespace quilm {

// The lines of a list box. The view asks for those that it shows.
class LineModel : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  // Takes over the lines. Other ones than before take all marks of the user away.
  void Show(const std::vector<std::string>& lines);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<std::string> lines_;
};

// Rows of columns, to be read, marked and copied. The key for copying is the table's while it has the focus, not the
// window's.
class TableWidget : public QListView {
  Q_OBJECT

 public:
  explicit TableWidget(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void CopyRows() const;
};

class ListView : public ControlView {
 public:
  ListView(ListBox& list, ActSink& sink, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  void FitRows();

  ListBox& list_;
  QListView* widget_;
  LineModel* lines_;
  bool showing_ = false;  // the program moves the line, not the user
};

}  // namespace quilm
