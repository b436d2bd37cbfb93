#include "app/PictureView.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <cmath>

#include "DemoPages.h"

namespace quilm {
namespace {

using testing::ElementsAre;

Picture SquareWithDot() {
  Picture picture(Scale{0, 0, 1000, 1000});
  picture.Rectangle(400, 400, 600, 600, colorRed, true);
  return picture;
}

QImage Shot(PictureView& view) { return view.grab().toImage(); }

class PictureViewOfASquare : public testing::Test {
 protected:
  PictureViewOfASquare() {
    view.resize(400, 200);
    view.Show(SquareWithDot(), LiveLayer(), Picture());
    view.show();
  }
  PictureView view;
};

TEST_F(PictureViewOfASquare, KeepsItsProportionsInTheMiddle) { EXPECT_EQ(view.Paper(), QRectF(100, 0, 200, 200)); }

TEST_F(PictureViewOfASquare, MapsPlacesToTheUserScale) {
  EXPECT_EQ(view.ToUser({100, 0}), (Point{0, 0}));
  EXPECT_EQ(view.ToUser({200, 100}), (Point{500, 500}));
  EXPECT_EQ(view.ToUser({300, 200}), (Point{1000, 1000}));
}

TEST_F(PictureViewOfASquare, ItsPaperIsWhite) {
  EXPECT_EQ(QColor(Shot(view).pixel(110, 10)), QColor(Qt::white));
  EXPECT_EQ(QColor(Shot(view).pixel(200, 100)), QColor(Qt::red));
}

TEST_F(PictureViewOfASquare, AnotherPictureOfTheSameLengthIsShown) {
  Picture other(Scale{0, 0, 1000, 1000});
  other.Rectangle(400, 400, 600, 600, colorBlue, true);
  view.Show(other, LiveLayer(), Picture());
  EXPECT_EQ(QColor(Shot(view).pixel(200, 100)), QColor(Qt::blue));
}

TEST_F(PictureViewOfASquare, AMarkIsDrawnOverIt) {
  Picture mark(Scale{0, 0, 1000, 1000});
  mark.DrawMode = PenMode::ExclusiveOr;
  mark.DrawWidth = 10;
  mark.PSet(200, 200, 0xFF44FF);
  const QImage plain = Shot(view);
  view.Show(SquareWithDot(), LiveLayer(), mark);
  EXPECT_EQ(QColor(Shot(view).pixel(140, 40)), QColor(0x00, 0xBB, 0x00));
  view.Show(SquareWithDot(), LiveLayer(), Picture());
  EXPECT_EQ(Shot(view), plain);
}

TEST_F(PictureViewOfASquare, CopyPutsItOnTheClipboard) {
  view.Copy();
  const QImage copy = QApplication::clipboard()->image();
  ASSERT_FALSE(copy.isNull());
  EXPECT_EQ(QColor(copy.pixel(copy.width() / 2, copy.height() / 2)), QColor(Qt::red));
  EXPECT_EQ(QColor(copy.pixel(1, 1)), QColor(Qt::white));
}

TEST_F(PictureViewOfASquare, SavesEachKindOfFile) {
  const QTemporaryDir folder;
  const std::pair<const char*, QByteArray> kinds[] = {
      {"p.PNG", QByteArray("\x89PNG")}, {"p.SVG", QByteArray("<")}, {"p.PDF", QByteArray("%PDF")}};
  for (const auto& [name, start] : kinds) {
    const QString path = folder.filePath(name);
    EXPECT_TRUE(view.SaveAs(path)) << name;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    EXPECT_TRUE(file.readAll().startsWith(start)) << name;
  }
}

TEST_F(PictureViewOfASquare, AFileThatCannotBeWrittenIsTold) {
  for (const char* name : {"/nowhere/p.PNG", "/nowhere/p.SVG", "/nowhere/p.PDF"})
    EXPECT_FALSE(view.SaveAs(name)) << name;
}

TEST_F(PictureViewOfASquare, ARepaintWithoutChangeIsFast) {
  Picture picture;
  for (const Color color : {colorBlue, colorRed}) {
    std::vector<Point> trace;
    for (int i = 0; i < 2050; ++i) {
      const auto x = static_cast<f32>(i * 13000 / 2050);
      trace.push_back({x, 4000 + 3000 * std::sin(x / 300)});
    }
    picture.DrawWidth = 2;
    picture.Polyline(trace, color);
  }
  view.resize(1040, 640);
  view.Show(picture, LiveLayer(), Picture());
  Shot(view);
  QElapsedTimer clock;
  clock.start();
  for (int i = 0; i < 20; ++i) Shot(view);
  EXPECT_LT(clock.elapsed() / 20, 20) << "milliseconds a repaint";
}

TEST_F(DemoProgram, ThePageHearsTheMouseInUserScale) {
  QTest::qWait(10);
  auto* view = Widget<PictureView>("picPlot");
  ASSERT_NE(view, nullptr);
  QTest::mousePress(view, Qt::LeftButton, {}, view->Paper().center().toPoint());
  ASSERT_EQ(Demo().log.size(), 1U);
  EXPECT_EQ(Demo().log.front(), "down 65 40");
}

TEST_F(DemoProgram, APictureTakesTheRoomThatIsLeft) {
  QTest::qWait(10);
  auto* view = Widget<PictureView>("picPlot");
  EXPECT_GT(view->height(), desktop.window.height() / 2);
  EXPECT_GT(view->width(), desktop.window.width() * 9 / 10);
}

TEST_F(DemoProgram, TheCopyKeyTakesThePicture) {
  QApplication::clipboard()->clear();
  QTest::keyClick(desktop.TopView(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_FALSE(QApplication::clipboard()->image().isNull());
}

}  // namespace
}  // namespace quilm
