#include "shell/Picture.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace quilm {
namespace {

struct Drawing {
  const char* name;
  std::function<void(Canvas&)> draw;
};

std::vector<Drawing> Operations() {
  return {
      {"line", [](Canvas& c) { c.Line(1, 2, 3, 4, colorRed); }},
      {"trace",
       [](Canvas& c) {
         const Point points[] = {{1, 2}, {3, 4}, {5, -6}};
         c.Polyline(points, colorBlue);
       }},
      {"rectangle", [](Canvas& c) { c.Rectangle(9, 8, 1, 2, 0x123456, false); }},
      {"box", [](Canvas& c) { c.Rectangle(1, 2, 9, 8, 0x123456, true); }},
      {"circle", [](Canvas& c) { c.Circle(5, 6, 7, colorRed); }},
      {"arc", [](Canvas& c) { c.Circle(5, 6, 7, colorRed, 0.5F, 2.5F, 0.75F); }},
      {"point", [](Canvas& c) { c.PSet(3, 4, colorRed); }},
      {"text",
       [](Canvas& c) {
         c.CurrentX = 10;
         c.CurrentY = 20;
         c.Print("some \"text\"");
       }},
      {"lines of text", [](Canvas& c) { c.Print("one\r\ntwo"); }},
  };
}

struct PenState {
  const char* name;
  std::function<void(Canvas&)> set;
};

std::vector<PenState> Pens() {
  return {
      {"plain", [](Canvas&) {}},
      {"wide", [](Canvas& c) { c.DrawWidth = 6; }},
      {"dash", [](Canvas& c) { c.DrawStyle = LineStyle::Dash; }},
      {"dot", [](Canvas& c) { c.DrawStyle = LineStyle::Dot; }},
      {"exclusive or", [](Canvas& c) { c.DrawMode = PenMode::ExclusiveOr; }},
      {"coloured text", [](Canvas& c) { c.ForeColor = 0x00FF80; }},
      {"other font",
       [](Canvas& c) {
         c.FontName = "Courier New";
         c.FontSize = 12.5F;
         c.FontBold = true;
       }},
  };
}

Picture Drawn(const Drawing& drawing, const PenState& pen) {
  Picture picture({-5, -6, 700, 800});
  picture.BackColor = 0xFFFFE0;
  pen.set(picture);
  drawing.draw(picture);
  return picture;
}

// The law of the retained picture.
TEST(Picture, ReplayedIntoAnotherGivesAnEqualOne) {
  for (const Drawing& drawing : Operations()) {
    for (const PenState& pen : Pens()) {
      const Picture original = Drawn(drawing, pen);
      ASSERT_EQ(original.Operations().size(), 1U) << drawing.name;
      Picture copy;
      copy.Line(0, 0, 1, 1, colorBlack);  // what was there goes
      original.Replay(copy);
      EXPECT_EQ(copy, original) << drawing.name << ", " << pen.name << "\n" << copy.Dump() << original.Dump();
    }
  }
}

TEST(Picture, AllOperationsTogetherObeyTheLawToo) {
  Picture original;
  for (const PenState& pen : Pens()) {
    pen.set(original);
    for (const Drawing& drawing : Operations()) drawing.draw(original);
  }
  Picture copy;
  original.Replay(copy);
  EXPECT_EQ(copy, original);
  EXPECT_EQ(copy.Dump(), original.Dump());
}

TEST(Picture, DifferentDrawingsDiffer) {
  const auto drawings = Operations();
  const auto pens = Pens();
  for (std::size_t i = 0; i < drawings.size(); ++i) {
    for (std::size_t k = 0; k < drawings.size(); ++k) {
      EXPECT_EQ(Drawn(drawings[i], pens[0]) == Drawn(drawings[k], pens[0]), i == k) << i << ' ' << k;
    }
  }
}

TEST(Picture, ThePenOfADrawingCounts) {
  const Drawing line = Operations().front();
  const auto pens = Pens();
  for (const std::size_t pen : {1U, 2U, 3U, 4U}) {
    EXPECT_FALSE(Drawn(line, pens[pen]) == Drawn(line, pens[0])) << pens[pen].name;
  }
}

TEST(Picture, ScaleAndPaperCount) {
  EXPECT_FALSE(Picture({0, 0, 1, 1}) == Picture({0, 0, 1, 2}));
  Picture dark;
  dark.BackColor = colorBlack;
  EXPECT_FALSE(dark == Picture());
}

TEST(Picture, ThePenAtRestDoesNotCount) {
  Picture picture;
  picture.DrawWidth = 4;
  picture.CurrentX = 9;
  EXPECT_TRUE(picture == Picture());
}

TEST(PictureDrawing, GrowsInPlace) {
  Picture picture;
  const auto held = picture.Drawing();
  for (const Drawing& drawing : Operations()) {
    const std::size_t before = held->size();
    drawing.draw(picture);
    EXPECT_EQ(held->size(), before + 1) << drawing.name;
  }
  EXPECT_EQ(picture.Drawing(), held);
}

TEST(PictureDrawing, AClearedPictureIsAnotherOneHoweverItIsDrawn) {
  Picture picture;
  picture.Line(0, 0, 1, 1, colorRed);
  const auto held = picture.Drawing();
  picture.Clear();
  picture.Line(0, 0, 1, 1, colorRed);
  EXPECT_NE(picture.Drawing(), held);
  EXPECT_EQ(held->size(), 1U) << "what was shown can still be shown";
}

TEST(PictureDrawing, ACopyIsADrawingOfItsOwn) {
  Picture original;
  original.Line(0, 0, 1, 1, colorRed);
  Picture copy = original;
  EXPECT_NE(copy.Drawing(), original.Drawing());
  copy.Line(1, 1, 2, 2, colorRed);
  EXPECT_EQ(original.Operations().size(), 1U);
}

TEST(PictureDrawing, AnAssignedPictureIsTakenForNoneOfTheTwo) {
  Picture source;
  source.Line(0, 0, 1, 1, colorBlue);
  Picture target;
  target.Line(0, 0, 1, 1, colorRed);
  const auto held = target.Drawing();
  target = source;
  EXPECT_NE(target.Drawing(), held);
  EXPECT_NE(target.Drawing(), source.Drawing());
  EXPECT_EQ(target, source);
}

TEST(PictureDrawing, AMovedFromPictureCanBeDrawnOn) {
  Picture source;
  source.Line(0, 0, 1, 1, colorBlue);
  const auto held = source.Drawing();
  const Picture target = std::move(source);
  EXPECT_EQ(target.Operations().size(), 1U);
  source = Picture();
  source.Line(0, 0, 1, 1, colorRed);
  EXPECT_NE(source.Drawing(), held);
}

TEST(PictureDrawing, AssignedToItselfItStays) {
  Picture picture;
  picture.Line(0, 0, 1, 1, colorBlue);
  const Picture& same = picture;
  picture = same;
  EXPECT_EQ(picture.Operations().size(), 1U);
}

// The scale 100 by 50 from (10, 20) into a box 200 by 200 at (1000, 2000): x doubles, y is four times as large.
class ReplayInto : public testing::Test {
 protected:
  template <class Operation>
  Operation Placed() {
    source.ReplayInto(target, {1000, 2000}, {1200, 2200});
    return std::get<Operation>(target.Operations().back());
  }
  Picture source{{10, 20, 100, 50}};
  Picture target;
};

TEST_F(ReplayInto, PlacesLines) {
  source.Line(10, 20, 110, 70, colorRed);
  EXPECT_EQ(Placed<PolylineOp>().points, (std::vector<Point>{{1000, 2000}, {1200, 2200}}));
}

TEST_F(ReplayInto, PlacesRectangles) {
  source.Rectangle(60, 45, 10, 20, colorRed, true);
  const auto box = Placed<RectangleOp>();
  EXPECT_EQ(box.from, (Point{1100, 2100}));
  EXPECT_EQ(box.to, (Point{1000, 2000}));
  EXPECT_TRUE(box.filled);
}

TEST_F(ReplayInto, StretchesCirclesWithTheBox) {
  source.Circle(60, 45, 10, colorRed, 1, 2, 0.5F);
  const auto circle = Placed<CircleOp>();
  EXPECT_EQ(circle.center, (Point{1100, 2100}));
  EXPECT_FLOAT_EQ(circle.r, 20);
  EXPECT_FLOAT_EQ(circle.r * circle.aspect, 20);  // half of 10, four times as high
  EXPECT_EQ(circle.start, 1);
  EXPECT_EQ(circle.stop, 2);
}

TEST_F(ReplayInto, PlacesPoints) {
  source.PSet(11, 21, colorRed);
  EXPECT_EQ(Placed<PointOp>().at, (Point{1002, 2004}));
}

TEST_F(ReplayInto, SizesTextsByTheHeight) {
  source.CurrentX = 60;
  source.CurrentY = 45;
  source.FontSize = 3;
  source.Print("text");
  const auto text = Placed<TextOp>();
  EXPECT_EQ(text.at, (Point{1100, 2100}));
  EXPECT_FLOAT_EQ(text.font.size, 12);
}

TEST_F(ReplayInto, DrawsOverWhatIsThere) {
  target.Line(0, 0, 1, 1, colorBlack);
  source.PSet(11, 21, colorRed);
  Placed<PointOp>();
  EXPECT_EQ(target.Operations().size(), 2U);
  EXPECT_EQ(target.CurrentScale(), Scale{});
}

TEST(Dump, HasOneOperationALine) {
  Picture picture;
  picture.Line(1, 2, 3.5F, 4, 0xFF0000);
  picture.DrawStyle = LineStyle::Dash;
  picture.Rectangle(1, 2, 3, 4, colorBlack, false);
  picture.Rectangle(1, 2, 3, 4, colorBlack, true);
  picture.DrawStyle = LineStyle::Solid;
  picture.DrawMode = PenMode::ExclusiveOr;
  picture.Circle(1, 2, 3, colorRed, 0, 1, 0.75F);
  picture.PSet(5, 6, colorBlack);
  picture.FontBold = true;
  picture.CurrentX = 8;
  picture.CurrentY = 9;
  picture.Print("text");
  EXPECT_EQ(picture.Dump(),
            "line (1, 2) (3.5, 4) color 0xff0000 width 1\n"
            "rectangle (1, 2) (3, 4) color 0x0 width 1 style 1\n"
            "box (1, 2) (3, 4) color 0x0 width 1 style 1\n"
            "circle (1, 2) r 3 from 0 to 1 aspect 0.75 color 0xff width 1 mode 7\n"
            "point (5, 6) color 0x0 width 1 mode 7\n"
            "text (8, 9) \"text\" color 0x0 Arial 9 bold\n");
}

}  // namespace
}  // namespace quilm
