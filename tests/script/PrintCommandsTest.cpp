#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "script/Commands.h"
#include "script/ScriptBench.h"
#include "script/TemporaryFolder.h"
#include "support/PdfTools.h"

namespace quilm {
namespace {

TEST(PageCommand, TellsFormNameAndTitle) {
  const Json event = RunText("page").One("page");
  EXPECT_EQ(event["page"], "frmDesign");
  EXPECT_EQ(event["title"], "Bench");
}

TEST(PageCommand, ListsControlsByKind) {
  const Outcome outcome = RunText("press optTwo\ntype txtValue 5\nchoose lstLines 2\npage\n");
  EXPECT_EQ(outcome.Control("cmdLog"), Json({{"name", "cmdLog"},
                                             {"kind", "button"},
                                             {"caption", "Log"},
                                             {"enabled", true},
                                             {"toolTip", "Writes a line"}}));
  EXPECT_EQ(outcome.Control("optOne")["value"], false);
  EXPECT_EQ(outcome.Control("optTwo")["value"], true);
  EXPECT_EQ(outcome.Control("txtValue")["text"], "5");
  EXPECT_EQ(outcome.Control("lstLines")["items"], Json({"first", "second"}));
  EXPECT_EQ(outcome.Control("lstLines")["value"], 2);
  EXPECT_EQ(outcome.Control("lblValue")["caption"], "A label");
  EXPECT_EQ(outcome.Control("UpDown1")["kind"], "spin");
  EXPECT_FALSE(outcome.Control("UpDown1").contains("value"));
  EXPECT_EQ(outcome.Control("picPlot")["kind"], "picture");
}

TEST(PageCommand, ListsWhatIsSeen) {
  const Outcome outcome = RunText("page");
  EXPECT_EQ(outcome.Control("cmdDisabled")["enabled"], false);
  EXPECT_TRUE(outcome.Control("cmdHidden").is_null());
  EXPECT_TRUE(outcome.Control("Timer1").is_null());
}

void DrawOnPlot(Session& session) {
  session.pages.ShowPage(PageId::Design);
  auto& picture = static_cast<BenchPage&>(*session.pages.Top()).picPlot.picture;
  picture.DrawWidth = 2;
  picture.Line(1, 2, 3, 4, colorRed);
  const Point corners[] = {{0, 0}, {5, 0}, {5, 5}};
  picture.Polyline(corners, colorBlue);
  picture.DrawStyle = LineStyle::Dot;
  picture.DrawMode = PenMode::ExclusiveOr;
  picture.Rectangle(1, 1, 2, 2, colorBlack, true);
  picture.Circle(10, 20, 5, colorBlack, 0, 1.5F, 0.75F);
  picture.PSet(7, 8, colorBlack);
  picture.CurrentX = 30;
  picture.CurrentY = 40;
  picture.FontBold = true;
  picture.Print("text");
}

TEST(CanvasCommand, PrintsOperationsByTheirArguments) {
  const Json event = RunText("canvas", DrawOnPlot).One("canvas");
  EXPECT_EQ(event["name"], "picPlot");
  const Json& ops = event["operations"];
  ASSERT_EQ(ops.size(), 6U);
  EXPECT_EQ(ops[0], Json({{"op", "Line"},
                          {"x1", 1.0},
                          {"y1", 2.0},
                          {"x2", 3.0},
                          {"y2", 4.0},
                          {"color", 0x0000FF},
                          {"DrawWidth", 2},
                          {"DrawStyle", 0},
                          {"DrawMode", 13}}));
  EXPECT_EQ(ops[1]["op"], "Polyline");
  EXPECT_EQ(ops[1]["points"], Json({{0.0, 0.0}, {5.0, 0.0}, {5.0, 5.0}}));
  EXPECT_EQ(ops[1]["color"], 0xFF0000);
  EXPECT_EQ(ops[2]["op"], "Rectangle");
  EXPECT_EQ(ops[2]["filled"], true);
  EXPECT_EQ(ops[2]["DrawStyle"], 2);
  EXPECT_EQ(ops[2]["DrawMode"], 7);
  EXPECT_EQ(ops[3]["op"], "Circle");
  EXPECT_EQ(ops[3]["r"], 5.0);
  EXPECT_EQ(ops[3]["start"], 0.0);
  EXPECT_EQ(ops[3]["stop"], 1.5);
  EXPECT_EQ(ops[3]["aspect"], 0.75);
  EXPECT_EQ(ops[4]["op"], "PSet");
  EXPECT_EQ(ops[4]["y"], 8.0);
  EXPECT_EQ(ops[5], Json({{"op", "Print"},
                          {"x", 30.0},
                          {"y", 40.0},
                          {"text", "text"},
                          {"color", 0},
                          {"FontName", "Arial"},
                          {"FontSize", 9.0},
                          {"FontBold", true}}));
}

TEST(CanvasCommand, TakesThePictureOfAButtonByName) {
  const Json event = RunText("canvas cmdLog").One("canvas");
  EXPECT_EQ(event["name"], "cmdLog");
  EXPECT_TRUE(event["operations"].empty());
}

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(PictureCommand, WritesTheFileAndItsFolder) {
  const TemporaryFolder folder;
  const Outcome outcome = RunText("picture " + folder.Path() + "/out/plot.svg picPlot", DrawOnPlot);
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  const std::string text = ContentOf(folder.Path() + "/out/plot.svg");
  EXPECT_THAT(text, testing::StartsWith("<?xml"));
  EXPECT_THAT(text, testing::HasSubstr("stroke=\"#ff0000\""));
}

TEST(PrintedCommand, WritesOneFileASheet) {
  const TemporaryFolder folder;
  const Outcome outcome = RunText("printer ok\npress cmdPrint\nprinted " + folder.Path() + "/my plot.svg\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_THAT(ContentOf(folder.Path() + "/my plot-1.svg"), testing::HasSubstr(">one</text>"));
  EXPECT_THAT(ContentOf(folder.Path() + "/my plot-2.svg"), testing::HasSubstr(">two</text>"));
}

TEST(PrintedCommand, WritesAllSheetsAsOnePdf) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "/my plot.pdf";
  const Outcome outcome = RunText("printer ok\npress cmdPrint\nprinted " + path + "\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_EQ(PdfInfo(path, "Pages"), "2");
  EXPECT_EQ(PdfInfo(path, "Page size"), "612 x 792 pts (letter)");
  EXPECT_THAT(PdfWords(path, 1), testing::HasSubstr("one"));
  EXPECT_THAT(PdfWords(path, 2), testing::HasSubstr("two"));
}

TEST(PictureCommand, WritesAPdfWhereItsNameSaysSo) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "/plot.pdf";
  EXPECT_FALSE(RunText("picture " + path + " picPlot", DrawOnPlot).error);
  EXPECT_EQ(PdfInfo(path, "Pages"), "1");
}

// 1.2 M is 1200000, and what makes no sense is dropped.
TEST(ParseCommand, PrintsWhatAnEntryBoxWouldTake) {
  EXPECT_EQ(RunText("parse 1.2M").One("parse"), Json({{"event", "parse"}, {"value", 1.2e6}}));
  EXPECT_EQ(RunText("parse").One("parse")["value"], 0.0);
}

TEST(FormatCommand, PrintsEachDisplayFormat) {
  const std::vector<std::pair<std::string, std::string>> cases{{"frequency -1", "-1000m "},
                                                               {"inductance 1e-6", "1uH"},
                                                               {"capacitance 1e-8", "0.01uF"},
                                                               {"resistance 100.125", "100.13 "},
                                                               {"numtext 2000", " 2000 "}};
  for (const auto& [arguments, text] : cases) {
    EXPECT_EQ(RunText("format " + arguments).One("format"), Json({{"event", "format"}, {"text", text}})) << arguments;
  }
}

// As the command's effect lists them.
TEST(FormatCommand, KnowsEveryKindThatItTellsOf) {
  const CommandRows& rows = PrintCommands();
  const auto row = std::ranges::find(rows, "format", &CommandRow::Name);
  ASSERT_NE(row, rows.end());
  std::string kinds(row->effect.substr(row->effect.find("KIND is ") + 8));
  std::ranges::replace(kinds, ',', ' ');
  int known = 0;
  for (const std::string& kind : Words(kinds)) {
    if (kind == "or") continue;
    EXPECT_EQ(RunText("format " + kind + " 1").Reason(), "") << kind;
    ++known;
  }
  EXPECT_EQ(known, 7);
}

TEST(FormatCommand, KnowsTimesAndPlainValues) {
  EXPECT_FALSE(RunText("format time 1e-6").One("format")["text"].get<std::string>().empty());
  EXPECT_FALSE(RunText("format value -16.428").One("format")["text"].get<std::string>().empty());
}

TEST(TemporaryFolder, IsGoneAfterwards) {
  std::string path;
  {
    const TemporaryFolder folder;
    path = folder.Path();
    std::ofstream(path + "/file") << "content";
    EXPECT_TRUE(std::filesystem::is_directory(path));
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace quilm
