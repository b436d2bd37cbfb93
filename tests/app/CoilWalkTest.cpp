// Winding a coil and a toroid in the real window, and a filter made of lines in a tube.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class CoilWalk : public Walk {
 protected:
  std::string TextOf(const char* name) { return dynamic_cast<QLineEdit&>(*Find(name)).text().toStdString(); }
  QColor GroundOf(const char* name) { return Find(name)->palette().color(QPalette::Base); }
};

TEST_F(CoilWalk, WindsWithTheKeyboard) {
  ClickOn("cmdDesignNew");
  ClickOn("Command8");
  Type("txtArbitraryInductance", "10u");
  Type("txtFormDiameter", "1");
  Type("txtFormLength", "1");
  PressKey(Qt::Key_Return);  // what was understood
  PressKey(Qt::Key_Return);
  EXPECT_EQ(TextOf("txtTurns"), "24.083");
  EXPECT_EQ(TextOf("txtArbitraryInductance"), "10uH");
  EXPECT_TRUE(Find("cmdPrint")->isEnabled());
  // A wire that does not fit marks the fill.
  Type("txtActualGauge", "2");
  EXPECT_EQ(Find("lblFill")->palette().color(QPalette::Window), QColor(0xFF, 0x99, 0x99));
  ClickOn("optMetric");
  EXPECT_EQ(TextOf("txtFormDiameter"), "2.54");
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(CoilWalk, ABadBoxOfTheToroidIsMarkedAndHasTheKeyboard) {
  ClickOn("cmdDesignNew");
  ClickOn("Command12");
  const QColor plain = GroundOf("txtToroidAL");
  ClickOn("cmdCalculate");
  EXPECT_EQ(GroundOf("txtToroidAL"), QColor(0xFF, 0xEE, 0xEE));
  EXPECT_EQ(QApplication::focusWidget(), Find("txtToroidAL"));
  Type("txtToroidAL", "10");
  Type("txtInductance", "10u");
  ClickOn("cmdCalculate");
  EXPECT_EQ(GroundOf("txtToroidAL"), plain);
  EXPECT_EQ(dynamic_cast<Label&>(*Top().Find("lblTurns2")).caption, "100");
}

TEST_F(CoilWalk, MakesALowpassTubular) {
  DesignLowpass();
  ClickOn("Command6");
  Type("txtFrequencyNormalization", "1M");
  ClickOn("cmdCalculate");
  WithModal("cmdDrawPicture", [this] {
    EXPECT_EQ(Top().Id(), PageId::DrawLines);
    PressKey(Qt::Key_Escape);
  });
  EXPECT_EQ(Top().Id(), PageId::LumpedToTubular);
  ClickOn("cmdTransfer");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().stage[1].ElementType, TransLine);
}

}  // namespace
}  // namespace quilm
