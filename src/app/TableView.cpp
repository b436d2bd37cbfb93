#include "app/TableView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>

#include "app/QtText.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int cellMargin = 8;  // from the figures to the right edge of their column

}  // namespace

int TailStart(const QString& figure) {
  const auto whole = [](QChar c) { return c.isDigit() || c == QLatin1Char('-') || c == QLatin1Char('<'); };
  int at = 0;
  while (at < figure.size() && whole(figure[at])) ++at;
  return at;
}

CellModel::CellModel(const std::vector<std::string>& headings, QObject* parent)
    : QAbstractTableModel(parent), tails_(headings.size(), 0) {
  for (const std::string& heading : headings) headings_ << ToQt(heading);
}

void CellModel::Show(const std::vector<std::string>& rows) {
  if (rows == shown_) return;
  beginResetModel();
  shown_ = rows;
  cells_.clear();
  std::fill(tails_.begin(), tails_.end(), 0);
  for (const std::string& row : rows) {
    cells_.push_back(ToQt(row).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    const QStringList& fields = cells_.back();
    const std::size_t count = std::min(tails_.size(), static_cast<std::size_t>(fields.size()));
    for (std::size_t column = 0; column < count; ++column) {
      const QString& figure = fields[static_cast<qsizetype>(column)];
      tails_[column] = std::max(tails_[column], static_cast<int>(figure.size()) - TailStart(figure));
    }
  }
  endResetModel();
}

int CellModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(cells_.size());
}

int CellModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant CellModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return cells_[static_cast<std::size_t>(index.row())].value(index.column());
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole) return headings_.value(section);
  if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  return QAbstractTableModel::headerData(section, orientation, role);
}

void DecimalDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem field = option;
  initStyleOption(&field, index);
  const QString figure = field.text;
  field.text.clear();
  const QStyle* style = field.widget != nullptr ? field.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &field, painter, field.widget);

  const QFontMetrics metrics(field.font);
  const int tail = static_cast<const CellModel*>(index.model())->TailOf(index.column());
  const int point = field.rect.right() - cellMargin - metrics.horizontalAdvance(QString(tail, QLatin1Char('0')));
  const int at = TailStart(figure);
  const bool marked = (field.state & QStyle::State_Selected) != 0;
  const auto group = (field.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
  painter->save();
  painter->setFont(field.font);
  painter->setPen(field.palette.color(group, marked ? QPalette::HighlightedText : QPalette::Text));
  QRect whole = field.rect;
  whole.setRight(point - 1);
  painter->drawText(whole, Qt::AlignRight | Qt::AlignVCenter, figure.left(at));
  QRect rest = field.rect;
  rest.setLeft(point);
  painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, figure.mid(at));
  painter->restore();
}

CellTable::CellTable(CellModel& model, QWidget* parent) : QTableView(parent), model_(model) {
  setModel(&model);
  setItemDelegate(new DecimalDelegate(this));
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setTabKeyNavigation(false);
  setWordWrap(false);
  constexpr int aboveAndBelow = 4;
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + aboveAndBelow);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
}

bool CellTable::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void CellTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopyRows();
  } else {
    QTableView::keyPressEvent(event);
  }
}

// In no loop of its own, so that the page can go while it is open.
void CellTable::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* copy = menu->addAction(tr("&Copy marked rows"), QKeySequence::Copy, this, [this] { CopyRows(); });
  copy->setEnabled(selectionModel()->hasSelection());
  menu->addAction(tr("Mark &all rows"), QKeySequence::SelectAll, this, [this] { selectAll(); });
  if (commands) {
    for (const auto& [caption, act] : commands()) menu->addAction(caption, this, act);
  }
  menu->popup(event->globalPos());
}

// With their headings, set apart by tabs as spreadsheets take them; in the order of the table, whichever was marked
// first.
void CellTable::CopyRows() const {
  QModelIndexList marked = selectionModel()->selectedRows();
  std::sort(marked.begin(), marked.end());
  QStringList lines{model_.Headings().join(QLatin1Char('\t'))};
  for (const QModelIndex& row : marked) {
    QStringList fields;
    for (int column = 0; column < model_.columnCount(); ++column) {
      fields << row.siblingAtColumn(column).data().toString();
    }
    lines << fields.join(QLatin1Char('\t'));
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

TableView::TableView(ListBox& list, ActSink& sink, QWidget* parent)
    : ControlView(list),
      list_(list),
      cells_(new CellModel(list.columns, parent)),
      widget_(new CellTable(*cells_, parent)) {
  SetWidget(widget_);
  QObject::connect(widget_, &QTableView::clicked, widget_, [this, &sink](const QModelIndex& cell) {
    sink.Press([this, row = cell.row() + 1](Session& session) { Choose(session, list_, row); });
  });
  widget_->commands = [this, &sink] {
    std::vector<std::pair<QString, std::function<void()>>> offered;
    for (Button* button : list_.menu) {
      if (!button->Usable()) continue;
      offered.emplace_back(QLatin1Char('&') + ToQt(button->caption),
                           [&sink, button] { sink.Press([button](Session& session) { Click(session, *button); }); });
    }
    return offered;
  };
}

void TableView::ShowValues() { cells_->Show(list_.items); }

}  // namespace quilm
