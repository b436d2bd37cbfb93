// An evening at the bench in the real window, in one piece, by mouse and keyboard: entered by hand, edited, limited,
// tuned, optimised, toleranced, rounded and saved.
#include <QFile>
#include <QFileDialog>

#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "core/ElementTypes.h"
#include "core/Responses.h"
#include "display/ResponseCurves.h"
#include "network/modNearest5.h"
#include "shell/LongRun.h"

namespace quilm {
namespace {

class BenchWalk : public Walk {
 protected:
  // A ladder of five stages between 50 ohms, the palette by mouse and by keys in turn.
  void EnterByHand() {
    ClickOn("cmdManualEntry");
    Keys("50");
    PressKey(Qt::Key_Tab);
    Keys("50");
    EnterByMouse("ShuntC", "txtCapacitorsValue", "3n");
    EnterByKeys("SeriesL", "10u");
    EnterByMouse("ShuntC", "txtCapacitorsValue", "6n");
    EnterByKeys("SeriesL", "10u");
    EnterByMouse("ShuntC", "txtCapacitorsValue", "3n");
    Type("txtBandEdge", "1M");
    ClickOn("cmdExitEntry");
  }

  void EnterByMouse(const char* element, const char* box, const char* value) {
    ClickArea("picEntry", element);
    Type(box, value);
    ClickOn("cmdAccept");
  }

  void EnterByKeys(const char* element, const char* value) {
    Find("picEntry")->setFocus(Qt::TabFocusReason);
    WalkToBand("picEntry", element);
    PressKey(Qt::Key_Return);
    Keys(value);
    // The first shows what was understood, the second accepts.
    PressKey(Qt::Key_Return);
    PressKey(Qt::Key_Return);
  }

  // The second inductor becomes a trap.
  void EditATrapInto() {
    PressKey(Qt::Key_3, Qt::ControlModifier);
    ASSERT_EQ(Top().Id(), PageId::Edit);
    ClickArea("picEdit", "stage4");
    ClickOn("cmdChangeTopology");
    ClickArea("picEdit", "SeriesPLC");
    Type("txtInductorsValue", "8.5u");
    Type("txtCapacitorsValue", "450p");
    ClickOn("cmdAccept");
  }

  void EnterLimits() {
    PressKey(Qt::Key_5, Qt::ControlModifier);
    ASSERT_EQ(Top().Id(), PageId::Plotted);
    PressKey(Qt::Key_F, Qt::ControlModifier);
    WithTool("cmdLimits", [this] { ClickOn("cmdEnter"); });
    ClickOn("cmdLimit1");
    ClickPlot(6500, 1050);
    ClickOn("cmdLimit2");
    ClickPlot(7860, 5500);
  }

  // The first inductor up by three steps of 2 per cent: by wheel, arrow key and the control's own arrow.
  void TuneTheInductor() {
    WithTool("cmdTunePart", [this] {
      ClickOn("cmdForward");
      Type("txtPercentageValue", "2");
      Turn(PlotBeside(), +1);
      Find("UpDown1")->setFocus();
      PressKey(Qt::Key_Up);
      PressKey(Qt::Key_Up);
    });
  }

  void SetSteps(const char* percent) {
    WithModal("cmdStepSize", [this, percent] {
      Type("txtPercentageValue", percent);
      ClickOn("cmdAllItems");
      ClickOn("cmdExit");
    });
  }

