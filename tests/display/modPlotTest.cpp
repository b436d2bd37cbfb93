#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/modPlot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

#include "core/Fault.h"
#include "display/PlotGrid.h"
#include "display/PlotKinds.h"
#include "shell/Picture.h"
#include "shell/SvgCanvas.h"

namespace quilm {
namespace {

class Plot : public testing::Test {
 protected:
  Plot() {
    scales.NrXints = 4;
    scales.NrYints = 6;
    scales.LossBottom = -60;
    scales.DelayTop = 6e-6F;
    scales.VSWRTop = 7;
    scales.ImpedanceTop = 120;
    for (int i = 0; i <= 4; ++i) {
      responses->RespFreq[i] = static_cast<f32>(i) * 1e6F;
      responses->RespTrans[i] = static_cast<f32>(-20 * i);
      responses->RespReturn[i] = -15;
      responses->RespAngle[i] = 90;
      responses->RespDelay[i] = 3e-6F;
      responses->RespVSWR[i] = 4;
      responses->RespZin[i] = 60;
      responses->RespZinAngle[i] = 45;
    }
  }

  Picture Drawn(i16 code) {
    Picture picture;
    DrawPlot(PlotOf(code), SpansOf(*responses, 4), places, picture);
    return picture;
  }

  PlotSetup PlotOf(i16 code) {
    scales.PlotCode = code;
    return {HorizontalAxis(AxisSettings{false, 0, 4e6F}), scales, {}, {}, 50};
  }

  static std::vector<TextOp> Texts(const Picture& picture) {
    std::vector<TextOp> texts;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
    }
    return texts;
  }

  static std::vector<PolylineOp> Traces(const Picture& picture) {
    std::vector<PolylineOp> traces;
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color != gridColor && !IsSample(*line)) traces.push_back(*line);
    }
    return traces;
  }

  // The pieces beside the titles of the scales.
  static bool IsSample(const PolylineOp& line) { return line.points.size() == 2 && line.points[0].y < 1000; }

  // The texts of a scale from top to bottom.
  static std::vector<std::string> ScaleTexts(const Picture& picture, bool left) {
    std::vector<std::string> found;
    for (const TextOp& text : Texts(picture)) {
      const bool inRows = text.at.y >= 900 && text.at.y <= 6900;
      if (inRows && (left ? text.at.x < 1850 : text.at.x > 11000)) found.push_back(text.text);
    }
    return found;
  }

  PlotScales scales;
  AxisPlaces places;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
};

using TextList = std::vector<std::string>;

TEST_F(Plot, TheTransmissionTraceRidesAlongTheBottom) {
  const auto traces = Traces(Drawn(1));
  ASSERT_EQ(traces.size(), 1U);
  const std::vector<Point> expected = {{2000, 1000}, {2000, 1000}, {4250, 3000},
                                       {6500, 5000}, {8750, 7000}, {11000, 7000}};
  EXPECT_EQ(traces[0].points, expected);
  EXPECT_EQ(traces[0].pen.color, colorBlue);
}

// The title of each scale has the colour of the trace that it belongs to, whichever is drawn first.
TEST_F(Plot, AxisTitlesHaveTheColourOfTheirTrace) {
  const std::map<i16, std::vector<std::pair<std::string, Color>>> expected = {
      {1, {{"Transmission, dB", colorBlue}}},
      {2, {{"Transmission, dB", colorBlue}, {"Return, dB", colorRed}}},
      {3, {{"Transmission, dB", colorRed}, {"Angle of Transmission", colorBlue}}},
      {4, {{"Transmission, dB", colorRed}, {"Envelope Delay", colorBlue}}},
      {7, {{"Input Impedance", colorBlue}, {"Angle of Input Impedance", colorRed}}},
      {13, {{"VSWR", colorBlue}, {"Transmission, dB", colorRed}}},
  };
  for (const auto& [code, titles] : expected) {
    std::vector<std::pair<std::string, Color>> found;
    for (const TextOp& text : Texts(Drawn(code))) {
      if (text.at.y < 700) found.emplace_back(text.text, text.color);
    }
    EXPECT_EQ(found, titles) << code;
  }
}

TEST_F(Plot, TheFrameLiesOverTheGridAndBelowTheTraces) {
  const Picture picture = Drawn(1);
  std::size_t frame = 0;
  std::size_t lastLine = 0;
  std::size_t trace = 0;
  for (std::size_t i = 0; i < picture.Operations().size(); ++i) {
    if (std::holds_alternative<RectangleOp>(picture.Operations()[i])) frame = i;
    const auto* line = std::get_if<PolylineOp>(&picture.Operations()[i]);
    if (line != nullptr) (line->pen.color == gridColor ? lastLine : trace) = i;
  }
  EXPECT_GT(frame, lastLine);
  EXPECT_GT(trace, frame);
}

