// The named areas of a picture under the keyboard, the mouse and assistive tools.
#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

#include "DemoPages.h"
#include "app/PictureAreas.h"
#include "app/PictureView.h"

namespace quilm {
namespace {

using testing::ElementsAre;

class Areas : public DemoProgram {
 protected:
  Areas() {
    Demo().picPlot.description = "A ladder of two parts";
    Demo().picPlot.areas = {{"A", {1000, 1000}, {3000, 3000}, "First part", true, Heard("A")},
                            {"B", {5000, 1000}, {7000, 3000}, "", true, Heard("B")},
                            {"off", {9000, 1000}, {10000, 3000}, "", false, Heard("off")},
                            {"D", {1000, 5000}, {3000, 7000}, "", true, {}}};
    desktop.platform.Stage().Sync();
    QTest::qWait(10);
  }

  std::function<void()> Heard(const char* name) {
    return [this, name] { Demo().log.push_back(name); };
  }
  PictureView& View() { return *Widget<PictureView>("picPlot"); }
  PictureAreas& Walker() { return *View().findChild<PictureAreas*>(); }
  std::string Present() { return Walker().Present() ? Walker().Areas()[*Walker().Present()].name : "none"; }
  void Key(Qt::Key key) { QTest::keyClick(&View(), key); }
  QPoint MiddleOf(std::size_t index) { return Walker().PlaceOf(Walker().Areas()[index]).center(); }
  QAccessibleInterface& Spoken() { return *QAccessible::queryAccessibleInterface(&View()); }
};

TEST_F(Areas, TabWalksThemAndLeavesAtTheEnd) {
  View().setFocus(Qt::TabFocusReason);
  std::vector<std::string> walked;
  for (int i = 0; i < 3; ++i) {
    walked.push_back(Present());
    EXPECT_TRUE(View().hasFocus());
    Key(Qt::Key_Tab);
  }
  EXPECT_THAT(walked, ElementsAre("A", "B", "D"));
  EXPECT_FALSE(View().hasFocus());
  View().setFocus(Qt::BacktabFocusReason);
  EXPECT_EQ(Present(), "D");
}

TEST_F(Areas, ArrowsGoToTheNeighbourAndKeysPress) {
  View().setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Right);
  EXPECT_EQ(Present(), "B");
  Key(Qt::Key_Right);
  EXPECT_EQ(Present(), "B") << "what lies there is disabled";
  Key(Qt::Key_Space);
  Key(Qt::Key_Home);
  Key(Qt::Key_Return);
  Key(Qt::Key_Down);
  Key(Qt::Key_Enter);
  EXPECT_THAT(Demo().log, ElementsAre("B", "A", "down 20 60", "up left"));
}

TEST_F(Areas, AnArrowKeyPressesTheWalkedAreaThatItComesTo) {
  for (std::size_t i = 0; i < 2; ++i) Demo().picPlot.areas[i].walked = true;
  Demo().picPlot.areas[1].present = true;
  desktop.platform.Stage().Sync();
  View().setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Present(), "B") << "Tab comes to the present one";
  Key(Qt::Key_Left);
  Key(Qt::Key_Right);
  Key(Qt::Key_Tab);
  EXPECT_EQ(Present(), "D") << "they are one stop";
  Key(Qt::Key_Up);
  EXPECT_THAT(Demo().log, ElementsAre("A", "B", "A"));
}

TEST_F(Areas, TheWalkGoesOnFromTheClickedOne) {
  for (std::size_t i = 0; i < 2; ++i) Demo().picPlot.areas[i].walked = true;
  desktop.platform.Stage().Sync();
  QTest::mousePress(&View(), Qt::LeftButton, {}, MiddleOf(1));
  Key(Qt::Key_Left);
  EXPECT_THAT(Demo().log, ElementsAre("B", "A"));
}

TEST_F(Areas, AMarkStandsAroundTheOneInFocus) {
  EXPECT_FALSE(Walker().isVisible());
  const QImage plain = View().grab().toImage();
  View().setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(Walker().isVisible());
  EXPECT_TRUE(Walker().geometry().contains(Walker().PlaceOf(Walker().Areas()[0])));
  EXPECT_FALSE(Walker().geometry().intersects(Walker().PlaceOf(Walker().Areas()[1])));
  EXPECT_NE(View().grab().toImage(), plain);
  desktop.window.resize(1000, 700);
  QTest::qWait(10);
  EXPECT_TRUE(Walker().geometry().contains(Walker().PlaceOf(Walker().Areas()[0])));
  Widget("cmdAsk")->setFocus();
  EXPECT_FALSE(Walker().isVisible());
}