  // Starts Monte Carlo and stops it a little later by its key. Gives how many trials there were.
  int TrialsUntilStopped() {
    constexpr int milliseconds = 50;
    int trials = 0;
    QTimer::singleShot(milliseconds, &desktop_.window, [&] {
      ASSERT_NE(desktop_.session.run, nullptr);
      trials = desktop_.session.run->Steps();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    ClickOn("cmdMonteCarlo");
    EXPECT_EQ(desktop_.session.run, nullptr);
    return trials;
  }

  // What the sweep shows in the two areas, with what is left open when the sum of all that lies outside is below 0.01.
  void ExpectLimitsMet() {
    const Responses& responses = desktop_.session.responses;
    constexpr f32 open = 0.01F;
    for (int i = 0; i <= LastPoint(Record()); ++i) {
      const f32 frequency = responses.RespFreq[i];
      const f32 transmission = responses.RespTrans[i];
      const bool passes = frequency <= Record().LimitStop[1][1];
      const bool stops = frequency >= Record().LimitStart[2][1];
      EXPECT_TRUE(!passes || transmission >= Record().LimitTop[1][1] - open) << frequency;
      EXPECT_TRUE(!stops || transmission <= Record().LimitBottom[2][1] + open) << frequency;
    }
  }

  void SaveAs(const QString& path) {
    constexpr int untilItStands = 100;
    QTimer::singleShot(untilItStands, &desktop_.window, [&path] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
    ClickOn("cmdSave");
    GiveKeyboardToWindow();
  }
};

TEST_F(BenchWalk, FromTheFirstElementToRoundedPartsOnTheDisk) {
  EnterByHand();
  ASSERT_EQ(Top().Id(), PageId::Analyze);
  ASSERT_EQ(Record().Stages, 5);
  EXPECT_EQ(Record().stage[2].Lval.value, 10e-6F);

  Type("txtNrIntervals", "2049");  // of what there is most, so that a run takes its time

  EditATrapInto();
  ASSERT_EQ(Record().stage[4].ElementType, SeriesPLC);
  EXPECT_EQ(Record().stage[4].Cval.value, 450e-12F);

  EnterLimits();
  ASSERT_EQ(Record().LimitCount[1], 2);
  // The sweep that fits a lowpass goes a decade to both sides: 4500 of the plot's 9000 lie at its edge.
  EXPECT_NEAR(Record().LimitStop[1][1], 1e6, 2e4);
  EXPECT_NEAR(Record().LimitTop[1][1], -0.5, 0.2);
  EXPECT_NEAR(Record().LimitStart[2][1], 2e6, 5e4);
  EXPECT_NEAR(Record().LimitBottom[2][1], -45, 0.5);

  TuneTheInductor();
  EXPECT_NEAR(Record().stage[2].Lval.value, 10e-6 * std::pow(1.02, 3), 1e-11);

  SetSteps("10");
  const Network tuned = Record();
  desktop_.session.random.Seed(7);
  ClickOn("cmdOptimize");
  ExpectLimitsMet();
  EXPECT_NE(Record().stage[1].Cval.value, tuned.stage[1].Cval.value);
  const Network optimised = Record();

  SetSteps("2");
  EXPECT_GT(TrialsUntilStopped(), 0);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  for (int s = 1; s <= 5; ++s) {
    EXPECT_EQ(Record().stage[s].Lval.value, optimised.stage[s].Lval.value) << s;
    EXPECT_EQ(Record().stage[s].Cval.value, optimised.stage[s].Cval.value) << s;
  }

  PressKey(Qt::Key_1, Qt::ControlModifier);
  ASSERT_EQ(Top().Id(), PageId::Design);
  ClickOn("Command1");
  ClickOn("cmdCapsRetuneInductors");
  ClickOn("cmdExit");
  for (const int s : {1, 3, 4, 5}) EXPECT_EQ(Record().stage[s].Cval.value, NearestE24(optimised.stage[s].Cval.value));
  EXPECT_FLOAT_EQ(Record().stage[4].Lval.value * Record().stage[4].Cval.value,
                  optimised.stage[4].Lval.value * optimised.stage[4].Cval.value);

  const QString path = folder_.filePath("evening.QLM");
  SaveAs(path);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readLine().startsWith("Quilm circuit file 43"));

  // And back again: rounding, optimising, and the trap.
  const f32 rounded = Record().stage[1].Cval.value;
  PressKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Record().stage[1].Cval.value, optimised.stage[1].Cval.value);
  PressKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Record().stage[1].Cval.value, rounded);
  for (int steps = 0; steps < 40 && Record().stage[4].ElementType != SeriesL; ++steps) {
    PressKey(Qt::Key_Z, Qt::ControlModifier);
  }
  EXPECT_EQ(Record().stage[4].ElementType, SeriesL);
  EXPECT_EQ(Record().stage[4].Lval.value, 10e-6F);
}

}  // namespace
}  // namespace quilm