// In print the colours may be gone. Each scale shows a piece of its trace beside its title.
TEST_F(Plot, TheSecondTraceIsDashedOnPaper) {
  const auto traces = Traces(Drawn(2));
  ASSERT_EQ(traces.size(), 2U);
  EXPECT_EQ(traces[0].pen.style, LineStyle::Solid);
  EXPECT_EQ(traces[1].pen.style, LineStyle::DashOnPaper);
  std::vector<Pen> samples;
  const Picture picture = Drawn(2);
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line != nullptr && line->pen.color != gridColor && IsSample(*line)) samples.push_back(line->pen);
  }
  ASSERT_EQ(samples.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(samples[i].color, traces[i].pen.color);
    EXPECT_EQ(samples[i].style, traces[i].pen.style);
    EXPECT_EQ(samples[i].showOn, Medium::Paper);
  }
}

TEST_F(Plot, OnPaperItHasTheTitleInPlaceOfTheInvitation) {
  PlotSetup setup = PlotOf(2);
  setup.title = "Harmonic filter";
  Picture picture;
  DrawPlot(setup, SpansOf(*responses, 4), places, picture);
  std::map<std::string, Medium> shown;
  for (const TextOp& text : Texts(picture)) shown[text.text] = text.showOn;
  EXPECT_EQ(shown.at("Mousedown for data"), Medium::Screen);
  EXPECT_EQ(shown.at("Start"), Medium::Screen);
  EXPECT_EQ(shown.at("Harmonic filter"), Medium::Paper);
  EXPECT_EQ(shown.at("Transmission, dB"), Medium::Everywhere);
  const std::string file = SvgText(picture);
  EXPECT_NE(file.find("Harmonic filter"), std::string::npos);
  EXPECT_EQ(file.find("Mousedown"), std::string::npos);
}

TEST_F(Plot, ALongTitleIsMadeToFitAndAnEmptyOneIsNone) {
  PlotSetup setup = PlotOf(1);
  setup.title = std::string(80, 'W');
  Picture picture;
  DrawPlot(setup, SpansOf(*responses, 4), places, picture);
  const TextOp title = Texts(picture).back();
  EXPECT_GE(title.at.x, picture.ScaleLeft);
  // A W is 944/1000 of an em wide in bold.
  EXPECT_LE(title.at.x + 80 * 0.944F * 20 * title.font.size, picture.ScaleLeft + picture.ScaleWidth);
  const std::size_t texts = Texts(picture).size();
  setup.title = "  ";
  DrawPlot(setup, SpansOf(*responses, 4), places, picture);
  EXPECT_EQ(Texts(picture).size(), texts - 1);
}

struct Expected {
  i16 code;
  TextList left;
  TextList right;
  TextList titles;
};

TEST_F(Plot, ScalesAndTitlesOfEveryPlot) {
  const TextList loss = {"0", "-10", "-20", "-30", "-40", "-50", "-60"};
  const TextList ohms = {"120", "100", "80", "60", "40", "20", "0"};
  const TextList ratio = {"7", "6", "5", "4", "3", "2", "1"};
  const Expected rows[] = {
      {1, loss, {}, {"Transmission, dB"}},
      {2, loss, loss, {"Transmission, dB", "Return, dB"}},
      {3, loss, {"180", "120", "60", "0", "-60", "-120", "-180"}, {"Transmission, dB", "Angle of Transmission"}},
      {4, loss, {"6u", "5u", "4u", "3u", "2u", "1u", "0"}, {"Transmission, dB", "Envelope Delay"}},
      {5, ratio, {}, {"VSWR"}},
      {6, ohms, {}, {"Input Impedance"}},
      {7, ohms, {"90", "60", "30", "0", "-30", "-60", "-90"}, {"Input Impedance", "Angle of Input Impedance"}},
      {9, ohms, loss, {"Input Impedance", "Transmission, dB"}},
      {10, ohms, {"120", "80", "40", "0", "-40", "-80", "-120"}, {"Input (real)", "Input (imaginary)"}},
      {13, ratio, loss, {"VSWR", "Transmission, dB"}},
  };
  for (const Expected& row : rows) {
    const Picture picture = Drawn(row.code);
    EXPECT_EQ(ScaleTexts(picture, true), row.left) << row.code;
    EXPECT_EQ(ScaleTexts(picture, false), row.right) << row.code;
    TextList titles;
    for (const TextOp& text : Texts(picture)) {
      if (text.at.y < 900) titles.push_back(text.text);
    }
    EXPECT_EQ(titles, row.titles) << row.code;
  }
}

