#include "reports/PrintWaves.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/DesignRecord.h"
#include "reports/ReportBench.h"
#include "shell/Session.h"

namespace quilm {
namespace {

Waves SomeWaves() {
  Waves waves;
  waves.signal = {envelopeWave, 'N', 1000, 20e3F};
  waves.degrees = {-36, 0, 360};
  waves.WaveNormal = waves.WaveEqualized = {-1, 0, 1};
  waves.PeakNormal = waves.PeakEqualized = 1;
  return waves;
}

Identity Titled(const char* title) {
  Identity design;
  design.CircuitTitle = title;
  return design;
}

const DateTime day{2026, 3, 9, 12, 0, 0};

TEST(PrintedWaves, HaveTitlePlotAndFootOnOneSheet) {
  SheetPrinter printer(Orientation::Landscape);
  DrawWavesReport(Titled("A lowpass"), SomeWaves(), day, printer);
  ASSERT_TRUE(printer.Ended());
  ASSERT_EQ(printer.Sheets().size(), 1U);
  const Picture& sheet = printer.Sheets()[0];
  for (const char* text : {"A lowpass", "Squarewave frequency: 1k", "Carrier frequency: 20k"}) {
    EXPECT_NE(PlaceOf(sheet, text), (Point{-1, -1})) << text;
  }
  const std::vector<TextOp> texts = TextsOn(sheet);
  EXPECT_TRUE(std::any_of(texts.begin(), texts.end(),
                          [](const TextOp& text) { return text.text.find("2026-03-09   -   Quilm ") == 0; }));
  // The frame stands where the page has it.
  bool framed = false;
  for (const PictureOp& operation : sheet.Operations()) {
    const auto* box = std::get_if<RectangleOp>(&operation);
    if (box == nullptr || box->filled) continue;
    framed = std::abs(box->from.x - 2000) < 1 && std::abs(box->from.y - 1000) < 1 && std::abs(box->to.x - 11000) < 1 &&
             std::abs(box->to.y - 7000) < 1;
  }
  EXPECT_TRUE(framed);
}

TEST(PrintedWaves, HaveNoTitleWithoutOne) {
  SheetPrinter with(Orientation::Landscape);
  DrawWavesReport(Titled("A lowpass"), SomeWaves(), day, with);
  SheetPrinter without(Orientation::Landscape);
  DrawWavesReport(Titled(""), SomeWaves(), day, without);
  EXPECT_EQ(TextsOn(without.Sheets().at(0)).size() + 1, TextsOn(with.Sheets().at(0)).size());
}

TEST(PrintedWaves, AFaultOfThePrinterIsToldInItsOwnWords) {
  PrintingPlatform platform;
  Session session(platform, {});
  PrintWaves(session, SomeWaves());  // cancelled
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(platform.asked, Orientation::Landscape);
  platform.refuses = true;
  PrintWaves(session, SomeWaves());
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text, "no such printer");
  EXPECT_EQ(platform.messages[0].title, "Printer Error");
}

}  // namespace
}  // namespace quilm
