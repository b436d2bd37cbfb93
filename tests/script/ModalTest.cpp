// A press that opens a modal page takes the commands that follow until the page closes.
#include "script/ScriptBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

Log PageEvents(const Outcome& outcome) {
  Log pages;
  for (const Json& event : outcome.events) {
    if (event.contains("page") && event["event"] != "page") {
      pages.push_back(event["event"].get<std::string>() + " " + event["page"].get<std::string>());
    }
  }
  return pages;
}

TEST(Modal, TakesTheCommandsUntilItCloses) {
  const Outcome outcome = RunText("press cmdForm\npress cmdOk\npress cmdLog\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_THAT(outcome.log, ElementsAre("left entry []", "form closed", "log"));
  EXPECT_THAT(PageEvents(outcome), ElementsAre("show frmDesign", "modal frmEnterWidth", "unload frmEnterWidth"));
}

TEST(Modal, ThePageBelowCannotBeReached) {
  const Outcome outcome = RunText("press cmdForm\npress cmdLog\n");
  EXPECT_EQ(outcome.Reason(), "there is no cmdLog on frmEnterWidth");
}

TEST(Modal, OneMayOpenAnother) {
  const Outcome outcome = RunText("press cmdForm\npress cmdDeeper\npress cmdBack\npress cmdOk\npress cmdLog\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_THAT(PageEvents(outcome), ElementsAre("show frmDesign", "modal frmEnterWidth", "modal frmPlotted",
                                               "unload frmPlotted", "unload frmEnterWidth"));
  EXPECT_THAT(outcome.log, ElementsAre("left entry []", "form closed", "log"));
}

TEST(Modal, ItsCloseBoxClosesIt) {
  EXPECT_THAT(RunText("press cmdForm\nclose\npress cmdLog\n").log, ElementsAre("left entry []", "form closed", "log"));
}

TEST(Modal, TheFocusStartsInTheBoxThatThePageNames) {
  EXPECT_THAT(RunText("press cmdForm\ntype txtEntry 5\npress cmdOk\n").log,
              ElementsAre("left entry [5]", "form closed"));
}

TEST(Modal, TheEndOfTheScriptEndsQuietly) {
  const Outcome outcome = RunText("press cmdForm\npress cmdDeeper\n");
  EXPECT_FALSE(outcome.error);
  EXPECT_THAT(outcome.log, ElementsAre("left entry []"));
  EXPECT_TRUE(outcome.Of("exit").empty());
}

TEST(Modal, TheEndOfTheProgramUnwindsAllPages) {
  const Outcome outcome = RunText("press cmdForm\npress cmdEnd\npress cmdLog\n");
  EXPECT_THAT(outcome.log, ElementsAre("left entry []"));
  EXPECT_EQ(outcome.events.back()["event"], "exit");
}

TEST(Modal, AnErrorInsideBearsItsOwnLine) {
  const Outcome outcome = RunText("press cmdForm\n\npress cmdNone\n");
  ASSERT_TRUE(outcome.error);
  EXPECT_EQ(outcome.error->line, 3);
  EXPECT_EQ(outcome.error->command, "press cmdNone");
}

TEST(Modal, ABoxBelowIsLeftBeforeTheFormOpens) {
  EXPECT_THAT(RunText("type txtValue 1\npress cmdForm\npress cmdOk\n").log,
              ElementsAre("change [1]", "leave [1]", "left entry []", "form closed"));
}

}  // namespace
}  // namespace quilm
