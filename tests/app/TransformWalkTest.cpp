// Transforming a network in the real window, by mouse and keyboard.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

TEST_F(Walk, ATransformIsProposedAcceptedAndTakenBack) {
  DesignLowpass();
  ClickOn("optShuntInGeoSymm");
  Type("txtCenterFrequency", "10M");
  ClickOn("Command13");
  ASSERT_EQ(Top().Id(), PageId::Norton);
  const f64 drawn = static_cast<f64>(Find("picNorton")->width()) / desktop_.window.width();
  EXPECT_GT(drawn, 0.9);

  // Escape leaves the network as it was.
  PressKey(Qt::Key_Escape);
  ASSERT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Stages, 3);
  EXPECT_EQ(Record().Family, familyButterworth);

  ClickOn("Command13");
  ClickOn("optKeepResponse");
  ClickOn("cmdAccept");
  ASSERT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Stages, 7);
  EXPECT_EQ(desktop_.session.note, "response kept within 0.0000 dB");
  PressKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Record().Stages, 3);
  EXPECT_EQ(Record().Family, familyButterworth);

  // So does the window's close box.
  ClickOn("Command2");
  ASSERT_EQ(Top().Id(), PageId::SpecifyInductor);
  desktop_.window.close();
  QApplication::processEvents();
  EXPECT_FALSE(desktop_.session.ended);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

}  // namespace
}  // namespace quilm
