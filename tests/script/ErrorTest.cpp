// Each way in which a command can fail, with the reason that it gives.
#include "core/DesignRecord.h"
#include "script/ScriptBench.h"

namespace quilm {
namespace {

struct Failing {
  const char* script;
  const char* reason;
};

class CommandErrors : public testing::TestWithParam<Failing> {};

constexpr Failing failing[] = {
    {"jump", "unknown command jump"},
    {"press", "the form is: press NAME"},
    {"press cmdLog twice", "the form is: press NAME"},
    {"press cmdNone", "there is no cmdNone on frmDesign"},
    {"press cmdHidden", "cmdHidden is hidden"},
    {"press cmdDisabled", "cmdDisabled is disabled"},
    {"press txtValue", "txtValue is no button"},
    {"type", "the form is: type NAME TEXT"},
    {"type cmdLog 5", "cmdLog is no text box"},
    {"type txtNone 5", "there is no txtNone on frmDesign"},
    {"type txtLeaves 123", "the page was left while typing"},
    {"spin UpDown1", "the form is: spin NAME up|down [COUNT]"},
    {"spin UpDown1 sideways", "the form is: spin NAME up|down [COUNT]"},
    {"spin UpDown1 up 0", "0 is not within 1 and 2147483647"},
    {"spin UpDown1 up many", "many is no whole number"},
    {"spin cmdLog up", "cmdLog is no spin control"},
    {"choose lstLines 3", "lstLines has no line 3"},
    {"choose lstLines 0", "0 is not within 1 and 2147483647"},
    {"choose cmdLog 1", "cmdLog is no list"},
    {"mouse down 1", "the form is: mouse down|move|up X Y [left|right]"},
    {"mouse drag 1 2", "the form is: mouse down|move|up X Y [left|right]"},
    {"mouse down 1 2 middle", "the form is: mouse down|move|up X Y [left|right]"},
    {"mouse down one 2", "one is no number"},
    {"mouse down nan 2", "nan is no number"},
    {"press cmdOther\nmouse down 1 2", "there is no picture on frmPlotted"},
    {"answer maybe", "the form is: answer ok|yes|no"},
    {"press cmdAsk", "no answer is queued for the question: Really?\r\nSure?"},
    {"answer ok\npress cmdAsk", "the question takes yes or no, and ok is queued: Really?\r\nSure?"},
    {"answer yes\npress cmdTell", "the message takes ok alone, and yes or no is queued: Done"},
    {"file", "the form is: file [open|save] PATH, or file cancel"},
    {"file open", "the form is: file [open|save] PATH, or file cancel"},
    {"file save  ", "the form is: file [open|save] PATH, or file cancel"},
    {"file open /a.QLM\npress cmdSave", "the dialog saves, and /a.QLM is queued to open: Write"},
    {"file save /a.QLM\npress cmdOpen", "the dialog opens, and /a.QLM is queued to save: Get"},
    {"press cmdOpen", "no answer is queued for the file dialog: Get"},
    {"press cmdSave", "no answer is queued for the file dialog: Write"},
    {"printer maybe", "the form is: printer ok|cancel"},
    {"close now", "the form is: close"},
    {"undo", "there is nothing to undo"},
    {"redo", "there is nothing to redo"},
    {"undo twice", "the form is: undo"},
    {"redo twice", "the form is: redo"},
    {"at-yield 2", "the form is: at-yield N COMMAND"},
    {"at-yield soon press cmdLog", "soon is no whole number"},
    {"at-yield 0 press cmdLog", "0 is not within 1 and 2147483647"},
    {"at-yield 1 press cmdNone\npress cmdRun", "there is no cmdNone on frmDesign"},
    {"seed -1", "-1 is not within 0 and 2147483647"},
    {"seed 1.5", "1.5 is no whole number"},
    {"date 2023-02-29 10:00:00", "2023-02-29 10:00:00 is no date"},
    {"date 2024-02-29 24:00:00", "2024-02-29 24:00:00 is no date"},
    {"date 2024-2-29 10:00:00", "the form is: date YYYY-MM-DD HH:MM:SS"},
    {"date 2024-02-29", "the form is: date YYYY-MM-DD HH:MM:SS"},
    {"date 2024-02--9 10:00:00", "the form is: date YYYY-MM-DD HH:MM:SS"},
    {"record Colour", "the record has no field Colour"},
    {"record order", "the record has no field order"},
    {"record TransPeak", "the record has no field TransPeak"},
    {"responses 1001", "1001 is not within 0 and 1000"},
    {"responses -1", "-1 is not within 0 and 1000"},
    {"responses first", "first is no whole number"},
    {"page frmDesign", "the form is: page"},
    {"canvas lblValue", "lblValue has no picture"},
    {"picture", "the form is: picture FILE.svg [NAME]"},
    {"picture /proc/none/a.svg", "/proc/none/a.svg cannot be written"},
    {"printed a.svg", "nothing was printed"},
    {"sketch", "the form is: sketch FILE.svg"},
    {"sketch /proc/none/a.svg", "/proc/none/a.svg cannot be written"},
    {"help me", "the form is: help"},
    {"format weight 1", "there is no format weight"},
    {"format value one", "one is no number"},
    {"format value 1e99", "1e99 is no number"},
    {"format value", "the form is: format KIND X"},
};

TEST_P(CommandErrors, GiveTheirReason) {
  const Outcome outcome = RunText(GetParam().script, [](Session& session) { session.record.NrIntervals = 1000; });
  ASSERT_TRUE(outcome.error);
  EXPECT_EQ(outcome.error->reason, GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(All, CommandErrors, testing::ValuesIn(failing));

TEST(ScriptErrors, StopTheRun) {
  const Outcome outcome = RunText("press cmdLog\npress cmdNone\npress cmdLog\n");
  EXPECT_EQ(outcome.log.size(), 1U);
}

TEST(ScriptErrors, BearLineAndCommand) {
  const Outcome outcome = RunText("# a comment\n\n  press   cmdNone  \n");
  ASSERT_TRUE(outcome.error);
  EXPECT_EQ(ErrorEvent(*outcome.error), Json({{"event", "error"},
                                              {"line", 3},
                                              {"command", "press   cmdNone"},
                                              {"reason", "there is no cmdNone on frmDesign"}}));
}

TEST(ScriptErrors, AnUnansweredQuestionDoesNotPassForAFaultOfTheProgram) {
  const Outcome outcome = RunText("press cmdAsk");
  EXPECT_TRUE(outcome.error);
  EXPECT_TRUE(outcome.Of("message").empty());
}

TEST(ScriptErrors, AFaultOfAHandlerIsAMessageAndNoError) {
  const Outcome outcome = RunText("press cmdFault\npress cmdLog\n");
  EXPECT_FALSE(outcome.error);
  EXPECT_EQ(outcome.One("message")["text"], "This action could not be finished:\r\nout of paper");
  EXPECT_EQ(outcome.log.size(), 1U);
}

// The sink fails at one event after the other, wherever it happens: at the start, in a handler, at the end.
TEST(ScriptErrors, AnEventThatCannotBePassedOnIsOne) {
  const std::string script = "press cmdTell\npress cmdBeep\npress cmdForm\npage\npress cmdOk\npage\npress cmdEnd\n";
  std::size_t events = 0;
  for (std::size_t limit = 0; limit <= events; ++limit) {
    const Outcome outcome = RunText(script, {}, limit);
    if (limit == 0) events = RunText(script).events.size();
    EXPECT_EQ(outcome.Reason(), limit < events ? "the pipe is shut" : "") << limit;
    EXPECT_EQ(outcome.events.size(), limit);
  }
  EXPECT_GE(events, 6U);
}

TEST(ScriptErrors, WhatTheStartAsksWithoutAnAnswerIsOneToo) {
  std::istringstream script;
  ScriptRun run(script, "/nowhere", {}, [](const Json&) {});
  try {
    run.Run([](Session& session) { session.platform.MessageBox("Go on?", Buttons::YesNo, Icon::Question, "Start"); });
    FAIL() << "nothing was thrown";
  } catch (const ScriptError& error) {
    EXPECT_EQ(error.line, 0);
    EXPECT_EQ(error.reason, "no answer is queued for the question: Go on?");
  }
}

}  // namespace
}  // namespace quilm
