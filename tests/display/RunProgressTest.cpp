#include "display/RunProgress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "display/PlotFrame.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;

struct PlacedText {
  f32 x;
  f32 y;
  std::string text;
  bool operator==(const PlacedText&) const = default;
};

std::vector<PlacedText> TextsOf(const Picture& picture) {
  std::vector<PlacedText> texts;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back({text->at.x, text->at.y, text->text});
  }
  return texts;
}

bool HasFilledBox(const Picture& picture, Point from, Point to, Color color) {
  const auto& operations = picture.Operations();
  return std::any_of(operations.begin(), operations.end(), [&](const PictureOp& operation) {
    const auto* box = std::get_if<RectangleOp>(&operation);
    return box != nullptr && box->filled && box->from == from && box->to == to && box->pen.color == color;
  });
}

// By hand: a decade is 9000 / 6 = 1500.
TEST(ErrorBar, EndsOnALogarithmicScale) {
  EXPECT_EQ(ErrorBarEnd(10000), 2000);
  EXPECT_EQ(ErrorBarEnd(100), 5000);
  EXPECT_EQ(ErrorBarEnd(1), 8000);
  EXPECT_EQ(ErrorBarEnd(0.01F), 11000);
  EXPECT_EQ(ErrorBarEnd(0.0101F), 10994);  // 1500 lg 1.01 = 6.48 before the end
}

TEST(ErrorBar, StaysOnTheScale) {
  EXPECT_EQ(ErrorBarEnd(1e30F), 2000);
  EXPECT_EQ(ErrorBarEnd(std::numeric_limits<f32>::infinity()), 2000);
  EXPECT_EQ(ErrorBarEnd(0), 11000);
}

TEST(OptimizerProgress, ShowsBarScaleAndCounts) {
  Picture picture(plotProgressScale);
  DrawOptimizerProgress({.TrialCount = 17, .BetterCount = 3, .ErrorSum = 1, .BestError = 0.5F}, picture);
  EXPECT_TRUE(HasFilledBox(picture, {2000, 645}, {8000, 778}, 0x11DD11));
  EXPECT_TRUE(HasFilledBox(picture, {50, 600}, {1500, 1500}, 0xDDFFDD));
  const std::vector<PlacedText> texts = TextsOf(picture);
  EXPECT_THAT(texts, Contains(PlacedText{100, 645, "Trial: 17"}));
  EXPECT_THAT(texts, Contains(PlacedText{100, 845, "Better: 3"}));
  EXPECT_THAT(texts, Contains(testing::AllOf(testing::Field(&PlacedText::x, 100), testing::Field(&PlacedText::y, 1245),
                                             testing::Field(&PlacedText::text, testing::StartsWith("Error: 0.5")))));
  std::vector<f32> ticks;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line == nullptr) continue;
    EXPECT_EQ(line->points.front().y, 615);
    EXPECT_EQ(line->points.back().y, 805);
    ticks.push_back(line->points.front().x);
  }
  EXPECT_THAT(ticks, ElementsAre(2000, 3500, 5000, 6500, 8000, 9500, 11000));
}

// All of it lies within what the picture shows.
TEST(OptimizerProgress, IsInSight) {
  for (const Scale& scale : {plotProgressScale, chartProgressScale}) {
    Picture picture(scale);
    DrawOptimizerProgress({.TrialCount = 2000, .BetterCount = 1999, .ErrorSum = 1, .BestError = 12345.678F}, picture);
    for (const PlacedText& text : TextsOf(picture)) {
      EXPECT_GE(text.x, scale.left) << text.text;
      EXPECT_GE(text.y, scale.top) << text.text;
      EXPECT_LE(text.x + picture.TextWidth(text.text), scale.left + scale.width) << text.text;
    }
  }
}

TEST(TrialCount, StandsInARowOfItsOwn) {
  Picture picture(plotScale);
  DrawTrialCount(1234, picture);
  EXPECT_TRUE(HasFilledBox(picture, {1000, 100}, {3000, 600}, colorWhite));
  EXPECT_THAT(TextsOf(picture), ElementsAre(PlacedText{1000, 360, "Trial: 1234"}));
}

TEST(TopRows, AreEmptied) {
  Picture picture(plotScale);
  ClearTopRows(picture);
  EXPECT_TRUE(HasFilledBox(picture, {1, 1}, {12000, 660}, colorWhite));
}

}  // namespace
}  // namespace quilm
