// A diplexer in the real window: designed by keys, its topology and its exact form by mouse, and the way out.
#include "WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

class DiplexerDesignWalk : public Walk {
 protected:
  const Diplexer& Dip() { return desktop_.session.diplexer; }
  std::string TextOf(const char* name) { return dynamic_cast<QLineEdit&>(*Find(name)).text().toStdString(); }

  void Open() {
    DesignLowpass();
    ClickOn("Command5");
    ASSERT_EQ(Top().Id(), PageId::Diplexer);
  }
};

TEST_F(DiplexerDesignWalk, IsDesignedWithTheKeyboard) {
  Open();
  EXPECT_EQ(QApplication::focusWidget(), Find("txtOrder"));
  Keys("3");
  PressKey(Qt::Key_Tab);
  Keys("0.1");
  PressKey(Qt::Key_Tab);
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Find("txtCrossover"));
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Find("optPartFactor")) << "boxes that are hidden take no stop";
  Find("txtOrder")->setFocus();
  PressKey(Qt::Key_Return);  // what was understood
  PressKey(Qt::Key_Return);
  EXPECT_EQ(Dip().DipOrder, 3);
  EXPECT_NEAR(Dip().DipLowElem[1], 12.042e-6F, 1e-9F);
  const DesignRecord before = Record();
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record(), before);
}

TEST_F(DiplexerDesignWalk, NothingJumpsWhenTheTopologyChanges) {
  Open();
  const QRect order = Find("txtOrder")->geometry();
  const QRect drawing = Find("picDiplexer")->geometry();
  const QRect plot = Find("cmdPlot")->geometry();
  ClickOn("cmdTopology");
  EXPECT_EQ(Dip().DipMode, 2);
  EXPECT_FALSE(Find("txtCrossover")->isVisible());
  EXPECT_TRUE(Find("txtFlower")->isVisible());
  EXPECT_FALSE(Find("cmdResonate")->isVisible());
  EXPECT_EQ(Find("txtOrder")->geometry(), order);
  EXPECT_EQ(Find("picDiplexer")->geometry(), drawing);
  EXPECT_EQ(Find("cmdPlot")->geometry(), plot);
  ClickOn("optExact3dB");
  EXPECT_TRUE(Dip().exact3dB);
}

TEST_F(DiplexerDesignWalk, ResonanceIsADialogThatChangesNothing) {
  Open();
  const f32 before = Dip().DipLowElem[1];
  WithModal("cmdResonate", [this] {
    EXPECT_EQ(Top().Id(), PageId::DipResonate);
    ClickOn("cmdNext");
    EXPECT_EQ(dynamic_cast<Label&>(*Top().Find("lblPartNumber")).caption, "3");
    PressKey(Qt::Key_Escape);
  });
  EXPECT_EQ(Top().Id(), PageId::Diplexer);
  EXPECT_EQ(Dip().DipLowElem[1], before);
}

}  // namespace
}  // namespace quilm
