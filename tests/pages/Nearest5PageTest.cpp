// Rounding the parts of a design to the 5 % series.

#include <cmath>

#include "core/modGeneral.h"
#include "desk/StartUp.h"
#include "network/modNearest5.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class Nearest5Page : public PageBench {
 protected:
  Nearest5Page() : PageBench(AllPages()) { StartProgram(session); }

  // A Cauer lowpass of odd order: capacitors, and inductors with a capacitor across.
  void OpenOfCauer() {
    Press("cmdDesignNew");
    Press("optCauer");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Enter("txtStopbandDepth", "50");
    while (session.record.Order != 5) Step(session, Get<Spin>("UpDown1"), session.record.Order < 5 ? 1 : -1);
    Enter("txtStopbandFreq", "1.5M");
    Press("Command1");
    ASSERT_EQ(Top().Id(), PageId::Nearest5);
  }

  void Open() {
    MakeLowpass();
    Press("cmdDesign");
    Press("Command1");
    ASSERT_EQ(Top().Id(), PageId::Nearest5);
  }

  std::vector<std::string> TransferButtons() {
    return {"cmdAll", "cmdCaps", "cmdInductors", "cmdCapsRetuneInductors", "cmdInductorsRetuneCaps"};
  }
};

TEST_F(Nearest5Page, TheTableShowsBeforeAndAfter) {
  Open();
  const auto& lines = Get<ListBox>("lstParts").items;
  ASSERT_EQ(lines.size(), static_cast<std::size_t>(session.network.Stages));
  // A Butterworth lowpass: g1 = 1 at order 2 gives sqrt 2, and so on: the values stand in the columns told.
  for (int s = 1; s <= session.network.Stages; ++s) {
    const std::string& line = lines[static_cast<std::size_t>(s - 1)];
    const Stage& stage = session.network.stage[s];
    EXPECT_EQ(line.substr(0, 9), "        " + std::to_string(s));
    if (stage.Cval.value > 0) {
      const std::string original = FormatCapacitance(stage.Cval.value);
      EXPECT_EQ(line.substr(11, original.size()), original);
      const std::string rounded = FormatCapacitance(NearestE24(stage.Cval.value));
      EXPECT_EQ(line.substr(22, rounded.size()), rounded);
      EXPECT_EQ(line.substr(32).find_first_not_of(' '), std::string::npos) << line;
    } else {
      const std::string original = FormatInductance(stage.Lval.value);
      EXPECT_EQ(line.substr(32, original.size()), original);
      const std::string rounded = FormatInductance(NearestE24(stage.Lval.value));
      EXPECT_EQ(line.substr(44, rounded.size()), rounded);
    }
  }
  EXPECT_FALSE(Get<Label>("lblScroll").visible);
}

TEST_F(Nearest5Page, AResonanceStandsWhereAStageHasBoth) {
  Open();
  Network& network = session.network;
  network.stage[1].Cval.value = 1e-9F;
  network.stage[1].Lval.value = 1e-6F;
  Press("cmdExit");
  // 1 / (2 Pi sqrt(1e-15)) = 5.03292 MHz.
  session.record.NetworkEdited = 1;
  session.record.Family = familyManual;
  Press("Command1");
  EXPECT_EQ(Get<ListBox>("lstParts").items[0].substr(53, 8), "5.03292M");
}

TEST_F(Nearest5Page, MoreThanNineStagesScroll) {
  Press("cmdDesignNew");
  Press("optButterworth");
  Press("optCapInLowpass");
  Enter("txtBandwidth", "1M");
  Enter("txtInputTerm", "50");
  while (Get<Label>("lblOrderInput").caption != "10") Step(session, Get<Spin>("UpDown1"), 1);
  Press("Command1");
  EXPECT_TRUE(Get<Label>("lblScroll").visible);
  EXPECT_EQ(Get<ListBox>("lstParts").items[9].substr(0, 9), "       10");
}

