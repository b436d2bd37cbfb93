// Looking at a response: readout, Smith chart and table.
#include <QElapsedTimer>

#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class PlotWalk : public Walk {
 protected:
  PlotWalk() {
    DesignLowpass();
    ClickOn("cmdPlot");
    QApplication::processEvents();
  }

  void Drag(f32 x, f32 y) {
    QMouseEvent move(QEvent::MouseMove, PlaceOf(x, y), Plot().mapToGlobal(PlaceOf(x, y)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Plot(), &move);
  }

  // The first value of the readout.
  std::string Frequency() {
    std::vector<std::string> texts;
    for (const PictureOp& operation : PlotBox().mark.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    constexpr std::size_t headings = 10;
    return texts.size() > headings ? texts[headings] : "";
  }
};

TEST_F(PlotWalk, TheReadoutFollowsTheHeldButtonAndLeavesNothingBehind) {
  const QImage before = Plot().grab().toImage();
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(4000, 4000));
  const std::string first = Frequency();
  EXPECT_FALSE(first.empty());
  EXPECT_NE(Plot().grab().toImage(), before);
  Drag(8000, 4000);
  EXPECT_NE(Frequency(), first);
  QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, PlaceOf(8000, 4000));
  EXPECT_EQ(Plot().grab().toImage(), before);
}

// The mark at 0 dB in the passband: the exclusive or of the paper's white and 0xFF44FF.
TEST_F(PlotWalk, TheMarkStandsOnTheTrace) {
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(3000, 4000));
  EXPECT_EQ(PixelAt(2995, 1030), QColor(0x00, 0xBB, 0x00));
}

TEST_F(PlotWalk, AReleaseBesideThePaperEndsTheReadout) {
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(4000, 4000));
  QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, QPoint(-20, 40));
  EXPECT_TRUE(PlotBox().mark.Empty());
  Drag(6000, 4000);
  EXPECT_TRUE(PlotBox().mark.Empty());
}

// From the event to the painted window. The limit leaves room for a busy machine and for sanitizers.
TEST_F(PlotWalk, TheReadoutFollowsWithoutLag) {
  ClickOn("cmd2");
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(2500, 4000));
  constexpr int moves = 100;
  QElapsedTimer clock;
  clock.start();
  for (int i = 0; i < moves; ++i) {
    Drag(2500 + static_cast<f32>(80 * i), 4000);
    Plot().repaint();
  }
  const f64 milliseconds = static_cast<f64>(clock.nsecsElapsed()) / 1e6 / moves;
  RecordProperty("millisecondsAnUpdate", std::to_string(milliseconds));
  EXPECT_LT(milliseconds, 40);
  QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, PlaceOf(8000, 4000));
}

TEST_F(PlotWalk, TheSmithChartIsZoomedByItsButtons) {
  ClickOn("cmd11");
  Type("txtAspect", "1");
  QTest::keyClick(Find("txtAspect"), Qt::Key_Tab);
  EXPECT_FALSE(Find("cmdZoomOut")->isEnabled());

  // A true circle at the usual aspect: the rim crosses the paper at the same distance from the centre on both axes.
  const QPoint center = PlaceOf(6500, 4000);
  EXPECT_NEAR(PlaceOf(6500 + 0.75F * 3000, 4000).x() - center.x(), PlaceOf(6500, 7000).y() - center.y(), 1);

  QImage before = Plot().grab().toImage();
  for (int i = 0; i < 4; ++i) {
    ClickOn("cmdZoomIn");
    const QImage zoomed = Plot().grab().toImage();
    EXPECT_NE(zoomed, before);
    before = zoomed;
  }
  EXPECT_EQ(desktop_.session.smithView.ZoomFactor, 16);
  EXPECT_FALSE(Find("cmdZoomIn")->isEnabled());
  EXPECT_TRUE(Find("cmdZoomOut")->isEnabled());
}

// The paper of a rectangular plot is as wide as the room; a place of the mouse is the same place of the plot.
TEST_F(PlotWalk, ARectangularPlotFillsItsRoom) {
  for (const QSize size : {QSize(1280, 860), QSize(1900, 900), QSize(1100, 760)}) {
    desktop_.window.resize(size);
    QApplication::processEvents();
    const QRectF paper = Plot().Paper();
    const f64 room = static_cast<f64>(Plot().width()) / Plot().height();
    ASSERT_GT(room, 4.0 / 3);
    ASSERT_LT(room, 21.0 / 9);
    EXPECT_NEAR(paper.width(), Plot().width(), 1);
    EXPECT_NEAR(paper.height(), Plot().height(), 1);
    QTest::mousePress(&Plot(), Qt::LeftButton, {}, PlaceOf(3000, 4000));
    EXPECT_EQ(PixelAt(2995, 1030), QColor(0x00, 0xBB, 0x00));
    QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, PlaceOf(3000, 4000));
  }
}

TEST_F(PlotWalk, AKeyFitsTheSweepToTheBand) {
  const DesignRecord& record = desktop_.session.record;
  desktop_.session.record.Fstart = 1;
  QTest::keyClick(&Plot(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(record.Fstart, record.Width / 10);
  EXPECT_EQ(record.Fstop, record.Width * 10);
}

// From the click to the painted rows, the sweep included. The limit leaves room for a busy machine.
TEST_F(PlotWalk, TheLongestTableAppearsAtOnce) {
  ClickOn("cmdAnalysis");
  Type("txtNrIntervals", "2049");
  QElapsedTimer clock;
  clock.start();
  ClickOn("cmdTabulate");
  Find("lstTabulatedOutput")->repaint();
  RecordProperty("milliseconds", std::to_string(clock.elapsed()));
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(dynamic_cast<ListBox&>(*Top().Find("lstTabulatedOutput")).items.size(), 2050U);
}

}  // namespace
}  // namespace quilm
