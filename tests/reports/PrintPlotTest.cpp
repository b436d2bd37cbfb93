#include "reports/PrintPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/PlotKinds.h"
#include "display/SheetDrawing.h"
#include "files/modOverlays.h"
#include "reports/ReportBench.h"
#include "shell/Session.h"
#include "support/PadDesign.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

class OverlayFolder {
 public:
  OverlayFolder() {
    path = (std::filesystem::temp_directory_path() / "quilm-print-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) throw Fault("no temporary folder");
  }
  ~OverlayFolder() { std::filesystem::remove_all(path); }
  std::string path;
};

class PrintedPlot : public testing::Test {
 protected:
  PrintedPlot() : platform(folder.path), session(platform, {}), record(session.record) {
    MakePad(record);
    AddCapacitorToPad(record);
    record.SmithAspect = 0.75F;
    record.DesignFileName = "sample.QLM";
    record.CircuitTitle = "Pad with a capacitor";
    platform.clock = DateTime{2026, 3, 9, 12, 0, 0};
    Sweep();
    ChoosePlot(session, 1);
  }

  void Sweep() { ASSERT_EQ(SweepLadder(record, session.responses), ""); }

  std::vector<Picture> Printed() {
    platform.printers = {true};
    PrintPlot(session);
    return platform.Printer().Sheets();
  }

  static std::vector<std::string> Words(const Picture& sheet) {
    std::vector<std::string> words;
    for (const TextOp& text : TextsOn(sheet)) words.push_back(text.text);
    return words;
  }
  static std::vector<PolylineOp> Traces(const Picture& sheet, Color color) {
    std::vector<PolylineOp> traces;
    for (const PictureOp& operation : sheet.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color == color && line->points.size() > 2) traces.push_back(*line);
    }
    return traces;
  }
  void ShowMarkers(int count) {
    for (int m = 1; m <= count; ++m) record.MarkerFreq[m] = 1e6F * static_cast<f32>(m);
    record.MarkersShown = 1;
    RedrawPlot(session);
  }
  void ShowAreas(int count) {
    for (int j = 0; j < count; ++j) AddArea(record, 1, {2, 2e6F + 1e6F * static_cast<f32>(j), 1e10F, 0, -3});
    record.LimitsShown = 1;
    RedrawPlot(session);
  }

  OverlayFolder folder;
  HeadlessPlatform platform;
  Session session;
  DesignRecord& record;
};

TEST_F(PrintedPlot, StandsOnItsCoordinatesOnASheetThatLiesCrosswise) {
  const std::vector<Picture> sheets = Printed();
  ASSERT_EQ(sheets.size(), 1U);
  EXPECT_EQ(platform.Printer().Paper(), Orientation::Landscape);
  EXPECT_FLOAT_EQ(sheets[0].ScaleWidth / sheets[0].ScaleHeight, 15840.0F / 12240);
  const auto& all = sheets[0].Operations();
  EXPECT_TRUE(std::any_of(all.begin(), all.end(), [](const PictureOp& operation) {
    const auto* box = std::get_if<RectangleOp>(&operation);
    return box != nullptr && box->from == Point{2000, 1000} && box->to == Point{11000, 7000};
  }));
}

TEST_F(PrintedPlot, TitleFileNameAndDateStandOnIt) {
  const Picture sheet = Printed()[0];
  EXPECT_LT(PlaceOf(sheet, "Pad with a capacitor").y, 400);
  const Point foot = PlaceOf(sheet, "2026-03-09   -   Quilm Version 0.1.0");
  EXPECT_GT(foot.y, 8200);
  EXPECT_EQ(PlaceOf(sheet, "sample.QLM"), (Point{foot.x, foot.y - 160}));
}

TEST_F(PrintedPlot, AnEmptyTitleHasNoLine) {
  for (const char* title : {"", "  "}) {
    record.CircuitTitle = title;
    for (const TextOp& text : TextsOn(Printed()[0])) EXPECT_GT(text.at.y, 400) << text.text;
  }
}

TEST_F(PrintedPlot, EachOfTheTwelveHasItsHeadingsAndNoHintForTheMouse) {
  const std::map<i16, std::vector<std::string>> headings = {
      {1, {"Transmission, dB"}},
      {2, {"Transmission, dB", "Return, dB"}},
      {3, {"Transmission, dB", "Angle of Transmission"}},
      {4, {"Transmission, dB", "Envelope Delay"}},
      {5, {"VSWR"}},
      {13, {"VSWR", "Transmission, dB"}},
      {6, {"Input Impedance"}},
      {9, {"Input Impedance", "Transmission, dB"}},
      {7, {"Input Impedance", "Angle of Input Impedance"}},
      {10, {"Input Impedance (real)", "Input impedance (imaginary)"}},
      {11,
       {"S11", "+2", "+1", "+.5", "+.2", "0", "-.2", "-.5", "-1", "-2", ".2", ".5", "1", "2", "5",
        "Normalized to 50 ohms"}},
      {12, {"S21", "0", "30", "60", "90", "120", "150", "180", "-150", "-120", "-90", "-60", "-30"}}};
  for (const PlotButton& button : PlotButtons()) {
    ChoosePlot(session, button.code);
    const std::vector<std::string> words = Words(Printed()[0]);
    EXPECT_THAT(words, IsSupersetOf(headings.at(button.code))) << button.code;
    EXPECT_THAT(words, Not(Contains("Mousedown for data"))) << button.code;
    EXPECT_THAT(words, Not(Contains("Start"))) << button.code;
    EXPECT_EQ(std::count(words.begin(), words.end(), "Pad with a capacitor"), 1) << button.code;
  }
}

