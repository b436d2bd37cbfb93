#include "reports/PrintLinearity.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/DesignRecord.h"
#include "core/ElementTypes.h"
#include "reports/ReportBench.h"
#include "shell/Session.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::IsSupersetOf;

class PrintedLinearity : public testing::Test {
 protected:
  // A line that delays by 250 ns, to 2 MHz.
  PrintedLinearity() : session(platform, {}) {
    DesignRecord& record = session.record;
    record.Stages = 1;
    record.stage[1].ElementType = TransLine;
    record.stage[1].TLval = {45, 5e5F, 50, 0, 0};
    record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
    record.Qind[1] = record.Qcap[1] = 1e7F;
    record.Width = 1e6F;
    record.Fstart = 1e3F;
    record.Fstop = 2e6F;
    record.NrIntervals = 100;
    record.CircuitTitle = "Delay line";
    record.DesignFileName = "delay.QLM";
    platform.clock = DateTime{2026, 3, 9, 12, 0, 0};
    platform.printer = &printer;
    phase = ComputeLinearity(record);
  }

  LinearityPlot Plot() const { return {phase, phaseAndLine, 0.125F, 10, 3, "Delay line"}; }

  PrintingPlatform platform;
  Session session;
  SheetPrinter printer{Orientation::Landscape};
  PhaseLinearity phase;
};

TEST_F(PrintedLinearity, OneSheetHoldsTitlePlotAndFoot) {
  PrintLinearity(session, Plot());
  EXPECT_EQ(platform.asked, Orientation::Landscape);
  ASSERT_EQ(printer.Sheets().size(), 1U);
  EXPECT_TRUE(printer.Ended());
  std::vector<std::string> words;
  for (const TextOp& text : TextsOn(printer.Sheets()[0])) words.push_back(text.text);
  EXPECT_THAT(words, IsSupersetOf({"Degrees:", "Phase", "Best-fit straight line", "250", "-250"}));
  EXPECT_EQ(std::count(words.begin(), words.end(), "Delay line"), 1) << "the sheet's, not the picture's";
  EXPECT_EQ(words.back(), "2026-03-09   -   Quilm Version " QUILM_VERSION);
  EXPECT_THAT(words, testing::Not(Contains("delay.QLM")));
}

TEST_F(PrintedLinearity, TheFrameHasItsPlaceAndTheCurvesAreThin) {
  PrintLinearity(session, Plot());
  int curves = 0;
  for (const PictureOp& operation : printer.Sheets()[0].Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line == nullptr || line->points.size() < 100) continue;
    ++curves;
    EXPECT_EQ(line->pen.width, 1);
    EXPECT_NEAR(line->points.front().x, 2000, 0.01);
    EXPECT_NEAR(line->points.back().x, 11000, 0.01);
    // -180 degrees, 250 of which lead to the edge.
    EXPECT_NEAR(line->points.back().y, 4000 + 3000 * 180 / 250.0, 0.1);
  }
  EXPECT_EQ(curves, 2);
}

TEST_F(PrintedLinearity, AFaultIsToldInThePrintersWords) {
  platform.refuses = true;
  PrintLinearity(session, Plot());
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Printer Error");
  EXPECT_EQ(platform.messages[0].text, "no such printer");
}

TEST_F(PrintedLinearity, ACancelledDialogIsQuiet) {
  platform.printer = nullptr;
  PrintLinearity(session, Plot());
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace quilm
