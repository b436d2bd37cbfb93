#include "reports/Report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/ReportBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

TEST(SheetScale, APaperOfTheSheetsSizeIsTheSheet) {
  EXPECT_EQ(SheetScale({0, 0, 12240, 15840}, textSheet), (Scale{0, 0, 12240, 15840}));
}

// On every paper a unit of x is as long as a unit of y, and the sheet lies on it whole.
TEST(SheetScale, EveryPaperKeepsTheProportions) {
  const std::pair<f32, f32> papers[] = {{a4Width, a4Height}, {a4Height, a4Width}, {5953, 8391}, {100, 90000}};
  for (const auto& [width, height] : papers) {
    const Scale scale = SheetScale({0, 0, width, height}, textSheet);
    EXPECT_FLOAT_EQ(scale.width / width, scale.height / height) << width;
    EXPECT_GE(scale.width, 12240 - 0.01F) << width;
    EXPECT_GE(scale.height, 15840 - 0.01F) << width;
    EXPECT_TRUE(std::abs(scale.width - 12240) < 0.01F || std::abs(scale.height - 15840) < 0.01F) << width;
  }
}

TEST(Report, LinesStandOnTheirGridAndBreakOnlyForALine) {
  SheetPrinter printer;
  Report report(printer, {.left = 500, .top = 1000, .pitch = 250, .lines = 3});
  for (const char* line : {"one", "two", "three"}) report.Line(line);
  EXPECT_TRUE(printer.Sheets().empty());
  report.Line("four");
  report.End();
  ASSERT_EQ(printer.Sheets().size(), 2U);
  EXPECT_EQ(PlaceOf(printer.Sheets()[0], "one"), (Point{500, 1000}));
  EXPECT_EQ(PlaceOf(printer.Sheets()[0], "three"), (Point{500, 1500}));
  EXPECT_EQ(PlaceOf(printer.Sheets()[1], "four"), (Point{500, 1000}));
}

TEST(Report, ASkippedLineStaysFree) {
  SheetPrinter printer;
  Report report(printer, {.left = 0, .top = 1000, .pitch = 250, .lines = 2});
  report.Line("one");
  report.Skip();
  report.Line("two");
  report.End();
  ASSERT_EQ(printer.Sheets().size(), 2U);
  EXPECT_EQ(PlaceOf(printer.Sheets()[1], "two"), (Point{0, 1000}));
}

TEST(Report, HeadAndFootStandOnEachSheet) {
  SheetPrinter printer;
  Report report(printer, {.left = 500, .top = 1000, .pitch = 250, .lines = 1});
  report.SetHead([](Canvas& canvas) { canvas.PrintAt(10, 20, "head"); });
  report.SetFoot({"foot"});
  for (const char* line : {"one", "two"}) report.Line(line);
  report.End();
  ASSERT_EQ(printer.Sheets().size(), 2U);
  for (const Picture& sheet : printer.Sheets()) {
    EXPECT_EQ(PlaceOf(sheet, "head"), (Point{10, 20}));
    EXPECT_EQ(PlaceOf(sheet, "foot"), (Point{500, 15000}));
  }
}

// On paper that is longer than letter the foot follows the edge.
TEST(Report, TheFootIsAtTheFootOfThePaper) {
  SheetPrinter printer = PrinterWith(12240, 20000);
  Report report(printer, {});
  report.SetFoot({"foot"});
  report.End();
  EXPECT_EQ(PlaceOf(printer.Sheets()[0], "foot").y, 20000 - 840);
}

TEST(Report, WithoutAFootNothingIsPrintedThere) {
  SheetPrinter printer;
  Report report(printer, {});
  report.Line("one");
  report.End();
  EXPECT_EQ(TextsOn(printer.Sheets()[0]).size(), 1U);
}

// A printer that takes so many sheets and then fails.
class FailingPrinter : public SheetPrinter {
 public:
  explicit FailingPrinter(int sheets) : left_(sheets) {}
  void NewPage() override {
    if (left_-- == 0) throw Fault("out of paper");
    SheetPrinter::NewPage();
  }

  int closed = 0;
  void EndDoc() override {
    ++closed;
    SheetPrinter::EndDoc();
  }

 private:
  int left_;
};

void TwoSheets(Canvas& canvas) {
  Report report(canvas, {.lines = 1});
  report.Line("one");
  report.Line("two");
  report.End();
}

class PrintedReport : public testing::Test {
 protected:
  void ExpectTold(const std::string& words) {
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, "We had a printer problem\r\n" + words);
    EXPECT_EQ(platform.messages[0].title, "Printer Error");
    EXPECT_EQ(platform.messages[0].icon, Icon::Exclamation);
  }
  PrintingPlatform platform;
};

TEST_F(PrintedReport, ACancelIsQuiet) {
  bool drawn = false;
  PrintReport(platform, "We had a printer problem", [&](Canvas&) { drawn = true; });
  EXPECT_FALSE(drawn);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(PrintedReport, IsDrawnOnThePrinterThatWasChosen) {
  SheetPrinter printer;
  platform.printer = &printer;
  PrintReport(platform, "We had a printer problem", TwoSheets);
  EXPECT_EQ(printer.Sheets().size(), 2U);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(PrintedReport, APrinterThatCannotBeginIsTold) {
  platform.refuses = true;
  PrintReport(platform, "We had a printer problem", TwoSheets);
  ExpectTold("no such printer");
}

TEST_F(PrintedReport, AFaultBetweenSheetsIsToldAndClosesTheDocument) {
  FailingPrinter printer(0);
  platform.printer = &printer;
  PrintReport(platform, "We had a printer problem", TwoSheets);
  ExpectTold("out of paper");
  EXPECT_EQ(printer.closed, 1);
}

TEST_F(PrintedReport, AFaultAtTheEndIsToldOnce) {
  FailingPrinter printer(1);
  platform.printer = &printer;
  PrintReport(platform, "We had a printer problem", TwoSheets);
  ExpectTold("out of paper");
}

}  // namespace
}  // namespace quilm
