// The program as a process: its arguments, its streams and its exit status.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

using nlohmann::json;

struct Ended {
  int status = -1;
  std::string out;
  std::string err;

  std::vector<json> Events() const {
    std::vector<json> events;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) events.push_back(json::parse(line));
    return events;
  }
};

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Program : public testing::Test {
 protected:
  Program() {
    std::string name = (std::filesystem::temp_directory_path() / "quilm-test-XXXXXX").string();
    folder = mkdtemp(name.data());
    std::filesystem::create_directory(folder / "tmp");
  }
  ~Program() override { std::filesystem::remove_all(folder); }

  // Runs it in the test's folder, which also holds its temporary files.
  Ended Run(const std::string& arguments, const std::string& script = {}) {
    std::ofstream(folder / "stdin") << script;
    return RunInShell("\"$quilm\" " + arguments + " <stdin >stdout 2>stderr");
  }

  // Runs commands of the shell there; $quilm is the program.
  Ended RunInShell(const std::string& commands) {
    std::ofstream(folder / "commands") << "cd '" + folder.string() + "'\nexport TMPDIR='" + (folder / "tmp").string() +
                                              "'\nquilm='" QUILM_SCRIPT "'\n" + commands;
    const int status = std::system(("bash '" + (folder / "commands").string() + "'").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(folder / "stdout"), ContentOf(folder / "stderr")};
  }

  std::filesystem::path folder;
};

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

// It waits for a line that does not come, and has a file of its own in its folder by then.
TEST_F(Program, ASignalTakesItsTemporaryFolderAway) {
  for (const char* signal : {"TERM", "INT", "HUP"}) {
    const Ended ended = RunInShell(
        "rm -f in; mkfifo in\n"
        "(trap - INT; exec \"$quilm\" <in >stdout 2>stderr) & pid=$!\n"
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

// The prototype worked by the closed form in double precision (Matthaei, Young, Jones: Microwave Filters,
// Impedance-Matching Networks, and Coupling Structures, equation 4.05-2). The book's table of four decimals, worked
// with a rounded constant, has 1.1811, 1.4228, 2.0966, 1.5733.
TEST_F(Program, TheFirstDesignIsTheOneOfTheory) {
  const Ended ended = Run("'" QUILM_EXAMPLES "/first-design.qsc'");
  ASSERT_EQ(ended.status, 0) << ended.err;
  std::vector<json> records;
  for (const json& event : ended.Events()) {
    EXPECT_NE(event["event"], "message") << event;
    if (event["event"] == "record") records.push_back(event);
  }
  ASSERT_EQ(records.size(), 4U);
  const double g[] = {1.181178, 1.422806, 2.096671, 1.573401, 2.096671, 1.422806, 1.181178};
  for (std::size_t j = 0; j < 7; ++j) {
    EXPECT_NEAR(records[0]["record"]["Gj"][j].get<double>(), g[j], 2e-6) << j + 1;
  }
  // C = g / (2 pi f R) and L = g R / (2 pi f) of the lowpass, L = g R / (2 pi B) of the bandpass.
  EXPECT_NEAR(records[1]["stages"][0]["Cval"][0].get<double>(), 3.759807e-9, 1e-14);
  EXPECT_NEAR(records[1]["stages"][1]["Lval"][0].get<double>(), 1.132233e-5, 3e-11);
  EXPECT_NEAR(records[3]["stages"][0]["Lval"][0].get<double>(), 9.399516e-5, 3e-10);
  EXPECT_EQ(records[3]["stages"].size(), 7U);
  for (const char* plot : {"lowpass-transmission", "lowpass-return", "lowpass-vswr", "lowpass-impedance",
                           "bandpass-transmission", "bandpass-return", "bandpass-vswr", "bandpass-delay"}) {
    const std::string text = ContentOf(folder / "out" / (std::string(plot) + ".svg"));
    EXPECT_THAT(text, testing::HasSubstr("<polyline")) << plot;
  }
}

// A zero at 1.25 times the cutoff gives sections of m = 0.6: an end arm of 0.6 henry with (1 - 0.36) / 0.6 farad.
TEST_F(Program, TheSpecialDesignsAreMade) {
  const Ended ended = Run("'" QUILM_EXAMPLES "/special-designs.qsc'");
  ASSERT_EQ(ended.status, 0) << ended.err;
  std::vector<json> records;
  for (const json& event : ended.Events()) {
    EXPECT_NE(event["event"], "message") << event;
    if (event["event"] == "record") records.push_back(event["record"]);
  }
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0]["Order"], 9);
  EXPECT_NEAR(records[0]["Hj"][1].get<double>(), 0.6, 1e-6);
  EXPECT_NEAR(records[0]["Gj"][1].get<double>(), 0.64 / 0.6, 1e-6);
  EXPECT_EQ(records[1]["NetworkEdited"], 1);
  EXPECT_NEAR(records[1]["Rsource"][0].get<double>(), 0.01, 1e-9);
  EXPECT_EQ(records[2]["Stages"], 7);
}

// Both designs come back from their files as they were made.
TEST_F(Program, TheCauerDesignsAreSavedAndReadAgain) {
  const Ended ended = Run("'" QUILM_EXAMPLES "/cauer-designs.qsc'");
  ASSERT_EQ(ended.status, 0) << ended.err;
  std::vector<json> records;
  for (const json& event : ended.Events()) {
    if (event["event"] == "record") records.push_back(event);
  }
  ASSERT_EQ(records.size(), 4U);
  EXPECT_EQ(records[0]["record"]["Order"], 9);
  EXPECT_EQ(records[0]["record"]["Astop"], 70);
  EXPECT_EQ(records[1]["stages"].size(), 9U);
  EXPECT_EQ(records[2]["record"]["CauerTop"], 1);
  EXPECT_EQ(records[3]["stages"].size(), 6U);
  for (const char* picture :
       {"cauer-lowpass-transmission", "cauer-lowpass-return", "cauer-lowpass-delay", "cauer-lowpass-smith",
        "cauer-lowpass-smith-zoomed", "cauer-lowpass-polar", "cauer-lowpass-schematic", "cauer-lowpass-balanced",
        "cauer-lowpass-table-1", "zig-zag-bandpass-return", "zig-zag-bandpass-smith", "zig-zag-bandpass-schematic"}) {
    EXPECT_THAT(ContentOf(folder / "out" / (std::string(picture) + ".svg")), testing::HasSubstr("<text")) << picture;
  }
  for (const char* design : {"cauer-lowpass.QLM", "zig-zag-bandpass.QLM"}) {
    EXPECT_THAT(ContentOf(folder / "out" / design), testing::StartsWith("Quilm circuit file 43")) << design;
  }
}

}  // namespace
