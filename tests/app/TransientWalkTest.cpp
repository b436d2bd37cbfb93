// A squarewave and a burst through a lowpass, in the real window.
#include "app/WalkBench.h"
#include "display/WaveDrawing.h"

namespace quilm {
namespace {

class TransientWalk : public Walk {
 protected:
  TransientWalk() {
    DesignLowpass();
    ClickOn("cmdAnalysis");
    ClickOn("cmdTransient");
  }

  QString TextOf(const char* name) { return dynamic_cast<QLineEdit&>(*Find(name)).text(); }
  PictureView& Waves() { return Sheet("picWaves"); }

  // Whether some pixel of the wave's picture in a column of the frame (degrees) has a colour near the one given.
  bool HasColor(f64 degrees, QColor color) {
    const QImage image = Waves().grab().toImage();
    const QRectF paper = Waves().Paper();
    const f64 userX = 2000 + (degrees + 36) / 396 * 9000;
    const f64 part = (userX - static_cast<f64>(waveScale.left)) / static_cast<f64>(waveScale.width);
    const int x = static_cast<int>((paper.left() + paper.width() * part) * image.devicePixelRatio());
    for (int y = 0; y < image.height(); ++y) {
      const QColor pixel = image.pixelColor(x, y);
      const int distance = std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green()) +
                           std::abs(pixel.blue() - color.blue());
      if (distance < 200) return true;
    }
    return false;
  }
};

TEST_F(TransientWalk, ASquarewaveByKeyboard) {
  ASSERT_EQ(Top().Id(), PageId::TransientPlot);
  EXPECT_EQ(QApplication::focusWidget(), Find("txtSquarewaveFreq"));
  EXPECT_FALSE(Find("cmdPrint")->isEnabled());
  EXPECT_FALSE(HasColor(90, Qt::blue));
  Keys("200000");
  PressKey(Qt::Key_Return);  // what was understood
  EXPECT_EQ(TextOf("txtSquarewaveFreq"), "200k");
  PressKey(Qt::Key_Return);
  EXPECT_TRUE(HasColor(90, Qt::blue));
  EXPECT_FALSE(HasColor(90, Qt::red));
  EXPECT_TRUE(Find("cmdPrint")->isEnabled());
  ClickOn("Option6");
  ClickOn("cmdPlot");
  EXPECT_TRUE(HasColor(90, Qt::blue));
  EXPECT_TRUE(HasColor(30, Qt::red));
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(TransientWalk, ABurstByMouse) {
  EXPECT_FALSE(Find("txtCarrierFreq")->isVisible());
  const int right = Find("cmdPlot")->mapTo(&desktop_.window, QPoint(0, 0)).x();
  ClickOn("Option2");
  EXPECT_TRUE(Find("txtCarrierFreq")->isVisible());
  EXPECT_FALSE(Find("Option6")->isVisible());
  // Nothing jumps.
  EXPECT_EQ(Find("cmdPlot")->mapTo(&desktop_.window, QPoint(0, 0)).x(), right);
  Type("txtSquarewaveFreq", "50k");
  Type("txtCarrierFreq", "800k");
  ClickOn("cmdPlot");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "800k");
  EXPECT_TRUE(HasColor(90, Qt::blue));
  ClickOn("cmdExitTransient");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

}  // namespace
}  // namespace quilm
