#include "reports/PartsList.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/DesignRecord.h"
#include "reports/ReportBench.h"
#include "shell/Session.h"
#include "shell/Version.h"

namespace quilm {
namespace {

constexpr DateTime today = {2026, 3, 7, 12, 0, 0};

DesignRecord Bandpass() {
  DesignRecord record;
  record.CircuitTitle = "Second IF";
  record.DesignFileName = "/designs/IF.QLM";
  record.Topology = "F";
  record.Family = familyCauer;
  record.Width = 1e6F;
  record.Fcenter = 10.7e6F;
  record.Apass = 0.1F;
  record.FstopNorm = 1.5F;
  record.Astop = 40;
  record.Rsource[1] = 50;
  record.Rload[1] = 75;
  return record;
}

// The list of one stage, as it is written after its number.
std::string Listed(const Stage& stage) {
  DesignRecord record = Bandpass();
  record.Stages = 1;
  record.stage[1] = stage;
  SheetPrinter printer;
  PrintParts(record, today, printer);
  std::vector<TextOp> texts = TextsOn(printer.Sheets()[0]);
  const auto at =
      std::find_if(texts.begin(), texts.end(), [](const TextOp& text) { return text.text == "Components:"; });
  if (texts.end() - at < 3 || (at + 1)->text != "1") return "no line";
  return (at + 2)->text;
}

Stage Of(ElementCode type) {
  Stage stage;
  stage.ElementType = type;
  stage.Lval.value = 1e-6F;
  stage.Cval.value = 1e-9F;
  stage.Rval.value = 75;
  stage.TLval = {90, 1e6F, 50, 0, 0};
  stage.XfmrVal.value = 2;
  stage.CoupledVal = {1e-6F, 4e-6F, 0.5F, 0, 0, 0};
  return stage;
}

TEST(PartsList, HeadEntriesAndFoot) {
  SheetPrinter printer;
  PrintParts(Bandpass(), today, printer);
  EXPECT_TRUE(printer.Ended());
  ASSERT_EQ(printer.Sheets().size(), 1U);
  std::vector<std::string> lines;
  for (const TextOp& text : TextsOn(printer.Sheets()[0])) lines.push_back(text.text);
  const std::vector<std::string> expected = {"Parts List",
                                             "Second IF",
                                             "Design data:",
                                             "Topology: Series-input geometrically-symmetrical bandpass",
                                             "Family: Cauer",
                                             "Bandwidth: 1M",
                                             "Center freq: 10.7M",
                                             "Passband ripple: 0.1",
                                             "Stopband freq: 1.5M",
                                             "Stopband depth: 40dB",
                                             "Input termination: 50",
                                             "Output termination: 75",
                                             "Components:",
                                             "2026-03-07   -   Quilm " + ProgramVersion(),
                                             "/designs/IF.QLM"};
  EXPECT_EQ(lines, expected);
  const Point date = PlaceOf(printer.Sheets()[0], expected[13]);
  const Point file = PlaceOf(printer.Sheets()[0], expected[14]);
  EXPECT_EQ(file.y, date.y - 240);
  EXPECT_LT(date.y, 15840);
  EXPECT_EQ(PlaceOf(printer.Sheets()[0], "Parts List").y, 1400);
}

TEST(PartsList, WhatTheDesignDoesNotHaveIsLeftOut) {
  DesignRecord record;
  record.Rsource[1] = 50;
  record.Rload[1] = 50;
  SheetPrinter printer;
  PrintParts(record, today, printer);
  std::vector<std::string> lines;
  for (const TextOp& text : TextsOn(printer.Sheets()[0])) lines.push_back(text.text);
  const std::vector<std::string> expected = {"Parts List",
                                             "Design data:",
                                             "Family: Arbitrary/manual-entry",
                                             "Input termination: 50",
                                             "Output termination: 50",
                                             "Components:",
                                             "2026-03-07   -   Quilm " + ProgramVersion()};
  EXPECT_EQ(lines, expected);
}

TEST(PartsList, FamiliesByName) {
  const std::pair<i16, const char*> families[] = {{1, "Butterworth"},
                                                  {2, "Chebyshev"},
                                                  {3, "Cauer"},
                                                  {4, "Bessel"},
                                                  {5, "Gaussian"},
                                                  {6, "Constant-K"},
                                                  {7, "M-Derived"},
                                                  {8, "Arbitrary/manual-entry"},
                                                  {11, "Arbitrary/manual-entry"}};
  for (const auto& [code, name] : families) {
    DesignRecord record = Bandpass();
    record.Family = code;
    SheetPrinter printer;
    PrintParts(record, today, printer);
    EXPECT_GT(PlaceOf(printer.Sheets()[0], std::string("Family: ") + name).y, 0) << code;
  }
}

// 1 / (2 Pi sqrt(1e-6 * 1e-9)) = 5.03292 MHz, with 6.28318 for two Pi 5.03293.
TEST(PartsList, OneLineAStageByItsType) {
  EXPECT_EQ(Listed(Of(SeriesL)), "1uH");
  EXPECT_EQ(Listed(Of(ShuntL)), "1uH");
  EXPECT_EQ(Listed(Of(SeriesC)), "1000pF");
  EXPECT_EQ(Listed(Of(ShuntC)), "1000pF");
  for (const ElementCode type : {SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC}) {
    EXPECT_EQ(Listed(Of(type)), "C=1000pF   L=1uH   (Freq=5.03293M)") << type;
  }
  EXPECT_EQ(Listed(Of(SeriesR)), "R=75");
  EXPECT_EQ(Listed(Of(ShuntR)), "R=75");
  for (const ElementCode type : {TransLine, SeriesShortStub, SeriesOpenStub, ShuntShortStub, ShuntOpenStub}) {
    EXPECT_EQ(Listed(Of(type)), "Len=90   @ 1M   Z=50") << type;
  }
  EXPECT_EQ(Listed(Of(Transformer)), "N=2: 1");
  EXPECT_EQ(Listed(Of(CoupledInductors)), "Lpri=1uH   Lsec=4uH   K=0.5");
  for (const ElementCode type : {ShuntRLC, SeriesRLC}) {
    EXPECT_EQ(Listed(Of(type)), "C=1000pF   L=1uH   R=75   (Freq=5.03293M)") << type;
  }
  EXPECT_EQ(Listed(Of(SeriesReactance)), "");
}

TEST(PartsList, AValueOfZeroIsSkippedAndHasNoResonance) {
  Stage stage = Of(SeriesPLC);
  stage.Lval.value = 0;
  EXPECT_EQ(Listed(stage), "C=1000pF");
  stage.Lval.value = -1e-6F;
  EXPECT_EQ(Listed(stage), "C=1000pF   L=-1uH");
}

// Fourteen lines stand above the parts of a full design, so 43 stages need a second sheet.
TEST(PartsList, FortyThreeStagesGoOnASecondSheetWithItsOwnFoot) {
  DesignRecord record = Bandpass();
  record.Stages = 43;
  for (int s = 1; s <= 43; ++s) record.stage[s] = Of(ShuntRLC);
  SheetPrinter printer;
  PrintParts(record, today, printer);
  ASSERT_EQ(printer.Sheets().size(), 2U);
  for (const Picture& sheet : printer.Sheets()) {
    EXPECT_GT(PlaceOf(sheet, "/designs/IF.QLM").y, 0);
    f32 lowest = 0;
    for (const TextOp& text : TextsOn(sheet)) {
      if (text.text != "/designs/IF.QLM" && text.text.find("Quilm") == std::string::npos) {
        lowest = std::max(lowest, text.at.y);
      }
    }
    EXPECT_LT(lowest, PlaceOf(sheet, "/designs/IF.QLM").y);
  }
  EXPECT_GT(PlaceOf(printer.Sheets()[1], "43").y, 0);
}

TEST(PrintPartsList, AFailingPrinterIsToldInTheStatusLineAlone) {
  PrintingPlatform platform;
  Session session(platform, {});
  platform.refuses = true;
  PrintPartsList(session);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(session.note, "The parts list was not printed: no such printer");
}

TEST(PrintPartsList, CancellingIsQuiet) {
  PrintingPlatform platform;
  Session session(platform, {});
  PrintPartsList(session);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(session.note, "");
}

}  // namespace
}  // namespace quilm