TEST_F(PrintedPlot, EverythingStandsOnTheSheet) {
  ShowMarkers(8);
  ShowAreas(10);
  for (const PlotButton& button : PlotButtons()) {
    ChoosePlot(session, button.code);
    for (const Picture& sheet : Printed()) {
      for (const TextOp& text : TextsOn(sheet)) {
        Picture measure(sheet.CurrentScale());
        measure.FontName = text.font.name;
        measure.FontSize = text.font.size;
        measure.FontBold = text.font.bold;
        EXPECT_GE(text.at.x, sheet.ScaleLeft) << text.text;
        EXPECT_GE(text.at.y, sheet.ScaleTop) << text.text;
        EXPECT_LE(text.at.x + measure.TextWidth(text.text), sheet.ScaleLeft + sheet.ScaleWidth) << text.text;
        EXPECT_LE(text.at.y + measure.TextHeight(text.text), sheet.ScaleTop + sheet.ScaleHeight) << text.text;
      }
    }
  }
}

// On charts a unit of x is 4/3 of a unit of y, so that with an aspect of 0.75 the unit circle is one.
TEST_F(PrintedPlot, AChartIsATrueCircle) {
  for (const i16 code : {i16{11}, i16{12}}) {
    ChoosePlot(session, code);
    const Picture sheet = Printed()[0];
    f32 left = 1e9F;
    f32 right = 0;
    f32 top = 1e9F;
    f32 bottom = 0;
    for (const PictureOp& operation : sheet.Operations()) {
      const auto* rim = std::get_if<PolylineOp>(&operation);
      if (rim == nullptr || rim->points.size() != 121) continue;  // by steps of 3 degrees
      for (const Point p : rim->points) {
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::min(top, p.y);
        bottom = std::max(bottom, p.y);
      }
    }
    EXPECT_NEAR((right - left) / (bottom - top), 1, 0.001F) << code;
    EXPECT_NEAR((right + left) / 2, 6500, 1) << code;
  }
}

TEST_F(PrintedPlot, ItsTracesAreOneWideWhateverTheScreenHas) {
  record.PlotLineWidth = 5;
  ChoosePlot(session, 1);
  ASSERT_EQ(Traces(session.plot.picture, colorBlue)[0].pen.width, 5);
  session.plot.live.DrawWidth = 5;
  session.plot.live.Polyline(std::vector<Point>{{2000, 1000}, {6500, 2000}, {11000, 3000}}, colorBlue);
  const auto traces = Traces(Printed()[0], colorBlue);
  ASSERT_EQ(traces.size(), 2U) << "the plot's and a run's";
  for (const PolylineOp& trace : traces) EXPECT_EQ(trace.pen.width, 1);
}

TEST_F(PrintedPlot, MarkersHaveATableThatGoesOnOnAFurtherSheet) {
  ShowMarkers(8);
  const std::vector<Picture> sheets = Printed();
  ASSERT_EQ(sheets.size(), 2U);
  EXPECT_GT(PlaceOf(sheets[0], "Details of markers:").y, 7280) << "below the labels of the frequencies";
  const std::vector<std::string> columns = {
      "Frequency:", "Trans.:", "Angle:", "Return:", "Delay:", "VSWR:", "Zin:", "Zangle:", "Real:", "Imaginary:"};
  for (const Picture& sheet : sheets) {
    EXPECT_THAT(Words(sheet), IsSupersetOf(columns));
    EXPECT_THAT(Words(sheet), Contains("Pad with a capacitor"));
    EXPECT_THAT(Words(sheet), Contains("2026-03-09   -   Quilm Version 0.1.0"));
  }
  // The first numbers stand on the trace, too.
  EXPECT_THAT(Words(sheets[0]), Contains("2M"));
  EXPECT_THAT(Words(sheets[1]), Not(Contains("2M")));
  for (const char* frequency : {"3M", "4M", "5M", "6M", "7M", "8M"}) {
    EXPECT_NE(PlaceOf(sheets[1], frequency).y, -1) << frequency;
  }
  EXPECT_THAT(Words(sheets[0]), Not(Contains("Freq.:"))) << "the rows of the screen";
}

