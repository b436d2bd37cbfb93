#include "display/DiplexerDrawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <variant>

#include "shell/Picture.h"
#include "support/WorkedDiplexer.h"

namespace quilm {
namespace {

std::vector<TextOp> TextsOf(const Picture& picture) {
  std::vector<TextOp> texts;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
  }
  return texts;
}

int Count(const Picture& picture, const std::string& text) {
  const auto texts = TextsOf(picture);
  return static_cast<int>(std::count_if(texts.begin(), texts.end(), [&](const TextOp& op) { return op.text == text; }));
}

const TextOp& Named(const std::vector<TextOp>& texts, const std::string& text) {
  const auto at = std::find_if(texts.begin(), texts.end(), [&](const TextOp& op) { return op.text == text; });
  if (at == texts.end()) throw Fault("no " + text);
  return *at;
}

TEST(DiplexerDrawing, TellsTheEntriesTheValuesAndTheRatios) {
  Picture picture;
  DrawDiplexer(WorkedSplit(), {}, picture);
  for (const char* text : {"Crossover=1M   Passband ripple=0.1   Order=3   System Z=50", "Lowpass", "Highpass",
                           "Maximum / minimum ratios:",
                           // 4.829 nF over 2.1034 nF, and 12.042 uH over 5.2454 uH.
                           "Capacitors: 2.2958", "Inductors: 2.2958"}) {
    EXPECT_EQ(Count(picture, text), 1) << text;
  }
  EXPECT_EQ(Count(picture, "50"), 2) << "both terminations";
  for (const char* designator : {"L1", "C2", "L3", "C1", "L2", "C3"}) EXPECT_EQ(Count(picture, designator), 1);
}

TEST(DiplexerDrawing, ASinglePartOfItsKindHasARatioOfOne) {
  EXPECT_EQ(DiplexerCapacitorRatio(WorkedSplit(1)), "Capacitors: 1");
  EXPECT_EQ(DiplexerInductorRatio(WorkedSplit(1)), "Inductors: 1");
}

TEST(DiplexerDrawing, TheRatiosAreThoseOfThePairOnDisplay) {
  // 2.6073 nF over 22.714 pF and 11.18 uH over 97.395 nH.
  EXPECT_EQ(DiplexerCapacitorRatio(WorkedBands()).substr(0, 15), "Capacitors: 114");
  EXPECT_EQ(DiplexerInductorRatio(WorkedBands()).substr(0, 14), "Inductors: 114");
}

// The second arm lies 2080 below the first one and 1420 to its right, its parts 800 apart.
TEST(DiplexerDrawing, ArmsAndPartsStandWhereTheyAreMeant) {
  Picture picture;
  DrawDiplexer(WorkedBands(4), {}, picture);
  const auto texts = TextsOf(picture);
  const TextOp& first = Named(texts, "Bandpass");
  const TextOp& second = Named(texts, "Bandstop");
  EXPECT_EQ(second.at.y - first.at.y, 2080);
  EXPECT_EQ(second.at.x - first.at.x, 1420);
  const TextOp& one = Named(texts, "L1 C1");
  const TextOp& three = Named(texts, "L3 C3");
  EXPECT_NEAR(three.at.x - one.at.x, 1600, 1);
}

TEST(DiplexerDrawing, NothingLeavesThePage) {
  for (i16 order = 1; order <= 10; ++order) {
    for (const Diplexer& d : {WorkedSplit(order), WorkedBands(order)}) {
      Picture picture;
      DrawDiplexer(d, "Upper edge has been reset to 1.01 * Lower edge", picture);
      const f32 right = picture.ScaleLeft + picture.ScaleWidth;
      const f32 bottom = picture.ScaleTop + picture.ScaleHeight;
      for (const PictureOp& operation : picture.Operations()) {
        if (const auto* line = std::get_if<PolylineOp>(&operation)) {
          for (const Point p : line->points) {
            EXPECT_TRUE(p.x > picture.ScaleLeft && p.x < right && p.y > picture.ScaleTop && p.y < bottom) << order;
          }
        }
      }
      for (const TextOp& text : TextsOf(picture)) {
        Picture measure;
        measure.FontSize = text.font.size;
        measure.FontBold = text.font.bold;
        EXPECT_LE(text.at.x + measure.TextWidth(text.text), right) << order << " " << text.text;
      }
    }
  }
}

TEST(DiplexerDrawing, TheNoteIsShownWhenThereIsOne) {
  const std::string note = "Upper edge has been reset to 1.01 * Lower edge";
  Picture picture;
  DrawDiplexer(WorkedBands(), note, picture);
  EXPECT_EQ(Count(picture, note), 1);
  DrawDiplexer(WorkedBands(), {}, picture);
  EXPECT_EQ(Count(picture, note), 0);
}

TEST(DrawTrap, ShowsBothValues) {
  Picture picture;
  DrawTrap(12.042e-6F, 2.1034e-9F, picture);
  EXPECT_EQ(Count(picture, "12.042uH"), 1);
  EXPECT_EQ(Count(picture, "2103.4pF"), 1);
}

}  // namespace
}  // namespace quilm
