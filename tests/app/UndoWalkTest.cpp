// Undo and redo in the whole program, by the keyboard.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class UndoWalk : public Walk {
 protected:
  void UndoKey() { PressKey(Qt::Key_Z, Qt::ControlModifier); }
  void RedoKey() { PressKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  QString Text(const char* name) { return qobject_cast<QLineEdit*>(Find(name))->text(); }
};

TEST_F(UndoWalk, FromThePlotBackToTheEntryAndForthAgain) {
  DesignLowpass();
  Type("txtBandwidth", "2M");
  ClickOn("cmdPlot");
  ASSERT_EQ(Top().Id(), PageId::Plotted);
  UndoKey();
  ASSERT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Text("txtBandwidth"), "1M");
  EXPECT_EQ(Record().Width, 1e6F);
  RedoKey();
  EXPECT_EQ(Text("txtBandwidth"), "2M");
  EXPECT_EQ(Record().Stages, 3);
}

TEST_F(UndoWalk, TypingIsTakenBackInTheBoxThenTheDesign) {
  DesignLowpass();
  ClickOn("optChebycheff");
  Type("txtBandwidth", "5M");
  auto* box = qobject_cast<QLineEdit*>(Find("txtBandwidth"));
  while (box->isUndoAvailable()) UndoKey();
  EXPECT_EQ(Text("txtBandwidth"), "1M");
  EXPECT_EQ(Record().Width, 1e6F);
  EXPECT_EQ(Record().Family, familyChebyshev);
  UndoKey();
  EXPECT_EQ(Record().Family, familyButterworth);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

}  // namespace
}  // namespace quilm
