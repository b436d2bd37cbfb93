// Tuning in the real window, by mouse, wheel and keys.
#include "app/SideStack.h"
#include "app/SpinBox.h"
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "shell/History.h"

namespace quilm {
namespace {

class TuneWalk : public Walk {
 protected:
  TuneWalk() {
    DesignLowpass();
    ClickOn("cmdPlot");
    QApplication::processEvents();
  }

  SidePanel* Panel() { return desktop_.window.findChild<SidePanel*>(); }

  QImage Seen() { return PlotBeside().grab().toImage(); }

  void ClickArrow(const char* name, int direction) {
    auto& spin = dynamic_cast<SpinBox&>(*Find(name));
    QTest::mouseClick(&spin, Qt::LeftButton, {}, spin.ArrowRect(direction).center());
  }

  f32 C1() { return Record().stage[1].Cval.value; }
};

TEST_F(TuneWalk, TheDialogStandsBesideThePlotAtEverySize) {
  WithTool("cmdTunePart", [&] {
    for (const QSize size : {QSize(1024, 700), QSize(1280, 860), QSize(1800, 1000)}) {
      desktop_.window.resize(size);
      QApplication::processEvents();
      EXPECT_EQ(desktop_.window.size(), size);
      const QRect panel(Panel()->mapToGlobal(QPoint(0, 0)), Panel()->size());
      const QRect plot(PlotBeside().mapToGlobal(QPoint(0, 0)), PlotBeside().size());
      EXPECT_FALSE(panel.intersects(plot));
      EXPECT_TRUE(QRect(desktop_.window.mapToGlobal(QPoint(0, 0)), desktop_.window.size()).contains(panel));
      EXPECT_GT(plot.width(), 2 * panel.width());
    }
  });
}

TEST_F(TuneWalk, ArrowsKeysAndWheelStepAndThePlotFollows) {
  WithTool("cmdTunePart", [&] {
    Type("txtPercentageValue", "10");
    f32 before = C1();
    QImage seen = Seen();
    const auto moved = [&](const char* what, bool up) {
      EXPECT_EQ(C1() > before, up) << what;
      EXPECT_NE(Seen(), seen) << what;
      before = C1();
      seen = Seen();
    };
    ClickArrow("UpDown1", +1);
    moved("upper arrow", true);
    ClickArrow("UpDown1", -1);
    ClickArrow("UpDown1", -1);
    moved("lower arrow", false);
    Find("UpDown1")->setFocus();
    QTest::keyClick(Find("UpDown1"), Qt::Key_Up);
    QTest::keyClick(Find("UpDown1"), Qt::Key_Up);
    moved("arrow key", true);
    Turn(*Find("UpDown1"), -2);
    moved("wheel on the control", false);
    Turn(PlotBeside(), +3);
    moved("wheel over the plot", true);
    Turn(*Find("picPart"), -3);
    moved("wheel over the dialog", false);
    Find("cmdExit")->setFocus();
    Turn(*Find("UpDown1"), +2);
    moved("wheel on the control without the focus", true);
    QTest::keyClick(Panel(), Qt::Key_Down);
    QTest::keyClick(Panel(), Qt::Key_Down);
    moved("arrow key that nothing else takes", false);
  });
}

TEST_F(TuneWalk, ByKeyboardAlone) {
  Find("cmdTunePart")->setFocus();
  QTimer::singleShot(0, &desktop_.window, [this] {
    QApplication::processEvents();
    // A part without a step asks for one.
    ASSERT_EQ(QApplication::focusWidget(), Find("txtPercentageValue"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("5"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), Find("UpDown1"));
    const f32 before = C1();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(C1(), before * 1.05F);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  });
  QTest::keyClick(Find("cmdTunePart"), Qt::Key_Return);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(TuneWalk, APartWithAStepHasTheFocusOnItsControl) {
  WithTool("cmdTunePart", [&] {
    Type("txtPercentageValue", "5");
    ClickOn("cmdForward");
    EXPECT_EQ(QApplication::focusWidget(), Find("txtPercentageValue"));
    ClickOn("cmdReverse");
    EXPECT_EQ(QApplication::focusWidget(), Find("UpDown1"));
  });
  WithTool("cmdTunePart", [&] { EXPECT_EQ(QApplication::focusWidget(), Find("UpDown1")); });
}

TEST_F(TuneWalk, UndoByItsKeyTakesThePartBack) {
  const f32 before = C1();
  WithTool("cmdTunePart", [&] {
    Type("txtPercentageValue", "5");
    for (int i = 0; i < 5; ++i) ClickArrow("UpDown1", +1);
    EXPECT_GT(C1(), before * 1.2F);
    QTest::keyClick(Find("UpDown1"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(C1(), before);
  });
}

// By 100 %, up and down return exactly.
TEST_F(TuneWalk, ClearPlotTakesTheCurvesAway) {
  WithTool("cmdTunePart", [&] {
    const QImage before = Seen();
    Type("txtPercentageValue", "100");
    ClickArrow("UpDown1", +1);
    ClickArrow("UpDown1", -1);
    EXPECT_NE(Seen(), before);
    ClickOn("cmdClear");
    EXPECT_EQ(Seen(), before);
  });
}

TEST_F(TuneWalk, WidthStepsToo) {
  WithTool("cmdTuneWidth", [&] {
    EXPECT_EQ(QApplication::focusWidget(), Find("UpDown1"));
    QTest::keyClick(Find("UpDown1"), Qt::Key_Up);
    EXPECT_EQ(Record().Width, 1.01e6F);
    Turn(PlotBeside(), -1);
    EXPECT_NEAR(Record().Width, 1e6, 1);
  });
}

// The sweep included.
TEST_F(TuneWalk, AStepIsSeenWithoutLag) {
  WithTool("cmdTunePart", [&] {
    Type("txtPercentageValue", "1");
    Find("UpDown1")->setFocus();
    ExpectStepsWithoutLag("UpDown1");
  });
}

}  // namespace
}  // namespace quilm
