// Modulation, linearity of phase and noise bandwidth in the real window.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class StudyWalk : public Walk {
 protected:
  // A lowpass of 1 MHz on the Analysis page.
  void Analyse() {
    DesignLowpass();
    ClickOn("cmdAnalysis");
    ASSERT_EQ(Top().Id(), PageId::Analyze);
  }

  std::string TextOf(const char* name) { return dynamic_cast<QLineEdit&>(*Find(name)).text().toStdString(); }
  QColor GroundOf(const char* name) { return Find(name)->palette().color(QPalette::Base); }

  // Whether a colour is on the plot somewhere in a column of it.
  bool HasColor(f32 x, const std::function<bool(const QColor&)>& is) {
    const QImage image = Plot().grab().toImage();
    const f64 ratio = image.devicePixelRatio();
    const int column = static_cast<int>(PlaceOf(x, 4000).x() * ratio);
    for (int y = static_cast<int>(PlaceOf(x, 1100).y() * ratio); y < PlaceOf(x, 6900).y() * ratio; ++y) {
      if (is(image.pixelColor(column, y))) return true;
    }
    return false;
  }
  // A thin curve covers its pixels in part.
  static bool IsBlue(const QColor& color) { return color.blue() - std::max(color.red(), color.green()) > 80; }
  static bool IsRed(const QColor& color) { return color.red() - std::max(color.blue(), color.green()) > 80; }
};

TEST_F(StudyWalk, SeesTheModulation) {
  Analyse();
  ClickOn("cmdModulation");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "1M");
  EXPECT_EQ(QApplication::focusWidget(), Find("txtCarrierFreq"));
  Type("txtMFstop", "2M");
  PressKey(Qt::Key_Return);
  PressKey(Qt::Key_Return);
  EXPECT_FALSE(PlotBox().picture.Empty());
  EXPECT_TRUE(HasColor(3000, IsBlue));
  // The frame is what the window has room for.
  EXPECT_GT(PlaceOf(11000, 4000).x() - PlaceOf(2000, 4000).x(), desktop_.window.width() / 2);
  Type("txtMdBbottom", "-30");
  EXPECT_TRUE(PlotBox().picture.Empty());
  ClickOn("Option2");
  ClickOn("cmdPlot");
  EXPECT_TRUE(HasColor(10800, IsBlue));  // it begins along the top
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(StudyWalk, SeesHowLinearThePhaseIs) {
  Analyse();
  ClickOn("cmdPhase");
  Type("txtPhaseFstart", "1k");
  Type("txtPhaseFstop", "1M");
  Type("txtPhaseNrInts", "200");
  ClickOn("cmdLinearity");
  EXPECT_EQ(Top().Id(), PageId::PhasePlot);
  // At the ends the line is furthest from the phase that it covers elsewhere.
  EXPECT_TRUE(HasColor(10900, IsBlue));
  EXPECT_TRUE(HasColor(9000, IsRed));
  const std::string before = PlotBox().picture.Dump();
  ClickOn("cmdDecrease");
  EXPECT_NE(PlotBox().picture.Dump(), before);
  ClickOn("cmdIncrease");
  EXPECT_EQ(PlotBox().picture.Dump(), before);
  ClickOn("cmdBack");
  EXPECT_EQ(TextOf("txtPhaseNrInts"), "200");
  ClickOn("cmdDeviation");
  EXPECT_TRUE(HasColor(4000, IsBlue));
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Record().SweepMode, 1);
}

TEST_F(StudyWalk, MeasuresTheNoise) {
  Analyse();
  ClickOn("cmdNoise");
  const QColor plain = GroundOf("txtStoppingFrequency");
  Type("txtStoppingFrequency", "2M");
  ClickOn("cmdCompute");
  EXPECT_EQ(GroundOf("txtStoppingFrequency"), QColor(0xFF, 0xDD, 0xDD));
  EXPECT_EQ(Find("lblNoiseHigh01")->palette().color(QPalette::Window), QColor(0xFF, 0xDD, 0xDD));
  EXPECT_EQ(QApplication::focusWidget(), Find("txtStoppingFrequency"));
  EXPECT_TRUE(Find("lblAdvice1")->isVisible());
  Type("txtStoppingFrequency", "20M");
  ClickOn("cmdCompute");
  EXPECT_EQ(GroundOf("txtStoppingFrequency"), plain);
  EXPECT_TRUE(dynamic_cast<Label&>(*Top().Find("lblNoiseBandwidth")).caption.starts_with("Noise bandwidth: 1.04"));
  ClickOn("cmdExit");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

}  // namespace
}  // namespace quilm
