// Optimiser and Monte Carlo in the real window: seen, stopped, and a window that stays alive meanwhile.
#include <QElapsedTimer>
#include <QScreen>
#include <QTimer>
#include <csignal>

#include "app/EndSignal.h"
#include "app/RepeatedLook.h"
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "desk/Leaving.h"
#include "shell/LongRun.h"

namespace quilm {
namespace {

using testing::StartsWith;

class RunWalk : public Walk {
 protected:
  RunWalk() {
    DesignLowpass();
    ClickOn("cmdPlot");
    DesignRecord& record = desktop_.session.record;
    record.Fstart = 1e5F;
    record.Fstop = 1e7F;
    record.NrIntervals = responseBound;
    for (int s = 1; s <= record.Stages; ++s) {
      record.stage[s].Lval.tolerance = record.stage[s].Cval.tolerance = 10;
    }
    // No lowpass of third order is as steep: the run goes on until it is stopped, with an error within its scale.
    AddArea(record, 1, 5, 1e5F, 1.8e6F, -1, -300);
    AddArea(record, 2, 6, 1.9e6F, 1e7F, 0, -18.5F);
    nominal_ = record;
    ClickOn("cmd2");
  }

  static void AddArea(DesignRecord& record, int j, f32 shape, f32 start, f32 stop, f32 top, f32 bottom) {
    record.LimitCount[1] = static_cast<i16>(j);
    record.LimitShape[j][1] = shape;
    record.LimitStart[j][1] = start;
    record.LimitStop[j][1] = stop;
    record.LimitTop[j][1] = top;
    record.LimitBottom[j][1] = bottom;
  }

  bool Runs() const { return desktop_.session.run != nullptr; }
  int Trials() const { return Runs() ? desktop_.session.run->Steps() : 0; }

  // Starts a run by the mouse, does `act` a little later, and returns when the run has ended.
  void StartAnd(const char* button, std::function<void()> act) {
    constexpr int milliseconds = 100;
    QTimer::singleShot(milliseconds, qApp, std::move(act));
    ClickOn(button);
  }

  // Without the turn of the event loop that a click of a user's act waits for.
  void ClickAtOnce(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }

  // As the screen shows it, not as a grab would paint it.
  bool ScreenShows(const std::function<bool(QColor)>& color) {
    const QPoint corner = Plot().mapToGlobal(QPoint(0, 0));
    const QImage shot = desktop_.window.screen()
                            ->grabWindow(0, corner.x(), corner.y(), Plot().width(), Plot().height())
                            .toImage()
                            .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < shot.height(); ++y) {
      for (int x = 0; x < shot.width(); ++x) {
        if (color(shot.pixelColor(x, y))) return true;
      }
    }
    return false;
  }

  Network nominal_;
};

// The bound is that of a stop, 100 ms, with room for a machine that does other things too.
TEST_F(RunWalk, TheMouseStopsBothAtOnce) {
  for (const char* button : {"cmdOptimize", "cmdMonteCarlo"}) {
    QElapsedTimer clock;
    int trials = 0;
    StartAnd(button, [&] {
      trials = Trials();
      clock.start();
      ClickAtOnce("cmdEnd");
    });
    RecordProperty(button, std::to_string(clock.elapsed()));
    EXPECT_LT(clock.elapsed(), 500) << button;
    EXPECT_GT(trials, 0) << button;
    EXPECT_LT(trials, 2000) << button;
    EXPECT_FALSE(Runs());
    EXPECT_TRUE(Find("cmdOptimize")->isVisible());
  }
}

TEST_F(RunWalk, EscapeAndTheSpaceBarStopThem) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space}) {
    StartAnd("cmdMonteCarlo", [&] {
      EXPECT_EQ(QApplication::focusWidget(), Find("cmdEnd"));
      QTest::keyClick(QApplication::focusWidget(), key);
    });
    EXPECT_FALSE(Runs());
    EXPECT_EQ(QApplication::focusWidget(), Find("cmdMonteCarlo"));
  }
}

