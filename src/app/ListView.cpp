#include "app/ListView.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "app/QtText.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int listLines = 10;

}  // namespace

void LineModel::Show(const std::vector<std::string>& lines) {
  if (lines == lines_) return;
  beginResetModel();
  lines_ = lines;
  endResetModel();
}

int LineModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant LineModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return ToQt(lines_[static_cast<std::size_t>(index.row())]);
}

TableWidget::TableWidget(QWidget* parent) : QListView(parent) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setSelectionMode(QAbstractItemView::ExtendedSelection);
}

bool TableWidget::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();
    return true;
  }
  return QListView::event(event);
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopyRows();
  } else {
    QListView::keyPressEvent(event);
  }
}

// In the order of the table, whichever was marked first.
void TableWidget::CopyRows() const {
  QModelIndexList marked = selectionModel()->selectedIndexes();
  std::sort(marked.begin(), marked.end());
  QStringList rows;
  for (const QModelIndex& line : marked) rows << line.data().toString();
  QGuiApplication::clipboard()->setText(rows.join(QLatin1Char('\n')));
}

ListView::ListView(ListBox& list, ActSink& sink, QWidget* parent)
    : ControlView(list),
      list_(list),
      widget_(list.table ? new TableWidget(parent) : new QListView(parent)),
      lines_(new LineModel(widget_)) {
  if (list.fixedPitch) widget_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  widget_->setModel(lines_);
  widget_->setUniformItemSizes(true);
  widget_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget_->setMinimumHeight(widget_->fontMetrics().lineSpacing() * listLines);
  SetWidget(widget_);
  QObject::connect(widget_, &QListView::clicked, widget_, [this, &sink](const QModelIndex& line) {
    sink.Press([this, chosen = line.row() + 1](Session& session) { Choose(session, list_, chosen); });
  });
  QObject::connect(widget_->selectionModel(), &QItemSelectionModel::currentRowChanged, widget_,
                   [this, &sink](const QModelIndex& line) {
                     // A click is told by clicked(); here the arrow keys have moved the line.
                     if (showing_ || !line.isValid() || !widget_->hasFocus()) return;
                     if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
                     sink.Press([this, chosen = line.row() + 1](Session& session) { Choose(session, list_, chosen); });
                   });
}

// As high as the rows that are shown without scrolling, and wide enough for the longest.
void ListView::FitRows() {
  const int rows = std::clamp(lines_->rowCount(), 1, list_.mostRows);
  const int frame = 2 * widget_->frameWidth();
  widget_->setFixedHeight(rows * std::max(widget_->sizeHintForRow(0), widget_->fontMetrics().lineSpacing()) + frame);
  widget_->setMinimumWidth(widget_->sizeHintForColumn(0) + frame + widget_->verticalScrollBar()->sizeHint().width());
}

void ListView::ShowValues() {
  showing_ = true;
  const int scrolled = widget_->verticalScrollBar()->value();
  lines_->Show(list_.items);
  // Such lines say little without their ends.
  if (list_.fixedPitch) {
    widget_->setMinimumWidth(widget_->sizeHintForColumn(0) + widget_->verticalScrollBar()->sizeHint().width() +
                             2 * widget_->frameWidth());
  }
  if (list_.mostRows > 0) FitRows();
  widget_->verticalScrollBar()->setValue(scrolled);
  // What the user has marked in a table is the user's alone.
  if (!list_.table && widget_->currentIndex().row() != list_.selected - 1) {
    widget_->setCurrentIndex(lines_->index(list_.selected - 1));
  }
  showing_ = false;
}

}  // namespace quilm