TEST_F(PrintedPlot, NothingOfTheTablesStandsBelow8000) {
  ShowMarkers(8);
  ShowAreas(10);
  for (const Picture& sheet : Printed()) {
    for (const TextOp& text : TextsOn(sheet)) {
      const bool foot = text.at.y > 8200;
      EXPECT_TRUE(foot || text.at.y + 161 <= 8000) << text.text << " at " << text.at.y;
      EXPECT_TRUE(!foot || text.text == "sample.QLM" || text.text.starts_with("2026")) << text.text;
    }
  }
}

// Ten areas of each of the six types are more than a further sheet holds.
TEST_F(PrintedPlot, AllLimitsAreToldOnAsManySheetsAsTheyNeed) {
  for (int type = 1; type <= plotTypes; ++type) {
    for (int j = 1; j <= limitsPerPlot; ++j) {
      AddArea(record, type, {2, 1000.0F * static_cast<f32>(100 * type + j), 1e10F, 0, 5});
    }
  }
  record.LimitsShown = 1;
  RedrawPlot(session);
  const std::vector<Picture> sheets = Printed();
  EXPECT_EQ(sheets.size(), 3U);
  std::vector<std::string> sentences;
  for (const Picture& sheet : sheets) {
    for (const std::string& word : Words(sheet)) {
      if (word.starts_with("From ")) sentences.push_back(word);
    }
  }
  EXPECT_EQ(sentences.size(), 60U);
  EXPECT_EQ(sentences.front().substr(0, 10), "From 101k ");
  EXPECT_EQ(sentences.back().substr(0, 10), "From 610k ");
}

TEST_F(PrintedPlot, HiddenMarkersAndLimitsAreNotPrinted) {
  ShowMarkers(8);
  ShowAreas(3);
  record.MarkersShown = record.LimitsShown = 0;
  RedrawPlot(session);
  EXPECT_EQ(Printed().size(), 1U);
}

TEST_F(PrintedPlot, OverlaysAreReadAgainAndDrawn) {
  SaveOverlay(session, 3);
  record.stage[1].Rval.value = 500;
  Sweep();
  ChoosePlot(session, 1);
  EXPECT_EQ(Traces(Printed()[0], colorBlue).size(), 1U);
  GetOverlay(session, 3);
  EXPECT_EQ(Traces(Printed()[0], colorBlue).size(), 2U);
  std::ofstream(OverlayPath(folder.path, 3, Quantity::Transmission)) << "1E+06 -30 \r\n1E+07 -30 \r\n1E+08 -30 \r\n";
  const auto traces = Traces(Printed()[0], colorBlue);
  ASSERT_EQ(traces.size(), 2U);
  for (const Point p : traces[1].points) EXPECT_EQ(p.y, 4000);  // halfway down to -60 dB
  HideOverlays(session);
  EXPECT_EQ(Traces(Printed()[0], colorBlue).size(), 1U);
}

TEST_F(PrintedPlot, AnOverlayThatIsGoneIsTold) {
  SaveOverlay(session, 3);
  GetOverlay(session, 3);
  DeleteOverlay(session, 3);
  EXPECT_EQ(Traces(Printed()[0], colorBlue).size(), 1U);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(session.note, "Without overlay 3, whose files cannot be read any more");
}

// What tuning has laid over a plot is on paper with what it began with.
TEST_F(PrintedPlot, ASweepSinceLeavesTheTraceThatIsSeen) {
  const auto before = Traces(Printed()[0], colorBlue);
  record.stage[1].Rval.value = 500;
  Sweep();
  EXPECT_EQ(Traces(Printed()[0], colorBlue), before);
}

TEST_F(PrintedPlot, TheEnvelopeOfTrialsIsOnIt) {
  RedrawWithExtremes(session);
  const Picture sheet = Printed()[0];
  EXPECT_EQ(Traces(sheet, colorBlue).size(), 0U);
  EXPECT_EQ(Traces(sheet, 0x119911).size(), 1U) << "the nominal trace";
  ASSERT_EQ(Traces(sheet, 0xFF1111).size(), 2U) << "most and least";
  EXPECT_EQ(Traces(sheet, 0xFF1111)[0].pen.width, 1);
  RedrawPlot(session);
  EXPECT_EQ(Traces(Printed()[0], 0x119911).size(), 0U);
}

TEST_F(PrintedPlot, PrintingChangesNothingAndASecondPrintIsTheSame) {
  ShowMarkers(5);
  ShowAreas(3);
  const DesignRecord before = record;
  const Picture seen = session.plot.picture;
  const std::vector<Picture> once = Printed();
  EXPECT_EQ(Printed(), once);
  EXPECT_TRUE(record == before);
  EXPECT_EQ(session.plot.picture, seen);
}

TEST_F(PrintedPlot, ACancelledDialogIsQuiet) {
  platform.printers = {false};
  PrintPlot(session);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(session.note, "");
}

TEST_F(PrintedPlot, AFaultIsTold) {
  record.Fstop = record.Fstart;
  Printed();
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Printer Error");
  EXPECT_TRUE(platform.messages[0].text.starts_with("We had a printing routine problem\r\n"));
  EXPECT_TRUE(platform.Printer().Ended());
}

}  // namespace
}  // namespace quilm
