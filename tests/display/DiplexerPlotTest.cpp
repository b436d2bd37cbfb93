#include "display/DiplexerPlot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "core/AxisPlaces.h"
#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "diplexer/DesignDiplexer.h"
#include "display/Markers.h"
#include "display/PlotFrame.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

constexpr Color returnGreen = 0x008000;

// The lowpass and highpass of order 3 that cross at 1 MHz, over two decades about it.
class DiplexerPlotted : public testing::Test {
 protected:
  DiplexerPlotted() {
    diplexer.DipMode = 1;
    diplexer.DipOrder = 3;
    diplexer.DipRipple = 0.1F;
    diplexer.DipZ = 50;
    diplexer.DipCrossover = 1e6F;
    diplexer.DipFlower = 0.9e6F;
    diplexer.DipFupper = 1.1e6F;
    record.SweepMode = 2;
    record.Fstart = 1e5F;
    record.Fstop = 1e7F;
    record.NrIntervals = 200;
    record.NrXints = 10;
    record.NrYints = 6;
    record.LossBottom = -60;
    record.Qind[1] = record.Qcap[1] = 1e7F;
  }

  DiplexerSetup PresentSetup() { return DiplexerSetupOf(diplexer, record); }

  void Draw(const DiplexerSetup& setup) {
    DesignDiplexer(diplexer);
    SweepDiplexer(diplexer, record, *responses);
    DrawDiplexerPlot(setup, *responses, places, picture);
  }
  void Draw() { Draw(PresentSetup()); }

  // The curve of a colour: the first point comes twice, as a curve begins.
  std::vector<Point> CurveOf(Color color) {
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color == color && line->points.size() > 100) return line->points;
    }
    return {};
  }

  // How many ticks stand at a place along the frame.
  int TicksAt(f32 x, const Picture& in) {
    int ticks = 0;
    for (const PictureOp& operation : in.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line == nullptr || line->points.size() != 2 || line->pen.color != colorBlack) continue;
      const Point from = line->points[0];
      const Point to = line->points[1];
      ticks += std::abs(from.x - x) < 1 && from.x == to.x && std::abs(to.y - from.y) < 500 ? 1 : 0;
    }
    return ticks;
  }

  std::vector<TextOp> Texts(const Picture& in) {
    std::vector<TextOp> texts;
    for (const PictureOp& operation : in.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
    }
    return texts;
  }
  std::vector<TextOp> Texts() { return Texts(picture); }

  bool Says(const std::string& words) {
    const auto texts = Texts();
    return std::any_of(texts.begin(), texts.end(), [&](const TextOp& text) { return text.text == words; });
  }
  Color ColorOfText(const std::string& words) {
    for (const TextOp& text : Texts()) {
      if (text.text == words) return text.color;
    }
    return colorWhite;
  }

  // The texts in a row below the plot, from left to right.
  std::vector<std::string> Row(const Picture& in, f32 y) {
    std::vector<TextOp> row;
    for (const TextOp& text : Texts(in)) {
      if (text.at.y == y) row.push_back(text);
    }
    std::sort(row.begin(), row.end(), [](const TextOp& a, const TextOp& b) { return a.at.x < b.at.x; });
    std::vector<std::string> words;
    for (const TextOp& text : row) words.push_back(text.text);
    return words;
  }

  Diplexer diplexer;
  DesignRecord record;
  std::unique_ptr<DiplexerResponses> responses = std::make_unique<DiplexerResponses>();
  AxisPlaces places;
  Picture picture;
};

TEST_F(DiplexerPlotted, NamesEachCurveInItsColour) {
  Draw();
  EXPECT_EQ(ColorOfText("Lowpass"), colorBlue);
  EXPECT_EQ(ColorOfText("Highpass"), colorRed);
  EXPECT_EQ(ColorOfText("Return"), returnGreen);
  EXPECT_FALSE(Says("Bandpass"));
  for (const Color color : {colorBlue, colorRed, returnGreen}) EXPECT_EQ(CurveOf(color).size(), 202U);

  diplexer.DipMode = 2;
  Draw();
  EXPECT_EQ(ColorOfText("Bandpass"), colorBlue);
  EXPECT_EQ(ColorOfText("Bandstop"), colorRed);
  EXPECT_EQ(ColorOfText("Return"), returnGreen);
  EXPECT_FALSE(Says("Lowpass"));
}

TEST_F(DiplexerPlotted, TheScaleGoesFromZeroToTheLowestLevel) {
  record.LossBottom = -40;
  record.NrYints = 5;
  Draw();
  for (const char* label : {"dB", "0", "-8", "-16", "-24", "-32", "-40"}) EXPECT_TRUE(Says(label)) << label;
  EXPECT_FALSE(Says("-10"));
}

// Both arms lose 3.0561 dB where they cross, which is in the middle of the two decades.
TEST_F(DiplexerPlotted, TheCurvesCrossInTheMiddleOfALogarithmicSweep) {
  Draw();
  const Point low = CurveOf(colorBlue).at(101);
  const Point high = CurveOf(colorRed).at(101);
  EXPECT_NEAR(low.x, 6500, 1);
  EXPECT_NEAR(low.y, 1000 + 6000 * 3.0561 / 60, 1);
  EXPECT_NEAR(high.y, low.y, 1);
}