TEST_F(RunWalk, ThePlotKeepsItsSizeWhileTheToolsAreAway) {
  const QSize before = Plot().size();
  StartAnd("cmdOptimize", [&] {
    EXPECT_FALSE(Find("cmdOptimize")->isVisible());
    EXPECT_FALSE(Find("cmd1")->isVisible());
    EXPECT_EQ(Plot().size(), before);
    ClickAtOnce("cmdEnd");
  });
  EXPECT_EQ(Plot().size(), before);
}

// The bar of the error is green, the trials of the return loss are red.
TEST_F(RunWalk, TheScreenShowsTrialsAndProgress) {
  bool bar = false;
  bool trials = false;
  StartAnd("cmdOptimize", [&] {
    QTimer::singleShot(200, qApp, [&] {
      bar = ScreenShows([](QColor c) { return c == QColor(0x11, 0xDD, 0x11); });
      trials = ScreenShows([](QColor c) { return c.red() > 100 && c.green() < 50 && c.blue() < 50; });
      EXPECT_THAT(desktop_.window.StatusRight().toStdString(), StartsWith("Optimizer: "));
      ClickAtOnce("cmdEnd");
    });
  });
  EXPECT_TRUE(bar);
  EXPECT_TRUE(trials);
}

TEST_F(RunWalk, TheWindowIsResizedMovedAndPaintedMeanwhile) {
  constexpr QSize smaller(1100, 740);
  constexpr QPoint place(30, 40);
  bool trials = false;
  int before = 0;
  int after = 0;
  const auto seen = [&] {
    after = Trials();
    EXPECT_EQ(desktop_.window.size(), smaller);
    EXPECT_EQ(desktop_.window.pos(), place);
    trials = ScreenShows([](QColor c) { return c.red() > 100 && c.green() < 50 && c.blue() < 50; });
    return trials && after > before;
  };
  RepeatedLook look(seen, [&] { ClickAtOnce("cmdEnd"); });
  StartAnd("cmdMonteCarlo", [&] {
    before = Trials();
    desktop_.window.resize(smaller);
    desktop_.window.move(place);
    look.start();
  });
  EXPECT_GT(after, before);
  EXPECT_TRUE(trials);
}

TEST_F(RunWalk, ExtremesEndMonteCarloAndTheEnvelopeStands) {
  StartAnd("cmdMonteCarlo", [&] { ClickAtOnce("cmdExtremes"); });
  EXPECT_FALSE(Find("cmdExtremes")->isVisible());
  EXPECT_FALSE(Find("cmdEnd")->isVisible());
  QApplication::processEvents();
  const QImage image = Plot().grab().toImage();
  bool nominal = false;
  bool envelope = false;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor c = image.pixelColor(x, y);
      nominal |= c.green() > 130 && c.red() < 60 && c.blue() < 60;
      envelope |= c == QColor(0x11, 0x11, 0xFF);
    }
  }
  EXPECT_TRUE(nominal);
  EXPECT_TRUE(envelope);
}

TEST_F(RunWalk, TheCloseBoxEndsTheProgramFromInsideWithTheNominalValues) {
  StartAnd("cmdMonteCarlo", [&] { desktop_.window.close(); });
  EXPECT_TRUE(desktop_.session.ended);
  EXPECT_FALSE(Runs());
  EXPECT_EQ(desktop_.session.handlerDepth, 0);
  EXPECT_EQ(static_cast<const Network&>(Record()), nominal_);
  QFile kept(folder_.filePath(QStringLiteral("LASTSESSION.QLM")));
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
  // C1 = 1 / (2 Pi 1e6 50), and its step.
  EXPECT_TRUE(kept.readAll().contains(" 4  0  10  3.183099E-09  10 \r\n"));
}

TEST_F(RunWalk, TheSystemsSignalEndsTheProgramFromInside) {
  const EndSignal signal([this] { desktop_.platform.Stage().EndBySystem(LeaveBySystem); });
  StartAnd("cmdOptimize", [] { std::raise(SIGTERM); });
  EXPECT_TRUE(desktop_.session.ended);
  EXPECT_FALSE(Runs());
  EXPECT_TRUE(QFile::exists(folder_.filePath(QStringLiteral("LASTSESSION.QLM"))));
}

}  // namespace
}  // namespace quilm
