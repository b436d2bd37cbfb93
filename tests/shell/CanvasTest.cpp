// The state that a canvas keeps from one operation to the next.
#include "shell/Canvas.h"

#include <gtest/gtest.h>

#include "shell/Picture.h"

namespace quilm {
namespace {

TEST(Canvas, ALineLeavesTheTextPositionAtItsEnd) {
  Picture picture;
  picture.Line(1, 2, 30, 40, colorBlack);
  EXPECT_EQ(picture.CurrentX, 30);
  EXPECT_EQ(picture.CurrentY, 40);
}

TEST(Canvas, ATraceLeavesTheTextPositionAtItsLastPoint) {
  Picture picture;
  const Point points[] = {{1, 1}, {2, 5}, {3, 9}};
  picture.Polyline(points, colorBlack);
  EXPECT_EQ(picture.CurrentX, 3);
  EXPECT_EQ(picture.CurrentY, 9);
}

TEST(Canvas, ATraceOfOnePointDrawsNothingAndMovesNothing) {
  Picture picture;
  const Point points[] = {{1, 1}};
  picture.Polyline(points, colorBlack);
  picture.Polyline({}, colorBlack);
  EXPECT_TRUE(picture.Empty());
  EXPECT_EQ(picture.CurrentX, 0);
}

TEST(Canvas, NothingElseMovesTheTextPosition) {
  Picture picture;
  picture.CurrentX = 7;
  picture.CurrentY = 8;
  picture.Rectangle(1, 2, 3, 4, colorBlack, true);
  picture.Circle(1, 2, 3, colorBlack);
  picture.PSet(5, 6, colorBlack);
  EXPECT_EQ(picture.CurrentX, 7);
  EXPECT_EQ(picture.CurrentY, 8);
}

TEST(Canvas, ATextIsFewerUnitsWideWhereTheyAreLonger) {
  Picture picture;
  const f32 natural = picture.TextWidth("Text");
  picture.ScaleShape.xUnit = 4;
  EXPECT_EQ(picture.TextWidth("Text"), natural / 4);
}

TEST(Canvas, ARecordingKeepsWhatIsForTheScreenOrForPaper) {
  Picture picture;
  for (const Medium medium : {Medium::Everywhere, Medium::Screen, Medium::Paper}) {
    picture.ShowOn = medium;
    picture.PrintAt(0, 0, "text");
    picture.PSet(1, 2, colorBlack);
  }
  EXPECT_EQ(picture.Operations().size(), 6U);
  Picture again;
  picture.Replay(again);
  EXPECT_EQ(again, picture) << again.Dump();
}

// 10 points are 200 twips, a line is 1.15 em: 230 units.
TEST(Canvas, PrintMovesOneLineDownAndNotAside) {
  Picture picture;
  picture.FontSize = 10;
  picture.CurrentX = 100;
  picture.CurrentY = 50;
  picture.Print("text");
  EXPECT_EQ(picture.CurrentX, 100);
  EXPECT_FLOAT_EQ(picture.CurrentY, 280);
}

TEST(Canvas, PrintAtPutsTheCornerOfTheTextThere) {
  Picture picture;
  picture.PrintAt(300, 400, "text");
  EXPECT_EQ(std::get<TextOp>(picture.Operations().front()).at, (Point{300, 400}));
  EXPECT_EQ(picture.CurrentX, 300);
}

TEST(Canvas, PrintOfTwoLinesMovesTwoLinesDown) {
  Picture picture;
  picture.FontSize = 10;
  picture.Print("two\r\nlines");
  EXPECT_FLOAT_EQ(picture.CurrentY, 460);
}

TEST(Canvas, ClearPutsTheTextPositionBack) {
  Picture picture;
  picture.Line(1, 2, 3, 4, colorBlack);
  picture.Clear();
  EXPECT_EQ(picture.CurrentX, 0);
  EXPECT_EQ(picture.CurrentY, 0);
  EXPECT_TRUE(picture.Empty());
}

TEST(Canvas, ClearLeavesPenFontAndScale) {
  Picture picture({1, 2, 3, 4});
  picture.DrawWidth = 3;
  picture.FontBold = true;
  picture.ForeColor = colorRed;
  picture.Clear();
  EXPECT_EQ(picture.DrawWidth, 3);
  EXPECT_TRUE(picture.FontBold);
  EXPECT_EQ(picture.ForeColor, colorRed);
  EXPECT_EQ(picture.CurrentScale(), (Scale{1, 2, 3, 4}));
}

TEST(Canvas, AnOperationKeepsThePenOfItsMoment) {
  Picture picture;
  picture.DrawWidth = 2;
  picture.Line(0, 0, 1, 1, colorRed);
  picture.DrawWidth = 5;
  EXPECT_EQ(std::get<PolylineOp>(picture.Operations().front()).pen.width, 2);
}

TEST(Canvas, TextIsMeasuredInTheFontOfTheMoment) {
  Picture picture;
  picture.FontSize = 10;
  const f32 plain = picture.TextWidth("i");
  picture.FontSize = 20;
  EXPECT_FLOAT_EQ(picture.TextWidth("i"), 2 * plain);
}

}  // namespace
}  // namespace quilm
