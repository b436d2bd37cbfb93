#include "shell/Acts.h"

#include "shell/ShellBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

// What an act is refused for, empty when it is not.
std::string Refusal(const std::function<void()>& act) {
  try {
    act();
  } catch (const ActRefused& refused) {
    return refused.what();
  }
  return "";
}

class ActsTest : public testing::Test {
 protected:
  ShellBench bench;
  Session& session = bench.session;
  BenchPage& page = bench.Show();
};

TEST_F(ActsTest, HiddenAndDisabledControlsAreRefused) {
  page.cmdGo.visible = false;
  EXPECT_EQ(Refusal([&] { Click(session, page.cmdGo); }), "cmdGo is hidden");
  page.cmdGo.visible = true;
  page.cmdGo.enabled = false;
  EXPECT_EQ(Refusal([&] { Click(session, page.cmdGo); }), "cmdGo is disabled");
}

TEST_F(ActsTest, EveryActOnADisabledControlIsRefused) {
  page.lstLines.items = {"one"};
  for (Control* control : page.Controls()) control->enabled = false;
  EXPECT_EQ(Refusal([&] { Click(session, page.optOne); }), "optOne is disabled");
  EXPECT_EQ(Refusal([&] { Type(session, page.txtValue, "1"); }), "txtValue is disabled");
  EXPECT_EQ(Refusal([&] { Step(session, page.UpDown1, 1); }), "UpDown1 is disabled");
  EXPECT_EQ(Refusal([&] { Choose(session, page.lstLines, 1); }), "lstLines is disabled");
  EXPECT_EQ(Refusal([&] { Mouse(session, page.picPlot, MouseAct::Down, 0, 0, MouseButton::Left); }),
            "picPlot is disabled");
  EXPECT_FALSE(page.optOne.Value());
  EXPECT_EQ(page.txtValue.text, "");
}

TEST_F(ActsTest, EveryActBelowThePageOnTopIsRefused) {
  page.lstLines.items = {"one"};
  bench.Show(PageId::EnterWidth);
  EXPECT_EQ(Refusal([&] { Click(session, page.cmdGo); }), "cmdGo is not on the page on top");
  EXPECT_EQ(Refusal([&] { Click(session, page.optOne); }), "optOne is not on the page on top");
  EXPECT_EQ(Refusal([&] { Type(session, page.txtValue, "1"); }), "txtValue is not on the page on top");
  EXPECT_EQ(Refusal([&] { Step(session, page.UpDown1, 1); }), "UpDown1 is not on the page on top");
  EXPECT_EQ(Refusal([&] { Choose(session, page.lstLines, 1); }), "lstLines is not on the page on top");
  EXPECT_EQ(Refusal([&] { Mouse(session, page.picPlot, MouseAct::Down, 0, 0, MouseButton::Left); }),
            "picPlot is not on the page on top");
  EXPECT_EQ(Refusal([&] { PressCloseBox(session, page); }), "The close box is not on the page on top");
  EXPECT_FALSE(page.optOne.Value());
  EXPECT_EQ(page.txtValue.text, "");
  EXPECT_TRUE(page.IsOpen());
}

TEST_F(ActsTest, AFrameHidesAndDisablesWhatItHolds) {
  page.fraBox.Hold({&page.cmdGo});
  page.fraBox.enabled = false;
  EXPECT_EQ(Refusal([&] { Click(session, page.cmdGo); }), "cmdGo is disabled");
  page.fraBox.visible = false;
  EXPECT_EQ(Refusal([&] { Click(session, page.cmdGo); }), "cmdGo is hidden");
}

TEST_F(ActsTest, WhatIsNoButtonIsNotClicked) {
  EXPECT_EQ(Refusal([&] { Click(session, page.lblValue); }), "lblValue is no button");
}

TEST_F(ActsTest, AReadOnlyBoxIsNotTypedIn) {
  page.txtValue.readOnly = true;
  EXPECT_EQ(Refusal([&] { Type(session, page.txtValue, "1"); }), "txtValue cannot be typed in");
}

TEST_F(ActsTest, AListHasTheLinesItHas) {
  page.lstLines.items = {"one", "two"};
  EXPECT_EQ(Refusal([&] { Choose(session, page.lstLines, 3); }), "lstLines has no line 3");
  EXPECT_EQ(Refusal([&] { Choose(session, page.lstLines, 0); }), "lstLines has no line 0");
  Choose(session, page.lstLines, 2);
  EXPECT_EQ(page.lstLines.selected, 2);
}

