#include "app/MainWindow.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "app/FirstPlace.h"
#include "app/HistoryButton.h"
#include "app/PageView.h"
#include "app/QtText.h"
#include "shell/Acts.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr QSize usualSize(1280, 860);
// Below the size that pages are made for they scroll. A screen of 1366 x 768 pixels at 150 % has room for this.
constexpr QSize smallestSize(640, 440);
constexpr int margin = 8;

// The one file of this machine that is dragged; empty for anything else.
QString DroppedFile(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

StatusText::StatusText(Qt::Alignment alignment, QWidget* parent) : QWidget(parent), alignment_(alignment) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void StatusText::Show(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  setToolTip(text);
  setAccessibleName(text);
  update();
}

QSize StatusText::sizeHint() const {
  constexpr int aboveAndBelow = 8;
  return QSize(0, fontMetrics().height() + aboveAndBelow);
}

void StatusText::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), static_cast<int>(alignment_ | Qt::AlignVCenter),
                   fontMetrics().elidedText(text_, Qt::ElideRight, width()));
}

MainWindow::MainWindow(Session& session, QString settingsPath)
    : session_(session),
      settingsPath_(std::move(settingsPath)),
      pages_(new QStackedWidget),
      undo_(new HistoryButton(QStringLiteral("Undo"), UndoKeys())),
      redo_(new HistoryButton(QStringLiteral("Redo"), RedoKeys())),
      left_(new StatusText(Qt::AlignLeft)),
      right_(new StatusText(Qt::AlignRight)) {
  setWindowTitle(QStringLiteral("Quilm"));
  setMinimumSize(smallestSize);
  setAcceptDrops(true);
  auto* whole = new QWidget;
  auto* column = new QVBoxLayout(whole);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(pages_, 1);
  auto* rule = new QFrame;
  rule->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
  column->addWidget(rule);
  auto* status = new QHBoxLayout;
  status->setContentsMargins(margin, 0, margin, 0);
  status->setSpacing(2 * margin);
  constexpr int leftShare = 3;
  constexpr int rightShare = 2;
  auto* steps = new QHBoxLayout;
  steps->setSpacing(0);
  steps->addWidget(undo_);
  steps->addWidget(redo_);
  status->addLayout(steps);
  status->addWidget(left_, leftShare);
  status->addWidget(right_, rightShare);
  column->addLayout(status);
  setCentralWidget(whole);
  undo_->onPress = [this] { onUndo(); };
  redo_->onPress = [this] { onRedo(); };
  RestorePlace();
}

MainWindow::~MainWindow() = default;

void MainWindow::RestorePlace() {
  const QSettings settings(settingsPath_, QSettings::IniFormat);
  if (restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray())) return;
  resize(usualSize);
  if (const QScreen* primary = QGuiApplication::primaryScreen()) {
    setGeometry(FirstPlace(primary->availableGeometry(), usualSize));
  }
}

void MainWindow::KeepPlace() const {
  QSettings settings(settingsPath_, QSettings::IniFormat);
  settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
}

// Each page stands in an area that scrolls when the window is smaller than the page can be, so that no page can ever
// change the window's size.
void MainWindow::AddPage(PageView& view) {
  auto* holder = new QScrollArea;
  holder->setFrameShape(QFrame::NoFrame);
  holder->setWidgetResizable(true);
  holder->setFocusPolicy(Qt::NoFocus);
  holder->setWidget(&view);
  pages_->addWidget(holder);
}

QWidget* MainWindow::HolderOf(const PageView& view) const {
  for (int i = 0; i < pages_->count(); ++i) {
    if (static_cast<QScrollArea*>(pages_->widget(i))->widget() == &view) return pages_->widget(i);
  }
  return nullptr;
}

void MainWindow::ShowPage(PageView& view, const QString& title) {
  QWidget* holder = HolderOf(view);
  if (holder == nullptr) return;
  pageTitle_ = title;
  ShowTitle();
  if (pages_->currentWidget() == holder) return;
  pages_->setCurrentWidget(holder);
  view.FocusFirst();
}

void MainWindow::ShowTitle() {
  const QString design = designName ? ToQt(designName()) : QString();
  const QString& name = design.isEmpty() ? pageTitle_ : design;
  const bool named = !name.isEmpty() && name != QLatin1String("Quilm");
  setWindowTitle(named ? name + QStringLiteral(" - Quilm") : QStringLiteral("Quilm"));
}

void MainWindow::RemovePage(PageView& view) {
  QWidget* holder = HolderOf(view);
  if (holder == nullptr) return;
  pages_->removeWidget(holder);
  holder->hide();
  holder->deleteLater();
}

void MainWindow::SyncStatus() {
  ShowTitle();
  undo_->Show(CanUndo(session_), session_.history.UndoText());
  redo_->Show(CanRedo(session_), session_.history.RedoText());
  left_->Show(summary ? ToQt(summary()) : QString());
  right_->Show(ToQt(session_.note));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (onFile && !DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// The file is read when the drop is over: a message that it leads to must not keep the program that it comes from.
void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = DroppedFile(*event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  activateWindow();
  QTimer::singleShot(0, this, [this, path] { onFile(path); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (session_.ended || !onCloseBox) {
    event->accept();
    return;
  }
  event->ignore();
  onCloseBox();
}

}  // namespace quilm
