// Long runs under a script: what a user does meanwhile comes by at-yield.
#include "script/ScriptBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

TEST(Run, TheNumberOfAYieldIsThatOfTheTrial) {
  for (const int n : {1, 2, 19, 20}) {
    const Outcome outcome = RunText("press cmdRuns\nat-yield " + std::to_string(n) + " press cmdEnd\npress cmdStart\n");
    EXPECT_FALSE(outcome.error) << outcome.Reason();
    EXPECT_THAT(outcome.run.heard, ElementsAre("end", "ran " + std::to_string(n)));
  }
}

TEST(Run, OtherButtonsAreRefusedMeanwhile) {
  for (const char* name : {"cmdOther", "cmdStart"}) {
    const Outcome outcome =
        RunText("press cmdRuns\nat-yield 3 press " + std::string(name) + "\npress cmdStart\npress cmdOther\n");
    EXPECT_EQ(outcome.Reason(), std::string(name) + " is disabled");
    EXPECT_TRUE(outcome.run.heard.empty());
  }
}

TEST(Run, ThePageIsListedAsTheUserSeesItMeanwhile) {
  const Outcome outcome = RunText("press cmdRuns\nat-yield 3 page\npress cmdStart\n");
  EXPECT_EQ(outcome.Control("cmdEnd")["enabled"], true);
  EXPECT_EQ(outcome.Control("cmdOther")["enabled"], false);
}

TEST(Run, TheCloseBoxEndsTheProgramFromInside) {
  const Outcome outcome = RunText("press cmdRuns\nat-yield 3 close\npress cmdStart\npress cmdOther\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_THAT(outcome.run.heard, ElementsAre("close box"));
  EXPECT_EQ(outcome.run.trials, 3);
  EXPECT_EQ(outcome.events.back()["event"], "exit");
}

TEST(Run, ASecondOneStartsFresh) {
  const Outcome outcome =
      RunText("press cmdRuns\nat-yield 2 press cmdExtremes\npress cmdStart\npress cmdStart\npress cmdOther\n");
  EXPECT_THAT(outcome.run.heard, ElementsAre("extremes", "ran 2", "ran 20", "other"));
}

TEST(Run, ASeedGivesTheSamePicture) {
  const Outcome outcome = RunText(
      "press cmdRuns\nseed 5\npress cmdStart\ncanvas\nseed 5\npress cmdStart\ncanvas\npress cmdStart\ncanvas\n");
  const std::vector<Json> pictures = outcome.Of("canvas");
  ASSERT_EQ(pictures.size(), 3U);
  EXPECT_EQ(pictures[0]["operations"].size(), 20U);
  EXPECT_EQ(pictures[0], pictures[1]);
  EXPECT_NE(pictures[0], pictures[2]);
}

}  // namespace
}  // namespace quilm
