// The two listings for authors of scripts, as the program prints them.
#include <gmock/gmock.h>

#include <map>

#include "script/ProgramBench.h"

namespace quilm {
namespace {

using testing::HasSubstr;

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST_F(Program, ListsItsCommandsInColumns) {
  const Ended ended = Run("--commands");
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_THAT(ended.out, HasSubstr("\nclose                       press the page's close box\n"));
  EXPECT_THAT(ended.out,
              HasSubstr("\nmouse down|move|up X Y [left|right]\n                            press, move or"));
  const std::vector<std::string> lines = LinesOf(ended.out);
  EXPECT_GT(lines.size(), 24U);
  for (const std::string& line : lines) {
    EXPECT_LE(line.size(), 80U) << line;
    EXPECT_NE(line.find_first_not_of(' '), std::string::npos) << line;
    EXPECT_NE(line.back(), ' ') << line;
  }
}

// What a script's own listing says of the page that it is on.
TEST_F(Program, ListsTheControlsOfAPageAsAScriptMeetsThem) {
  const Ended listed = Run("--controls frmOpening");
  EXPECT_EQ(listed.status, 0) << listed.err;
  const std::vector<std::string> lines = LinesOf(listed.out);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines[0], "frmOpening: Quilm");
  std::map<std::string, std::string> rest;  // kind and caption by name
  for (std::size_t i = 1; i < lines.size(); ++i) {
    std::istringstream words(lines[i]);
    std::string name;
    words >> name >> std::ws;
    std::getline(words, rest[name]);
  }
  const json page = Run("", "page\n").Events().back();
  EXPECT_GE(page["controls"].size(), 6U);
  for (const json& control : page["controls"]) {
    const std::string name = control["name"];
    ASSERT_EQ(rest.count(name), 1U) << name;
    EXPECT_THAT(rest[name], testing::StartsWith(control["kind"])) << name;
    // A label's caption may come with the page's load step.
    if (control["kind"] != "button") continue;
    EXPECT_THAT(rest[name], testing::EndsWith(control["caption"].get<std::string>())) << name;
  }
}

TEST_F(Program, ListsTheControlsOfEveryPageInOneGo) {
  const Ended ended = Run("--controls");
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_THAT(ended.out, testing::StartsWith(Run("--controls frmOpening").out));
  EXPECT_THAT(ended.out, HasSubstr("\n" + Run("--controls frmWriteFiles").out));
  int pages = 0;
  for (const std::string& line : LinesOf(ended.out)) pages += line.starts_with("frm") ? 1 : 0;
  EXPECT_GE(pages, 59);
}

TEST_F(Program, AListingNeedsNoFolderAndLeavesNone) {
  const Ended ended = RunInShell("TMPDIR=\"$PWD/none\" \"$quilm\" --controls >stdout 2>stderr");
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_EQ(ended.err, "");
  EXPECT_TRUE(std::filesystem::is_empty(folder / "tmp"));
}

TEST_F(Program, APageThatIsNotThereGivesTwoAndIsNamed) {
  const Ended ended = Run("--controls frmNone");
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.err, "quilm-script: there is no page frmNone\n");
  EXPECT_EQ(ended.out, "");
}

TEST_F(Program, AListingTakesNoScriptAndNoFolderAndNoOtherListing) {
  for (const char* arguments : {"--commands stdin", "--commands --folder mine", "--controls frmDesign stdin",
                                "--controls --folder mine", "--commands --controls"}) {
    const Ended ended = Run(arguments);
    EXPECT_EQ(ended.status, 2) << arguments;
    EXPECT_EQ(ended.err, "quilm-script: --commands and --controls stand alone\n") << arguments;
    EXPECT_EQ(ended.out, "") << arguments;
  }
  EXPECT_FALSE(std::filesystem::exists(folder / "mine"));
}

TEST_F(Program, AListingThatCannotBeWrittenGivesOneAndSaysWhy) {
  for (const char* listing : {"--commands", "--controls"}) {
    for (const char* output : {">/dev/full", ">&-"}) {
      const Ended ended = RunInShell("\"$quilm\" " + std::string(listing) + " 2>stderr " + output);
      EXPECT_EQ(ended.status, 1) << listing << output;
      EXPECT_EQ(ended.err, "quilm-script: the output cannot be written\n") << listing << output;
    }
  }
}

}  // namespace
}  // namespace quilm
