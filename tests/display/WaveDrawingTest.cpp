#include "display/WaveDrawing.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "display/PlotGrid.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

std::vector<PolylineOp> LinesOf(const Picture& picture, Color color) {
  std::vector<PolylineOp> lines;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line != nullptr && line->pen.color == color) lines.push_back(*line);
  }
  return lines;
}

const TextOp* TextIn(const Picture& picture, const std::string& text) {
  for (const PictureOp& operation : picture.Operations()) {
    const auto* found = std::get_if<TextOp>(&operation);
    if (found != nullptr && found->text == text) return found;
  }
  return nullptr;
}

// Three points each, at the frame's edges and at the rising edge.
Waves SomeWaves(char analysis, i16 type = squareWave) {
  Waves waves;
  waves.signal = {type, analysis, 1000, 20e3F};
  waves.degrees = {-36, 0, 360};
  waves.WaveNormal = {-1, 0, 1};
  waves.WaveEqualized = {0.5F, -0.5F, 0};
  waves.PeakNormal = waves.PeakEqualized = 1;
  return waves;
}

Picture Drawn(const Waves& waves) {
  Picture picture;
  PlotWaves(waves, 2, {}, picture);
  return picture;
}

using Places = std::vector<Point>;

TEST(WaveDrawing, AValueStandsAtItsDegreeAndHeight) {
  const auto normal = LinesOf(Drawn(SomeWaves('N')), colorBlue);
  ASSERT_EQ(normal.size(), 1U);
  // A trace begins with a line of no length.
  EXPECT_EQ(normal[0].points, (Places{{2000, 7000}, {2000, 7000}, {2000 + 9000.0F / 11, 4000}, {11000, 1000}}));
  EXPECT_EQ(normal[0].pen.width, 2);
  const auto equalized = LinesOf(Drawn(SomeWaves('E')), colorRed);
  ASSERT_EQ(equalized.size(), 1U);
  EXPECT_EQ(equalized[0].points, (Places{{2000, 2500}, {2000, 2500}, {2000 + 9000.0F / 11, 5500}, {11000, 4000}}));
  EXPECT_EQ(equalized[0].pen.style, LineStyle::Solid);
}

TEST(WaveDrawing, TheAnalysisSaysWhichWavesAreShown) {
  EXPECT_TRUE(LinesOf(Drawn(SomeWaves('N')), colorRed).empty());
  EXPECT_TRUE(LinesOf(Drawn(SomeWaves('E')), colorBlue).empty());
  const Picture both = Drawn(SomeWaves('B'));
  // The trace and the piece of it before its name.
  EXPECT_EQ(LinesOf(both, colorBlue).size(), 2U);
  EXPECT_EQ(LinesOf(both, colorRed).size(), 2U);
  EXPECT_EQ(LinesOf(both, colorRed)[1].pen.style, LineStyle::DashOnPaper);
}

TEST(WaveDrawing, TwoWavesHaveTheirNamesInTheirColors) {
  EXPECT_EQ(TextIn(Drawn(SomeWaves('N')), "Normal"), nullptr);
  EXPECT_EQ(TextIn(Drawn(SomeWaves('E')), "Equalized"), nullptr);
  const Picture both = Drawn(SomeWaves('B'));
  ASSERT_NE(TextIn(both, "Normal"), nullptr);
  ASSERT_NE(TextIn(both, "Equalized"), nullptr);
  EXPECT_EQ(TextIn(both, "Normal")->color, colorBlue);
  EXPECT_EQ(TextIn(both, "Equalized")->color, colorRed);
}

TEST(WaveDrawing, TheHeadingTellsTheFrequenciesOnOneLine) {
  const Picture square = Drawn(SomeWaves('N'));
  ASSERT_NE(TextIn(square, "Squarewave frequency: 1k"), nullptr);
  EXPECT_EQ(TextIn(square, "Carrier frequency: 20k"), nullptr);
  for (const i16 type : {burstWave, envelopeWave}) {
    const Picture burst = Drawn(SomeWaves('N', type));
    const TextOp* first = TextIn(burst, "Squarewave frequency: 1k");
    const TextOp* second = TextIn(burst, "Carrier frequency: 20k");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(first->at.y, second->at.y);
    EXPECT_GT(second->at.x, first->at.x + 1500);
  }
}

