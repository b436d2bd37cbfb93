// Real widgets showing a page and pressing its controls.
#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QScrollBar>

#include "DemoPages.h"
#include "app/SpinBox.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using PageInWindow = DemoProgram;

TEST_F(PageInWindow, OptionsOfAGroupExcludeOneAnother) {
  ClickOn("optOne");
  ClickOn("optTwo");
  EXPECT_FALSE(Widget<QAbstractButton>("optOne")->isChecked());
  EXPECT_TRUE(Widget<QAbstractButton>("optTwo")->isChecked());
  EXPECT_THAT(Demo().log, ElementsAre("one", "two"));
}

TEST_F(PageInWindow, ASecondClickOnAnOptionKeepsItSet) {
  ClickOn("optOne");
  ClickOn("optOne");
  EXPECT_TRUE(Widget<QAbstractButton>("optOne")->isChecked());
}

TEST_F(PageInWindow, ShowingAValueFiresNoHandler) {
  Demo().optTwo.Set();
  Demo().txtWidth.text = "5";
  Demo().lstLines.selected = 2;
  desktop.platform.Stage().Sync();
  EXPECT_TRUE(Widget<QAbstractButton>("optTwo")->isChecked());
  EXPECT_EQ(Widget<QListView>("lstLines")->currentIndex().row(), 1);
  EXPECT_THAT(Demo().log, IsEmpty());
}

TEST_F(PageInWindow, AHiddenRowLeavesNoHole) {
  QTest::qWait(10);
  const int rippleTop = Widget("txtRipple")->mapTo(desktop.TopView(), QPoint()).y();
  const int widthTop = Widget("txtWidth")->mapTo(desktop.TopView(), QPoint()).y();
  ASSERT_GT(rippleTop, widthTop);
  Demo().lblWidth.visible = Demo().txtWidth.visible = Demo().UpDown.visible = false;
  desktop.platform.Stage().Sync();
  QTest::qWait(10);
  EXPECT_LE(Widget("txtRipple")->mapTo(desktop.TopView(), QPoint()).y(), widthTop + 4);
}

TEST_F(PageInWindow, WhatKeepsItsPlaceMovesNothingWhenItHides) {
  QTest::qWait(10);
  const QRect before = Widget("picPlot")->geometry();
  const int left = Widget("cmdRepair")->x();
  Demo().cmdAsk.visible = false;
  desktop.platform.Stage().Sync();
  QTest::qWait(10);
  EXPECT_EQ(Widget("cmdRepair")->x(), left);
  EXPECT_EQ(Widget("picPlot")->geometry(), before);
}

TEST_F(PageInWindow, AHiddenFrameHidesWhatItHolds) {
  EXPECT_TRUE(Widget("txtLoad")->isVisible());
  Demo().fraLoads.visible = false;
  desktop.platform.Stage().Sync();
  EXPECT_FALSE(Widget("txtLoad")->isVisible());
  EXPECT_FALSE(Widget("fraLoads")->isVisible());
}

TEST_F(PageInWindow, ADisabledFrameDisablesWhatItHolds) {
  Demo().fraLoads.enabled = false;
  desktop.platform.Stage().Sync();
  EXPECT_FALSE(Widget("txtLoad")->isEnabled());
}

TEST_F(PageInWindow, LabelsOfAFormEndAtTheirBoxes) {
  QTest::qWait(10);
  const auto rightEdge = [this](const char* name) {
    return Widget(name)->mapTo(desktop.TopView(), QPoint(Widget(name)->width(), 0)).x();
  };
  EXPECT_EQ(rightEdge("lblWidth"), rightEdge("lblRipple"));
  EXPECT_LT(rightEdge("lblWidth"), Widget("txtWidth")->mapTo(desktop.TopView(), QPoint()).x());
}

TEST_F(PageInWindow, AmpersandsOfCaptionsAreShown) {
  const QString text = Widget<QAbstractButton>("cmdRepair")->text();
  EXPECT_TRUE(text.contains("&&")) << text.toStdString();
  EXPECT_EQ(QString(text).replace("&&", "+").remove('&').replace('+', '&'), "R & D");
}

TEST_F(PageInWindow, TheMnemonicPressesItsButton) {
  const QString text = Widget<QAbstractButton>("cmdGet")->text();
  const qsizetype at = text.indexOf('&');
  ASSERT_GE(at, 0);
  QTest::keyClick(&desktop.window, text[at + 1].toLatin1(), Qt::AltModifier);
  // The toolkit shows the button pressed for a moment first.
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Demo().log.empty(); }, 1000));
  EXPECT_THAT(Demo().log, ElementsAre("get"));
}

TEST_F(PageInWindow, TheSpinControlStepsBothWays) {
  auto* spin = Widget<SpinBox>("UpDown");
  ASSERT_NE(spin, nullptr);
  QTest::mouseClick(spin, Qt::LeftButton, {}, spin->ArrowRect(+1).center());
  QTest::mouseClick(spin, Qt::LeftButton, {}, spin->ArrowRect(-1).center());
  EXPECT_THAT(Demo().log, ElementsAre("up", "down"));
}