TEST_F(Areas, TheirPlaceIsTheOneOfTheScale) {
  const QRectF paper = View().Paper();
  const QRect place = Walker().PlaceOf(Walker().Areas()[0]);
  EXPECT_NEAR(place.left(), paper.left() + paper.width() * 1000 / 13000, 1);
  EXPECT_NEAR(place.bottom() + 1, paper.top() + paper.height() * 3000 / 8000, 1);
}

TEST_F(Areas, TheMousePressesThem) {
  QTest::mousePress(&View(), Qt::LeftButton, {}, MiddleOf(1));
  QTest::mousePress(&View(), Qt::LeftButton, {}, MiddleOf(2));
  EXPECT_THAT(Demo().log, ElementsAre("B"));
}

TEST_F(Areas, TheMouseReadsTheirToolTips) {
  const QPoint place = MiddleOf(0);
  QHelpEvent ask(QEvent::ToolTip, place, View().mapToGlobal(place));
  QApplication::sendEvent(&View(), &ask);
  EXPECT_EQ(QToolTip::text(), "First part");
}

TEST_F(Areas, WhatAPressLaysOutAnewIsShown) {
  View().setFocus(Qt::TabFocusReason);
  Demo().picPlot.areas[0].onPress = [this] {
    Demo().picPlot.areas = {{"new", {0, 0}, {1000, 1000}, "", true, {}}, {"A", {0, 0}, {10, 10}, "", true, {}}};
  };
  Key(Qt::Key_Space);
  EXPECT_EQ(Walker().Areas().size(), 2U);
  EXPECT_EQ(Present(), "A") << "the walk stays with the name";
  Demo().picPlot.areas.clear();
  desktop.platform.Stage().Sync();
  EXPECT_EQ(Present(), "none");
  EXPECT_FALSE(Walker().isVisible());
  EXPECT_EQ(View().focusPolicy(), Qt::ClickFocus);
}

TEST_F(Areas, AScreenReaderHearsThePictureAndItsButtons) {
  EXPECT_EQ(Spoken().role(), QAccessible::Graphic);
  EXPECT_EQ(Spoken().text(QAccessible::Name), "Response");
  EXPECT_EQ(Spoken().text(QAccessible::Description), "A ladder of two parts");
  ASSERT_EQ(Spoken().childCount(), 4);
  QAccessibleInterface* first = Spoken().child(0);
  EXPECT_EQ(first->role(), QAccessible::PushButton);
  EXPECT_EQ(first->text(QAccessible::Name), "First part");
  EXPECT_EQ(Spoken().child(1)->text(QAccessible::Name), "B");
  EXPECT_EQ(first->parent(), &Spoken());
  EXPECT_EQ(Spoken().indexOfChild(Spoken().child(3)), 3);
  EXPECT_TRUE(Spoken().child(2)->state().disabled);
  EXPECT_FALSE(first->state().disabled);
}

TEST_F(Areas, AScreenReaderFindsThemByPlaceAndFocus) {
  const QPoint middle = View().mapToGlobal(MiddleOf(1));
  EXPECT_EQ(Spoken().childAt(middle.x(), middle.y()), Spoken().child(1));
  EXPECT_TRUE(Spoken().child(1)->rect().contains(middle));
  View().setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Spoken().focusChild(), Spoken().child(0));
  EXPECT_TRUE(Spoken().child(0)->state().focused);
}

TEST_F(Areas, AScreenReaderPressesThem) {
  for (const int index : {1, 2}) {
    QAccessibleActionInterface* action = Spoken().child(index)->actionInterface();
    ASSERT_NE(action, nullptr);
    action->doAction(QAccessibleActionInterface::pressAction());
  }
  EXPECT_THAT(Demo().log, ElementsAre("B"));
}

TEST_F(Areas, WhatIsGoneIsNotSpokenOf) {
  QAccessibleInterface* last = Spoken().child(3);
  Demo().picPlot.areas.resize(2);
  desktop.platform.Stage().Sync();
  EXPECT_EQ(Spoken().childCount(), 2);
  EXPECT_EQ(Spoken().child(3), nullptr);
  EXPECT_FALSE(last->isValid());
  EXPECT_EQ(last->text(QAccessible::Name), QString());
}

}  // namespace
}  // namespace quilm
