// Limit areas, markers and overlays in the real window, by the mouse and the keyboard.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class LimitsWalk : public Walk {
 protected:
  LimitsWalk() {
    DesignLowpass();
    ClickOn("cmdPlot");
    QApplication::processEvents();
  }
};

// Pale red as the user sees it: 0xE0E0FF is a blue-green-red word.
const QColor paleRed(0xFF, 0xE0, 0xE0);

TEST_F(LimitsWalk, AnAreaIsEnteredByMouseAndSeen) {
  WithTool("cmdLimits", [this] { ClickOn("cmdEnter"); });
  ASSERT_TRUE(Find("cmdLimit1")->isVisible());
  ClickOn("cmdLimit5");
  ClickPlot(4300, 3000);
  EXPECT_EQ(Record().LimitCount[1], 0);
  ClickPlot(6300, 5000);
  ASSERT_EQ(Record().LimitCount[1], 1);
  EXPECT_EQ(Record().LimitShape[1][1], 5);
  EXPECT_NEAR(Record().LimitTop[1][1], -40, 1);
  EXPECT_EQ(PixelAt(5350, 5700), paleRed);
  EXPECT_EQ(PixelAt(5350, 4700), QColor(Qt::white));
}

TEST_F(LimitsWalk, ACellOfThePaletteIsClicked) {
  WithTool("cmdLimits", [this] { ClickOn("cmdEnter"); });
  ClickPlot(635 * 2 + 3495, 700);
  EXPECT_EQ(desktop_.session.plot.limitEntry.LimitShapeChoice, 2);
  ClickPlot(8500, 2500);
  EXPECT_EQ(Record().LimitShape[1][1], 2);
  QTest::keyClick(&Plot(), Qt::Key_Z, Qt::ControlModifier);
  QApplication::processEvents();
  EXPECT_EQ(Record().LimitCount[1], 0);
  EXPECT_TRUE(Find("cmdLimit1")->isVisible());
}

TEST_F(LimitsWalk, ThePointerTellsItsPlaceWithoutAButton) {
  WithTool("cmdLimits", [this] { ClickOn("cmdEnter"); });
  Hover(5000, 3000);
  ASSERT_FALSE(PlotBox().mark.Empty());
  const Picture first = PlotBox().mark;
  Hover(6000, 3000);
  EXPECT_FALSE(PlotBox().mark == first);
}

TEST_F(LimitsWalk, MarkersShowWhileTheirPageStandsBeside) {
  WithTool("cmdMarkers", [this] {
    Type("txtMarkerFrequency1", "1M");
    const QImage before = PlotBeside().grab().toImage();
    ClickOn("cmdMarkerOn");
    QApplication::processEvents();
    EXPECT_NE(PlotBeside().grab().toImage(), before);
    EXPECT_TRUE(PlotBeside().isVisible());
    ClickOn("cmdExit");
  });
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().MarkerFreq[1], 1e6F);
  EXPECT_NE(Record().MarkersShown, 0);
}

TEST_F(LimitsWalk, AnOverlayIsSavedAndLaidOver) {
  WithTool("cmdSaveOverlay", [this] { ClickOn("cmdSave1"); });
  ASSERT_EQ(Top().Id(), PageId::Plotted);
  ClickOn("cmd2");
  const QImage before = Plot().grab().toImage();
  desktop_.session.record.LossBottom = -30;
  ClickOn("cmd1");
  WithTool("cmdGetOverlay", [this] { ClickOn("cmdGet1"); });
  EXPECT_EQ(desktop_.session.plot.overlays.fetched, std::vector<int>{1});
  EXPECT_NE(Plot().grab().toImage(), before);
}

}  // namespace
}  // namespace quilm
