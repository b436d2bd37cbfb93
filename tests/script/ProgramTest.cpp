// The program as a process: its arguments, its streams and its exit status.
#include <cstdio>
#include <map>

#include "script/ProgramBench.h"

namespace quilm {
namespace {

TEST_F(Program, RunsTheScriptOnStandardInputFromTheOpeningPage) {
  const Ended ended = Run("", "page\n");
  EXPECT_EQ(ended.status, 0) << ended.err;
  const auto events = ended.Events();
  ASSERT_EQ(events.size(), 2U);
  EXPECT_EQ(events[0], json({{"event", "show"}, {"page", "frmOpening"}}));
  EXPECT_EQ(events[1]["page"], "frmOpening");
}

TEST_F(Program, ADashIsStandardInputToo) { EXPECT_EQ(Run("-", "parse 1k\n").Events().back()["value"], 1000.0); }

// A lowpass, and a press of Plot that computes it.
constexpr const char* lowpass =
    "press cmdDesignNew\npress optButterworth\npress optCapInLowpass\ntype txtInputTerm 50\ntype txtBandwidth 1M\n"
    "press cmdPlot\n";

TEST_F(Program, UndoAndRedoTakeTheNetworkWithTheEntry) {
  const Ended ended = Run("", std::string(lowpass) + "undo\nrecord Width Stages\nredo\nrecord Width Stages\n");
  EXPECT_EQ(ended.status, 0) << ended.err;
  const auto events = ended.Events();
  std::vector<json> records;
  std::vector<json> shown;
  for (const json& event : events) {
    if (event["event"] == "record") records.push_back(event["record"]);
    if (event["event"] == "show") shown.push_back(event["page"]);
  }
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0], json({{"Width", 0.0}, {"Stages", 0}}));
  EXPECT_EQ(records[1], json({{"Width", 1e6}, {"Stages", 3}}));
  // Undo goes back to the page of the entry, where redo then stays.
  EXPECT_EQ(shown, (std::vector<json>{"frmOpening", "frmDesign", "frmPlotted", "frmDesign"}));
}

TEST_F(Program, NothingCanBeUndoneInAModalPage) {
  const Ended ended = Run("", std::string(lowpass) + "press cmdDesign\npress cmdTitle\nundo\n");
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(json::parse(ended.err)["reason"], "nothing can be undone now");
}

TEST_F(Program, RunsAFile) {
  std::ofstream(folder / "a script.qsc") << "parse 4.7u\r\n";
  const Ended ended = Run("'a script.qsc'");
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_EQ(ended.Events().back()["event"], "parse");
}

TEST_F(Program, AFailingCommandGivesOneAndSaysWhy) {
  const Ended ended = Run("", "# first\npress cmdNone\n");
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(json::parse(ended.err), json({{"event", "error"},
                                          {"line", 2},
                                          {"command", "press cmdNone"},
                                          {"reason", "there is no cmdNone on frmOpening"}}));
}

TEST_F(Program, UsageErrorsGiveTwo) {
  EXPECT_EQ(Run("--no-such-option").status, 2);
  EXPECT_EQ(Run("a b").status, 2);
  EXPECT_EQ(Run("--folder").status, 2);
  EXPECT_EQ(Run("no-such-file").status, 2);
  EXPECT_EQ(Run("tmp").status, 2);
  EXPECT_EQ(Run("--folder stdin").status, 2);
}

TEST_F(Program, HelpIsNoError) {
  const Ended ended = Run("--help");
  EXPECT_EQ(ended.status, 0);
  EXPECT_THAT(ended.out, testing::HasSubstr("--folder"));
}

TEST_F(Program, EndsItselfWithTheEventExit) {
  const Ended ended = Run("", "press cmdExitOpening\npage\n");
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_EQ(ended.Events().back(), json({{"event", "exit"}}));
}

TEST_F(Program, ItsTemporaryFolderIsRemoved) {
  Run("", "parse 1\n");
  Run("", "press cmdNone\n");
  EXPECT_TRUE(std::filesystem::is_empty(folder / "tmp"));
}

TEST_F(Program, ATemporaryFolderThatCannotBeMadeGivesTwoAndSaysWhy) {
  const Ended missing = RunInShell("TMPDIR=\"$PWD/none\" \"$quilm\" </dev/null >stdout 2>stderr");
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.err,
            "quilm-script: the folder for temporary files cannot be used: " + (folder / "none\n").string());
  // No folder can be made there by anybody.
  const Ended refused = RunInShell("TMPDIR=/proc \"$quilm\" </dev/null >stdout 2>stderr");
  EXPECT_EQ(refused.status, 2);
  EXPECT_THAT(refused.err, testing::StartsWith("quilm-script: no temporary folder can be made at /proc/"));
}

