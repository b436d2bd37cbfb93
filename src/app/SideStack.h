// The place beside a page's picture, and the tools that stand there.
#pragma once

#include <QStackedWidget>
#include <functional>

#include "app/PageView.h"

namespace quilm {

// A tool's page under its title, with a close box. It takes what keys its page and the page beside it leave.
class SidePanel : public QWidget {
  Q_OBJECT

 public:
  SidePanel(PageView& view, const QString& title);
  std::function<void()> onCloseBox;

  // Return and Escape as in a dialog. False when the key means nothing here.
  bool TakeKey(const QKeyEvent& event);

  // The wheel over the page beside. False when the tool has nothing to turn.
  bool TakeWheel(const QWheelEvent& event) { return view_.TakeWheel(event); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PageView& view_;
};

// Shows its content, or the tool that was the last to come. As wide as what it shows, so the picture gives way and the
// window stays as it is.
class SideStack : public QStackedWidget {
  Q_OBJECT

 public:
  // `content` is what stands there while no tool does.
  SideStack(QWidget& content, QWidget* parent);

  void Take(SidePanel& panel);
  void Release(SidePanel& panel);

  // The tool that is seen; nullptr for none.
  SidePanel* Panel() const { return qobject_cast<SidePanel*>(currentWidget()); }

  QSize sizeHint() const override { return currentWidget()->sizeHint(); }
  QSize minimumSizeHint() const override { return currentWidget()->minimumSizeHint(); }
};

}  // namespace quilm
