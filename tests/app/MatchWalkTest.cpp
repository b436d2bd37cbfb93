// Impedance matching in the real window, by mouse and by keys.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "shell/Session.h"

namespace quilm {
namespace {

class MatchWalk : public Walk {
 protected:
  MatchWalk() {
    ClickOn("cmdDesignNew");
    ClickOn("optButterworth");
    ClickOn("optNodCapBandpass");
    Type("txtBandwidth", "1M");
    Type("txtCenterFrequency", "10M");
    Type("txtInputTerm", "500");
    ClickOn("Command7");
    EXPECT_EQ(Top().Id(), PageId::ImpedanceMatch);
  }

  i16 TypeOf(int stage) { return Record().stage[stage].ElementType; }
};

TEST_F(MatchWalk, BothEndsAreMatchedByMouse) {
  const i16 stages = Record().Stages;
  Type("txtNewInputTermValue", "50");
  ClickOn("cmdPreviewInputOptions");
  EXPECT_GT(Sheet("picMatch").height(), desktop_.window.height() / 2);
  ClickArea("picMatch", "MatchOption3");
  Type("txtNewOutputTermValue", "75");
  ClickOn("cmdPreviewOutputOptions");
  ClickOn("cmdOutputOne");
  ClickOn("cmdAccept");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Stages, stages + 2);
  EXPECT_EQ(TypeOf(1), SeriesL);
  EXPECT_EQ(TypeOf(stages + 2), SeriesC);
  EXPECT_TRUE(desktop_.session.note.starts_with("response ")) << desktop_.session.note;
  QTest::keyClick(&desktop_.window, Qt::Key_Z, Qt::ControlModifier);
  QApplication::processEvents();
  EXPECT_EQ(Record().Stages, stages);
  EXPECT_EQ(Record().Family, familyButterworth);
}

TEST_F(MatchWalk, BothEndsAreMatchedByKeys) {
  const auto focused = [] {
    QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
  };
  EXPECT_EQ(focused(), "txtNewInputTermValue");
  PressKey(Qt::Key_2);
  PressKey(Qt::Key_5);
  PressKey(Qt::Key_Return);
  EXPECT_EQ(focused(), "cmdInputOne");
  PressKey(Qt::Key_Space);
  EXPECT_EQ(focused(), "txtNewOutputTermValue");
  PressKey(Qt::Key_Return);
  EXPECT_EQ(focused(), "cmdOutputNone");
  PressKey(Qt::Key_Space);
  EXPECT_EQ(focused(), "cmdAccept");
  PressKey(Qt::Key_Return);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Rsource[1], 25);
  EXPECT_EQ(TypeOf(1), SeriesC);
}

TEST_F(MatchWalk, EscapeIgnores) {
  const DesignRecord before = Record();
  Type("txtNewInputTermValue", "50");
  ClickOn("cmdPreviewInputOptions");
  ClickOn("cmdInputOne");
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(static_cast<const Network&>(Record()), static_cast<const Network&>(before));
  EXPECT_EQ(Record().Family, before.Family);
}

}  // namespace
}  // namespace quilm
