// The first evening with the program, in its real window: mouse and keyboard alone.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "app/Desktop.h"
#include "pages/PageDirectory.h"
#include "pages/StartUp.h"
#include "shell/Page.h"

namespace quilm {
namespace {

class Walk : public testing::Test {
 protected:
  Walk() : desktop_(AllPages(), folder_.path()) {
    desktop_.Start(StartProgram);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&desktop_.window));
    // There is no window manager that would give it the keyboard.
    QApplication::setActiveWindow(&desktop_.window);
  }

  QWidget* Find(const char* name) {
    QWidget* widget = desktop_.TopView()->Find(QString::fromLatin1(name));
    if (widget == nullptr) throw Fault(std::string("no widget ") + name);
    return widget;
  }

  void ClickOn(const char* name) {
    QWidget* widget = Find(name);
    ASSERT_TRUE(widget->isVisible() && widget->isEnabled()) << name;
    // An option is chosen by its mark or text, at the left.
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(10, widget->height() / 2));
    QApplication::processEvents();
  }

  // Replaces the text of a box, as a user would.
  void Type(const char* name, const char* text) {
    QWidget* box = Find(name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QString::fromLatin1(text));
  }

  Page& Top() { return *desktop_.session.pages.Top(); }
  const DesignRecord& Record() { return desktop_.session.record; }

  // The colour of the picture at a point in user scale, as the user sees it.
  QColor PixelAt(f32 x, f32 y) {
    auto& box = dynamic_cast<PictureBox&>(*Top().Find("picPlot"));
    QWidget* view = Find("picPlot");
    const QImage image = view->grab().toImage();
    const f64 unit = std::min(view->width() / static_cast<f64>(box.picture.ScaleWidth),
                              view->height() / static_cast<f64>(box.picture.ScaleHeight));
    const f64 left = (view->width() - unit * static_cast<f64>(box.picture.ScaleWidth)) / 2;
    const f64 top = (view->height() - unit * static_cast<f64>(box.picture.ScaleHeight)) / 2;
    const f64 density = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>((left + unit * static_cast<f64>(x - box.picture.ScaleLeft)) * density),
                            static_cast<int>((top + unit * static_cast<f64>(y - box.picture.ScaleTop)) * density));
  }

  QTemporaryDir folder_;
  Desktop desktop_;
};

TEST_F(Walk, FromTheOpeningPageToALowpassAndABandpassOnThePlot) {
  const QSize size = desktop_.window.size();
  EXPECT_EQ(size, QSize(1280, 860));
  ClickOn("cmdDesignNew");
  ASSERT_EQ(Top().Id(), PageId::Design);

  // A 7th-order 0.1 dB Chebyshev lowpass, 1 MHz, 50 ohms.
  ClickOn("optChebycheff");
  ClickOn("optCapInLowpass");
  Type("txtBandwidth", "1M");
  Type("txtPassbandRipple", ".1");
  Type("txtInputTerm", "50");
  QTest::keyClick(Find("txtInputTerm"), Qt::Key_Tab);
  EXPECT_EQ(qobject_cast<QLineEdit*>(Find("txtPassbandRipple"))->text(), "0.1");
  auto& order = dynamic_cast<Spin&>(*Top().Find("UpDown1"));
  for (int i = 0; i < 4; ++i) desktop_.platform.Stage().Perform([&](Session& session) { Step(session, order, 1); });
  EXPECT_EQ(Record().Order, 7);

  ClickOn("cmdPlot");
  ASSERT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().Stages, 7);
  // C1 = g1 / (2 Pi 1e6 50) with g1 = 1.1812 (Matthaei, Young and Jones, table 4.05-2(a)).
  EXPECT_NEAR(Record().stage[1].Cval.value, 1.1812 / (2 * Pi * 1e6 * 50), 1e-13);
  // Paper around the frame, and the trace in blue along its top left: the passband is within a hair of 0 dB.
  EXPECT_EQ(PixelAt(1000, 4000), QColor(Qt::white));
  ClickOn("cmd2");
  EXPECT_EQ(Record().PlotCode, 2);

  // The same as a 100 kHz wide series-input bandpass at 10 MHz.
  ClickOn("cmdDesign");
  ASSERT_EQ(Top().Id(), PageId::Design);
  ClickOn("optSeriesInGeoSymm");
  Type("txtBandwidth", "100k");
  Type("txtCenterFrequency", "10M");
  ClickOn("cmdPlot");
  ASSERT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().PlotCode, 2);
  EXPECT_EQ(Record().stage[1].ElementType, SeriesSLC);
  EXPECT_NEAR(Record().stage[1].Lval.value, 1.1812 * 50 / (2 * Pi * 1e5), 1e-8);
  EXPECT_EQ(desktop_.window.size(), size);
}

TEST_F(Walk, TheCloseBoxKeepsThePreferences) {
  ClickOn("cmdDesignNew");
  desktop_.window.close();
  QApplication::processEvents();
  EXPECT_TRUE(desktop_.session.ended);
  EXPECT_TRUE(QFile::exists(folder_.filePath("QuilmConfiguration.CFG")));
}

TEST_F(Walk, ThePagesHaveTheirKeys) {
  ClickOn("cmdDesignNew");
  ClickOn("optButterworth");
  ClickOn("optCapInLowpass");
  Type("txtBandwidth", "1M");
  QTest::keyClick(&desktop_.window, Qt::Key_5, Qt::ControlModifier);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  QTest::keyClick(&desktop_.window, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

}  // namespace
}  // namespace quilm
