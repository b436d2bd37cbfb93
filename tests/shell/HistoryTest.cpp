#include "shell/History.h"

#include "shell/ShellBench.h"

namespace quilm {
namespace {

// A main page of entries over the bench: a box for the width, buttons for whatever a test hands in.
class HistoryTest : public testing::Test {
 protected:
  HistoryTest() {
    page.txtValue.onChange = [this] { session.record.Width = static_cast<f32>(page.txtValue.text.size()); };
  }

  DesignRecord& record() { return session.record; }

  // One act that does this.
  void Do(const std::function<void()>& deed) {
    page.cmdGo.onClick = deed;
    Click(session, page.cmdGo);
  }
  void SetOrder(f32 order) {
    Do([this, order] { record().Order = order; });
  }
  void TypeText(const std::string& text) {
    for (std::size_t length = 1; length <= text.size(); ++length) Type(session, page.txtValue, text.substr(0, length));
  }
  // How many steps can be taken back.
  int Steps() {
    int steps = 0;
    for (; CanUndo(session); ++steps) Undo(session);
    return steps;
  }

  ShellBench bench;
  Session& session = bench.session;
  BenchPage& page = bench.Show();
};

TEST_F(HistoryTest, AtTheStartThereIsNothing) {
  EXPECT_FALSE(CanUndo(session));
  EXPECT_FALSE(CanRedo(session));
  EXPECT_THROW(Undo(session), ActRefused);
  EXPECT_THROW(Redo(session), ActRefused);
}

TEST_F(HistoryTest, UndoAndRedoBringTheWholeRecordBack) {
  record().CircuitTitle = "before";
  record().stage[43].Cval = {1, 2};
  Do([] {});
  const DesignRecord before = record();
  Do([this] {
    record().Order = 7;
    record().stage[1].Lval.value = 5;
    record().Fstart = 100;
    record().LossBottom = -80;
    record().LimitCount[2] = 3;
    record().LimitTop[1][2] = 4;
    record().MarkerFreq[8] = 1e6F;
    record().Rsource[2] = 9;
    record().Gj[21] = 6;
  });
  const DesignRecord after = record();
  Undo(session);
  EXPECT_EQ(record(), before);
  Redo(session);
  EXPECT_EQ(record(), after);
}

TEST_F(HistoryTest, TheFamilyOptionComesBackToo) {
  session.familyOption = familyBessel;
  Do([this] {
    record().Family = familyCauer;
    session.familyOption = familyCauer;
  });
  Undo(session);
  EXPECT_EQ(session.familyOption, familyBessel);
  Redo(session);
  EXPECT_EQ(session.familyOption, familyCauer);
}

TEST_F(HistoryTest, ResponsesAreNotValidAfterAStep) {
  Do([this] {
    record().Order = 5;
    record().ResponsesValid = 1;
  });
  Undo(session);
  EXPECT_EQ(record().ResponsesValid, 0);
  record().ResponsesValid = 1;
  Redo(session);
  EXPECT_EQ(record().ResponsesValid, 0);
}

TEST_F(HistoryTest, StepsGoBackOneByOne) {
  for (const f32 order : {3.0F, 4.0F, 5.0F}) SetOrder(order);
  for (const f32 order : {4.0F, 3.0F, 0.0F}) {
    Undo(session);
    EXPECT_EQ(record().Order, order);
  }
  EXPECT_FALSE(CanUndo(session));
  for (const f32 order : {3.0F, 4.0F, 5.0F}) {
    Redo(session);
    EXPECT_EQ(record().Order, order);
  }
  EXPECT_FALSE(CanRedo(session));
}

TEST_F(HistoryTest, AnUndoAfterARedoTakesTheSameStepBack) {
  SetOrder(3);
  SetOrder(4);
  Undo(session);
  Redo(session);
  Undo(session);
  EXPECT_EQ(record().Order, 3);
}

TEST_F(HistoryTest, AChangeAfterAnUndoDropsWhatCouldBeRedone) {
  SetOrder(3);
  SetOrder(4);
  Undo(session);
  SetOrder(9);
  EXPECT_FALSE(CanRedo(session));
  Undo(session);
  EXPECT_EQ(record().Order, 3);
}

TEST_F(HistoryTest, AnActThatChangesNothingIsNoStep) {
  SetOrder(3);
  Undo(session);
  Do([] {});
  SetOrder(0);
  EXPECT_FALSE(CanUndo(session));
  EXPECT_TRUE(CanRedo(session));
}

TEST_F(HistoryTest, WhatIsOnlyNotedIsNoStep) {
  Do([this] {
    record().ResponsesValid = 1;
    record().DesignChanged = 1;
    record().DesignFileName = "a.QLM";
    record().DesignDate = "today";
    record().PlotCode = 3;
    record().TopologyHelpCode = 4;
    record().LimitsShown = 1;
    record().MarkersShown = 1;
  });
  EXPECT_FALSE(CanUndo(session));
}

TEST_F(HistoryTest, ADesignSavedUnderANameKeepsIt) {
  SetOrder(3);
  Do([this] { record().DesignFileName = "saved.QLM"; });
  Undo(session);
  EXPECT_EQ(record().DesignFileName, "saved.QLM");
  Redo(session);
  EXPECT_EQ(record().DesignFileName, "saved.QLM");
}

TEST_F(HistoryTest, TheNameOfAFileThatWasReadGoesWithIt) {
  record().DesignFileName = "old.QLM";
  SetOrder(3);
  Do([this] {
    record().Order = 8;
    record().DesignFileName = "new.QLM";
    record().LimitsShown = 1;
  });
  Undo(session);
  EXPECT_EQ(record().DesignFileName, "old.QLM");
  EXPECT_EQ(record().LimitsShown, 0);
  Redo(session);
  EXPECT_EQ(record().DesignFileName, "new.QLM");
  EXPECT_EQ(record().LimitsShown, 1);
}

// What was noted meanwhile is no part of a step, but where a step began.
TEST_F(HistoryTest, AFileReadOverASavedDesignGivesTheSavedNameBack) {
  SetOrder(3);
  Do([this] { record().DesignFileName = "saved.QLM"; });
  Do([this] {
    record().Order = 8;
    record().DesignFileName = "new.QLM";
  });
  Undo(session);
  EXPECT_EQ(record().DesignFileName, "saved.QLM");
  Undo(session);
  EXPECT_EQ(record().DesignFileName, "saved.QLM");
}

TEST_F(HistoryTest, ThePlotOnDisplayStays) {
  SetOrder(3);
  Do([this] { record().PlotCode = 11; });
  Undo(session);
  EXPECT_EQ(record().PlotCode, 11);
}

TEST_F(HistoryTest, KeystrokesInOneBoxAreOneStep) {
  TypeText("abcd");
  Undo(session);
  EXPECT_EQ(record().Width, 0);
  EXPECT_FALSE(CanUndo(session));
  Redo(session);
  EXPECT_EQ(record().Width, 4);
}

TEST_F(HistoryTest, StepsOfASpinControlAreStepsEachUnlessItSaysOtherwise) {
  page.UpDown1.onUp = [this] { record().Order += 1; };
  const auto stepsOfThree = [this] {
    for (int i = 0; i < 3; ++i) Step(session, page.UpDown1, +1);
    Click(session, page.optOne);
    return Steps();
  };
  EXPECT_EQ(stepsOfThree(), 3);
  page.UpDown1.oneAct = true;
  EXPECT_EQ(stepsOfThree(), 1);
  EXPECT_EQ(record().Order, 0);
}

TEST_F(HistoryTest, AnotherControlEndsTheActOfASpinControl) {
  page.UpDown1.oneAct = true;
  page.UpDown1.onUp = [this] { record().Order += 1; };
  Step(session, page.UpDown1, +1);
  Click(session, page.optOne);
  Step(session, page.UpDown1, +1);
  EXPECT_EQ(Steps(), 2);
}

TEST_F(HistoryTest, LeavingTheBoxEndsTheStep) {
  TypeText("ab");
  Leave(session, page.txtValue);
  TypeText("abcd");
  Undo(session);
  EXPECT_EQ(record().Width, 2);
}

TEST_F(HistoryTest, AnotherControlEndsTheStep) {
  TypeText("ab");
  Step(session, page.UpDown1, +1);
  TypeText("abcd");
  Undo(session);
  EXPECT_EQ(record().Width, 2);
}

TEST_F(HistoryTest, AControlWithoutAHandlerEndsItToo) {
  TypeText("ab");
  Click(session, page.optOne);
  TypeText("abcd");
  Undo(session);
  EXPECT_EQ(record().Width, 2);
}

TEST_F(HistoryTest, ATimerAndAPassingMouseDoNot) {
  page.Timer1.enabled = true;
  page.picPlot.onMouseMove = [](f32, f32, MouseButton) {};
  TypeText("ab");
  Tick(session, page.Timer1);
  Mouse(session, page.picPlot, MouseAct::Move, 1, 2, MouseButton::Left);
  TypeText("abcd");
  Undo(session);
  EXPECT_EQ(record().Width, 0);
}

TEST_F(HistoryTest, TypingBackToTheFormerTextLeavesNoStep) {
  SetOrder(3);
  TypeText("ab");
  Type(session, page.txtValue, "");
  Leave(session, page.txtValue);
  Undo(session);
  EXPECT_EQ(record().Order, 0);
}

TEST_F(HistoryTest, TypingOnAfterAnUndoIsANewStep) {
  TypeText("ab");
  Undo(session);
  Type(session, page.txtValue, "xyz");
  EXPECT_FALSE(CanRedo(session));
  Undo(session);
  EXPECT_EQ(record().Width, 0);
}

TEST_F(HistoryTest, WhatALeftBoxIsHeldToJoinsItsTyping) {
  page.txtValue.onLeave = [this] { record().Width = 100; };
  TypeText("ab");
  Leave(session, page.txtValue);
  Undo(session);
  EXPECT_EQ(record().Width, 0);
  EXPECT_FALSE(CanUndo(session));
}

TEST_F(HistoryTest, AnEntryThatTakesEffectWhenItsBoxIsLeftIsAStep) {
  page.txtValue.onChange = nullptr;
  page.txtValue.onLeave = [this] { record().Width = 100; };
  SetOrder(3);
  TypeText("ab");
  Leave(session, page.txtValue);
  Undo(session);
  EXPECT_EQ(record().Width, 0);
  EXPECT_EQ(record().Order, 3);
}

TEST_F(HistoryTest, WhatFollowsJoinsTheStepBefore) {
  SetOrder(3);
  Do([this] {
    const History::Following following(session);
    record().Stages = 3;
  });
  const DesignRecord computed = record();
  Undo(session);
  EXPECT_EQ(record().Stages, 0);
  EXPECT_EQ(record().Order, 0);
  EXPECT_FALSE(CanUndo(session));
  Redo(session);
  EXPECT_EQ(record(), computed);
}

TEST_F(HistoryTest, WhatFollowsAnUndoLeavesTheRedo) {
  SetOrder(3);
  SetOrder(4);
  Undo(session);
  Do([this] {
    const History::Following following(session);
    record().Stages = 3;
  });
  EXPECT_TRUE(CanRedo(session));
  Redo(session);
  EXPECT_EQ(record().Order, 4);
  EXPECT_EQ(record().Stages, 0);
  Undo(session);
  EXPECT_EQ(record().Stages, 3);
}

TEST_F(HistoryTest, WhatFollowsWithoutAStepIsWhereTheHistoryBegins) {
  Do([this] {
    const History::Following following(session);
    record().Stages = 3;
  });
  EXPECT_FALSE(CanUndo(session));
  SetOrder(4);
  Undo(session);
  EXPECT_EQ(record().Stages, 3);
}

TEST_F(HistoryTest, ALoadStepFollows) {
  page.onLoad = [this] { record().Stages = 3; };
  SetOrder(4);
  Do([this] { session.pages.ShowPage(PageId::Design); });
  EXPECT_EQ(record().Stages, 3);
  EXPECT_EQ(Steps(), 1);
}

TEST_F(HistoryTest, AChangeBesideWhatFollowsIsAStep) {
  SetOrder(3);
  Do([this] {
    {
      const History::Following following(session);
      record().Stages = 3;
    }
    record().Order = 8;
  });
  Undo(session);
  EXPECT_EQ(record().Order, 3);
  EXPECT_EQ(record().Stages, 0);
}

TEST_F(HistoryTest, WhatTheUserChangesInAModalPageMeanwhileIsAStepOfItsOwn) {
  bench.platform.modalActs.push_back([this](Page& form) {
    auto& button = static_cast<BenchPage&>(form).cmdGo;
    button.onClick = [this] { record().Order = 8; };
    Click(session, button);
  });
  SetOrder(3);
  Do([this] {
    const History::Following following(session);
    record().Stages = 3;
    session.pages.ShowModal(PageId::EnterWidth);
    record().Stages = 4;
  });
  EXPECT_EQ(session.history.UndoText(), "Bench");
  Undo(session);
  EXPECT_EQ(record().Order, 3);
  EXPECT_EQ(record().Stages, 0);
  Undo(session);
  EXPECT_EQ(record().Order, 0);
}

TEST(HistoryAtTheStart, WhatRunsBeforeThereIsAPageIsWhereTheHistoryBegins) {
  ShellBench bench;
  RunHandler(bench.session, [&] { bench.session.record.Fstart = 1000; });
  EXPECT_FALSE(CanUndo(bench.session));
}

TEST_F(HistoryTest, StepsTellWhatTheyDid) {
  page.optOne.onClick = [this] { record().Family = 1; };
  page.UpDown1.onUp = [this] { record().Order += 1; };
  Click(session, page.optOne);
  EXPECT_EQ(session.history.UndoText(), "One");
  Step(session, page.UpDown1, 1);
  EXPECT_EQ(session.history.UndoText(), "Order");
  TypeText("a");
  EXPECT_EQ(session.history.UndoText(), "Value");
  EXPECT_EQ(session.history.RedoText(), "");
  Undo(session);
  EXPECT_EQ(session.history.UndoText(), "Order");
  EXPECT_EQ(session.history.RedoText(), "Value");
  EXPECT_EQ(session.note, "Undone: Value");
  Redo(session);
  EXPECT_EQ(session.note, "Redone: Value");
}

TEST_F(HistoryTest, AUnitIsNoPartOfTheName) {
  page.txtValue.accessibleName = "Passband ripple, dB";
  TypeText("a");
  EXPECT_EQ(session.history.UndoText(), "Passband ripple");
}

TEST_F(HistoryTest, TwoHundredStepsAreKept) {
  for (int i = 1; i <= 250; ++i) SetOrder(static_cast<f32>(i));
  EXPECT_EQ(Steps(), 200);
  EXPECT_EQ(record().Order, 50);
  for (int i = 0; i < 200; ++i) Redo(session);
  EXPECT_EQ(record().Order, 250);
}

TEST_F(HistoryTest, UndoLoadsThePageAnew) {
  SetOrder(3);
  bench.log.clear();
  page.onLoad = [this] { bench.log.push_back("order " + std::to_string(static_cast<int>(record().Order))); };
  Undo(session);
  EXPECT_THAT(bench.log, testing::ElementsAre("load frmDesign", "order 0"));
}

TEST_F(HistoryTest, UndoShowsThePageWhereTheChangeWasMade) {
  SetOrder(3);
  Do([this] {
    session.pages.ShowPage(PageId::Plotted);
    session.pages.UnloadPage(PageId::Design);
  });
  bench.log.clear();
  Undo(session);
  EXPECT_EQ(session.pages.Top()->Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::Plotted), nullptr);
  EXPECT_EQ(record().Order, 0);
}

TEST_F(HistoryTest, APageThatWasLeftIsLoadedOnce) {
  SetOrder(3);
  Do([this] {
    session.pages.ShowPage(PageId::Plotted);
    session.pages.UnloadPage(PageId::Design);
  });
  bench.log.clear();
  Undo(session);
  EXPECT_THAT(bench.log, testing::ElementsAre("load frmDesign", "destroyed frmPlotted"));
}

TEST_F(HistoryTest, ALoadStepCannotTouchWhatComesBack) {
  SetOrder(3);
  Do([this] {
    session.pages.ShowPage(PageId::Plotted);
    session.pages.UnloadPage(PageId::Design);
  });
  bench.prepare = [&](BenchPage& made) {
    made.onLoad = [this] { record().Astop = 99; };
    made.onReload = [] {};
  };
  Undo(session);
  EXPECT_EQ(record().Astop, 0);
}

TEST_F(HistoryTest, ALoadStepCannotTouchTheFamilyOptionThatComesBack) {
  session.familyOption = familyBessel;
  SetOrder(3);
  Do([this] {
    session.pages.ShowPage(PageId::Plotted);
    session.pages.UnloadPage(PageId::Design);
  });
  bench.prepare = [&](BenchPage& made) {
    made.onLoad = [this] { session.familyOption = familyCauer; };
    made.onReload = [] {};
  };
  Undo(session);
  EXPECT_EQ(session.familyOption, familyBessel);
}

TEST_F(HistoryTest, ItIsOffWhileAHandlerRuns) {
  SetOrder(3);
  Do([this] {
    EXPECT_FALSE(CanUndo(session));
    EXPECT_THROW(Undo(session), ActRefused);
  });
  EXPECT_TRUE(CanUndo(session));
}

TEST_F(HistoryTest, ItIsOffWhileAModalPageIsOpen) {
  SetOrder(3);
  bench.platform.modalActs.push_back([this](Page&) { EXPECT_FALSE(CanUndo(session)); });
  Do([this] { session.pages.ShowModal(PageId::EnterWidth); });
}

TEST_F(HistoryTest, AFaultyHandlersChangeCanBeTakenBack) {
  Do([this] {
    record().Order = 9;
    throw Fault("half done");
  });
  EXPECT_EQ(record().Order, 9);
  Undo(session);
  EXPECT_EQ(record().Order, 0);
}

// Opens a tool over the page and lets it do this.
class HistoryToolTest : public HistoryTest {
 protected:
  void OpenTool(std::function<void(BenchPage&)> use) {
    bench.platform.modalActs.push_back([use = std::move(use)](Page& tool) { use(static_cast<BenchPage&>(tool)); });
    Do([this] {
      record().Apass = 1;
      const History::Tool tool(session);
      session.pages.ShowModal(PageId::EnterWidth);
    });
  }
  void Tune(BenchPage& tool, f32 width) {
    tool.cmdGo.onClick = [this, width] { record().Width = width; };
    Click(session, tool.cmdGo);
  }
};

TEST_F(HistoryToolTest, ItsActsAreStepsWhileItIsOpen) {
  OpenTool([this](BenchPage& tool) {
    Tune(tool, 10);
    Tune(tool, 20);
    EXPECT_TRUE(CanUndo(session));
    Undo(session);
    EXPECT_EQ(record().Width, 10);
    Undo(session);
    EXPECT_EQ(record().Width, 0);
    Redo(session);
    EXPECT_EQ(record().Width, 10);
    EXPECT_EQ(session.pages.Top(), &tool);
  });
}

TEST_F(HistoryToolTest, UndoGoesNoFurtherBackThanToItsOpening) {
  OpenTool([this](BenchPage& tool) {
    EXPECT_FALSE(CanUndo(session));
    Tune(tool, 10);
    Undo(session);
    EXPECT_FALSE(CanUndo(session));
    EXPECT_EQ(record().Apass, 1);
  });
  EXPECT_TRUE(CanUndo(session));
  Undo(session);
  EXPECT_EQ(record().Apass, 0);
}

// Its first step then drops the oldest one, and its opening lies a place further down.
TEST_F(HistoryToolTest, InAFullHistoryUndoGoesBackToItsOpeningToo) {
  for (int i = 1; i <= 200; ++i) SetOrder(static_cast<f32>(i));
  OpenTool([this](BenchPage& tool) {
    Tune(tool, 10);
    ASSERT_TRUE(CanUndo(session));
    Undo(session);
    EXPECT_EQ(record().Width, 0);
    EXPECT_EQ(record().Apass, 1);
    EXPECT_FALSE(CanUndo(session));
  });
}

TEST_F(HistoryToolTest, ItsStepsCanBeTakenBackWhenItHasClosed) {
  OpenTool([this](BenchPage& tool) {
    Tune(tool, 10);
    Tune(tool, 20);
  });
  Undo(session);
  EXPECT_EQ(record().Width, 10);
  EXPECT_EQ(session.pages.Top(), &page);
  Undo(session);
  Undo(session);
  EXPECT_EQ(record().Apass, 0);
  EXPECT_FALSE(CanUndo(session));
}

TEST_F(HistoryToolTest, UndoLoadsTheToolAndItsPageAnew) {
  OpenTool([this](BenchPage& tool) {
    Tune(tool, 10);
    bench.log.clear();
    Undo(session);
    EXPECT_THAT(bench.log, testing::UnorderedElementsAre("load frmDesign", "load frmEnterWidth"));
  });
}

TEST_F(HistoryToolTest, WhatItsCallerDoesAfterwardsIsAStepOfItsOwn) {
  bench.platform.modalActs.push_back([this](Page& tool) { Tune(static_cast<BenchPage&>(tool), 10); });
  Do([this] {
    {
      const History::Tool tool(session);
      session.pages.ShowModal(PageId::EnterWidth);
    }
    record().Order = 4;
  });
  Undo(session);
  EXPECT_EQ(record().Order, 0);
  EXPECT_EQ(record().Width, 10);
}

using Meanwhile = History::Group::Meanwhile;

class HistoryGroupTest : public HistoryTest {
 protected:
  // What the Edit page does: a first act begins, others go on, one ends it.
  void Begin(Meanwhile meanwhile = Meanwhile::UndoTakesAllBack) {
    Do([this, meanwhile] {
      group.emplace(session, "Insert a part", meanwhile);
      record().Stages = 1;
    });
  }
  void GoOn() {
    Do([this] { record().stage[1].ElementType = 3; });
  }
  void Accept() {
    Do([this] {
      group.reset();
      record().stage[1].Cval.value = 5;
    });
  }

