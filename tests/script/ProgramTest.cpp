// The program as a process: its arguments, its streams and its exit status.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
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
    std::ofstream(folder / "in") << script;
    const std::string command = "cd '" + folder.string() + "' && TMPDIR='" + (folder / "tmp").string() + "' '" +
                                QUILM_SCRIPT "' " + arguments + " <in >out 2>err";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(folder / "out"), ContentOf(folder / "err")};
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
  EXPECT_EQ(Run("--folder in").status, 2);
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
