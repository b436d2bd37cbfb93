// What is written about scripts, held against the commands and the controls that there are: the help, the manual page,
// the README, the completion and the examples.
#include <map>
#include <set>

#include "core/ElementCatalogue.h"
#include "core/LimitArea.h"
#include "help/BookText.h"
#include "pages/PageOverLowpass.h"
#include "script/Commands.h"
#include "script/ProgramBench.h"

namespace quilm {
namespace {

using Texts = std::set<std::string>;

const fs::path sources = QUILM_SOURCE;
const fs::path helpFolder = QUILM_HELP;

Texts SetOf(const std::vector<std::string>& list) { return {list.begin(), list.end()}; }

Texts FormsOfCommands() {
  Texts forms;
  for (const CommandRow& row : AllCommands()) forms.emplace(row.form);
  return forms;
}

Texts NamesOfCommands() {
  Texts names;
  for (const CommandRow& row : AllCommands()) names.emplace(row.Name());
  return names;
}

// From a text to the next one, or to the end.
std::string Between(const std::string& text, const std::string& from, const std::string& to) {
  const std::size_t begin = text.find(from);
  if (begin == std::string::npos) return {};
  return text.substr(begin, text.find(to, begin + from.size()) - begin);
}

// The names of the commands in the lines of a script, with those that wait for a yield.
Texts CommandsIn(const std::string& script) {
  Texts names;
  std::istringstream lines(script);
  ScriptSource commands(lines);
  while (const auto command = commands.Next()) {
    names.insert(command->name);
    if (command->name == "at-yield") names.insert(SplitFirst(SplitFirst(command->arguments).rest).word);
  }
  return names;
}

void ExpectKnown(const Texts& names, const std::string& where) {
  EXPECT_FALSE(names.empty()) << where;
  for (const std::string& name : names) EXPECT_EQ(NamesOfCommands().count(name), 1U) << name << " in " << where;
}

TEST(Reference, ACommandHasOneName) { EXPECT_EQ(NamesOfCommands().size(), AllCommands().size()); }

TEST(Reference, TheHelpHasEveryCommandWithItsEffect) {
  const std::string table = Between(Read(helpFolder / "scripting.htm"), "id=\"commands\"", "</table>");
  std::vector<std::string> rows;
  for (const std::string& row : AllOf(table, "<tr>([^\n]*)")) rows.push_back(WithoutTags(row));
  ASSERT_EQ(rows.size(), AllCommands().size());
  std::size_t i = 0;
  for (const CommandRow& row : AllCommands()) {
    EXPECT_EQ(rows[i++], "  " + std::string(row.form) + "  " + std::string(row.effect));
  }
}

// A line of the manual page as it is printed: a macro's arguments one behind the other, without changes of the font.
std::string Printed(const std::string& line) {
  std::string text;
  bool quoted = false;
  for (const char c : line.substr(line.find(' ') + 1)) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c != ' ' || quoted || line.starts_with(".B ")) {
      text += c;
    }
  }
  text = std::regex_replace(text, std::regex(R"(\\f[A-Z])"), "");
  return std::regex_replace(text, std::regex(R"(\\-)"), "-");
}

Texts TagsOf(const std::string& section) {
  Texts tags;
  for (const std::string& line : AllOf(section, "\n\\.TP\n(\\.B[^\n]*)")) tags.insert(Printed(line));
  return tags;
}

const std::string& ManualPage() {
  static const std::string text = Read(sources / "packaging/linux/quilm-script.1");
  return text;
}

TEST(Reference, TheManualPageHasEveryFormOfTheCommandsAndNoOther) {
  EXPECT_EQ(TagsOf(Between(ManualPage(), ".SH COMMANDS", "\n.SH ")), FormsOfCommands());
}

TEST(Reference, TheManualPageShowsAnExampleOfKnownCommands) {
  ExpectKnown(CommandsIn(Between(ManualPage(), "\n.nf\n", "\n.fi").substr(5)), "the manual page");
}

TEST(Reference, TheReadmeShowsAScriptOfKnownCommands) {
  const std::string section = Between(Read(sources / "README.md"), "\n## Scripts\n", "\n## ");
  ExpectKnown(CommandsIn(Between(section, "\n```\n", "\n```").substr(5)), "the README");
}

TEST(Reference, TheScriptsThatComeWithTheProgramAreOfKnownCommands) {
  int scripts = 0;
  for (const char* folder : {"examples", "help"}) {
    for (const auto& entry : fs::directory_iterator(sources / folder)) {
      if (entry.path().extension() != ".qsc") continue;
      ExpectKnown(CommandsIn(Read(entry.path())), entry.path().filename().string());
      ++scripts;
    }
  }
  EXPECT_GE(scripts, 9);
}

Texts OptionsIn(const std::string& text) { return SetOf(AllOf(text, "(--[a-z]+)")); }

TEST_F(Program, ManualPageAndCompletionKnowItsOptions) {
  const Texts options = OptionsIn(Run("--help").out);
  EXPECT_EQ(options.count("--controls"), 1U);
  Texts tagged;
  for (const std::string& tag : TagsOf(Between(ManualPage(), ".SH OPTIONS", "\n.SH "))) tagged.merge(OptionsIn(tag));
  EXPECT_EQ(tagged, options);
  const std::string completion = Read(sources / "packaging/linux/quilm-script.bash-completion");
  EXPECT_EQ(OptionsIn(Between(completion, "-W \"--", "\" --")), options);
}

