#include "reports/PrintDiplexer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <variant>

#include "core/DesignRecord.h"
#include "reports/Report.h"
#include "shell/HeadlessPlatform.h"
#include "support/WorkedDiplexer.h"

namespace quilm {
namespace {

DesignRecord Sweeping(f32 from, f32 to) {
  DesignRecord record;
  record.SweepMode = 2;
  record.Fstart = from;
  record.Fstop = to;
  record.NrIntervals = 200;
  record.Qind[1] = record.Qcap[1] = 1e7F;
  record.NrXints = 10;
  record.NrYints = 12;
  record.LossBottom = -120;
  record.PlotLineWidth = 2;
  record.CircuitTitle = "Front end";
  return record;
}

constexpr DateTime today{2026, 3, 14, 10, 20, 30};

SheetPrinter Printed(const Diplexer& diplexer, const DesignRecord& record) {
  SheetPrinter printer;
  DrawDiplexerReport(diplexer, record, today, printer);
  return printer;
}

int Count(const Picture& sheet, const std::string& text) {
  return static_cast<int>(
      std::count_if(sheet.Operations().begin(), sheet.Operations().end(), [&](const PictureOp& operation) {
        const auto* printed = std::get_if<TextOp>(&operation);
        return printed != nullptr && printed->text == text;
      }));
}

std::vector<PolylineOp> TracesOf(const Picture& sheet) {
  std::vector<PolylineOp> traces;
  for (const PictureOp& operation : sheet.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line != nullptr && line->points.size() > 50) traces.push_back(*line);
  }
  return traces;
}

TEST(PrintDiplexer, TellsTheEntriesOfALowpassAndHighpass) {
  const SheetPrinter printer = Printed(WorkedSplit(), Sweeping(1e5F, 1e7F));
  ASSERT_EQ(printer.Sheets().size(), 1U);
  const Picture& sheet = printer.Sheets()[0];
  EXPECT_EQ(Count(sheet, "Crossover:  1M     Passband ripple:  0.1     Order:  3     System Z:  50"), 1);
  EXPECT_EQ(Count(sheet, "Front end"), 1);
  EXPECT_EQ(Count(sheet, FootLine(today)), 1);
  EXPECT_EQ(Count(sheet, "12.0423uH"), 1);
}

TEST(PrintDiplexer, TellsTheEntriesOfAPairOfBands) {
  const SheetPrinter printer = Printed(WorkedBands(), Sweeping(5e6F, 20e6F));
  EXPECT_EQ(
      Count(printer.Sheets()[0],
            "Lower edge: 9.5M     Upper edge: 10.5M     Passband ripple: 0.1       Order:  2       System Z:  50"),
      1);
}

// Two traces from 0 to -60 dB, whatever scale the plots have: they cross at 3.0561 dB at the crossover.
TEST(PrintDiplexer, TheArmsAreShownDownToSixtyDecibels) {
  const SheetPrinter printer = Printed(WorkedSplit(), Sweeping(1e5F, 1e7F));
  const auto traces = TracesOf(printer.Sheets()[0]);
  ASSERT_EQ(traces.size(), 2U);
  EXPECT_EQ(traces[0].pen.color, colorBlue);
  EXPECT_EQ(traces[1].pen.color, colorRed);
  const f32 top = traces[0].points.front().y;  // the lowpass passes at the start
  // The middle of the sweep; a trace begins twice at its first point.
  const f32 atCrossover = traces[0].points[101].y;
  EXPECT_NEAR(traces[1].points[101].y, atCrossover, 1);
  // 0.1526 times 4 times 13.9 cubed is 64 dB at a tenth of the crossover: on the lower edge of the frame.
  const f32 bottom = traces[1].points.front().y;
  EXPECT_EQ(bottom, traces[0].points.back().y);
  EXPECT_NEAR((atCrossover - top) / (bottom - top) * 60, 3.0561F, 0.02F);
}

TEST(PrintDiplexer, NeitherDesignNorDiplexerIsTouched) {
  DesignRecord record = Sweeping(1e5F, 1e7F);
  record.Stages = 2;
  record.stage[1].ElementType = SeriesL;
  record.ResponsesValid = 1;
  const DesignRecord before = record;
  Printed(WorkedSplit(), record);
  EXPECT_EQ(record, before);
}

TEST(PrintDiplexer, EveryOrderStaysOnItsSheet) {
  for (i16 order = 1; order <= 10; ++order) {
    const SheetPrinter printer = Printed(WorkedBands(order), Sweeping(5e6F, 20e6F));
    ASSERT_EQ(printer.Sheets().size(), 1U);
    const Picture& sheet = printer.Sheets()[0];
    for (const PictureOp& operation : sheet.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line == nullptr) continue;
      for (const Point p : line->points) {
        EXPECT_GE(p.x, sheet.ScaleLeft);
        EXPECT_LE(p.x, sheet.ScaleLeft + sheet.ScaleWidth);
        EXPECT_GE(p.y, sheet.ScaleTop);
        EXPECT_LE(p.y, sheet.ScaleTop + sheet.ScaleHeight);
      }
    }
  }
}

}  // namespace
}  // namespace quilm
