// A long run in the real window: its stop buttons, its locks, and a window that stays alive.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <csignal>
#include <thread>

#include "app/Desktop.h"
#include "app/EndSignal.h"
#include "app/PictureView.h"
#include "app/RepeatedLook.h"
#include "support/DemoRunPage.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class Run : public testing::Test {
 protected:
  Run() : desktop(Pages(), folder.path()) {
    log.most = 100000;
    log.trial = [this] {
      // The picture does not grow with the run, which is not what is looked at here.
      constexpr std::size_t enough = 50;
      PictureBox& box = Page().picPlot;
      if (box.picture.Operations().size() > enough) box.picture.Clear();
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    desktop.Start([](Session& session) { session.pages.ShowPage(PageId::Plotted); });
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&desktop.window));
    QApplication::setActiveWindow(&desktop.window);
  }

  DemoRunPage& Page() { return static_cast<DemoRunPage&>(*desktop.session.pages.Find(PageId::Plotted)); }
  QWidget* Widget(const char* name) { return desktop.TopView()->Find(QString::fromLatin1(name)); }
  void ClickOn(const char* name) { QTest::mouseClick(Widget(name), Qt::LeftButton); }

  // Starts a run by the mouse, does `act` a little later, and returns when the run has ended.
  void StartAnd(std::function<void()> act) {
    constexpr int milliseconds = 60;
    QTimer::singleShot(milliseconds, qApp, std::move(act));
    ClickOn("cmdStart");
  }

 private:
  PageDirectory Pages() {
    return {{PageId::Plotted,
             [this](Session& session) { return std::make_unique<DemoRunPage>(session, PageId::Plotted, log); }}};
  }

 protected:
  RunLog log;
  QTemporaryDir folder;
  Desktop desktop;
};

// No trial comes after the press, and the press is not kept waiting. The limit leaves room for a busy machine.
TEST_F(Run, TheMouseStopsItAtOnce) {
  QElapsedTimer clock;
  i32 trials = 0;
  StartAnd([&] {
    trials = log.trials;
    clock.start();
    ClickOn("cmdEnd");
  });
  RecordProperty("milliseconds", std::to_string(clock.elapsed()));
  EXPECT_LT(clock.elapsed(), 500);
  EXPECT_GT(trials, 0);
  EXPECT_THAT(log.heard, ElementsAre("end", "ran " + std::to_string(trials)));
}

TEST_F(Run, EscapeStopsItAndTheFocusReturns) {
  StartAnd([&] {
    EXPECT_EQ(QApplication::focusWidget(), Widget("cmdEnd"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  });
  EXPECT_THAT(log.heard, Contains("end"));
  EXPECT_EQ(QApplication::focusWidget(), Widget("cmdStart"));
  EXPECT_FALSE(Widget("cmdEnd")->isVisible());
}

TEST_F(Run, TheSpaceBarPressesTheStopButton) {
  StartAnd([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); });
  EXPECT_THAT(log.heard, Contains("end"));
}

TEST_F(Run, NothingElseCanBePressed) {
  StartAnd([&] {
    for (const char* name : {"cmdStart", "cmdOther", "txtValue", "picPlot"}) {
      EXPECT_FALSE(Widget(name)->isEnabled()) << name;
      ClickOn(name);
    }
    ClickOn("cmdExtremes");
  });
  EXPECT_THAT(log.heard, ElementsAre("extremes", "ran " + std::to_string(log.trials)));
  EXPECT_TRUE(Widget("cmdOther")->isEnabled());
  ClickOn("cmdOther");
  EXPECT_EQ(log.heard.back(), "other");
}

TEST_F(Run, ItsProgressStandsInTheStatusLine) {
  StartAnd([&] {
    EXPECT_TRUE(desktop.window.StatusRight().startsWith("Demo run: ")) << desktop.window.StatusRight().toStdString();
    ClickOn("cmdEnd");
  });
}

TEST_F(Run, TheCloseBoxEndsTheProgramFromInside) {
  StartAnd([&] { desktop.window.close(); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(desktop.session.run, nullptr);
  EXPECT_EQ(desktop.session.handlerDepth, 0);
  EXPECT_THAT(log.heard, ElementsAre("close box"));
}

TEST_F(Run, TheSystemsSignalEndsTheProgramFromInside) {
  const EndSignal signal([this] { desktop.platform.Stage().PressCloseBox(); });
  StartAnd([] { std::raise(SIGTERM); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_THAT(log.heard, ElementsAre("close box"));
}

// As the screen shows it, not as a grab would paint it.
TEST_F(Run, TheWindowIsResizedAndPaintedMeanwhile) {
  constexpr QSize smaller(900, 640);
  bool painted = false;
  const auto seen = [&] {
    EXPECT_EQ(desktop.window.size(), smaller);
    const QWidget* view = Widget("picPlot");
    const QPoint corner = view->mapToGlobal(QPoint(0, 0));
    const QImage shot = desktop.window.screen()
                            ->grabWindow(0, corner.x(), corner.y(), view->width(), view->height())
                            .toImage()
                            .convertToFormat(QImage::Format_RGB32);
    for (int x = 0; x < shot.width() && !painted; ++x) {
      for (int y = 0; y < shot.height() && !painted; ++y) painted = shot.pixelColor(x, y) == QColor(Qt::blue);
    }
    return painted;
  };
  RepeatedLook look(seen, [&] { ClickOn("cmdEnd"); });
  StartAnd([&] {
    desktop.window.resize(smaller);
    look.start();
  });
  EXPECT_TRUE(painted);
  EXPECT_THAT(log.heard, Contains("end"));
}

TEST_F(Run, TheEventLoopTurnsMeanwhile) {
  int ticks = 0;
  QTimer clock;
  QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
    if (++ticks == 10) ClickOn("cmdEnd");
  });
  clock.start(20);
  ClickOn("cmdStart");
  EXPECT_GE(ticks, 10);
  EXPECT_LT(log.trials, log.most);
}

TEST_F(Run, ASecondOneStartsFresh) {
  StartAnd([&] { ClickOn("cmdEnd"); });
  log.most = 5;
  ClickOn("cmdStart");
  EXPECT_EQ(log.trials, 5);
  EXPECT_EQ(log.heard.back(), "ran 5");
}

}  // namespace
}  // namespace quilm
