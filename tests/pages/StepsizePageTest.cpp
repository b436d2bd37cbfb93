// The entry of step sizes.
#include "core/ElementCatalogue.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"

namespace quilm {
namespace {

class StepsizePage : public PageBench {
 protected:
  StepsizePage() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
  }

  void Open(std::function<void()> act, const char* button = "cmdStepSize") {
    platform.modalActs.push_back([act = std::move(act)](Page&) { act(); });
    Press(button);
  }

  DesignRecord& Record() { return session.record; }
  std::string Box() { return Get<TextBox>("txtPercentageValue").text; }

  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (const PictureOp& operation : Get<PictureBox>("picItem").picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) lines.push_back(text->text);
    }
    return lines;
  }

  void SetTypes(std::initializer_list<i16> types) {
    Record().Stages = 0;
    for (const i16 type : types) {
      Stage& stage = Record().stage[++Record().Stages];
      stage = {};
      stage.ElementType = type;
    }
  }
};

TEST_F(StepsizePage, WalksTheValuesOfTheStages) {
  SetTypes({SeriesRLC, TransLine, Transformer, CoupledInductors});
  Record().stage[1].Lval.value = 1e-6F;
  Record().stage[1].Cval.value = 1e-12F;
  Record().stage[1].Rval.value = 50;
  Record().stage[2].TLval = {90, 1e6F, 75, 0, 0};
  Record().stage[3].XfmrVal.value = 2;
  Record().stage[4].CoupledVal = {1e-6F, 2e-6F, 0.5F, 0, 0, 0};
  Open([&] {
    EXPECT_EQ(Top().title, "Stepsize entry");
    const std::vector<std::vector<std::string>> expected = {{"Stage: 1", "L: 1uH"},
                                                            {"Stage: 1", "C: 1pF"},
                                                            {"Stage: 1", "R: 50"},
                                                            {"Stage: 2", "Length: 90 degr. @ 1M"},
                                                            {"Stage: 2", "Impedance: 75"},
                                                            {"Stage: 3", "Turns ratio N=2:1"},
                                                            {"Stage: 4", "Primary inductance: 1uH"},
                                                            {"Stage: 4", "Secondary inductance: 2uH"},
                                                            {"Stage: 4", "Coupling coefficient: 0.5"}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(Lines(), expected[i]);
      EXPECT_EQ(Get<Button>("cmdReverse").Active(), i > 0);
      EXPECT_EQ(Get<Button>("cmdForward").Active(), i + 1 < expected.size());
      if (i + 1 < expected.size()) Press("cmdForward");
    }
    Press("cmdReverse");
    EXPECT_EQ(Lines(), expected[7]);
  });
}

TEST_F(StepsizePage, OnlyEnterStoresAsTyped) {
  Open([&] {
    EXPECT_EQ(Box(), "0");
    Enter("txtPercentageValue", "250");
    EXPECT_EQ(Record().stage[1].Cval.tolerance, 0);
    Press("cmdForward");
    Press("cmdReverse");
    EXPECT_EQ(Box(), "0");
    Enter("txtPercentageValue", "250");
    Press("cmdEnter");
    EXPECT_EQ(Record().stage[1].Cval.tolerance, 250);
    Enter("txtPercentageValue", "-3");
    Press("cmdEnter");
    EXPECT_EQ(Record().stage[1].Cval.tolerance, -3);
    EXPECT_EQ(Record().stage[2].Lval.tolerance, 0);
  });
  EXPECT_EQ(Record().Family, familyButterworth);
  EXPECT_EQ(Record().ResponsesValid, 1);
}

TEST_F(StepsizePage, AllItemsGetOneStepOfAtMostAHundred) {
  Open([&] {
    Enter("txtPercentageValue", "-5");
    Press("cmdAllItems");
    EXPECT_EQ(Get<Label>("lblAllItems").caption, "Stepsize for all items has been set to 5%");
    EXPECT_EQ(Box(), "5");
    Enter("txtPercentageValue", "250");
    Press("cmdAllItems");
    EXPECT_EQ(Get<Label>("lblAllItems").caption, "Stepsize for all items has been set to 100%");
    Press("cmdForward");
    EXPECT_EQ(Box(), "100");
    EXPECT_EQ(Get<Label>("lblAllItems").caption, "");
  });
  for (int s = 1; s <= 3; ++s) {
    for (const Slot& slot : AllSlots()) {
      if (slot.tolerance) {
        EXPECT_EQ(slot.tolerance(Record().stage[s]), 100) << s << " " << slot.name;
      }
    }
  }
}

TEST_F(StepsizePage, TellsWhileAllAreZero) {
  Open([&] {
    EXPECT_TRUE(Get<Label>("lblNotice").Shown());
    EXPECT_EQ(Get<Label>("lblNotice").caption, "All stepsizes are currently zero");
    Enter("txtPercentageValue", "1");
    Press("cmdEnter");
    EXPECT_FALSE(Get<Label>("lblNotice").Shown());
    Enter("txtPercentageValue", "0");
    Press("cmdEnter");
    EXPECT_TRUE(Get<Label>("lblNotice").Shown());
  });
}

TEST_F(StepsizePage, ExitLoadsThePlotAfresh) {
  Open([&] {
    EXPECT_FALSE(session.pages.Find(PageId::Plotted)->Find("cmd1")->visible);
    platform.pageEvents.clear();
    Press("cmdExit");
  });
  EXPECT_EQ(platform.pageEvents, (std::vector<std::string>{"unload frmMonteCarloSetup", "show frmPlotted"}));
  EXPECT_TRUE(Get<Button>("cmd1").visible);
}

TEST_F(StepsizePage, OpensFromTheAnalysisPageToo) {
  Press("cmdAnalysis");
  Open([&] { Press("cmdExit"); }, "cmdStepsize");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(StepsizePage, IsOneActToUndo) {
  Open([&] {
    Enter("txtPercentageValue", "5");
    Press("cmdEnter");
    Press("cmdForward");
    Enter("txtPercentageValue", "2");
    Press("cmdEnter");
  });
  EXPECT_EQ(session.history.UndoText(), "Stepsize entry");
  Undo(session);
  EXPECT_EQ(Record().stage[1].Cval.tolerance, 0);
  EXPECT_EQ(Record().stage[2].Lval.tolerance, 0);
}

TEST_F(StepsizePage, ANetworkWithoutValuesHasNothingToEnter) {
  SetTypes({});
  Press("cmdAnalysis");
  Open(
      [&] {
        for (const char* name : {"txtPercentageValue", "cmdEnter", "cmdAllItems", "cmdForward", "cmdReverse"}) {
          EXPECT_FALSE(Get<Control>(name).Active()) << name;
        }
        Press("cmdExit");
      },
      "cmdStepsize");
}

}  // namespace
}  // namespace quilm
