// Typing in real entry boxes.
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QWheelEvent>

#include "DemoPages.h"

namespace quilm {
namespace {

using testing::ElementsAre;

class EntryBoxInWindow : public DemoProgram {
 protected:
  QLineEdit* Box() { return Widget<QLineEdit>("txtWidth"); }

  void Enter(const char* text) {
    Demo().txtWidth.text = text;
    desktop.platform.Stage().Sync();
    Box()->setFocus(Qt::TabFocusReason);
  }

  void Wheel(int delta) {
    const QPointF middle = Box()->rect().center();
    QWheelEvent event(middle, Box()->mapToGlobal(middle), {}, QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Box(), &event);
  }
};

TEST_F(EntryBoxInWindow, EveryKeystrokeIsAChange) {
  Box()->setFocus();
  QTest::keyClicks(Box(), "4.7k");
  EXPECT_THAT(Demo().log, ElementsAre("change 4", "change 4.", "change 4.7", "change 4.7k"));
  EXPECT_EQ(Demo().txtWidth.text, "4.7k");
}

TEST_F(EntryBoxInWindow, ReachingABoxByTabSelectsItsText) {
  Enter("100");
  QTest::keyClicks(Box(), "5");
  EXPECT_EQ(Demo().txtWidth.text, "5");
}

TEST_F(EntryBoxInWindow, AClickThatBringsTheFocusSelectsItsText) {
  Enter("100");
  Widget("txtRipple")->setFocus();
  Demo().txtWidth.text = "100";
  desktop.platform.Stage().Sync();
  QTest::mouseClick(Box(), Qt::LeftButton, {}, QPoint(6, Box()->height() / 2));
  EXPECT_EQ(Box()->selectedText(), "100");
  QTest::keyClicks(Box(), "5");
  EXPECT_EQ(Demo().txtWidth.text, "5");
}

TEST_F(EntryBoxInWindow, AClickInTheBoxPutsTheCursorThere) {
  Enter("100");
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  QTest::mouseClick(Box(), Qt::LeftButton, {}, QPoint(6, Box()->height() / 2));
  EXPECT_FALSE(Box()->hasSelectedText());
  EXPECT_EQ(Box()->cursorPosition(), 0);
}

TEST_F(EntryBoxInWindow, DrawingTheMouseOverAPartSelectsThatPart) {
  Demo().txtWidth.text = "100";
  desktop.platform.Stage().Sync();
  const int y = Box()->height() / 2;
  QTest::mousePress(Box(), Qt::LeftButton, {}, QPoint(1, y));
  const int twoDigits = 6 + Box()->fontMetrics().horizontalAdvance(QStringLiteral("10"));
  QMouseEvent move(QEvent::MouseMove, QPointF(twoDigits, y), Box()->mapToGlobal(QPointF(twoDigits, y)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(Box(), &move);
  QTest::mouseRelease(Box(), Qt::LeftButton, {}, QPoint(twoDigits, y));
  EXPECT_EQ(Box()->selectedText(), "10");
}

TEST_F(EntryBoxInWindow, AFocusFromTheProgramSelectsItsText) {
  Demo().txtWidth.text = "100";
  Demo().SetFocus(Demo().txtWidth);
  desktop.platform.Stage().Sync();
  EXPECT_EQ(Box()->selectedText(), "100");
  Demo().txtWidth.text = "250";  // a rule has changed it meanwhile
  desktop.platform.Stage().Sync();
  EXPECT_EQ(Box()->selectedText(), "250");
}

TEST_F(EntryBoxInWindow, ComingBackToTheWindowIsNoEnteringOfTheBox) {
  Enter("100");
  QTest::keyClicks(Box(), "77");
  QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(Box(), &away);
  QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(Box(), &back);
  EXPECT_FALSE(Box()->hasSelectedText());
  QTest::keyClicks(Box(), "7");
  EXPECT_EQ(Demo().txtWidth.text, "777");
}

TEST_F(EntryBoxInWindow, LeavingEchoesWhatWasUnderstood) {
  Enter("12");
  Widget("txtRipple")->setFocus(Qt::TabFocusReason);
  EXPECT_THAT(Demo().log, ElementsAre("leave"));
  EXPECT_EQ(Box()->text(), "12Hz");
}

TEST_F(EntryBoxInWindow, APressOfAnotherControlLeavesTheBoxFirst) {
  Enter("1");
  QTest::keyClicks(Box(), "7");
  ClickOn("optTwo");
  EXPECT_THAT(Demo().log, ElementsAre("change 7", "leave", "two"));
}

TEST_F(EntryBoxInWindow, AShortcutLeavesTheBoxFirst) {
  Enter("1");
  QTest::keyClicks(Box(), "7");
  QTest::keyClick(Box(), Qt::Key_O, Qt::ControlModifier);
  EXPECT_THAT(Demo().log, ElementsAre("change 7", "leave", "get"));
}

// A menu takes the keyboard for a while and gives it back.
class EntryBoxUnderAPopup : public EntryBoxInWindow {
 protected:
  void OpenAndCloseAMenu() {
    QMenu menu;
    menu.addAction(QStringLiteral("nothing"));
    menu.popup(Box()->mapToGlobal(QPoint()));
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);
    QApplication::processEvents();
    menu.close();
    QApplication::processEvents();
  }
};

TEST_F(EntryBoxUnderAPopup, APopupIsNoLeavingOfTheBox) {
  Enter("1");
  QTest::keyClicks(Box(), "7");
  OpenAndCloseAMenu();
  EXPECT_THAT(Demo().log, ElementsAre("change 7"));
  Widget("txtRipple")->setFocus(Qt::TabFocusReason);
  EXPECT_THAT(Demo().log, ElementsAre("change 7", "leave"));
}

TEST_F(EntryBoxUnderAPopup, APopupIsNoEnteringOfTheBoxEither) {
  Enter("100");
  QTest::keyClicks(Box(), "77");
  OpenAndCloseAMenu();
  QTest::keyClick(Box(), Qt::Key_Escape);
  EXPECT_EQ(Demo().txtWidth.text, "100");
}

TEST_F(EntryBoxInWindow, EscapeBringsBackTheTextFromBefore) {
  Enter("100");
  QTest::keyClicks(Box(), "77");
  QTest::keyClick(Box(), Qt::Key_Escape);
  EXPECT_EQ(Demo().txtWidth.text, "100");
  EXPECT_EQ(Box()->text(), "100");
  EXPECT_EQ(Demo().log.back(), "change 100");
}

TEST_F(EntryBoxInWindow, ArrowsStepTheDigitAtTheCursor) {
  Enter("250k");
  Box()->setCursorPosition(1);
  QTest::keyClick(Box(), Qt::Key_Up);
  EXPECT_EQ(Demo().txtWidth.text, "260k");
  QTest::keyClick(Box(), Qt::Key_Down);
  QTest::keyClick(Box(), Qt::Key_Down);
  EXPECT_EQ(Demo().txtWidth.text, "240k");
  EXPECT_THAT(Demo().log, ElementsAre("change 260k", "change 250k", "change 240k"));
}

TEST_F(EntryBoxInWindow, TheWheelStepsOnlyWithTheFocus) {
  Enter("50");
  Box()->setCursorPosition(2);
  Wheel(120);
  EXPECT_EQ(Demo().txtWidth.text, "51");
  Widget("txtRipple")->setFocus();
  const std::string left = Demo().txtWidth.text;
  Wheel(120);
  EXPECT_EQ(Demo().txtWidth.text, left);
}

TEST_F(EntryBoxInWindow, HalfAWheelNotchTwiceIsOneStep) {
  Enter("50");
  Box()->setCursorPosition(2);
  Wheel(60);
  EXPECT_EQ(Demo().txtWidth.text, "50");
  Wheel(60);
  EXPECT_EQ(Demo().txtWidth.text, "51");
}

TEST_F(EntryBoxInWindow, ARepairedBoxIsShownInTheColourOfANoteForAWhile) {
  auto* box = Widget<QLineEdit>("txtRipple");
  const QColor usual = box->palette().color(QPalette::Base);
  ClickOn("cmdRepair");
  EXPECT_EQ(box->text(), "0.1");
  EXPECT_NE(box->palette().color(QPalette::Base), usual);
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->palette().color(QPalette::Base) == usual; }, 3000));
}

TEST_F(EntryBoxInWindow, ASecondRepairShowsForAsLongAsTheFirst) {
  auto* box = Widget<QLineEdit>("txtRipple");
  const QColor usual = box->palette().color(QPalette::Base);
  ClickOn("cmdRepair");
  const QColor warm = box->palette().color(QPalette::Base);
  QTest::qWait(1200);
  ClickOn("cmdRepair");
  QTest::qWait(1200);
  EXPECT_EQ(box->palette().color(QPalette::Base), warm);
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->palette().color(QPalette::Base) == usual; }, 3000));
}

TEST_F(EntryBoxInWindow, NoMoreCharactersFitThanTheBoxMayHold) {
  EXPECT_EQ(Box()->maxLength(), Demo().txtWidth.maxLength);
}

}  // namespace
}  // namespace quilm
