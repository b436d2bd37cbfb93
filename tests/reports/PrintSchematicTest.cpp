#include "reports/PrintSchematic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/DesignRecord.h"
#include "reports/PrintSchematicSimple.h"
#include "reports/ReportBench.h"
#include "schematic/Symbols.h"
#include "schematic/modSchematic.h"
#include "shell/Session.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

class PrintedSchematic : public testing::Test {
 protected:
  PrintedSchematic() : session(platform, {}), record(session.record) {
    record.Rsource[1] = record.Rload[1] = 50;
    record.Qind[1] = 200;
    record.Qcap[1] = 2000;
    record.Width = 1e6F;
    record.Family = familyButterworth;
    record.CircuitTitle = "A long one";
    platform.clock = DateTime{2026, 3, 9, 12, 0, 0};
    platform.printer = &printer;
  }

  void MakeStages(int count) {
    record.Stages = static_cast<i16>(count);
    record.StagesMax = 46;
    for (int s = 1; s <= count; ++s) {
      record.stage[s].ElementType = s % 2 == 1 ? SeriesL : ShuntC;
      record.stage[s].Lval.value = 1e-6F * static_cast<f32>(s);
      record.stage[s].Cval.value = 1e-9F;
    }
  }

  std::vector<Picture> Printed() {
    printer = SheetPrinter();
    PrintSchematic(session);
    return printer.Sheets();
  }

  static std::vector<std::string> Words(const std::vector<Picture>& sheets) {
    std::vector<std::string> words;
    for (const Picture& sheet : sheets) {
      for (const TextOp& text : TextsOn(sheet)) words.push_back(text.text);
    }
    return words;
  }

  PrintingPlatform platform;
  SheetPrinter printer;
  Session session;
  DesignRecord& record;
};

// Source 1620, three stages of 960, load 1300 in one row from 1200.
TEST_F(PrintedSchematic, AShortCircuitIsOneRow) {
  MakeStages(3);
  const std::vector<Picture> sheets = Printed();
  ASSERT_EQ(sheets.size(), 1U);
  EXPECT_EQ(PlaceOf(sheets[0], "1").x, 1200 + 1620 + 280);
  EXPECT_EQ(PlaceOf(sheets[0], "3").x, 1200 + 1620 + 2 * 960 + 280);
  EXPECT_THAT(Words(sheets), Not(Contains(" >")));
  EXPECT_EQ(platform.asked, Orientation::Portrait);
}

TEST_F(PrintedSchematic, RowsHoldAllStagesOnceAndTheLoadKeepsCompany) {
  for (const int stages : {1, 8, 9, 10, 20, 43, 46}) {
    MakeStages(stages);
    constexpr f32 room = 10900;
    const std::vector<SchematicRow> rows = SchematicRows(record, room);
    int next = 1;
    for (const SchematicRow& row : rows) {
      EXPECT_EQ(row.first, next) << stages;
      EXPECT_LE(row.length, room) << stages;
      EXPECT_GE(row.last, row.first) << stages;
      EXPECT_EQ(row.source, &row == &rows.front()) << stages;
      EXPECT_EQ(row.load, &row == &rows.back()) << stages;
      next = row.last + 1;
    }
    EXPECT_EQ(next, stages + 1);
  }
  record.Stages = 0;
  EXPECT_TRUE(SchematicRows(record, 10900).empty());
}

// A row that does not end with the load says that it goes on.
TEST_F(PrintedSchematic, FortyThreeStagesGoOnFromRowToRowAndSheetToSheet) {
  MakeStages(43);
  record.stage[43].Lval.tolerance = 5;  // rows of the full height
  const std::vector<Picture> sheets = Printed();
  EXPECT_GE(sheets.size(), 2U);
  const std::vector<std::string> words = Words(sheets);
  const auto rows = static_cast<std::ptrdiff_t>(SchematicRows(record, 10900).size());
  EXPECT_EQ(std::count(words.begin(), words.end(), " >"), rows - 1);
  for (int s = 1; s <= 43; ++s) EXPECT_EQ(std::count(words.begin(), words.end(), std::to_string(s)), 1) << s;
  const auto count = static_cast<std::ptrdiff_t>(sheets.size());
  EXPECT_EQ(std::count(words.begin(), words.end(), "A long one"), count);
  EXPECT_EQ(std::count(words.begin(), words.end(), "2026-03-09   -   Quilm Version 0.1.0"), count);
  EXPECT_EQ(std::count(words.begin(), words.end(), "Design data:"), 1);
}