TEST_F(ActsTest, AnOptionIsSetBeforeItsHandlerRuns) {
  page.optOne.Set();
  page.optTwo.onClick = [&] { bench.log.push_back(page.optTwo.Value() && !page.optOne.Value() ? "set" : "not set"); };
  Click(session, page.optTwo);
  EXPECT_EQ(bench.log.back(), "set");
}

TEST_F(ActsTest, TypingChangesTheTextBeforeItsHandlerRuns) {
  page.txtValue.onChange = [&] { bench.log.push_back(page.txtValue.text); };
  Type(session, page.txtValue, "5k");
  EXPECT_EQ(bench.log.back(), "5k");
}

TEST_F(ActsTest, ABoxTakesNoMoreThanItsLength) {
  page.txtValue.maxLength = 3;
  Type(session, page.txtValue, "12345");
  EXPECT_EQ(page.txtValue.text, "123");
}

TEST_F(ActsTest, ABoxIsCutBetweenCharacters) {
  page.txtValue.maxLength = 2;
  Type(session, page.txtValue, "5\u00b5\u03a9");
  EXPECT_EQ(page.txtValue.text, "5\u00b5");
}

TEST_F(ActsTest, SpinsGoUpAndDown) {
  page.UpDown1.onUp = [&] { bench.log.push_back("up"); };
  page.UpDown1.onDown = [&] { bench.log.push_back("down"); };
  Step(session, page.UpDown1, +1);
  Step(session, page.UpDown1, -1);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "up", "down"));
}

TEST_F(ActsTest, TheMouseHasThreeActs) {
  const auto heard = [&](const char* name) {
    return [this, name](f32, f32, MouseButton) { bench.log.push_back(name); };
  };
  page.picPlot.onMouseDown = heard("down");
  page.picPlot.onMouseMove = heard("move");
  page.picPlot.onMouseUp = heard("up");
  for (const MouseAct act : {MouseAct::Down, MouseAct::Move, MouseAct::Up}) {
    Mouse(session, page.picPlot, act, 1, 2, MouseButton::Left);
  }
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "down", "move", "up"));
}

TEST_F(ActsTest, ATimerTicksWhileItIsEnabled) {
  page.Timer1.onTick = [&] { bench.log.push_back("tick"); };
  Tick(session, page.Timer1);
  page.Timer1.enabled = true;
  Tick(session, page.Timer1);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "tick"));
}

TEST_F(ActsTest, AControlWithoutAHandlerTakesTheAct) {
  Click(session, page.optOne);
  Type(session, page.txtValue, "1");
  EXPECT_TRUE(page.optOne.Value());
  EXPECT_EQ(page.txtValue.text, "1");
}

TEST_F(ActsTest, SettingValuesFromCodeFiresNothing) {
  const auto fired = [&] { bench.log.push_back("fired"); };
  page.optOne.onClick = page.optTwo.onClick = fired;
  page.txtValue.onChange = page.txtValue.onLeave = fired;
  page.lstLines.onClick = fired;
  page.optOne.Set();
  page.optTwo.Set();
  page.group.Clear();
  page.txtValue.text = "1";
  page.txtValue.Repair("2");
  page.lstLines.items = {"one"};
  page.lstLines.selected = 1;
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign"));
}

TEST_F(ActsTest, AFaultIsToldAndTheProgramGoesOn) {
  page.cmdGo.onClick = [] { throw Fault("no paper"); };
  Click(session, page.cmdGo);
  ASSERT_EQ(bench.platform.messages.size(), 1U);
  EXPECT_EQ(bench.platform.messages[0].text, "This action could not be finished:\r\nno paper");
  EXPECT_EQ(bench.platform.messages[0].icon, Icon::Critical);
  EXPECT_FALSE(session.ended);
  Type(session, page.txtValue, "1");
  EXPECT_EQ(page.txtValue.text, "1");
}

TEST_F(ActsTest, AFaultEndsTheInnermostHandlerAlone) {
  page.cmdGo.onClick = [&] {
    RunHandler(session, [] { throw Fault("inner"); });
    bench.log.push_back("outer goes on");
  };
  Click(session, page.cmdGo);
  EXPECT_EQ(bench.log.back(), "outer goes on");
  EXPECT_EQ(bench.platform.messages.size(), 1U);
}