TEST_F(Program, IsCompletedWithThePagesWhoseControlsItLists) {
  RunInShell("source '" + (sources / "packaging/linux/quilm-script.bash-completion").string() +
             "'\nCOMP_WORDS=(\"$quilm\" --controls frmDes)\nCOMP_CWORD=2\n_quilm_script \"$quilm\"\n"
             "echo \"${COMPREPLY[*]}\" >stdout\n");
  EXPECT_EQ(ContentOf(folder / "stdout"), "frmDesign\n");
}

std::string PartOfScripting(const std::string& from) {
  return WithoutTags(Between(Between(Read(helpFolder / "scripting.htm"), from, "</pre>"), "\n", "</pre>").substr(1));
}

// The help shows what the script prints, to the letter.
TEST_F(Program, TheScriptOfTheHelpDoesWhatTheHelpSays) {
  const Ended ended = Run("", PartOfScripting("<pre class=\"script\">"));
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_NE(ended.out.find(PartOfScripting("<pre class=\"json\">")), std::string::npos) << ended.out;
  for (const char* file : {"lowpass.svg", "lowpass.CIR", "lowpass.DAT"}) {
    EXPECT_TRUE(fs::is_regular_file(folder / file)) << file;
  }
}

TEST_F(Program, FailsAsTheHelpSays) {
  const Ended ended = Run("", "press cmdDesignNew\npress cmdNone\n");
  EXPECT_EQ(ended.err, PartOfScripting("<pre class=\"json\">\n{\"event\":\"error\""));
}

// One of each event. A table of more than a sheet beeps and asks.
constexpr const char* eventful = R"(
press cmdDesignNew
type txtBandwidth 1M
press cmdPlot
help
press cmdTabulate
answer yes
printer ok
press cmdPrint
file cancel
press cmdGet
press cmdPlot
page
canvas
record Order stages
responses 0
parse 1k
format value 2
press cmdExit
press cmdExit
)";

TEST_F(Program, PrintsTheEventsOfTheHelpWithTheirKeys) {
  const std::string section = Between(Read(helpFolder / "scripting.htm"), "<h2>What it prints", "</table>");
  std::map<std::string, std::string> rows;
  for (const std::string& row : AllOf(section, "<tr>([^]*?)(?=\n<tr>|\n</table>|$)")) {
    for (const std::string& name : AllOf(row.substr(0, row.find("<td>")), "<code>([^<]*)<")) rows[name] = row;
  }
  const Ended ended = Run("", eventful);
  EXPECT_EQ(ended.status, 0) << ended.err;
  Texts seen;
  for (const json& event : ended.Events()) {
    seen.insert(event["event"]);
    for (const auto& [key, value] : event.items()) {
      if (key == "event") continue;
      EXPECT_NE(rows[event["event"]].find("<code>" + key + "</code>"), std::string::npos)
          << event["event"] << ": " << key;
    }
  }
  Texts told;
  for (const auto& [name, row] : rows) told.insert(name);
  EXPECT_EQ(told, seen);
}

TEST(Reference, TheHelpNamesTheAreasOfPictures) {
  const Texts named =
      SetOf(AllOf(Between(Read(helpFolder / "scripting.htm"), "id=\"areas\"", "<h2"), "<code>([^<]*)<"));
  for (const Element& element : Elements()) EXPECT_EQ(named.count(std::string(element.name)), 1U) << element.name;
  EXPECT_EQ(named.count("LimitShape" + std::to_string(limitShapes)), 1U);
}

// The controls of a page as the help lists them: their kinds by name.
std::map<std::string, std::string> ListedControls(PageId id) {
  const std::string html = Read(helpFolder / "controls.htm");
  const std::string section = Between(html, "<h2 id=\"" + std::string(FormName(id)) + "\">", "<h2");
  const std::vector<std::string> names = AllOf(section, "<tr><th><code>([^<]*)</code>");
  const std::vector<std::string> kinds = AllOf(section, "</code><td>([^<]*)<td>");
  std::map<std::string, std::string> listed;
  for (std::size_t i = 0; i < names.size(); ++i) listed[names[i]] = kinds.at(i);
  return listed;
}

class ReferenceOfPage : public PageOverLowpass {};

TEST_P(ReferenceOfPage, HasEveryControlAndNoOther) {
  std::map<std::string, std::string> controls;
  for (const Control* control : page->Controls()) {
    if (control->kind != ControlKind::Timer) controls[control->name] = KindName(control->kind);
  }
  EXPECT_EQ(ListedControls(GetParam()), controls);
}

TEST_P(ReferenceOfPage, IsInTheListAboveTheTables) {
  const std::string html = Read(helpFolder / "controls.htm");
  const std::string form(FormName(GetParam()));
  EXPECT_NE(html.find("<a href=\"#" + form + "\">"), std::string::npos);
}

TEST_P(ReferenceOfPage, NamesTheAreasOfItsPictures) {
  const std::string named = Between(Read(helpFolder / "scripting.htm"), "id=\"areas\"", "<h2");
  for (const Control* control : page->Controls()) {
    const auto* box = dynamic_cast<const PictureBox*>(control);
    if (box == nullptr) continue;
    for (const HitArea& area : box->areas) {
      const std::string name = area.name.starts_with("stage") ? "stage1" : area.name;
      EXPECT_NE(named.find("<code>" + name + "</code>"), std::string::npos) << area.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllPages, ReferenceOfPage, testing::ValuesIn(AllIds()), NameOfPage);

}  // namespace
}  // namespace quilm