TEST_F(PrintedSchematic, NothingStandsBesideTheSheetNorInItsFoot) {
  for (const int stages : {1, 17, 43}) {
    MakeStages(stages);
    session.schematicView.ShowQ = stages == 17;
    for (const Picture& sheet : Printed()) {
      for (const TextOp& text : TextsOn(sheet)) {
        EXPECT_GE(text.at.x, 1200 - 1) << text.text;
        EXPECT_LE(text.at.x, sheet.ScaleLeft + sheet.ScaleWidth - 500) << text.text;
        EXPECT_TRUE(text.at.y < 15700 || text.text.starts_with("2026")) << text.text;
        EXPECT_TRUE(!text.text.starts_with("2026") || text.font.name == "Courier New");
      }
    }
  }
}

TEST_F(PrintedSchematic, IsAsItIsLookedAtButWhole) {
  MakeStages(3);
  const std::vector<Picture> plain = Printed();
  session.schematicView.zoom = 2;
  session.schematicView.SchemOffset = -3000;
  EXPECT_EQ(Printed(), plain) << "zoom and scrolling are the screen's";
  session.schematicView.mode = SchematicMode::BalancedA;
  const auto words = Words(Printed());
  EXPECT_EQ(std::count(words.begin(), words.end(), "500nH"), 2) << "half of 1 uH on each rail";
  session.schematicView.ShowQ = true;
  EXPECT_THAT(Words(Printed()), Contains("L-rseries:"));
}

TEST_F(PrintedSchematic, ANegativeValueIsRed) {
  MakeStages(3);
  record.stage[1].Lval.value = -1e-5F;
  const std::vector<Picture> sheets = Printed();
  const auto texts = TextsOn(sheets[0]);
  const auto at = std::find_if(texts.begin(), texts.end(), [](const TextOp& text) { return text.text == "-10uH"; });
  ASSERT_NE(at, texts.end());
  EXPECT_EQ(at->color, colorRed);
}

TEST_F(PrintedSchematic, ItsBlockTellsOfTheDesignInShortWords) {
  MakeStages(3);
  record.Family = familyCauer;
  record.Fcenter = 1e7F;
  record.Apass = 0.5F;
  record.FstopNorm = 1.5F;
  record.Astop = 40;
  record.Topology = "A";
  const auto words = Words(Printed());
  EXPECT_THAT(words, IsSupersetOf(std::vector<std::string>{"Bandwidth:  1M", "Center:  10M", "Family:  Cauer",
                                                           "Passband ripple:  .5", "Stopband freq:  1.5M",
                                                           "Stopband depth:  40"}));
}

TEST_F(PrintedSchematic, AnEmptyListIsSaidSo) {
  record.Stages = 0;
  EXPECT_THAT(Words(Printed()), Contains("The parts list is empty"));
}

TEST_F(PrintedSchematic, AnEmptyTitleHasNoLine) {
  MakeStages(3);
  record.CircuitTitle.clear();
  for (const TextOp& text : TextsOn(Printed()[0])) EXPECT_GT(text.at.y, 700) << text.text;
}

TEST_F(PrintedSchematic, AFaultIsToldInItsWords) {
  MakeStages(3);
  platform.refuses = true;
  Printed();
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Printer Error");
  EXPECT_EQ(platform.messages[0].text, "Schematic 1956; we had a printer error; no such printer");
}

TEST_F(PrintedSchematic, ACancelledDialogIsQuiet) {
  platform.printer = nullptr;
  PrintSchematic(session);
  PrintSchematicSimple(session);
  EXPECT_TRUE(platform.messages.empty());
}

using PrintedArtwork = PrintedSchematic;

TEST_F(PrintedArtwork, HasTitleNumbersRatiosFamilyAndFoot) {
  MakeStages(5);
  PrintSchematicSimple(session);
  ASSERT_EQ(printer.Sheets().size(), 1U);
  // The inductors are 1, 3 and 5 uH.
  EXPECT_THAT(Words(printer.Sheets()),
              IsSupersetOf(std::vector<std::string>{"A long one", "1", "5", "Capacitors: 1", "Inductors: 5",
                                                    "Family:  Butterworth", "2026-03-09   -   Quilm Version 0.1.0"}));
}

// Any list of stages, also one of nothing but the widest.
TEST_F(PrintedArtwork, OneSheetHoldsAnyNetwork) {
  MakeStages(46);
  for (i16 type = SeriesL; type <= SeriesRLC; ++type) {
    for (int s = 1; s <= 46; ++s) record.stage[s].ElementType = type;
    printer = SheetPrinter();
    PrintSchematicSimple(session);
    ASSERT_EQ(printer.Sheets().size(), 1U);
    for (const TextOp& text : TextsOn(printer.Sheets()[0])) {
      EXPECT_TRUE(text.at.y < 15700 || text.text.starts_with("2026")) << type << " " << text.text << " " << text.at.y;
    }
  }
}

TEST_F(PrintedArtwork, AFaultIsTold) {
  platform.refuses = true;
  PrintSchematicSimple(session);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text, "We had a printer problem\r\nno such printer");
}

}  // namespace
}  // namespace quilm