TEST(WaveDrawing, TheGridHasTenIntervalsUpAndElevenAlong) {
  Picture frame;
  DrawWaveFrame(frame);
  std::vector<f32> levels;
  std::vector<f32> degrees;
  for (const PolylineOp& line : LinesOf(frame, gridColor)) {
    ASSERT_EQ(line.points.size(), 2U);
    const bool level = line.points[0].y == line.points[1].y;
    (level ? levels : degrees).push_back(level ? line.points[0].y : line.points[0].x);
  }
  EXPECT_EQ(levels, (std::vector<f32>{1600, 2200, 2800, 3400, 4000, 4600, 5200, 5800, 6400}));
  ASSERT_EQ(degrees.size(), 12U);
  for (std::size_t k = 0; k < degrees.size(); ++k)
    EXPECT_NEAR(degrees[k], 2000 + 9000.0 * static_cast<f64>(k) / 11, 0.01);
  const auto zero = LinesOf(frame, frameColor);
  ASSERT_EQ(zero.size(), 1U);
  EXPECT_EQ(zero[0].points, (Places{{2000, 4000}, {11000, 4000}}));
  for (const char* label : {"-36", "0", "36", "180", "360", "1", "-1"})
    EXPECT_NE(TextIn(frame, label), nullptr) << label;
}

TEST(WaveDrawing, ALowWaveThatIsShownIsMarkedInRed) {
  Waves waves = SomeWaves('N');
  waves.PeakNormal = 0.0999F;
  const Picture low = Drawn(waves);
  const TextOp* mark = TextIn(low, "LOW AMPLITUDE");
  ASSERT_NE(mark, nullptr);
  EXPECT_EQ(mark->at, (Point{500, 4000}));
  EXPECT_EQ(mark->color, colorRed);
  // It ends before the frame, and nothing else stands there.
  EXPECT_LT(500 + low.TextWidth("LOW AMPLITUDE"), 2000);

  waves.PeakNormal = 0.1F;
  EXPECT_EQ(TextIn(Drawn(waves), "LOW AMPLITUDE"), nullptr);
  waves.PeakEqualized = 0.01F;  // not the one that is shown
  EXPECT_EQ(TextIn(Drawn(waves), "LOW AMPLITUDE"), nullptr);
  waves.signal.AnalysisType = 'B';
  EXPECT_NE(TextIn(Drawn(waves), "LOW AMPLITUDE"), nullptr);
}

TEST(WaveDrawing, NothingAtAllIsALevelLineWithTheMark) {
  Waves waves = SomeWaves('N');
  waves.WaveNormal = {0, 0, 0};
  waves.PeakNormal = 0;
  const Picture level = Drawn(waves);
  const auto lines = LinesOf(level, colorBlue);
  ASSERT_EQ(lines.size(), 1U);
  for (const Point point : lines[0].points) EXPECT_EQ(point.y, 4000);
  EXPECT_NE(TextIn(level, "LOW AMPLITUDE"), nullptr);
}

TEST(WaveDrawing, TheTitleIsForPaperAlone) {
  Picture picture;
  PlotWaves(SomeWaves('N'), 2, "A lowpass", picture);
  ASSERT_NE(TextIn(picture, "A lowpass"), nullptr);
  EXPECT_EQ(TextIn(picture, "A lowpass")->showOn, Medium::Paper);
}

TEST(WaveDrawing, ASecondDrawingReplacesTheFirst) {
  Picture picture;
  PlotWaves(SomeWaves('B'), 3, {}, picture);
  PlotWaves(SomeWaves('N'), 2, {}, picture);
  EXPECT_EQ(picture, Drawn(SomeWaves('N')));
}

}  // namespace
}  // namespace quilm
