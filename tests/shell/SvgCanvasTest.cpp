#include "shell/SvgCanvas.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>

#include "shell/Picture.h"
#include "shell/SvgReader.h"

namespace quilm {
namespace {

// The elements drawn, without the root and the paper.
std::vector<SvgElement> Drawn(const SvgCanvas& canvas) {
  auto elements = ReadSvg(canvas.Text());
  elements.erase(elements.begin(), elements.begin() + 2);
  return elements;
}

SvgElement Only(const SvgCanvas& canvas) {
  const auto elements = Drawn(canvas);
  EXPECT_EQ(elements.size(), 1U);
  return elements.at(0);
}

TEST(SvgCanvas, IsPaperOverTheWholeScale) {
  SvgCanvas canvas;
  canvas.SetScale({-150, 75, 13000, 8000});
  canvas.BackColor = 0x10A0FF;
  const auto elements = ReadSvg(canvas.Text());
  ASSERT_EQ(elements.size(), 2U);
  EXPECT_EQ(elements[0].name, "svg");
  EXPECT_EQ(elements[0].attributes.at("xmlns"), "http://www.w3.org/2000/svg");
  EXPECT_EQ(elements[0].attributes.at("viewBox"), "-10 5 866.6667 533.3333");
  // 13000 twips at 1440 and 96 to the inch.
  EXPECT_NEAR(elements[0].Number("width"), 866.667, 0.001);
  EXPECT_NEAR(elements[0].Number("height"), 533.333, 0.001);
  EXPECT_EQ(elements[1].name, "rect");
  EXPECT_EQ(elements[1].attributes.at("fill"), "#ffa010");
  EXPECT_EQ(elements[1].Number("x"), -10);
  EXPECT_EQ(elements[1].Number("y"), 5);
  EXPECT_NEAR(elements[1].Number("width"), 866.667, 0.001);
}

TEST(SvgCanvas, PensKeepTheirWidthInPixels) {
  SvgCanvas canvas;
  canvas.DrawWidth = 3;
  canvas.Line(1, 2, 3, 4, colorRed);
  const SvgElement line = Only(canvas);
  EXPECT_EQ(line.attributes.at("stroke"), "#ff0000");
  EXPECT_EQ(line.attributes.at("stroke-width"), "3");
  EXPECT_EQ(line.attributes.at("vector-effect"), "non-scaling-stroke");
  EXPECT_FALSE(line.attributes.contains("stroke-dasharray"));
  EXPECT_FALSE(line.attributes.contains("style"));
}

TEST(SvgCanvas, TheThinnestPenIsHalfAPixelWide) {
  SvgCanvas canvas;
  canvas.DrawWidth = 0;
  canvas.Line(1, 2, 3, 4, colorRed);
  EXPECT_EQ(Only(canvas).attributes.at("stroke-width"), "0.5");
}

// Units of x that are twice as long as those of y: 300 of them are 40 pixels, 300 of y 20.
TEST(SvgCanvas, AUnitOfXHasItsOwnLength) {
  SvgCanvas canvas;
  canvas.SetScale({0, 0, 3000, 3000, {.xUnit = 2}});
  canvas.Circle(600, 600, 300, colorRed);
  canvas.FontSize = 10;
  canvas.PrintAt(150, 0, "XX");
  const auto all = ReadSvg(canvas.Text());
  EXPECT_EQ(all[0].Number("width"), 400);
  EXPECT_EQ(all[0].Number("height"), 200);
  const auto elements = Drawn(canvas);
  EXPECT_EQ(elements.at(0).Number("cx"), 80);
  EXPECT_EQ(elements.at(0).Number("rx"), 40);
  EXPECT_EQ(elements.at(0).Number("ry"), 20);
  EXPECT_EQ(elements.at(1).Number("x"), 20);
  // The text keeps its shape: an X is 667/1000 of its 200 twips wide, 15 twips to the pixel.
  EXPECT_NEAR(elements.at(1).Number("textLength"), 2 * 0.667 * 200 / 15, 0.001);
}

TEST(SvgCanvas, IsPaper) {
  SvgCanvas canvas;
  canvas.ShowOn = Medium::Screen;
  canvas.Line(1, 2, 3, 4, colorRed);
  canvas.PrintAt(0, 0, "on the screen");
  EXPECT_TRUE(Drawn(canvas).empty());
  canvas.ShowOn = Medium::Paper;
  canvas.DrawStyle = LineStyle::DashOnPaper;
  canvas.Line(1, 2, 3, 4, colorRed);
  EXPECT_EQ(Only(canvas).attributes.at("stroke-dasharray"), "6 3");
}

TEST(SvgCanvas, DashesAndDotsDiffer) {
  SvgCanvas canvas;
  canvas.DrawStyle = LineStyle::Dash;
  canvas.Line(1, 2, 3, 4, colorRed);
  canvas.DrawStyle = LineStyle::Dot;
  canvas.Line(1, 2, 3, 4, colorRed);
  const auto elements = Drawn(canvas);
  EXPECT_NE(elements.at(0).attributes.at("stroke-dasharray"), elements.at(1).attributes.at("stroke-dasharray"));
}

TEST(SvgCanvas, ExclusiveOrIsADifference) {
  SvgCanvas canvas;
  canvas.DrawMode = PenMode::ExclusiveOr;
  canvas.Line(1, 2, 3, 4, colorRed);
  EXPECT_EQ(Only(canvas).attributes.at("style"), "mix-blend-mode:difference");
}

TEST(SvgCanvas, TextIsAsHighAndWideAsItWasLaidOut) {
  SvgCanvas canvas;
  canvas.FontSize = 9;
  canvas.FontBold = true;
  canvas.ForeColor = colorBlue;
  canvas.CurrentX = 150;
  canvas.CurrentY = 300;
  canvas.Print("Hz");
  const SvgElement text = Only(canvas);
  EXPECT_EQ(text.content, "Hz");
  EXPECT_EQ(text.Number("font-size"), 12);  // 9 points of 1/72 inch
  EXPECT_EQ(text.Number("x"), 10);
  EXPECT_GT(text.Number("y"), 20 + 0.718 * 12);  // capitals stay below the corner
  EXPECT_LE(text.Number("y"), 20 + 1.15 * 12);
  EXPECT_NEAR(text.Number("textLength"), 14.664, 0.001);  // H 722, z 500
  EXPECT_EQ(text.attributes.at("font-weight"), "bold");
  EXPECT_EQ(text.attributes.at("fill"), "#0000ff");
  EXPECT_THAT(text.attributes.at("font-family"), testing::HasSubstr("Arial"));
}

TEST(SvgCanvas, AFixedFontHasFixedSubstitutes) {
  SvgCanvas canvas;
  canvas.FontName = "Courier New";
  canvas.Print("x");
  EXPECT_THAT(Only(canvas).attributes.at("font-family"), testing::HasSubstr("monospace"));
}

TEST(SvgCanvas, EveryLineOfATextIsAnElement) {
  SvgCanvas canvas;
  canvas.FontSize = 9;
  canvas.Print("one\r\n\r\nthree");
  const auto elements = Drawn(canvas);
  ASSERT_EQ(elements.size(), 2U);
  EXPECT_EQ(elements[0].content, "one");
  EXPECT_EQ(elements[1].content, "three");
  EXPECT_NEAR(elements[1].Number("y") - elements[0].Number("y"), 27.6, 1e-3);  // two lines of 1.15 em
}

TEST(SvgCanvas, BlanksAreKept) {
  SvgCanvas canvas;
  canvas.Print("a  b");
  EXPECT_EQ(Only(canvas).attributes.at("xml:space"), "preserve");
  EXPECT_EQ(Only(canvas).content, "a  b");
}

TEST(SvgCanvas, SpecialCharactersAreEscaped) {
  SvgCanvas canvas;
  canvas.FontName = "A\"&'<";
  canvas.Print("R & D <\"it's\">");
  EXPECT_EQ(Only(canvas).content, "R & D <\"it's\">");
}

TEST(SvgCanvas, WhatIsNoTextOfXmlIsReplacedOrDropped) {
  SvgCanvas canvas;
  canvas.Print("a\x01z\x7F");
  for (const char* text : {"\xFFz", "z\xC3", "\xC0\x80z", "\xED\xA0\x80z", "\xF5\x80\x80\x80z", "z\xE2\x82",
                           "\xEF\xBF\xBFz", "\xE0\x80\x80z", "\xF0\x80\x80\x80z", "\xF4\x90\x80\x80z"}) {
    canvas.Print(text);
  }
  for (const SvgElement& element : Drawn(canvas)) EXPECT_THAT(element.content, testing::HasSubstr("z"));
}

TEST(SvgCanvas, LettersBeyondAsciiAreKept) {
  SvgCanvas canvas;
  canvas.Print("\xC2\xB5H \xE2\x84\xA6 \xF0\x9D\x84\x9E");
  EXPECT_EQ(Only(canvas).content, "\xC2\xB5H \xE2\x84\xA6 \xF0\x9D\x84\x9E");
}

TEST(SvgCanvas, ATraceBreaksWhereAPointHasNoPlace) {
  constexpr f32 nowhere = std::numeric_limits<f32>::quiet_NaN();
  constexpr f32 faraway = std::numeric_limits<f32>::infinity();
  SvgCanvas canvas;
  const Point points[] = {{0, 0}, {15, 0}, {30, 0}, {nowhere, 0}, {60, 0}, {75, faraway}, {90, 0}, {105, 0}};
  canvas.Polyline(points, colorBlack);
  const auto elements = Drawn(canvas);
  ASSERT_EQ(elements.size(), 2U);
  EXPECT_EQ(elements[0].attributes.at("points"), "0,0 1,0 2,0");
  EXPECT_EQ(elements[1].name, "line");
  EXPECT_EQ(elements[1].Number("x1"), 6);
}

TEST(SvgCanvas, NothingElseWithoutAPlaceIsDrawn) {
  constexpr f32 nowhere = std::numeric_limits<f32>::quiet_NaN();
  SvgCanvas canvas;
  canvas.Rectangle(0, 0, nowhere, 1, colorBlack, true);
  canvas.Circle(nowhere, 0, 1, colorBlack);
  canvas.Circle(0, 0, nowhere, colorBlack);
  canvas.PSet(0, nowhere, colorBlack);
  canvas.CurrentX = nowhere;
  canvas.Print("text");
  EXPECT_TRUE(Drawn(canvas).empty());
}

TEST(SvgCanvas, AnArcOfAWholeTurnIsClosed) {
  SvgCanvas canvas;
  canvas.Circle(0, 0, 1, colorBlack, 0, 6.2831853F);
  EXPECT_EQ(Only(canvas).name, "ellipse");
}

TEST(SvgCanvas, NumbersAreShort) {
  SvgCanvas canvas;
  canvas.Line(1.5F, 5, 12345.678F, -105, colorBlack);
  const SvgElement line = Only(canvas);
  EXPECT_EQ(line.attributes.at("x1"), "0.1");
  EXPECT_EQ(line.attributes.at("y1"), "0.3333333");
  EXPECT_EQ(line.attributes.at("x2"), "823.0452");
  EXPECT_EQ(line.attributes.at("y2"), "-7");
}

class CommaPoint : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(SvgCanvas, NumbersAreTheSameInEveryLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  SvgCanvas canvas;
  canvas.Line(7.5F, 18517.5F, 3, 4, colorBlack);
  const std::string text = canvas.Text();
  std::locale::global(before);
  EXPECT_THAT(text, testing::HasSubstr("x1=\"0.5\" y1=\"1234.5\""));
}

TEST(SvgText, IsTheReplayOfThePicture) {
  Picture picture({0, 0, 300, 200});
  picture.BackColor = 0xFFFFF0;
  picture.Line(1, 2, 3, 4, colorRed);
  SvgCanvas canvas;
  canvas.SetScale({0, 0, 300, 200});
  canvas.BackColor = 0xFFFFF0;
  canvas.Line(1, 2, 3, 4, colorRed);
  EXPECT_EQ(SvgText(picture), canvas.Text());
}

// The reader that the tests above rest on finds faults.
TEST(SvgReader, RefusesWhatIsNotWellFormed) {
  const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  EXPECT_NO_THROW(ReadSvg(head + "<svg a=\"1\"><b/></svg>"));
  for (const char* body : {"<svg>", "<svg></b>", "<svg><b></svg>", "<svg a=1></svg>", "<svg a=\"1\" a=\"2\"></svg>",
                           "<svg>&</svg>", "<svg>&nbsp;</svg>", "<svg a=\"<\"></svg>", "<svg>\x01</svg>",
                           "<svg>\xC0\x80</svg>", "<svg>\xFF</svg>", "<svg></svg>x"}) {
    EXPECT_THROW(ReadSvg(head + body), std::runtime_error) << body;
  }
  EXPECT_THROW(ReadSvg("<svg></svg>"), std::runtime_error);
}

}  // namespace
}  // namespace quilm
