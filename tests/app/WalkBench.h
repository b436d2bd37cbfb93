// The whole program in its real window, driven by mouse and keyboard alone.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/Desktop.h"
#include "app/PictureAreas.h"
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
    GiveKeyboardToWindow();
  }

  // There is no window manager that would.
  void GiveKeyboardToWindow() { QApplication::setActiveWindow(&desktop_.window); }

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

  // The pointer over the plot, without a button.
  void Hover(f32 x, f32 y) {
    QMouseEvent move(QEvent::MouseMove, PlaceOf(x, y), Plot().mapToGlobal(PlaceOf(x, y)), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Plot(), &move);
  }

  void ClickPlot(f32 x, f32 y) {
    Hover(x, y);
    QTest::mouseClick(&Plot(), Qt::LeftButton, {}, PlaceOf(x, y));
    QApplication::processEvents();
  }

  // The plot while a dialog stands beside it and is the page on top.
  PictureView& PlotBeside() {
    Page* withPlot = nullptr;
    for (Page* page : desktop_.session.pages.OpenPages()) withPlot = page->Find("picPlot") != nullptr ? page : withPlot;
    if (withPlot == nullptr) throw Fault("no page with a plot");
    return dynamic_cast<PictureView&>(*desktop_.platform.Stage().ViewOf(*withPlot)->Find(QStringLiteral("picPlot")));
  }

  // Opens a dialog beside the plot by its button, does `act` there, ends it if that is still to be done, and returns
  // when it has closed.
  void WithTool(const char* button, const std::function<void()>& act) {
    constexpr int untilLaidOut = 50;  // milliseconds
    const PageId home = Top().Id();
    QTimer::singleShot(0, &desktop_.window, [this, &act] {
      QTest::qWait(untilLaidOut);
      act();
      if (desktop_.session.pages.Beside() != nullptr) ClickOn("cmdExit");
    });
    ClickOn(button);
    QApplication::processEvents();
    EXPECT_EQ(Top().Id(), home);
  }

  // Up and down by key on a spin control of a tool, from the key to the painted plot. The limit leaves room for a busy
  // machine and for sanitizers.
  void ExpectStepsWithoutLag(const char* spin) {
    constexpr int steps = 100;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < steps; ++i) {
      QTest::keyClick(Find(spin), i % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
      PlotBeside().repaint();
    }
    const f64 milliseconds = static_cast<f64>(clock.nsecsElapsed()) / 1e6 / steps;
    RecordProperty("millisecondsAStep", std::to_string(milliseconds));
    EXPECT_LT(milliseconds, 60);
  }

  // As WithTool, with a page of a window of its own.
  void WithModal(const char* button, const std::function<void()>& act) {
    constexpr int untilItStands = 100;  // milliseconds
    QTimer::singleShot(untilItStands, &desktop_.window, act);
    ClickOn(button);
    GiveKeyboardToWindow();
    QApplication::processEvents();
  }

  // One notch or more of the wheel, away from the user when positive.
  void Turn(QWidget& over, int notches) {
    const QPoint middle = over.rect().center();
    QWheelEvent event(middle, over.mapToGlobal(middle), {}, QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // As if it came from the mouse: the toolkit hands on to parents nothing else.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&over, &event);
  }

  void PressKey(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? &desktop_.window : focused, static_cast<Qt::Key>(key), held);
    QApplication::processEvents();
  }

  void Keys(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text)); }

  // The named areas of a picture.
  PictureView& Sheet(const char* picture) { return dynamic_cast<PictureView&>(*Find(picture)); }
  PictureAreas& Areas(const char* picture) { return *Sheet(picture).findChild<PictureAreas*>(); }

  const HitArea& AreaOf(const char* picture, const std::string& name) {
    for (const HitArea& area : Areas(picture).Areas()) {
      if (area.name == name) return area;
    }
    throw Fault("no area " + name);
  }

  void ClickArea(const char* picture, const std::string& name) {
    const QPoint place = Areas(picture).PlaceOf(AreaOf(picture, name)).center();
    QTest::mouseClick(&Sheet(picture), Qt::LeftButton, {}, place);
    QApplication::processEvents();
  }

  // The area that the keyboard is at.
  std::string Present(const char* picture) {
    const auto at = Areas(picture).Present();
    return at ? Areas(picture).Areas()[*at].name : "";
  }

  // With keys alone from the present band of a palette to another one.
  void WalkToBand(const char* picture, const std::string& name) {
    PressKey(Qt::Key_Home);
    for (int steps = 0; steps < 40 && Present(picture) != name; ++steps) PressKey(Qt::Key_Tab);
    ASSERT_EQ(Present(picture), name);
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
