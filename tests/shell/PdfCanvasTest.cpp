#include "shell/PdfCanvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "shell/Picture.h"
#include "shell/Utf8.h"
#include "support/PdfTools.h"

namespace quilm {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr Scale letter{0, 0, 12240, 15840};

// A page whose units are points, so that a pixel of the image is one.
class PointPage : public testing::Test {
 protected:
  PointPage() {
    page.SetScale({0, 0, 200, 100});
    page.DrawWidth = 2;
  }
  void Render() {
    const PdfFileOf file(PdfText({&page, 1}, {200, 100}));
    pixels = file.Pixels(width, height);
    ASSERT_EQ(width, 200);
    ASSERT_EQ(height, 100);
  }
  bool Dark(int x, int y) const {
    return static_cast<unsigned char>(pixels[static_cast<std::size_t>(y * width + x)]) < 200;
  }
  Picture page;
  std::string pixels;
  int width = 0;
  int height = 0;
};

TEST_F(PointPage, LinesAndBoxesAreWhereTheyWereDrawn) {
  page.Line(10, 20, 90, 20, colorBlack);
  page.Rectangle(110, 40, 150, 60, colorBlack, true);
  page.Rectangle(160, 40, 190, 60, colorBlack, false);
  Render();
  EXPECT_TRUE(Dark(50, 20));
  EXPECT_FALSE(Dark(50, 25));
  EXPECT_FALSE(Dark(100, 20));
  EXPECT_TRUE(Dark(130, 50));
  EXPECT_TRUE(Dark(160, 50));
  EXPECT_FALSE(Dark(175, 50));
}

// From 0 to half a turn, anticlockwise as seen, is the upper half.
TEST_F(PointPage, ArcsTurnAnticlockwise) {
  page.Circle(50, 50, 30, colorBlack, 0, 3.14159F);
  page.Circle(150, 50, 30, colorBlack, 0, 0, 0.5F);
  Render();
  EXPECT_TRUE(Dark(50, 20));
  EXPECT_TRUE(Dark(71, 29));
  EXPECT_FALSE(Dark(50, 80));
  EXPECT_TRUE(Dark(120, 50));
  EXPECT_TRUE(Dark(150, 35));
  EXPECT_FALSE(Dark(150, 20));
}

TEST_F(PointPage, WhatHasNoPlaceBreaksATrace) {
  constexpr f32 none = std::numeric_limits<f32>::quiet_NaN();
  page.Polyline(std::vector<Point>{{10, 50}, {60, 50}, {none, 50}, {140, 50}, {190, 50}}, colorBlack);
  Render();
  EXPECT_TRUE(Dark(30, 50));
  EXPECT_FALSE(Dark(100, 50));
  EXPECT_TRUE(Dark(170, 50));
}

TEST_F(PointPage, TheScreensOwnIsNotOnPaper) {
  page.ShowOn = Medium::Screen;
  page.Rectangle(10, 10, 60, 60, colorBlack, true);
  page.ShowOn = Medium::Everywhere;
  page.DrawMode = PenMode::ExclusiveOr;
  page.Rectangle(110, 10, 160, 60, colorBlack, true);
  Render();
  EXPECT_FALSE(Dark(30, 30));
  EXPECT_FALSE(Dark(130, 30));
}

TEST(PdfDocument, HasAPageForEachSheetInItsSize) {
  std::vector<Picture> sheets(3, Picture(letter));
  sheets[1].PrintAt(1440, 1440, "Second sheet");
  const PdfFileOf file(PdfText(sheets, {612, 792}));
  EXPECT_EQ(PdfInfo(file.Path(), "Pages"), "3");
  EXPECT_EQ(PdfInfo(file.Path(), "Page size"), "612 x 792 pts (letter)");
  EXPECT_THAT(PdfWords(file.Path(), 2), HasSubstr("Second sheet"));
  EXPECT_THAT(PdfWords(file.Path(), 1), Not(HasSubstr("Second sheet")));
}

TEST(PdfDocument, OfOnePictureHasItsNaturalSize) {
  const PdfFileOf file(PdfText(Picture(Scale{0, 0, 1440, 720, {.xUnit = 2}})));
  EXPECT_EQ(PdfInfo(file.Path(), "Page size"), "144 x 36 pts");
}

// 1000 units are 50 points.
TEST(PdfDocument, TextsAreTextsAndKeepTheirCharacters) {
  Picture sheet(letter);
  const std::string words = R"(a (b) \ 50 Ω, 3 µH, ±20°, über, Δφ – "q")";
  sheet.PrintAt(1000, 1000, words);
  const PdfFileOf file(PdfText({&sheet, 1}, {612, 792}));
  const std::string read = PdfWords(file.Path());
  for (const char* word : {"a (b) \\ 50", "µH", "±20°", "über", "–", "\"q\""}) EXPECT_THAT(read, HasSubstr(word));
  // Ohm sign or capital omega, increment or capital delta: a reader cannot tell them apart.
  EXPECT_TRUE(read.find("Ω") != std::string::npos || read.find("\u2126") != std::string::npos) << read;
  EXPECT_THAT(read, HasSubstr("φ"));
}

TEST(PdfDocument, AnUnknownCharacterIsAQuestionMark) {
  Picture sheet(letter);
  sheet.PrintAt(1000, 1000, "[\xE6\xBC\xA2][\xFF]");
  const PdfFileOf file(PdfText({&sheet, 1}, {612, 792}));
  EXPECT_THAT(PdfWords(file.Path()), HasSubstr("[?][?]"));
}

TEST(Utf8, CharactersAreTakenOneByOne) {
  std::string_view text = "a\u00B5\u03A9\u20AC\U0001F600\xC3";
  for (const char32_t due :
       {char32_t{'a'}, char32_t{0xB5}, char32_t{0x3A9}, char32_t{0x20AC}, char32_t{0x1F600}, char32_t{0xFFFD}}) {
    EXPECT_EQ(TakeCharacter(text), due);
  }
  EXPECT_TRUE(text.empty());
}

}  // namespace
}  // namespace quilm
