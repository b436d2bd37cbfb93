// What stands on the screen, read back from the display: grabbing a widget would paint it anew and so hide what was
// never repainted.
#include <QScreen>

#include "app/WalkBench.h"

namespace quilm {
namespace {

class OnTheScreen : public Walk {
 protected:
  OnTheScreen() {
    // All of it within the window, and that within the screen, also of higher density.
    desktop_.window.resize(1024, 700);
    desktop_.window.move(0, 0);
    DesignLowpass();
    ClickOn("cmdPlot");
  }

  // The widget's part of the screen, when nothing changes there any more.
  QImage Seen(const char* name) {
    constexpr int untilDrawn = 100;
    constexpr int mostWaits = 30;
    QImage seen;
    for (int i = 0; i < mostWaits; ++i) {
      QTest::qWait(untilDrawn);
      const QImage now = Shot(*Find(name));
      if (now == seen) break;
      seen = now;
    }
    return seen;
  }

  // Whether it comes to look like that, on a busy machine too.
  bool ComesToLook(const char* name, const QImage& image) {
    constexpr int milliseconds = 5000;
    return QTest::qWaitFor([&] { return Shot(*Find(name)) == image; }, milliseconds);
  }

  // As it looks when all of the window is painted anew.
  QImage PaintedAnew(const char* name) { return PartOf(desktop_.window.grab(), *Find(name)); }

 private:
  QImage Shot(const QWidget& widget) {
    return PartOf(desktop_.window.screen()->grabWindow(desktop_.window.winId()), widget);
  }

  // The widget's part of a picture of the window, which may have more pixels than the toolkit counts.
  QImage PartOf(const QPixmap& window, const QWidget& widget) {
    const f64 density = window.devicePixelRatio();
    const QPoint corner = (QPointF(widget.mapTo(&desktop_.window, QPoint())) * density).toPoint();
    return window.copy(QRect(corner, widget.size() * density)).toImage().convertToFormat(QImage::Format_RGB32);
  }
};

TEST_F(OnTheScreen, APlotButtonRisesWhenAnotherIsPressed) {
  const QImage risen = Seen("cmd3");
  ClickOn("cmd3");
  EXPECT_NE(Seen("cmd3"), risen);
  ClickOn("cmd4");
  EXPECT_TRUE(ComesToLook("cmd3", risen));
}

TEST_F(OnTheScreen, ThePlotIsWhatThePageHasDrawn) {
  ClickOn("cmd2");
  EXPECT_EQ(Seen("picPlot"), PaintedAnew("picPlot"));
}

TEST_F(OnTheScreen, AReadoutGoesWithTheButton) {
  const QImage before = Seen("picPlot");
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(4000, 4000));
  EXPECT_NE(Seen("picPlot"), before);
  QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, PlaceOf(4000, 4000));
  EXPECT_TRUE(ComesToLook("picPlot", before));
}

// Each is painted where it lies alone, and what is seen is what a repaint of all shows.
TEST_F(OnTheScreen, TracesThatComeOneByOneAreSeenWhole) {
  for (int i = 0; i < 5; ++i) {
    const auto x = static_cast<f32>(2500 + 1600 * i);
    PlotBox().live.DrawWidth = static_cast<i16>(1 + i);
    PlotBox().live.Line(x, 6500, x + 1500, 1500, i % 2 == 0 ? colorRed : colorBlue);
    desktop_.platform.Stage().Sync();
    const QImage seen = Seen("picPlot");
    EXPECT_EQ(seen, PaintedAnew("picPlot")) << i;
  }
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
  EXPECT_TRUE(ComesToLook("picPlot", before));
}

}  // namespace
}  // namespace quilm
