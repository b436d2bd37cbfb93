// The first evening with the program.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

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

TEST_F(Walk, TheCloseBoxKeepsThePreferencesAndTheDesign) {
  DesignLowpass();
  ClickOn("cmdPlot");
  desktop_.window.close();
  QApplication::processEvents();
  EXPECT_TRUE(desktop_.session.ended);
  EXPECT_TRUE(QFile::exists(folder_.filePath("QuilmConfiguration.CFG")));
  const f32 capacitor = Record().stage[1].Cval.value;

  // The next evening begins where this one ended.
  Desktop next(AllPages(), folder_.path());
  next.Start(StartProgram);
  auto* button = qobject_cast<QAbstractButton*>(next.TopView()->Find(QStringLiteral("cmdLastSession")));
  ASSERT_NE(button, nullptr);
  QTest::mouseClick(button, Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(next.session.record.Stages, 3);
  EXPECT_NEAR(next.session.record.stage[1].Cval.value, capacitor, 1e-6F * capacitor);
}

TEST_F(Walk, ThePagesHaveTheirKeys) {
  DesignLowpass();
  QTest::keyClick(&desktop_.window, Qt::Key_5, Qt::ControlModifier);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  QTest::keyClick(&desktop_.window, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(Walk, AnMderivedDesignAsksForItsZerosAndShowsItsSchematic) {
  DesignLowpass();
  WithModal("optMderived", [this] {
    Type("txtZeroFreq1", "1.25M");
    ClickOn("cmdOk");
  });
  EXPECT_EQ(Record().Order, 7);
  WithModal("cmdSchematic", [this] { ClickOn("cmdOk"); });
  ASSERT_EQ(Top().Id(), PageId::Schematic);
  EXPECT_EQ(Record().Stages, 5);

  auto* view = dynamic_cast<PictureView*>(Find("picSchematic"));
  ASSERT_NE(view, nullptr);
  QImage before = view->grab().toImage();
  for (const char* name : {"Option1", "Option2", "optYes", "cmdRight", "cmdLeftLeft"}) {
    ClickOn(name);
    const QImage after = view->grab().toImage();
    EXPECT_NE(after, before) << name;
    before = after;
  }
}

}  // namespace
}  // namespace quilm
