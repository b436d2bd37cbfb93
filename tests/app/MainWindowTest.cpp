#include "app/MainWindow.h"

#include "DemoPages.h"
#include "app/FirstPlace.h"

namespace quilm {
namespace {

using MainWindowTest = DemoProgram;
using testing::ElementsAre;

TEST_F(MainWindowTest, TheCloseBoxIsThePagesOwn) {
  int ends = 0;
  desktop.onEnded = [&ends] { ++ends; };
  desktop.window.close();
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(desktop.session.note, "stored");
  EXPECT_EQ(ends, 1);
}

TEST_F(MainWindowTest, APageThatRefusesToCloseKeepsTheWindow) {
  ClickOn("cmdPlot");  // this page just closes itself; the window stays until the program has ended
  desktop.window.close();
  EXPECT_TRUE(desktop.window.isVisible());
  EXPECT_FALSE(desktop.session.ended);
}

TEST_F(MainWindowTest, PagesNeverChangeItsSize) {
  const QSize before = desktop.window.size();
  ClickOn("cmdPlot");
  EXPECT_EQ(desktop.window.size(), before);
  EXPECT_EQ(desktop.window.windowTitle(), "Other - Quilm");
  ClickOn("cmdDesign");
  EXPECT_EQ(desktop.window.size(), before);
}

TEST_F(MainWindowTest, TheUnloadedPagesWidgetsGo) {
  ClickOn("cmdPlot");
  QTest::qWait(5);
  EXPECT_EQ(desktop.window.findChild<QWidget*>("cmdAsk"), nullptr);
  EXPECT_NE(Widget("cmdDesign"), nullptr);
}

TEST_F(MainWindowTest, TheStatusLineTellsTheDesignAndWhatWasDone) {
  desktop.session.note = "Saved";
  desktop.platform.Stage().Sync();
  EXPECT_EQ(desktop.window.StatusLeft(), "A demonstration");
  EXPECT_EQ(desktop.window.StatusRight(), "Saved");
}

TEST_F(MainWindowTest, TheTitleIsTheNameOfTheDesignElseOfThePage) {
  std::string name = "MINE.QLM*";
  desktop.window.designName = [&name] { return name; };
  desktop.platform.Stage().Sync();
  EXPECT_EQ(desktop.window.windowTitle(), "MINE.QLM* - Quilm");
  ClickOn("cmdPlot");
  EXPECT_EQ(desktop.window.windowTitle(), "MINE.QLM* - Quilm");
  name.clear();
  desktop.platform.Stage().Sync();
  EXPECT_EQ(desktop.window.windowTitle(), "Other - Quilm");
  desktop.window.designName = nullptr;
}

TEST_F(MainWindowTest, StandardKeysPressWhatThePageHas) {
  QTest::keyClick(&desktop.window, Qt::Key_O, Qt::ControlModifier);
  QTest::keyClick(&desktop.window, Qt::Key_S, Qt::ControlModifier);  // no such control
  EXPECT_THAT(Demo().log, ElementsAre("get"));
  QTest::keyClick(&desktop.window, Qt::Key_5, Qt::ControlModifier);
  EXPECT_EQ(desktop.session.pages.Top()->Id(), PageId::Plotted);
  QTest::keyClick(&desktop.window, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(desktop.session.pages.Top()->Id(), PageId::Design);
}

TEST_F(MainWindowTest, ItsSizeIsRemembered) {
  desktop.window.resize(1100, 720);
  desktop.window.KeepPlace();
  const MainWindow next(desktop.session, desktop.platform.SettingsPath());
  EXPECT_EQ(next.size(), QSize(1100, 720).boundedTo(next.maximumSize()));
}

TEST_F(MainWindowTest, ItShrinksToSmallScreens) {
  desktop.window.resize(1024, 700);
  QTest::qWait(5);
  EXPECT_EQ(desktop.window.size(), QSize(1024, 700));
}

// What it has at its foot must not hang below the screen: 1366 x 768 pixels at 150 %, as the toolkit counts them.
TEST_F(MainWindowTest, ItsSmallestSizeHasRoomOnASmallScreenOfHighDensity) {
  const QSize room = RoomOn(QRect(0, 0, 911, 512)).size();
  EXPECT_EQ(desktop.window.minimumSize().boundedTo(room), desktop.window.minimumSize());
}

}  // namespace
}  // namespace quilm
