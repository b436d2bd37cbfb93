// Undo and redo by the window's keys and buttons.
#include <QLineEdit>

#include "DemoPages.h"
#include "app/HistoryButton.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class UndoInWindow : public DemoProgram {
 protected:
  UndoInWindow() {
    Demo().optOne.onClick = [this] { Record().Family = 1; };
    Demo().optTwo.onClick = [this] { Record().Family = 2; };
    Demo().txtWidth.onChange = [this] { Record().Width = static_cast<f32>(Demo().txtWidth.text.size()); };
    Demo().txtWidth.onLeave = nullptr;
  }

  DesignRecord& Record() { return desktop.session.record; }
  HistoryButton& Button(const char* verb) {
    for (HistoryButton* button : desktop.window.findChildren<HistoryButton*>()) {
      if (button->accessibleName().contains(QLatin1String(verb), Qt::CaseInsensitive)) return *button;
    }
    throw Fault(std::string("no button ") + verb);
  }
  void Press(const char* verb) { QTest::mouseClick(&Button(verb), Qt::LeftButton); }
  QLineEdit* Box() { return Widget<QLineEdit>("txtWidth"); }
  void UndoKey(QWidget* at) { QTest::keyClick(at, Qt::Key_Z, Qt::ControlModifier); }
  void RedoKey(QWidget* at) { QTest::keyClick(at, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
};

TEST_F(UndoInWindow, TheButtonsAreOffWhenThereIsNothing) {
  EXPECT_FALSE(Button("undo").isEnabled());
  EXPECT_FALSE(Button("redo").isEnabled());
  EXPECT_EQ(Button("undo").toolTip(), "Nothing to undo (Ctrl+Z)");
  EXPECT_EQ(Button("redo").toolTip(), "Nothing to redo (Ctrl+Shift+Z)");
}

TEST_F(UndoInWindow, TheButtonsTellWhatTheyWouldDo) {
  ClickOn("optTwo");
  EXPECT_TRUE(Button("undo").isEnabled());
  EXPECT_EQ(Button("undo").toolTip(), "Undo: Two (Ctrl+Z)");
  Press("undo");
  EXPECT_EQ(Record().Family, 0);
  EXPECT_FALSE(Button("undo").isEnabled());
  EXPECT_TRUE(Button("redo").isEnabled());
  EXPECT_EQ(Button("redo").toolTip(), "Redo: Two (Ctrl+Shift+Z)");
  Press("redo");
  EXPECT_EQ(Record().Family, 2);
  EXPECT_FALSE(Button("redo").isEnabled());
  EXPECT_EQ(desktop.window.StatusRight(), "Redone: Two");
}

TEST_F(UndoInWindow, TheButtonsAreOffWhileAModalPageIsOpen) {
  ClickOn("optTwo");
  bool on = true;
  Soon([&] {
    on = Button("undo").isEnabled();
    ClickOn("cmdOk");
  });
  ClickOn("cmdAsk");
  EXPECT_FALSE(on);
  EXPECT_TRUE(Button("undo").isEnabled());
}

TEST_F(UndoInWindow, AButtonLeavesTheBoxThatHasTheFocusAndTheFocusInIt) {
  Box()->setFocus();
  QTest::keyClicks(Box(), "12");
  int left = 0;
  Demo().txtWidth.onLeave = [&left] { ++left; };
  Press("undo");
  EXPECT_EQ(left, 1);
  EXPECT_TRUE(Box()->hasFocus());
  EXPECT_EQ(Record().Width, 0);
}

TEST_F(UndoInWindow, TheKeysWorkOutsideBoxes) {
  ClickOn("optOne");
  ClickOn("optTwo");
  UndoKey(&desktop.window);
  EXPECT_EQ(Record().Family, 1);
  UndoKey(&desktop.window);
  EXPECT_EQ(Record().Family, 0);
  UndoKey(&desktop.window);  // nothing is left
  RedoKey(&desktop.window);
  EXPECT_EQ(Record().Family, 1);
}

TEST_F(UndoInWindow, InABoxItsOwnUndoComesFirst) {
  ClickOn("optTwo");
  Box()->setFocus();
  QTest::keyClicks(Box(), "12");
  EXPECT_EQ(Record().Width, 2);
  while (Box()->isUndoAvailable()) UndoKey(Box());
  EXPECT_EQ(Box()->text(), "");
  EXPECT_EQ(Record().Width, 0);
  EXPECT_EQ(Record().Family, 2);
  UndoKey(Box());
  EXPECT_EQ(Record().Family, 0);
}

TEST_F(UndoInWindow, InABoxItsOwnRedoComesFirst) {
  ClickOn("optTwo");
  UndoKey(&desktop.window);
  Box()->setFocus();
  RedoKey(Box());
  EXPECT_EQ(Record().Family, 2);
  QTest::keyClicks(Box(), "1");
  UndoKey(Box());
  EXPECT_EQ(Record().Width, 0);
  RedoKey(Box());
  EXPECT_EQ(Record().Width, 1);
  EXPECT_EQ(Record().Family, 2);
}

TEST_F(UndoInWindow, ABoxThatWasLeftHasNothingOfItsOwnToUndo) {
  Box()->setFocus();
  QTest::keyClicks(Box(), "12");
  Widget("txtRipple")->setFocus(Qt::TabFocusReason);
  Box()->setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(Box()->isUndoAvailable());
  UndoKey(Box());
  EXPECT_EQ(Record().Width, 0);
  EXPECT_TRUE(Button("redo").isEnabled());
}

TEST_F(UndoInWindow, EscapeDoesNotBringBackTheTextOfTheDesignBefore) {
  ClickOn("optTwo");
  Box()->setFocus();
  // What a page does that shows its boxes anew.
  Demo().txtWidth.text = "from the record";
  desktop.platform.Stage().Sync();
  QTest::keyClick(Box(), Qt::Key_Escape);
  EXPECT_EQ(Box()->text(), "from the record");
}

}  // namespace
}  // namespace quilm
