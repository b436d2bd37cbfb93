// The one window of the program: the present main page, and the status line at its foot.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>
#include <functional>
#include <string>

namespace quilm {

class HistoryButton;
class PageView;
class Session;

// A line of text that is cut where the room ends, and says the whole in its tool tip.
class StatusText : public QWidget {
  Q_OBJECT

 public:
  explicit StatusText(Qt::Alignment alignment, QWidget* parent = nullptr);
  void Show(const QString& text);
  const QString& Text() const { return text_; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  Qt::Alignment alignment_;
};

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // Position and size are kept in the file at `settingsPath`.
  MainWindow(Session& session, QString settingsPath);
  ~MainWindow() override;

  // The present design in one line, at the left of the status line.
  std::function<std::string()> summary;
  // The name of the present design for the title; empty for none, and the title is that of the page.
  std::function<std::string()> designName;
  // The window's close box.
  std::function<void()> onCloseBox;
  // A file was dropped on the window.
  std::function<void(const QString& path)> onFile;
  // The buttons at the left of the status line.
  std::function<void()> onUndo;
  std::function<void()> onRedo;

  void AddPage(PageView& view);
  void ShowPage(PageView& view, const QString& title);
  void RemovePage(PageView& view);

  void SyncStatus();
  const QString& StatusLeft() const { return left_->Text(); }
  const QString& StatusRight() const { return right_->Text(); }

  void KeepPlace() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void RestorePlace();
  void ShowTitle();
  QWidget* HolderOf(const PageView& view) const;

  Session& session_;
  QString settingsPath_;
  QString pageTitle_;
  QStackedWidget* pages_;
  HistoryButton* undo_;
  HistoryButton* redo_;
  StatusText* left_;
  StatusText* right_;
};

}  // namespace quilm
