#include "script/ScriptBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

TEST(Press, RunsTheHandlerOfAButtonAndOfAnOption) {
  EXPECT_THAT(RunText("press cmdLog\npress optTwo\n").log, ElementsAre("log", "optTwo"));
}

TEST(Type, MakesOneChangeAKeystroke) {
  EXPECT_THAT(RunText("type txtValue 1.5M").log,
              ElementsAre("change [1]", "change [1.]", "change [1.5]", "change [1.5M]"));
}

TEST(Type, ReplacesWhatTheBoxHeld) {
  EXPECT_THAT(RunText("type txtValue 1\ntype txtValue 2\n").log, ElementsAre("change [1]", "change [2]"));
}

TEST(Type, AnEmptyTextIsOneChange) {
  EXPECT_THAT(RunText("type txtValue 7\ntype txtValue\n").log, ElementsAre("change [7]", "change []"));
}

TEST(Type, TheTextRunsToTheLinesEnd) {
  const Outcome outcome = RunText("type txtValue a # b");
  EXPECT_EQ(outcome.log.back(), "change [a # b]");
  EXPECT_EQ(outcome.log.size(), 5U);
}

TEST(Type, ACharacterOfSeveralBytesIsOneKeystroke) {
  EXPECT_THAT(RunText("type txtValue \xC2\xB5H").log, ElementsAre("change [\xC2\xB5]", "change [\xC2\xB5H]"));
}

TEST(Type, AFullBoxTakesNoMoreKeys) {
  EXPECT_EQ(RunText("type txtShort 12345\npage").Control("txtShort")["text"], "123");
}

// After the second key the box holds 50, and the third goes to its end.
TEST(Type, AKeyGoesToTheEndOfWhatTheHandlerPutThere) {
  EXPECT_EQ(RunText("type txtShort 519\npage").Control("txtShort")["text"], "509");
}

TEST(Focus, MovingOnLeavesTheBoxFirst) {
  for (const char* next :
       {"press cmdLog", "type txtShort 1", "spin UpDown1 up", "choose lstLines 1", "close", "undo", "redo"}) {
    const Outcome outcome = RunText("type txtValue 5\n" + std::string(next));
    ASSERT_GE(outcome.log.size(), 2U) << next;
    EXPECT_EQ(outcome.log[1], "leave [5]") << next;
  }
}

TEST(Focus, StayingInTheBoxDoesNotLeaveIt) {
  const Outcome outcome = RunText("type txtValue 5\nrecord Order\npage\ntype txtValue 6\n");
  EXPECT_THAT(outcome.log, ElementsAre("change [5]", "change [6]"));
}

TEST(Focus, ABoxIsLeftOnce) {
  EXPECT_THAT(RunText("type txtValue 5\npress cmdLog\npress cmdLog\n").log,
              ElementsAre("change [5]", "leave [5]", "log", "log"));
}

TEST(Focus, GoesWhereThePageSendsIt) {
  EXPECT_THAT(RunText("press cmdFocus\npress cmdLog\n").log, ElementsAre("leave []", "log"));
}

TEST(Focus, APageThatIsGoneLeavesNothing) {
  const Outcome outcome = RunText("type txtLeaves 12\npress cmdBack\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
}

TEST(Spin, StepsAsOftenAsAsked) {
  EXPECT_THAT(RunText("spin UpDown1 up\nspin UpDown1 down 3\n").log, ElementsAre("up", "down", "down", "down"));
}

TEST(Choose, ClicksALine) { EXPECT_THAT(RunText("choose lstLines 2").log, ElementsAre("line 2")); }

TEST(Mouse, ActsOnThePagesPicture) {
  EXPECT_THAT(RunText("mouse down 10 20.5\nmouse move 11 -3 right\nmouse up 1e1 2 left\n").log,
              ElementsAre("down 10 20.5 left", "move 11 -3 right", "up 10 2 left"));
}

TEST(Close, PressesTheCloseBox) {
  const Outcome outcome = RunText("close\npress cmdLog\n");
  EXPECT_THAT(outcome.log, ElementsAre("close box"));
  EXPECT_EQ(outcome.events.back(), Json({{"event", "exit"}}));
}

TEST(AtYield, RunsInTheYieldOfItsNumber) {
  EXPECT_THAT(RunText("at-yield 4 press cmdStop\npress cmdRun\n").log, ElementsAre("ran 4"));
}

TEST(AtYield, CountsFromNow) {
  EXPECT_THAT(RunText("press cmdRun\nat-yield 2 press cmdStop\npress cmdRun\n").log, ElementsAre("ran 10", "ran 2"));
}

TEST(AtYield, SeveralInOneYieldRunInTheirOrder) {
  EXPECT_THAT(RunText("at-yield 1 press cmdLog\nat-yield 1 press optOne\nat-yield 1 press cmdStop\npress cmdRun\n").log,
              ElementsAre("log", "optOne", "ran 1"));
}

TEST(AtYield, MayTypeToTheLinesEnd) {
  EXPECT_EQ(RunText("at-yield 1 type txtValue a b\npress cmdRun\n").log[2], "change [a b]");
}

TEST(AtYield, MayEndTheProgram) {
  const Outcome outcome = RunText("at-yield 2 press cmdEnd\npress cmdRun\npress cmdLog\n");
  EXPECT_TRUE(outcome.log.empty());
  EXPECT_EQ(outcome.events.back()["event"], "exit");
}

TEST(Seed, GivesTheSameSequence) {
  const Outcome outcome = RunText("seed 7\npress cmdRandom\nseed 7\npress cmdRandom\nseed 8\npress cmdRandom\n");
  ASSERT_EQ(outcome.log.size(), 3U);
  EXPECT_EQ(outcome.log[0], outcome.log[1]);
  EXPECT_NE(outcome.log[0], outcome.log[2]);
}

TEST(Date, FixesTheClock) {
  EXPECT_THAT(RunText("date 2024-02-29 23:05:09\npress cmdClock\n").log, ElementsAre("2024 2 29 23 5 9"));
}

TEST(ProgramEnd, TheRestOfTheScriptIsNotRun) {
  const Outcome outcome = RunText("press cmdEnd\npress noSuchThing\n");
  EXPECT_FALSE(outcome.error);
  EXPECT_EQ(outcome.events.back()["event"], "exit");
}

TEST(ScriptEnd, WithoutTheProgramsOwnEndThereIsNoExit) {
  const Outcome outcome = RunText("press cmdLog");
  EXPECT_TRUE(outcome.Of("exit").empty());
  EXPECT_FALSE(outcome.error);
}

}  // namespace
}  // namespace quilm
