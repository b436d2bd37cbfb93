// The whole program in its real window, driven by mouse and keyboard alone.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "app/Desktop.h"
#include "app/PictureView.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "shell/Page.h"

namespace quilm {

class Walk : public testing::Test {
 protected:
  Walk() : desktop_(AllPages(), folder_.path()) {
    desktop_.Start(StartProgram);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&desktop_.window));
    // There is no window manager that would give it the keyboard.
    QApplication::setActiveWindow(&desktop_.window);
  }

  QWidget* Find(const char* name) {
    QWidget* widget = desktop_.TopView()->Find(QString::fromLatin1(name));
    if (widget == nullptr) throw Fault(std::string("no widget ") + name);
    return widget;
  }

  void ClickOn(const char* name) {
    QWidget* widget = Find(name);
    ASSERT_TRUE(widget->isVisible() && widget->isEnabled()) << name;
    // An option is chosen by its mark or text, at the left.
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(10, widget->height() / 2));
    QApplication::processEvents();
  }

  // Replaces the text of a box, as a user would.
  void Type(const char* name, const char* text) {
    QWidget* box = Find(name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QString::fromLatin1(text));
  }

  // A 3rd-order Butterworth lowpass of 1 MHz.
  void DesignLowpass() {
    ClickOn("cmdDesignNew");
    ClickOn("optButterworth");
    ClickOn("optCapInLowpass");
    Type("txtBandwidth", "1M");
    Type("txtInputTerm", "50");
  }

  Page& Top() { return *desktop_.session.pages.Top(); }
  const DesignRecord& Record() { return desktop_.session.record; }

  PictureView& Plot() { return dynamic_cast<PictureView&>(*Find("picPlot")); }
  PictureBox& PlotBox() { return dynamic_cast<PictureBox&>(*Top().Find("picPlot")); }

  // The place of a point in user scale within the plot's widget.
  QPoint PlaceOf(f32 x, f32 y) {
    const QRectF paper = Plot().Paper();
    const Scale& scale = PlotBox().picture.CurrentScale();
    return QPointF(paper.left() + paper.width() * static_cast<f64>((x - scale.left) / scale.width),
                   paper.top() + paper.height() * static_cast<f64>((y - scale.top) / scale.height))
        .toPoint();
  }

  // The colour of the plot at a point in user scale, as the user sees it.
  QColor PixelAt(f32 x, f32 y) {
    const QImage image = Plot().grab().toImage();
    return image.pixelColor((QPointF(PlaceOf(x, y)) * image.devicePixelRatio()).toPoint());
  }

  QTemporaryDir folder_;
  Desktop desktop_;
};

}  // namespace quilm