TEST_F(Nearest5Page, ATransferMakesTheDesignOneByHand) {
  Open();
  ASSERT_EQ(session.record.ResponsesValid, 1);
  Press("cmdAll");
  EXPECT_EQ(session.record.Family, familyManual);
  EXPECT_EQ(session.record.NetworkEdited, 1);
  EXPECT_EQ(session.record.ResponsesValid, 0);
  for (int s = 1; s <= session.network.Stages; ++s) {
    const Stage& stage = session.network.stage[s];
    EXPECT_EQ(stage.Cval.value, NearestE24(stage.Cval.value));
    EXPECT_EQ(stage.Lval.value, NearestE24(stage.Lval.value));
  }
  EXPECT_TRUE(Get<Label>("lblAll").visible);
  EXPECT_FALSE(Get<Label>("lblCaps").visible);
  Press("cmdExit");
  ASSERT_EQ(Top().Id(), PageId::Design);
  EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  EXPECT_FALSE(Get<OptionButton>("optButterworth").Value());
}

TEST_F(Nearest5Page, OneTransferAnOpening) {
  for (const std::string& button : TransferButtons()) {
    SCOPED_TRACE(button);
    if (session.pages.Top() == nullptr || Top().Id() != PageId::Nearest5) {
      if (Top().Id() == PageId::Opening) {
        Open();
      } else {
        Press("Command1");
      }
    }
    const std::vector<std::string> before = Get<ListBox>("lstParts").items;
    Press(button);
    for (const std::string& each : TransferButtons()) EXPECT_FALSE(Get<Button>(each).enabled) << each;
    EXPECT_EQ(Get<ListBox>("lstParts").items, before);
    Press("cmdExit");
    ASSERT_EQ(Top().Id(), PageId::Design);
  }
}

TEST_F(Nearest5Page, RetuningKeepsTheResonancesOfADesign) {
  OpenOfCauer();
  const Network before = session.network;
  Press("cmdCapsRetuneInductors");
  int tuned = 0;
  for (int s = 1; s <= before.Stages; ++s) {
    const Stage& was = before.stage[s];
    const Stage& is = session.network.stage[s];
    EXPECT_EQ(is.Cval.value, NearestE24(was.Cval.value));
    if (was.Lval.value == 0 || was.Cval.value == 0) continue;
    ++tuned;
    EXPECT_FLOAT_EQ(is.Lval.value * is.Cval.value, was.Lval.value * was.Cval.value);
    EXPECT_NE(is.Lval.value, was.Lval.value);
  }
  EXPECT_EQ(tuned, 2);
  EXPECT_TRUE(Get<Label>("lblCapsRetuneInductors").visible);
}

TEST_F(Nearest5Page, UndoTakesATransferBack) {
  Open();
  const DesignRecord before = session.record;
  Press("cmdCaps");
  ASSERT_FALSE(session.record == before);
  Undo(session);
  EXPECT_EQ(static_cast<const Network&>(session.record), static_cast<const Network&>(before));
  EXPECT_EQ(session.record.Family, familyButterworth);
  EXPECT_EQ(session.record.NetworkEdited, 0);
}

TEST_F(Nearest5Page, ANegativePartIsTold) {
  Open();
  EXPECT_EQ(session.note, "");
  Press("cmdExit");
  session.network.stage[1].Cval.value = -1e-9F;
  session.record.NetworkEdited = 1;
  session.record.Family = familyManual;
  Press("Command1");
  EXPECT_EQ(session.note, "A negative part was not rounded sensibly: no value of the series is near it");
  EXPECT_NE(Get<ListBox>("lstParts").items[0].find(FormatCapacitance(9.1e-15F)), std::string::npos);
  Press("cmdCaps");
  EXPECT_EQ(session.note, "A negative part was not rounded sensibly: no value of the series is near it");
}

}  // namespace
}  // namespace quilm
