#include "reports/PrintTable.h"

#include <gtest/gtest.h>

#include <memory>

#include "reports/ReportBench.h"

namespace quilm {
namespace {

class PrintedTable : public testing::Test {
 protected:
  PrintedTable() {
    record.DesignFileName = "sample.QLM";
    for (int i = 0; i <= responseBound; ++i) r->RespFreq[i] = 1000.0F * static_cast<f32>(i + 1);
  }

  std::vector<Picture> SheetsFor(f32 intervals) {
    record.NrIntervals = intervals;
    SheetPrinter printer;
    PrintTable(record, *r, printer);
    return printer.Sheets();
  }

  DesignRecord record;
  std::unique_ptr<Responses> r = std::make_unique<Responses>();
};

TEST_F(PrintedTable, FortyRowsAreASheetAndANewOneStartsOnlyForARow) {
  EXPECT_EQ(SheetsFor(39).size(), 1U);
  EXPECT_EQ(SheetsFor(40).size(), 2U);
  EXPECT_EQ(SheetsFor(79).size(), 2U);
  EXPECT_EQ(SheetsFor(80).size(), 3U);
}

TEST_F(PrintedTable, TheTitleStandsOnceAndHeadingsAndFileNameOnEachSheet) {
  const std::vector<Picture> sheets = SheetsFor(40);
  ASSERT_EQ(sheets.size(), 2U);
  EXPECT_EQ(PlaceOf(sheets[0], "Tabulated Responses"), (Point{1008, 700}));
  EXPECT_EQ(PlaceOf(sheets[1], "Tabulated Responses"), (Point{-1, -1}));
  for (const Picture& sheet : sheets) {
    EXPECT_EQ(PlaceOf(sheet, "Frequency,").x, 1008);  // 0.7 inch of 1440 units
    EXPECT_EQ(PlaceOf(sheet, "Zangle,").x, 1008 + 7 * 1260);
    EXPECT_EQ(PlaceOf(sheet, "seconds:").x, 1008 + 4 * 1260);
    EXPECT_EQ(PlaceOf(sheet, "sample.QLM"), (Point{1008, 15000}));
  }
}

TEST_F(PrintedTable, EachPointHasItsRow) {
  const std::vector<Picture> sheets = SheetsFor(41);
  EXPECT_EQ(PlaceOf(sheets[0], "1k ").y, 2100);
  EXPECT_EQ(PlaceOf(sheets[0], "40k ").y, 2100 + 39 * 300);
  EXPECT_EQ(PlaceOf(sheets[1], "41k ").y, 2100);
  EXPECT_EQ(PlaceOf(sheets[1], "42k ").y, 2400);
}

TEST_F(PrintedTable, DeepFiguresHaveTheirSubstituteOnPaperToo) {
  r->RespTrans[2] = -120.5F;
  EXPECT_EQ(PlaceOf(SheetsFor(4)[0], "<-120").y, 2100 + 2 * 300);
}

// All columns stand on A4 too, and nothing is drawn out of proportion.
TEST_F(PrintedTable, StandsWholeOnA4) {
  record.NrIntervals = 40;
  SheetPrinter printer = PrinterWith(a4Width, a4Height);
  PrintTable(record, *r, printer);
  for (const Picture& sheet : printer.Sheets()) {
    EXPECT_FLOAT_EQ(sheet.ScaleWidth / a4Width, sheet.ScaleHeight / a4Height);
    for (const TextOp& text : TextsOn(sheet)) {
      EXPECT_LE(text.at.x + 1260, sheet.ScaleWidth) << text.text;
      EXPECT_LE(text.at.y + 300, sheet.ScaleHeight) << text.text;
    }
  }
}

}  // namespace
}  // namespace quilm