TEST_F(DiplexerPlotted, ALinearSweepIsLinear) {
  record.SweepMode = 1;
  record.Fstart = 0.5e6F;
  record.Fstop = 2.5e6F;
  Draw();
  const std::vector<Point> low = CurveOf(colorBlue);
  EXPECT_NEAR(low.at(51).x, 2000 + 9000 * 0.25, 1);  // 1 MHz
  EXPECT_NEAR(low.at(51).y, 1000 + 6000 * 3.0561 / 60, 1);
}

TEST_F(DiplexerPlotted, ACurveRidesAlongTheEdgeWhereItLeavesTheScale) {
  record.LossBottom = -20;
  Draw();
  EXPECT_EQ(CurveOf(colorBlue).back().y, 7000);  // some 60 dB below at a decade above the crossover
  EXPECT_EQ(CurveOf(colorRed).front().y, 7000);
}

TEST_F(DiplexerPlotted, ThePaperTellsCurvesApartWithoutColours) {
  Draw();
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line == nullptr || line->points.size() < 100) continue;
    EXPECT_EQ(line->pen.style, line->pen.color == colorRed ? LineStyle::DashOnPaper : LineStyle::Solid);
  }
}

TEST_F(DiplexerPlotted, TheTwoArmsAlone) {
  DiplexerSetup setup = PresentSetup();
  setup.showsReturn = false;
  setup.inReport = true;
  Draw(setup);
  EXPECT_TRUE(CurveOf(returnGreen).empty());
  EXPECT_FALSE(Says("Return"));
  EXPECT_FALSE(Says("Mousedown for data"));
  EXPECT_FALSE(CurveOf(colorRed).empty());
}

TEST_F(DiplexerPlotted, MarkersHaveTicksOnEachCurveAndARow) {
  diplexer.DipMarker[0] = 1e6F;
  diplexer.DipMarker[8] = 2e6F;
  DesignDiplexer(diplexer);
  DiplexerSetup setup = PresentSetup();
  setup.markers = ReadDiplexerMarkers(diplexer, record);
  Draw(setup);
  ASSERT_EQ(setup.markers.size(), 2U);
  EXPECT_EQ(TicksAt(6500, picture), 3);
  EXPECT_EQ(TicksAt(FrameX(std::log10(20.0) / 2), picture), 3);
  EXPECT_EQ(Row(picture, 7290), (std::vector<std::string>{"Freq.:", "Lowpass:", "Highpass:", "Return:"}));
  const auto first = Row(picture, MarkerRow(1));
  ASSERT_EQ(first.size(), 5U);
  EXPECT_EQ(first[0], "1");
  EXPECT_EQ(Trimmed(first[1]), "1M");
  EXPECT_NEAR(std::stod(first[2]), -3.0561, 6e-3);
  EXPECT_NEAR(std::stod(first[3]), -3.0561, 6e-3);
  EXPECT_LT(std::stod(first[4]), -20);
  EXPECT_EQ(Row(picture, MarkerRow(2)).at(0), "9");
  // Six ticks with their numbers, and one number to a row.
  const auto texts = Texts();
  EXPECT_EQ(std::count_if(texts.begin(), texts.end(), [](const TextOp& text) { return text.text == "9"; }), 4);
  // The sheet has grown by the rows.
  EXPECT_GT(picture.CurrentScale().top + picture.CurrentScale().height, MarkerRow(2) + 150);
}

TEST_F(DiplexerPlotted, AMarkerOutsideTheSweepHasARowAndNoTick) {
  diplexer.DipMarker[3] = 5e7F;
  DesignDiplexer(diplexer);
  DiplexerSetup setup = PresentSetup();
  setup.markers = ReadDiplexerMarkers(diplexer, record);
  Draw(setup);
  EXPECT_EQ(Row(picture, MarkerRow(1)).at(0), "4");
  const auto texts = Texts();
  EXPECT_EQ(std::count_if(texts.begin(), texts.end(), [](const TextOp& text) { return text.text == "4"; }), 1);
}

TEST_F(DiplexerPlotted, MarkersAtTheEndsOfTheSweepHaveTicks) {
  diplexer.DipMarker[1] = record.Fstart;
  diplexer.DipMarker[2] = record.Fstop;
  for (const DiplexerMarker& marker : ReadDiplexerMarkers(diplexer, record)) EXPECT_TRUE(marker.inSweep);
}

TEST_F(DiplexerPlotted, TheReadoutTellsAllThree) {
  Draw();
  Picture mark(picture.CurrentScale());
  DrawDiplexerReadout(PresentSetup(), *responses, 100, mark);
  EXPECT_EQ(Row(mark, 7290), (std::vector<std::string>{"Freq.:", "Lowpass:", "Highpass:", "Return:"}));
  const auto values = Row(mark, 7470);
  ASSERT_EQ(values.size(), 4U);
  EXPECT_NEAR(std::stod(values[1]), -3.0561, 6e-3);
  EXPECT_EQ(std::count_if(mark.Operations().begin(), mark.Operations().end(),
                          [](const PictureOp& op) { return std::holds_alternative<PointOp>(op); }),
            3);
}

TEST_F(DiplexerPlotted, ASweepWithoutWidthIsAFault) {
  record.Fstop = record.Fstart;
  EXPECT_THROW(Draw(), Fault);
}

}  // namespace
}  // namespace quilm