TEST_F(ActsTest, TheEndOfTheProgramUnwindsAllHandlers) {
  page.cmdGo.onClick = [&] {
    RunHandler(session, [&] {
      RunHandler(session, [] { throw ProgramEnd{}; });
      bench.log.push_back("middle");
    });
    bench.log.push_back("outer");
  };
  EXPECT_NO_THROW(Click(session, page.cmdGo));
  EXPECT_TRUE(session.ended);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign"));
  EXPECT_EQ(session.handlerDepth, 0);
}

TEST_F(ActsTest, TheEndOfTheProgramClosesModalPages) {
  bench.prepare = [](BenchPage& form) { form.cmdGo.onClick = [] { throw ProgramEnd{}; }; };
  page.cmdGo.onClick = [&] {
    session.pages.ShowModal(PageId::EnterWidth);
    bench.log.push_back("returned");
  };
  bench.platform.modalActs.push_back([&](Page& form) { Click(session, static_cast<BenchPage&>(form).cmdGo); });
  Click(session, page.cmdGo);
  EXPECT_TRUE(session.ended);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "load frmEnterWidth"));
}

TEST_F(ActsTest, NothingRunsAfterTheEnd) {
  session.ended = true;
  page.cmdGo.onClick = [&] { bench.log.push_back("ran"); };
  Click(session, page.cmdGo);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign"));
}

TEST_F(ActsTest, TheDepthOfHandlersIsCounted) {
  page.cmdGo.onClick = [&] {
    EXPECT_EQ(session.handlerDepth, 1);
    RunHandler(session, [&] { EXPECT_EQ(session.handlerDepth, 2); });
  };
  Click(session, page.cmdGo);
  EXPECT_EQ(session.handlerDepth, 0);
}

TEST_F(ActsTest, ARefusalInsideAHandlerIsTheCallersFault) {
  page.cmdGo.onClick = [&] {
    page.optOne.enabled = false;
    Click(session, page.optOne);
  };
  EXPECT_EQ(Refusal([&] { Click(session, page.cmdGo); }), "optOne is disabled");
  EXPECT_TRUE(bench.platform.messages.empty());
  EXPECT_EQ(session.handlerDepth, 0);
}

TEST_F(ActsTest, ANoteEndsWithTheNextAct) {
  page.UpDown1.onUp = [] {};
  const std::function<void()> acts[] = {[&] { Click(session, page.cmdGo); },
                                        [&] { Click(session, page.optOne); },
                                        [&] { Type(session, page.txtValue, "1"); },
                                        [&] { Step(session, page.UpDown1, +1); },
                                        [&] { Mouse(session, page.picPlot, MouseAct::Down, 1, 1, MouseButton::Left); },
                                        [&] { PressCloseBox(session, page); }};
  page.picPlot.onMouseDown = [](f32, f32, MouseButton) {};
  int number = 0;
  for (const auto& act : acts) {
    session.note = "Saved";
    act();
    EXPECT_EQ(session.note, "") << number;
    ++number;
  }
}

TEST_F(ActsTest, TheMouseThatMovesAndATimerEndNoNote) {
  page.picPlot.onMouseMove = [](f32, f32, MouseButton) {};
  page.Timer1.enabled = true;
  session.note = "Saved";
  Mouse(session, page.picPlot, MouseAct::Move, 1, 1, MouseButton::Left);
  Tick(session, page.Timer1);
  EXPECT_EQ(session.note, "Saved");
}

// The user leaves a box by pressing a button: what was taken of the box is told behind that press, and until the next.
TEST_F(ActsTest, WhatIsToldOfABoxOutlivesTheActThatItWasLeftFor) {
  page.txtValue.onLeave = [this] { session.note = "taken as 0"; };
  Leave(session, page.txtValue);
  Click(session, page.cmdGo);
  EXPECT_EQ(session.note, "taken as 0");
  Click(session, page.cmdGo);
  EXPECT_EQ(session.note, "");
  // A box that has nothing to tell leaves the note of the act before, as when the focus moves by itself.
  page.txtValue.onLeave = nullptr;
  page.cmdGo.onClick = [this] { session.note = "Saved"; };
  Click(session, page.cmdGo);
  Leave(session, page.txtValue);
  EXPECT_EQ(session.note, "Saved");
  page.cmdGo.onClick = nullptr;
  Click(session, page.cmdGo);
  EXPECT_EQ(session.note, "");
}

}  // namespace
}  // namespace quilm