  std::optional<History::Group> group;
};

TEST_F(HistoryGroupTest, ItsActsAreTakenBackAsOne) {
  SetOrder(3);
  Begin();
  GoOn();
  Accept();
  EXPECT_EQ(session.history.UndoText(), "Insert a part");
  Undo(session);
  EXPECT_EQ(record().Stages, 0);
  EXPECT_EQ(record().stage[1], Stage{});
  EXPECT_EQ(record().Order, 3);
  Redo(session);
  EXPECT_EQ(record().stage[1].Cval.value, 5);
}

TEST_F(HistoryGroupTest, ItsActsAreTakenBackAsOneInAFullHistoryToo) {
  for (int i = 1; i <= 200; ++i) SetOrder(static_cast<f32>(i));
  Begin();
  GoOn();
  Accept();
  Undo(session);
  EXPECT_EQ(record().Stages, 0);
  EXPECT_EQ(record().Order, 200);
}

TEST_F(HistoryGroupTest, UndoMeanwhileTakesAllOfItBack) {
  SetOrder(3);
  Begin();
  GoOn();
  page.onLoad = [this] { group.reset(); };  // the page returns to browsing
  Undo(session);
  EXPECT_EQ(record().Stages, 0);
  EXPECT_EQ(record().Order, 3);
  EXPECT_FALSE(CanRedo(session));
  SetOrder(4);
  Undo(session);
  EXPECT_EQ(record().Order, 3);
}

TEST_F(HistoryGroupTest, UndoBeforeItsFirstChangeReturnsToBrowsing) {
  SetOrder(3);
  Do([this] { group.emplace(session, "Change topology", Meanwhile::UndoTakesAllBack); });
  EXPECT_EQ(session.history.UndoText(), "Change topology");
  page.onLoad = [this] { group.reset(); };
  Undo(session);
  EXPECT_FALSE(group);
  EXPECT_EQ(record().Order, 3);
  EXPECT_EQ(session.history.UndoText(), "Go");
}

TEST_F(HistoryGroupTest, AProposalTurnsUndoOff) {
  SetOrder(3);
  Begin(Meanwhile::UndoIsOff);
  EXPECT_FALSE(CanUndo(session));
  EXPECT_THROW(Undo(session), ActRefused);
  Accept();
  EXPECT_TRUE(CanUndo(session));
  Undo(session);
  EXPECT_EQ(record().Stages, 0);
}

TEST_F(HistoryGroupTest, AProposalPutBackByHandLeavesNoStep) {
  SetOrder(3);
  Begin(Meanwhile::UndoIsOff);
  Do([this] {
    record().Stages = 0;
    group.reset();
  });
  EXPECT_EQ(Steps(), 1);
}

TEST_F(HistoryGroupTest, AProposalThatALoadStepWritesIsOneToo) {
  page.onLoad = [this] {
    group.emplace(session, "Norton", Meanwhile::UndoIsOff);
    record().Stages = 7;
  };
  SetOrder(3);
  Do([this] { session.pages.ShowPage(PageId::Design); });
  page.onLoad = nullptr;
  Do([this] { group.reset(); });
  Undo(session);
  EXPECT_EQ(record().Stages, 0);
  EXPECT_EQ(record().Order, 3);
}

TEST_F(HistoryGroupTest, WhatTheSameActDidBeforeIsAStepOfItsOwn) {
  Do([this] {
    record().Order = 5;
    group.emplace(session, "Insert a part", Meanwhile::UndoTakesAllBack);
    record().Stages = 1;
  });
  Accept();
  Undo(session);
  EXPECT_EQ(record().Order, 5);
  EXPECT_EQ(record().Stages, 0);
  Undo(session);
  EXPECT_EQ(record().Order, 0);
}

TEST_F(HistoryGroupTest, AnActAfterItIsAStepOfItsOwn) {
  Begin();
  Accept();
  SetOrder(6);
  Undo(session);
  EXPECT_EQ(record().Order, 0);
  EXPECT_EQ(record().Stages, 1);
}

class SavedDesign : public HistoryTest {
 protected:
  void Save(const std::string& name) {
    Do([this, name] {
      record().DesignFileName = name;
      session.history.MarkSaved(session);
    });
  }
  bool Saved() { return session.history.IsSaved(session); }
};

TEST_F(SavedDesign, AtTheStartThereIsNone) {
  EXPECT_FALSE(Saved());
  SetOrder(3);
  EXPECT_FALSE(Saved());
}

TEST_F(SavedDesign, IsOneUntilItIsChanged) {
  SetOrder(3);
  Save("a");
  EXPECT_TRUE(Saved());
  SetOrder(4);
  EXPECT_FALSE(Saved());
}

TEST_F(SavedDesign, ComesBackByUndoAndRedo) {
  SetOrder(3);
  Save("a");
  SetOrder(4);
  SetOrder(5);
  Undo(session);
  EXPECT_FALSE(Saved());
  Undo(session);
  EXPECT_TRUE(Saved());
  Undo(session);
  EXPECT_FALSE(Saved());
  Redo(session);
  EXPECT_TRUE(Saved());
  Redo(session);
  EXPECT_FALSE(Saved());
}

TEST_F(SavedDesign, ComesBackByHandToo) {
  SetOrder(3);
  Save("a");
  SetOrder(4);
  SetOrder(3);
  EXPECT_TRUE(Saved());
}

TEST_F(SavedDesign, IsNotChangedByWhatFollows) {
  SetOrder(3);
  Save("a");
  Do([this] {
    const History::Following following(session);
    record().Stages = 3;
    record().ResponsesValid = 1;
  });
  EXPECT_TRUE(Saved());
  SetOrder(4);
  SetOrder(3);
  EXPECT_TRUE(Saved());
}

// Within the act the change counts already: the status line follows while a modal page is open.
TEST_F(SavedDesign, IsChangedAsSoonAsItsActHasChangedIt) {
  Save("a");
  Do([this] {
    record().Order = 7;
    RunHandler(session, [] {});
    EXPECT_FALSE(Saved());
  });
}

TEST_F(SavedDesign, UnderAnotherNameIsAnotherOne) {
  SetOrder(3);
  Save("a");
  SetOrder(4);
  Save("b");
  EXPECT_TRUE(Saved());
  // A save that fails has left its name alone.
  Do([this] { record().DesignFileName = "c"; });
  EXPECT_FALSE(Saved());
}

// What is written over is no longer on the disk.
TEST_F(SavedDesign, IsTheLastOneUnderItsName) {
  SetOrder(3);
  Save("a");
  SetOrder(4);
  Save("a");
  Undo(session);
  EXPECT_FALSE(Saved());
  Redo(session);
  EXPECT_TRUE(Saved());
}

// Reading a design is a step, and the design before it was that of its own file.
TEST_F(SavedDesign, TheOneBeforeAReadIsSavedStill) {
  SetOrder(3);
  Save("a");
  Do([this] {
    record().Order = 9;
    record().DesignFileName = "b";
    session.history.MarkSaved(session);
  });
  EXPECT_TRUE(Saved());
  Undo(session);
  EXPECT_EQ(record().DesignFileName, "a");
  EXPECT_TRUE(Saved());
  Redo(session);
  EXPECT_EQ(record().DesignFileName, "b");
  EXPECT_TRUE(Saved());
}

// A tool that takes the place of the Design page.
class ToolPage : public HistoryTest {
 protected:
  class Tool : public BenchPage {
   public:
    Tool(Session& session, Log& heard) : BenchPage(session, PageId::EnterWidth, heard) { title = "End sections"; }
    PageId Home() const override { return PageId::Design; }
  };
};

TEST_F(ToolPage, ItsStepIsOneOfThePageThatItStandsFor) {
  Log log;
  PageDirectory pages;
  pages[PageId::Design] = [&log](Session& owner) { return std::make_unique<BenchPage>(owner, PageId::Design, log); };
  pages[PageId::EnterWidth] = [&log](Session& owner) { return std::make_unique<Tool>(owner, log); };
  Session program(bench.platform, std::move(pages));
  program.pages.ShowPage(PageId::Design);
  program.pages.ShowPage(PageId::EnterWidth);
  program.pages.UnloadPage(PageId::Design);
  auto& tool = static_cast<BenchPage&>(*program.pages.Top());
  tool.cmdGo.onClick = [&program] {
    program.record.Stages = 5;
    program.pages.ShowPage(PageId::Design);
    program.pages.UnloadPage(PageId::EnterWidth);
  };
  Click(program, tool.cmdGo);
  EXPECT_EQ(program.history.UndoText(), "End sections");
  Undo(program);
  EXPECT_EQ(program.pages.Top()->Id(), PageId::Design);
  EXPECT_EQ(program.record.Stages, 0);
}

}  // namespace
}  // namespace quilm