TEST_F(Program, AFolderThatCannotBeUsedGivesTwoAndSaysWhy) {
  std::filesystem::create_symlink("loop", folder / "loop");
  for (const char* name : {"stdin", "stdin/below", "loop", "''"}) {
    const Ended ended = Run("--folder " + std::string(name));
    EXPECT_EQ(ended.status, 2) << name;
    EXPECT_THAT(ended.err, testing::HasSubstr("is no folder, and cannot be made one")) << name;
    EXPECT_EQ(ended.out, "") << name;
  }
}

TEST_F(Program, AFolderThatIsProtectedAgainstWritingWillDo) {
  std::filesystem::create_directory(folder / "mine");
  std::ofstream(folder / "mine/QuilmConfiguration.CFG") << "Capacitor Q values: 1234 \r\n";
  std::filesystem::permissions(folder / "mine", std::filesystem::perms(0555));
  const Ended ended = Run("--folder mine", "record Qcap\n");
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_EQ(ended.Events().back()["record"]["Qcap"][0], 1234.0);
}

TEST_F(Program, OutputThatCannotBeWrittenGivesOneAndSaysWhy) {
  std::ofstream(folder / "stdin") << "page\n";
  for (const char* output : {">/dev/full", ">&-"}) {
    const Ended ended = RunInShell("\"$quilm\" <stdin 2>stderr " + std::string(output));
    EXPECT_EQ(ended.status, 1) << output;
    EXPECT_EQ(json::parse(ended.err)["reason"], "the output cannot be written") << output;
    EXPECT_TRUE(std::filesystem::is_empty(folder / "tmp")) << output;
  }
}

// More than a pipe holds, so that the writer is still at it when the reader has gone.
TEST_F(Program, AReaderThatGoesEndsTheRunAndItsTemporaryFolder) {
  std::ofstream script(folder / "stdin");
  for (int i = 0; i < 2000; ++i) script << "page\n";
  script.close();
  const Ended ended = RunInShell("\"$quilm\" <stdin 2>stderr | head -c 100 >stdout\nexit ${PIPESTATUS[0]}");
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(std::filesystem::is_empty(folder / "tmp"));
}

// It waits for a line that does not come, and has a file of its own in its folder by then. Whoever runs the tests in
// the background may ignore the signals.
TEST_F(Program, ASignalTakesItsTemporaryFolderAway) {
  for (const char* signal : {"TERM", "INT", "HUP"}) {
    const Ended ended = RunInShell(
        "rm -f in; mkfifo in\n"
        "env --default-signal=INT,HUP \"$quilm\" <in >stdout 2>stderr & pid=$!\n"
        "exec 3>in\n"
        "echo page >&3\n"
        "for i in $(seq 500); do test $(wc -l <stdout) = 2 && break; sleep 0.01; done\n"
        "for made in tmp/quilm-*; do echo mine >$made/mine; done\n"
        "kill -" +
        std::string(signal) + " $pid; wait $pid; exit $?");
    const std::map<std::string, int> number{{"TERM", 15}, {"INT", 2}, {"HUP", 1}};
    EXPECT_EQ(ended.status, 128 + number.at(signal)) << signal;
    EXPECT_EQ(ended.Events().size(), 2U) << signal;
    EXPECT_TRUE(std::filesystem::is_empty(folder / "tmp")) << signal;
  }
}

TEST_F(Program, ASignalThatIsIgnoredStaysSo) {
  const Ended ended = RunInShell(
      "mkfifo in\n"
      "(trap '' HUP; exec \"$quilm\" <in >stdout 2>stderr) & pid=$!\n"
      "exec 3>in\n"
      "echo page >&3\n"
      "for i in $(seq 500); do test $(wc -l <stdout) = 2 && break; sleep 0.01; done\n"
      "kill -HUP $pid; echo page >&3; exec 3>&-; wait $pid; exit $?");
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.Events().size(), 3U);
  EXPECT_TRUE(std::filesystem::is_empty(folder / "tmp"));
}

TEST_F(Program, TheFolderGivenHoldsTheConfiguration) {
  std::filesystem::create_directory(folder / "mine");
  std::ofstream(folder / "mine/QuilmConfiguration.CFG") << "Capacitor Q values: 1234 \r\n";
  const Ended ended = Run("--folder mine", "record Qcap Qind\n");
  const json record = ended.Events().back()["record"];
  EXPECT_EQ(record["Qcap"][0], 1234.0);
  EXPECT_EQ(record["Qind"][0], 200.0);
}

TEST_F(Program, AFolderThatIsMissingIsMade) {
  EXPECT_EQ(Run("--folder new", "").status, 0);
  EXPECT_TRUE(std::filesystem::is_directory(folder / "new"));
}

}  // namespace
}  // namespace quilm
