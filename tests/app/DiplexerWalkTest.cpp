// The plot of the diplexer in the real window, by mouse, wheel and keys.
#include "app/SideStack.h"
#include "app/SpinBox.h"
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class DiplexerWalk : public Walk {
 protected:
  DiplexerWalk() {
    DesignLowpass();
    desktop_.platform.Stage().Perform([](Session& session) {
      session.record.Fstart = 1e5F;
      session.record.Fstop = 1e7F;
      session.record.SweepMode = 2;
      session.record.NrIntervals = 2049;
      session.pages.ShowPage(PageId::PlotDiplexer);
    });
    QApplication::processEvents();
  }

  Diplexer& Dip() { return desktop_.session.diplexer; }

  void ClickArrow(const char* name, int direction) {
    auto& spin = dynamic_cast<SpinBox&>(*Find(name));
    QTest::mouseClick(&spin, Qt::LeftButton, {}, spin.ArrowRect(direction).center());
    QApplication::processEvents();
  }

  QImage Seen() {
    Page& page = *desktop_.session.pages.Find(PageId::PlotDiplexer);
    return desktop_.platform.Stage().ViewOf(page)->Find(QStringLiteral("picPlot"))->grab().toImage();
  }
};

TEST_F(DiplexerWalk, ArrowsKeysWheelAndDigitsStepTheEntries) {
  EXPECT_EQ(QApplication::focusWidget(), Find("UpDown1"));
  EXPECT_EQ(Dip().DipOrder, 3);
  QImage seen = Seen();
  const auto moved = [&](const char* what) {
    EXPECT_NE(Seen(), seen) << what;
    seen = Seen();
  };
  PressKey(Qt::Key_Up);
  EXPECT_EQ(Dip().DipOrder, 4);
  moved("arrow key");
  Turn(*Find("UpDown1"), +2);
  EXPECT_EQ(Dip().DipOrder, 6);
  moved("wheel");
  Keys("2");
  EXPECT_EQ(Dip().DipOrder, 2);
  moved("digit");
  ClickArrow("UpDown2", +1);
  EXPECT_EQ(Dip().DipCrossover, 1.01e6F);
  moved("arrow of the crossover");
  ClickArrow("UpDown3", +1);
  moved("arrow of the ripple");
}

// What stands in the controls changes its width; neither they nor the plot do.
TEST_F(DiplexerWalk, ThePlotKeepsItsPlaceWhileEntriesAreStepped) {
  const QRect plot = Plot().geometry();
  const QRect spin = Find("UpDown2")->geometry();
  for (int i = 0; i < 30; ++i) {
    ClickArrow("UpDown2", -1);
    EXPECT_EQ(Plot().geometry(), plot);
    EXPECT_EQ(Find("UpDown2")->geometry(), spin);
  }
}

// The longest texts: 998.017kHz, 3162.28pF.
TEST_F(DiplexerWalk, EveryValueHasRoomInItsControl) {
  for (int i = 0; i < 5; ++i) {
    ClickArrow("UpDown2", -1);
    QWidget* value = Find("lblCrossover");
    EXPECT_GE(value->width(), value->sizeHint().width()) << Dip().DipCrossover;
  }
  WithTool("cmdTunePart", [&] {
    for (int part = 1; part <= 5; ++part) {
      QWidget* value = Find("lblValue1");
      EXPECT_GE(value->width(), value->sizeHint().width()) << part;
      ClickOn("cmdNext");
    }
  });
}

TEST_F(DiplexerWalk, PartsAreTunedBesideThePlot) {
  WithTool("cmdTunePart", [&] {
    EXPECT_EQ(QApplication::focusWidget(), Find("UpDown1"));
    f32 before = Dip().DipLowElem[1];
    QImage seen = Seen();
    const auto moved = [&](const char* what, bool up) {
      EXPECT_EQ(Dip().DipLowElem[1] > before, up) << what;
      EXPECT_NE(Seen(), seen) << what;
      before = Dip().DipLowElem[1];
      seen = Seen();
    };
    PressKey(Qt::Key_Up);
    moved("arrow key", true);
    ClickArrow("UpDown1", -1);
    moved("lower arrow", false);
    Turn(*Find("UpDown1"), +3);
    moved("wheel on the control", true);
    Turn(PlotBeside(), -3);
    moved("wheel over the plot", false);
    ClickOn("cmdNext");
    EXPECT_EQ(QApplication::focusWidget(), Find("UpDown1"));
    const f32 capacitor = Dip().DipLowElem[2];
    PressKey(Qt::Key_Up);
    EXPECT_GT(Dip().DipLowElem[2], capacitor);
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(desktop_.session.pages.Beside(), nullptr);
  });
}

TEST_F(DiplexerWalk, MarkersByKeyboardAlone) {
  const QImage without = Seen();
  Find("cmdMarkers")->setFocus();
  QTimer::singleShot(0, &desktop_.window, [this] {
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), Find("Text0"));
    Keys("1M");
    PressKey(Qt::Key_Tab);
    Keys("500k");
    // The first Return shows what was understood, the second one goes on.
    PressKey(Qt::Key_Return);
    if (desktop_.session.pages.Beside() != nullptr) PressKey(Qt::Key_Return);
  });
  QTest::keyClick(Find("cmdMarkers"), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(Top().Id(), PageId::PlotDiplexer);
  EXPECT_EQ(Dip().DipMarkersOn, 1);
  EXPECT_EQ(Dip().DipMarker[0], 1e6F);
  EXPECT_EQ(Dip().DipMarker[1], 500e3F);
  EXPECT_NE(Seen(), without);
}

TEST_F(DiplexerWalk, TheMouseReadsThePlot) {
  const QImage before = Seen();
  Hover(6500, 3000);
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(6500, 3000));
  QApplication::processEvents();
  EXPECT_NE(Seen(), before);
  QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, PlaceOf(6500, 3000));
  QApplication::processEvents();
  EXPECT_EQ(Seen(), before);
}

TEST_F(DiplexerWalk, ThePageFitsTheSmallestWindow) {
  for (const QSize size : {QSize(1024, 700), QSize(1280, 860), QSize(1920, 1080)}) {
    desktop_.window.resize(size);
    QApplication::processEvents();
    EXPECT_EQ(desktop_.window.size(), size);
    EXPECT_GT(Plot().width(), size.width() / 2);
    const QRect window(desktop_.window.mapToGlobal(QPoint(0, 0)), desktop_.window.size());
    for (const char* name : {"UpDown1", "UpDown3", "cmdTunePart", "cmdReturn"}) {
      QWidget* widget = Find(name);
      EXPECT_TRUE(window.contains(QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()))) << name;
    }
  }
}

// Both sweeps included.
TEST_F(DiplexerWalk, AStepIsSeenWithoutLag) {
  WithTool("cmdTunePart", [&] { ExpectStepsWithoutLag("UpDown1"); });
}

}  // namespace
}  // namespace quilm