TEST_F(PageInWindow, AClickChoosesTheLineOfAList) {
  auto* list = Widget<QListView>("lstLines");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(2, 0)).center());
  EXPECT_THAT(Demo().log, ElementsAre("line 3"));
  EXPECT_EQ(Demo().lstLines.selected, 3);
}

TEST_F(PageInWindow, ArrowKeysChooseLinesToo) {
  auto* list = Widget<QListView>("lstLines");
  list->setFocus();
  list->setCurrentIndex(list->model()->index(0, 0));
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(Demo().log.back(), "line 2");
}

TEST_F(PageInWindow, OtherLinesReplaceThoseOfAList) {
  Demo().lstLines.items = {"one", "two"};
  Demo().lstLines.selected = 2;
  desktop.platform.Stage().Sync();
  auto* list = Widget<QListView>("lstLines");
  ASSERT_EQ(list->model()->rowCount(), 2);
  EXPECT_EQ(list->model()->index(1, 0).data().toString(), QStringLiteral("two"));
  EXPECT_EQ(list->currentIndex().row(), 1);
  EXPECT_THAT(Demo().log, IsEmpty());
}

TEST_F(PageInWindow, ALineThatChangesAloneIsShown) {
  Demo().lstLines.items[1] = "another";
  desktop.platform.Stage().Sync();
  EXPECT_EQ(Widget<QListView>("lstLines")->model()->index(1, 0).data().toString(), QStringLiteral("another"));
}

TEST_F(PageInWindow, AListKeepsItsPlaceWhenItsLinesChange) {
  for (int i = 0; i < 200; ++i) Demo().lstLines.items.push_back("line " + std::to_string(i));
  desktop.platform.Stage().Sync();
  QTest::qWait(10);
  auto* list = Widget<QListView>("lstLines");
  list->scrollTo(list->model()->index(150, 0), QAbstractItemView::PositionAtTop);
  const int place = list->verticalScrollBar()->value();
  ASSERT_GT(place, 0);
  Demo().lstLines.items[0] = "another";
  desktop.platform.Stage().Sync();
  QTest::qWait(10);
  EXPECT_EQ(list->verticalScrollBar()->value(), place);
}

// The rows of a table, as a page with one has it.
TEST_F(PageInWindow, MarkedRowsOfATableAreCopiedInTheirOrder) {
  ClickOn("cmdPlot");
  auto* table = Widget<QListView>("lstTable");
  ASSERT_NE(table, nullptr);
  for (const int row : {2, 0}) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      table->visualRect(table->model()->index(row, 0)).center());
  }
  QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("row 1\nrow 3"));
}

TEST_F(PageInWindow, ATimerTicksWhileItIsEnabled) {
  QTest::qWait(20);
  EXPECT_THAT(Demo().log, IsEmpty());
  Demo().Timer1.enabled = true;
  desktop.platform.Stage().Sync();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Demo().log.empty(); }, 1000));
  QTest::qWait(30);
  EXPECT_THAT(Demo().log, ElementsAre("tick"));
}

TEST_F(PageInWindow, TheFocusGoesWhereThePageWishes) {
  Demo().SetFocus(Demo().txtRipple);
  desktop.platform.Stage().Sync();
  EXPECT_TRUE(Widget("txtRipple")->hasFocus());
}

TEST_F(PageInWindow, EveryWidgetSpeaksItsName) {
  EXPECT_EQ(Widget("txtWidth")->accessibleName(), "Width");
  EXPECT_EQ(Widget("cmdAsk")->accessibleName(), "Stepsize %");
  EXPECT_EQ(Widget("cmdPlot")->toolTip(), "Plot the responses");
}

TEST_F(PageInWindow, ButtonsSideBySideShareOneWidth) {
  QTest::qWait(10);
  EXPECT_EQ(Widget("cmdAsk")->width(), Widget("cmdRepair")->width());
}

TEST_F(PageInWindow, SegmentsTouchOneAnother) {
  QTest::qWait(10);
  EXPECT_EQ(Widget("cmdHere")->geometry().right() + 1, Widget("cmdPlot")->geometry().left());
}

TEST_F(PageInWindow, EntryBoxesAreAllOfOneWidth) {
  EXPECT_EQ(Widget("txtWidth")->width(), Widget("txtRipple")->width());
  EXPECT_EQ(Widget("txtWidth")->width(), Widget("txtLoad")->width());
}

TEST_F(PageInWindow, TheTabOrderIsTheReadingOrder) {
  Widget("txtWidth")->setFocus();
  QTest::keyClick(Widget("txtWidth"), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Widget("UpDown"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Widget("txtRipple"));
}

}  // namespace
}  // namespace quilm
