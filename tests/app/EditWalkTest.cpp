// Entry by hand and editing in the real window, by mouse alone and by keyboard alone.
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "core/ElementTypes.h"

namespace quilm {
namespace {

// By the names of the palette, code 1 first, and what becomes of them.
struct NamedElement {
  const char* name;
  i16 type;
};

constexpr NamedElement elements[] = {
    {"SeriesL", SeriesL},
    {"ShuntL", ShuntL},
    {"SeriesC", SeriesC},
    {"ShuntC", ShuntC},
    {"SeriesSLC", SeriesSLC},
    {"ShuntSLC", ShuntSLC},
    {"SeriesPLC", SeriesPLC},
    {"ShuntPLC", ShuntPLC},
    {"SeriesR", SeriesR},
    {"ShuntR", ShuntR},
    {"TransLine", TransLine},
    {"SeriesShortStub", SeriesShortStub},
    {"SeriesOpenStub", SeriesOpenStub},
    {"ShuntShortStub", ShuntShortStub},
    {"ShuntOpenStub", ShuntOpenStub},
    {"Transformer", Transformer},
    {"SeriesReactance", SeriesL},
    {"ShuntReactance", ShuntL},
    {"CoupledInductors", CoupledInductors},
    {"ShuntRLC", ShuntRLC},
    {"SeriesRLC", SeriesRLC},
};

class EditWalk : public Walk {
 protected:
  std::string Focused() {
    return QApplication::focusWidget() == nullptr ? "" : QApplication::focusWidget()->objectName().toStdString();
  }
  // The value boxes that are seen take "2", ".5" for the coupling.
  static const char* ValueFor(const std::string& box) { return box == "txtCouplingCoefficient" ? ".5" : "2"; }

  std::vector<std::string> OpenBoxes() {
    std::vector<std::string> open;
    for (const Control* control : Top().Controls()) {
      const bool value = control->kind == ControlKind::Text && control->Shown();
      const bool other =
          control->name.find("Termination") != std::string::npos || control->name.find("Band") != std::string::npos;
      if (value && !other) open.push_back(control->name);
    }
    return open;
  }

  void ExpectAllElements() {
    ASSERT_EQ(Record().Stages, 21);
    int stage = 0;
    for (const NamedElement& element : elements) {
      EXPECT_EQ(Record().stage[++stage].ElementType, element.type) << element.name;
    }
  }
};

TEST_F(EditWalk, ANetworkOfEveryElementIsEnteredByMouseAndItsBoxes) {
  ClickOn("cmdManualEntry");
  Type("txtInputTermination", "50");
  Type("txtOutputTermination", "75");
  for (const NamedElement& element : elements) {
    ClickArea("picEntry", element.name);
    for (const std::string& box : OpenBoxes()) Type(box.c_str(), ValueFor(box));
    ClickOn("cmdAccept");
  }
  ExpectAllElements();
  ClickOn("cmdExitEntry");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Record().Topology, "M");
}

TEST_F(EditWalk, ANetworkOfEveryElementIsEnteredByKeyboardAlone) {
  Find("cmdManualEntry")->setFocus();
  PressKey(Qt::Key_Return);
  ASSERT_EQ(Focused(), "txtInputTermination");
  Keys("50");
  PressKey(Qt::Key_Tab);
  ASSERT_EQ(Focused(), "txtOutputTermination");
  Keys("75");
  Find("picEntry")->setFocus(Qt::TabFocusReason);
  for (const NamedElement& element : elements) {
    ASSERT_EQ(Focused(), "picEntry") << element.name;
    WalkToBand("picEntry", element.name);
    PressKey(Qt::Key_Return);
    const auto boxes = OpenBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      const std::string box = Focused();
      PressKey(Qt::Key_A);  // the text of a box that gets the focus is selected
      PressKey(Qt::Key_Backspace);
      Keys(ValueFor(box));
      if (i + 1 < boxes.size()) PressKey(Qt::Key_Tab);
    }
    // The first shows what was understood, the second accepts.
    PressKey(Qt::Key_Return);
    if (Find("cmdAccept")->isVisible()) PressKey(Qt::Key_Return);
  }
  ExpectAllElements();
}

TEST_F(EditWalk, StagesAreSelectedWithArrowKeysAndEditedWithKeys) {
  DesignLowpass();
  QTest::keyClick(&desktop_.window, Qt::Key_3, Qt::ControlModifier);
  QApplication::processEvents();
  ASSERT_EQ(Top().Id(), PageId::Edit);
  ASSERT_EQ(Focused(), "picEdit");
  PressKey(Qt::Key_End);
  EXPECT_TRUE(AreaOf("picEdit", "load").present);
  PressKey(Qt::Key_Home);
  EXPECT_TRUE(AreaOf("picEdit", "source").present);
  EXPECT_TRUE(Find("cmdEditValues")->isEnabled());
  PressKey(Qt::Key_Delete);
  EXPECT_EQ(Record().Stages, 3) << "the source cannot be deleted";
  PressKey(Qt::Key_Right);
  PressKey(Qt::Key_Right);
  EXPECT_TRUE(AreaOf("picEdit", "stage2").present);
  PressKey(Qt::Key_Delete);
  EXPECT_EQ(Record().Stages, 2);
  EXPECT_EQ(Record().stage[2].ElementType, ShuntC);
  PressKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Record().Stages, 3);
  ClickArea("picEdit", "stage2");
  PressKey(Qt::Key_Left);
  EXPECT_TRUE(AreaOf("picEdit", "stage1").present) << "the keys go on from the click";
  PressKey(Qt::Key_Insert);
  EXPECT_EQ(Record().Stages, 4);
  EXPECT_FALSE(Find("cmdPlot")->isEnabled());
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Present("picEdit"), "SeriesL");
  PressKey(Qt::Key_Down);
  PressKey(Qt::Key_Return);
  EXPECT_EQ(Record().stage[1].ElementType, ShuntL);
  EXPECT_EQ(Focused(), "txtInductorsValue");
  Keys("12");
  PressKey(Qt::Key_Delete);
  EXPECT_EQ(Record().Stages, 4) << "within a box the key is the box's";
  Keys("u");
  PressKey(Qt::Key_Return);
  EXPECT_EQ(Record().stage[1].Lval.value, 12e-6F);
  EXPECT_EQ(Focused(), "picEdit");
}

TEST_F(EditWalk, ALongStripIsDraggedWithTheMouse) {
  DesignLowpass();
  auto& record = desktop_.session.record;
  record.Family = familyManual;
  record.NetworkEdited = 1;
  for (int s = 1; s <= 20; ++s) record.stage[s].ElementType = ShuntR;
  record.Stages = 20;
  QTest::keyClick(&desktop_.window, Qt::Key_3, Qt::ControlModifier);
  QApplication::processEvents();
  const f32 before = AreaOf("picEdit", "source").from.x;
  PictureView& sheet = Sheet("picEdit");
  const QPoint place = Areas("picEdit").PlaceOf(AreaOf("picEdit", "stage5")).center();
  QTest::mousePress(&sheet, Qt::LeftButton, {}, place);
  QTest::mouseMove(&sheet, place - QPoint(100, 0));
  QTest::mouseRelease(&sheet, Qt::LeftButton, {}, place - QPoint(100, 0));
  QApplication::processEvents();
  EXPECT_LT(AreaOf("picEdit", "source").from.x, before - 1000);
  EXPECT_TRUE(AreaOf("picEdit", "stage5").present);
}

}  // namespace
}  // namespace quilm
