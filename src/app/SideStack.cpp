#include "app/SideStack.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/GroupBox.h"
#include "app/PageView.h"

namespace quilm {

SidePanel::SidePanel(PageView& view, const QString& title) : view_(view) {
  auto* close = new QToolButton;
  close->setObjectName(QStringLiteral("closeBox"));
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setAccessibleName(tr("Close"));
  close->setToolTip(tr("Close"));
  connect(close, &QToolButton::clicked, this, [this] { onCloseBox(); });
  auto* top = new QHBoxLayout;
  top->addWidget(new GroupHeading(title, false, this));
  top->addStretch(1);
  top->addWidget(close);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->setSpacing(0);
  whole->addLayout(top);
  whole->addWidget(&view, 1);
}

bool SidePanel::TakeKey(const QKeyEvent& event) {
  if (view_.TakeKey(event)) return true;
  if (event.key() != Qt::Key_Escape) return false;
  onCloseBox();
  return true;
}

// Every key ends here: the page beside is not the one that the user is at.
void SidePanel::keyPressEvent(QKeyEvent* event) {
  TakeKey(*event);
  event->accept();
}

SideStack::SideStack(QWidget& content, QWidget* parent) : QStackedWidget(parent) { addWidget(&content); }

void SideStack::Take(SidePanel& panel) {
  addWidget(&panel);
  setCurrentWidget(&panel);
  updateGeometry();
}

void SideStack::Release(SidePanel& panel) {
  removeWidget(&panel);
  setCurrentIndex(count() - 1);
  updateGeometry();
}

}  // namespace quilm
