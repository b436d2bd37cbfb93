// What stands on the screen, read back from the display: grabbing a widget would paint it anew and so hide what was
// never repainted.
#include <QScreen>

#include "app/WalkBench.h"

namespace quilm {
namespace {

class OnTheScreen : public Walk {
 protected:
  OnTheScreen() {
    desktop_.window.resize(1280, 860);  // all of it within the window
    DesignLowpass();
    ClickOn("cmdPlot");
  }

  QImage Seen(const char* name) {
    constexpr int untilDrawn = 100;
    QTest::qWait(untilDrawn);
    QWidget* widget = Find(name);
    const QPoint corner = widget->mapTo(&desktop_.window, QPoint());
    return desktop_.window.screen()
        ->grabWindow(desktop_.window.winId(), corner.x(), corner.y(), widget->width(), widget->height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  }
};

TEST_F(OnTheScreen, APlotButtonRisesWhenAnotherIsPressed) {
  const QImage risen = Seen("cmd3");
  ClickOn("cmd3");
  EXPECT_NE(Seen("cmd3"), risen);
  ClickOn("cmd4");
  EXPECT_EQ(Seen("cmd3"), risen);
}

TEST_F(OnTheScreen, ThePlotIsWhatThePageHasDrawn) {
  ClickOn("cmd2");
  EXPECT_EQ(Seen("picPlot"), Plot().grab().toImage().convertToFormat(QImage::Format_RGB32));
}

TEST_F(OnTheScreen, AReadoutGoesWithTheButton) {
  const QImage before = Seen("picPlot");
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(4000, 4000));
  EXPECT_NE(Seen("picPlot"), before);
  QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, PlaceOf(4000, 4000));
  EXPECT_EQ(Seen("picPlot"), before);
}

TEST_F(OnTheScreen, TracesOfTrialsAppearAndGo) {
  const QImage before = Seen("picPlot");
  PlotBox().live.Line(2500, 6500, 10500, 1500, colorBlack);
  desktop_.platform.Stage().Sync();
  const QImage one = Seen("picPlot");
  EXPECT_NE(one, before);
  PlotBox().live.Line(2500, 1500, 10500, 6500, colorBlack);
  desktop_.platform.Stage().Sync();
  EXPECT_NE(Seen("picPlot"), one);
  PlotBox().live.Clear();
  desktop_.platform.Stage().Sync();
  EXPECT_EQ(Seen("picPlot"), before);
}

}  // namespace
}  // namespace quilm