TEST_F(Plot, TracesOfEveryPlotInTheirColours) {
  struct Row {
    i16 code;
    f32 blue;  // y at the second point
    f32 red;
  };
  // -20 dB of 60: 3000; -15 dB: 2500; 90 of +-180 degrees: 2500; half the delay, impedance and VSWR scales: 4000;
  // 45 of +-90 degrees: 2500; 60 ohms at 45 degrees: 42.43 of 120 is 4878.7, of +-120 is 2939.3.
  const Row rows[] = {{2, 3000, 2500}, {3, 2500, 3000},  {4, 4000, 3000},         {7, 4000, 2500},
                      {9, 4000, 3000}, {13, 4000, 3000}, {10, 4878.68F, 2939.34F}};
  for (const Row& row : rows) {
    for (const PolylineOp& trace : Traces(Drawn(row.code))) {
      const f32 expected = trace.pen.color == colorBlue ? row.blue : row.red;
      EXPECT_NEAR(trace.points[2].y, expected, 0.1) << row.code;
    }
    EXPECT_EQ(Traces(Drawn(row.code)).size(), 2U);
  }
}

TEST_F(Plot, MagnifyAddsATraceTenTimesAsHighBeneath) {
  scales.MagnifyMode = 1;
  responses->RespTrans[1] = -1.5F;
  const Picture picture = Drawn(1);
  const auto traces = Traces(picture);
  ASSERT_EQ(traces.size(), 2U);
  EXPECT_EQ(traces[0].pen.color, colorRed);
  EXPECT_EQ(traces[0].points[2].y, 2500);  // -15 of 60 dB
  EXPECT_EQ(traces[1].points[2].y, 1150);
  EXPECT_EQ(ScaleTexts(picture, false), (TextList{"0", "-1", "-2", "-3", "-4", "-5", "-6"}));
}

TEST_F(Plot, MagnifyLeavesTheOtherPlotsAlone) {
  const Picture before = Drawn(2);
  scales.MagnifyMode = 1;
  EXPECT_EQ(Drawn(2), before);
}

TEST_F(Plot, TheHorizontalGridStartsAtTheTop) {
  scales.NrYints = 7;
  std::set<f32> rows;
  const Picture picture = Drawn(1);
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line == nullptr || line->pen.color != gridColor) continue;
    if (line->points[0].y == line->points[1].y) rows.insert(line->points[0].y);
  }
  EXPECT_EQ(rows.size(), 8U);
  EXPECT_EQ(*rows.begin(), 1000);
  EXPECT_EQ(*rows.rbegin(), 6992);
}

TEST_F(Plot, FootersInvite) {
  const auto texts = Texts(Drawn(1));
  const auto has = [&texts](const char* text, f32 x, f32 y) {
    return std::any_of(texts.begin(), texts.end(),
                       [&](const TextOp& op) { return op.text == text && op.at.x == x && op.at.y == y; });
  };
  EXPECT_TRUE(has("Mousedown for data", 1301, 7280));
  EXPECT_TRUE(has("Start", 1400, 7660));
}

TEST_F(Plot, LeftLabelsEndAtOneLine) {
  const Picture picture = Drawn(1);
  for (const TextOp& text : Texts(picture)) {
    if (text.at.x >= 1850 || text.at.y < 900 || text.at.y > 6900) continue;
    const f64 width = StandardMetrics().WidthInPoints(text.text, text.font) * twipsPerPoint;
    EXPECT_NEAR(text.at.x + width, 1800, 0.1) << text.text;
  }
}

TEST_F(Plot, AllTextsStayOnThePicture) {
  for (const int code : {1, 2, 3, 4, 5, 6, 7, 9, 10, 13}) {
    for (const TextOp& text : Texts(Drawn(static_cast<i16>(code)))) {
      const f64 width = StandardMetrics().WidthInPoints(text.text, text.font) * twipsPerPoint;
      const f64 height = StandardMetrics().HeightInPoints(text.text, text.font) * twipsPerPoint;
      EXPECT_GE(text.at.x, plotScale.left) << text.text;
      EXPECT_LE(text.at.x + width, plotScale.left + plotScale.width) << text.text;
      EXPECT_GE(text.at.y, plotScale.top) << text.text;
      EXPECT_LE(text.at.y + height, plotScale.top + plotScale.height) << text.text;
    }
  }
}

TEST_F(Plot, AScaleWithoutHeightFaults) {
  scales.DelayTop = 0;
  EXPECT_THROW(Drawn(4), NumericFault);
  scales.VSWRTop = 1;
  EXPECT_THROW(Drawn(5), NumericFault);
}

TEST_F(Plot, RoundPlotsAreNoneOfThese) {
  EXPECT_FALSE(IsRectangular(11));
  EXPECT_THROW(Drawn(11), Fault);
}

TEST_F(Plot, DrawTracesDrawsNothingElse) {
  Picture picture;
  PlotSetup setup = PlotOf(2);
  setup.colors = {0x111111, 0x222222};
  DrawTraces(setup, SpansOf(*responses, 4), places, picture);
  ASSERT_EQ(picture.Operations().size(), 2U);
  EXPECT_EQ(Traces(picture)[0].pen.color, 0x111111U);
}

TEST_F(Plot, TracesHaveTheSetWidth) {
  scales.PlotLineWidth = 3;
  EXPECT_EQ(Traces(Drawn(1))[0].pen.width, 3);
}

}  // namespace
}  // namespace quilm
