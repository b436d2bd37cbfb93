#include "app/PictureView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <cmath>
#include <ctime>
#include <memory>

#include "DemoPages.h"
#include "app/MessageWindow.h"
#include "core/Identity.h"

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

// From 4:3 to 21:9.
TEST(FillingPicture, TakesTheRoomThatItHasAsFarAsItGoes) {
  PictureView view;
  view.Show(Picture(Scale{0, 0, 1000, 1000, {1, 4.0F / 3, 21.0F / 9}}), LiveLayer(), Picture());
  view.resize(400, 200);
  EXPECT_EQ(view.Paper(), QRectF(0, 0, 400, 200));
  EXPECT_EQ(view.ToUser({200, 50}), (Point{500, 250}));
  view.resize(300, 300);
  EXPECT_EQ(view.Paper(), QRectF(0, 37, 300, 225));
  view.resize(420, 100);
  EXPECT_EQ(view.Paper(), QRectF(93, 0, 233, 100));
}

TEST(PictureWithLongUnits, IsAsMuchWider) {
  PictureView view;
  view.Show(Picture(Scale{0, 0, 1500, 1500, {.xUnit = 1.5F}}), LiveLayer(), Picture());
  EXPECT_EQ(view.sizeHint(), QSize(150, 100));
  view.resize(600, 200);
  EXPECT_EQ(view.Paper(), QRectF(150, 0, 300, 200));
}

// Copies are made on paper: its title is on them, the hint of the screen is not.
TEST(CopiedPicture, IsOnPaper) {
  Picture picture(Scale{0, 0, 1500, 1500});
  picture.ShowOn = Medium::Screen;
  picture.Rectangle(0, 0, 750, 1500, colorRed, true);
  picture.ShowOn = Medium::Paper;
  picture.Rectangle(750, 0, 1500, 1500, colorBlue, true);
  PictureView view;
  view.resize(100, 100);
  view.Show(picture, LiveLayer(), Picture());
  EXPECT_EQ(QColor(Shot(view).pixel(25, 50)), QColor(Qt::red));
  EXPECT_EQ(QColor(Shot(view).pixel(75, 50)), QColor(Qt::white));
  view.Copy();
  const QImage copy = QApplication::clipboard()->image();
  ASSERT_EQ(copy.size(), QSize(313, 313)) << "300 to the inch";
  EXPECT_EQ(QColor(copy.pixel(78, 100)), QColor(Qt::white));
  EXPECT_EQ(QColor(copy.pixel(234, 100)), QColor(Qt::blue));
}

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

TEST_F(PictureViewOfASquare, TheMarkLiesOverTheLiveLayer) {
  LiveLayer live;
  live.Rectangle(0, 0, 300, 300, colorBlue, true);
  Picture mark(Scale{0, 0, 1000, 1000});
  mark.Rectangle(100, 100, 200, 200, colorRed, true);
  view.Show(SquareWithDot(), live, mark);
  EXPECT_EQ(QColor(Shot(view).pixel(130, 30)), QColor(Qt::red));
  EXPECT_EQ(QColor(Shot(view).pixel(150, 50)), QColor(Qt::blue));
  view.Show(SquareWithDot(), live, Picture());
  EXPECT_EQ(QColor(Shot(view).pixel(130, 30)), QColor(Qt::blue));
}

// The view on a picture, a live layer and a mark that a page goes on drawing.
class GrowingPicture : public testing::Test {
 protected:
  GrowingPicture() {
    view.resize(200, 200);
    Show();
    view.show();
  }
  void Show() { view.Show(picture, live, mark); }
  QImage Shown() {
    Show();
    return Shot(view);
  }
  QColor At(int x, int y) { return QColor(Shown().pixel(x, y)); }
  // The same drawings in a view that sees them for the first time.
  QImage Anew() {
    PictureView other;
    other.resize(view.size());
    other.Show(picture, live, mark);
    return Shot(other);
  }
  void Box(Canvas& canvas, f32 x, Color color) { canvas.Rectangle(x, 400, x + 100, 600, color, true); }

  Picture picture{Scale{0, 0, 1000, 1000}};
  LiveLayer live;
  Picture mark{Scale{0, 0, 1000, 1000}};
  PictureView view;
};

TEST_F(GrowingPicture, WhatIsAddedIsShown) {
  for (const f32 x : {100.0F, 300.0F, 500.0F}) {
    Box(picture, x, colorRed);
    EXPECT_EQ(At(static_cast<int>(x) / 5 + 10, 100), QColor(Qt::red)) << x;
    EXPECT_EQ(Shown(), Anew()) << x;
  }
}

TEST_F(GrowingPicture, ExclusiveOrComesOutAsInOnePiece) {
  Box(picture, 300, colorRed);
  const QImage before = Shown();
  picture.DrawMode = PenMode::ExclusiveOr;
  picture.DrawWidth = 9;
  picture.Line(100, 300, 900, 700, 0xFF44FF);
  const QImage marked = Shown();
  EXPECT_NE(marked, before);
  EXPECT_EQ(marked, Anew());
  picture.Line(100, 300, 900, 700, 0xFF44FF);
  EXPECT_EQ(Shown(), before);
}

TEST_F(GrowingPicture, DrawnAnewToTheSameLengthItIsNotTakenForTheOldOne) {
  Box(picture, 300, colorRed);
  Shown();
  picture.Clear();
  Box(picture, 700, colorRed);
  EXPECT_EQ(At(70, 100), QColor(Qt::white));
  EXPECT_EQ(At(150, 100), QColor(Qt::red));
}

TEST_F(GrowingPicture, DrawnAnewAndLongerItIsNotTakenForGrown) {
  Box(picture, 300, colorRed);
  Shown();
  picture.Clear();
  Box(picture, 700, colorRed);
  Box(picture, 800, colorRed);
  EXPECT_EQ(At(70, 100), QColor(Qt::white));
  EXPECT_EQ(Shown(), Anew());
}

TEST_F(GrowingPicture, AnAssignedPictureIsShownWhole) {
  Box(picture, 300, colorRed);
  Shown();
  Picture other(picture.CurrentScale());
  Box(other, 700, colorBlue);
  Box(other, 800, colorBlue);
  picture = other;
  EXPECT_EQ(At(70, 100), QColor(Qt::white));
  EXPECT_EQ(At(150, 100), QColor(Qt::blue));
}

TEST_F(GrowingPicture, APictureMadeWhereAnotherWasIsShownWhole) {
  auto page = std::make_unique<Picture>(picture.CurrentScale());
  Box(*page, 300, colorRed);
  view.Show(*page, live, mark);
  Shot(view);
  page = std::make_unique<Picture>(picture.CurrentScale());
  Box(*page, 700, colorRed);
  view.Show(*page, live, mark);
  EXPECT_EQ(QColor(Shot(view).pixel(70, 100)), QColor(Qt::white));
}

TEST_F(GrowingPicture, APictureThatIsGoneStaysSeen) {
  {
    Picture page(picture.CurrentScale());
    Box(page, 300, colorRed);
    view.Show(page, live, mark);
  }
  EXPECT_EQ(QColor(Shot(view).pixel(70, 100)), QColor(Qt::red));
}

TEST_F(GrowingPicture, ItsPaperMayChangeColour) {
  Box(picture, 300, colorRed);
  Shown();
  picture.BackColor = 0x00FFFF;
  EXPECT_EQ(At(10, 10), QColor(255, 255, 0));
  EXPECT_EQ(At(70, 100), QColor(Qt::red));
}

TEST_F(GrowingPicture, AnotherScaleMovesEverything) {
  Box(picture, 300, colorRed);
  Box(live, 500, colorBlue);
  Shown();
  picture.SetScale({0, 0, 2000, 2000});
  EXPECT_EQ(At(35, 50), QColor(Qt::red));
  EXPECT_EQ(At(55, 50), QColor(Qt::blue));
}

TEST_F(GrowingPicture, TheLiveLayerLiesOverIt) {
  Box(live, 300, colorBlue);
  EXPECT_EQ(At(70, 100), QColor(Qt::blue));
  Box(picture, 300, colorRed);
  EXPECT_EQ(At(70, 100), QColor(Qt::blue)) << "also over what the picture gets later";
  live.Clear();
  EXPECT_EQ(At(70, 100), QColor(Qt::red));
}

TEST_F(GrowingPicture, TheLiveLayerOutlivesAPictureDrawnAnew) {
  Box(live, 300, colorBlue);
  Shown();
  picture.Clear();
  Box(picture, 700, colorRed);
  EXPECT_EQ(At(70, 100), QColor(Qt::blue));
  EXPECT_EQ(At(150, 100), QColor(Qt::red));
}

TEST_F(GrowingPicture, ASecondRunIsNotTakenForTheFirst) {
  Box(live, 300, colorBlue);
  Shown();
  live.Clear();
  Box(live, 700, colorBlue);
  EXPECT_EQ(At(70, 100), QColor(Qt::white));
  EXPECT_EQ(At(150, 100), QColor(Qt::blue));
}

// A live layer that keeps two points, and so its last two boxes.
class ShortMemory : public testing::Test {
 protected:
  ShortMemory() {
    view.resize(200, 200);
    view.Show(picture, live, Picture());
    view.show();
  }
  void AddBox(f32 x) {
    live.Rectangle(x, 400, x + 100, 600, colorBlue, true);
    view.Show(picture, live, Picture());
  }
  Picture picture{Scale{0, 0, 1000, 1000}};
  LiveLayer live{2};
  PictureView view;
};

TEST_F(ShortMemory, WhatWasPaintedStaysSeenWhenItIsDropped) {
  for (const f32 x : {100.0F, 300.0F, 500.0F, 700.0F}) AddBox(x);
  ASSERT_EQ(live.Present().dropped, 2U);
  for (const int x : {30, 70, 110, 150}) EXPECT_EQ(QColor(Shot(view).pixel(x, 100)), QColor(Qt::blue)) << x;
}

TEST_F(ShortMemory, AnotherSizeShowsWhatIsKept) {
  for (const f32 x : {100.0F, 300.0F, 500.0F, 700.0F}) AddBox(x);
  view.resize(400, 400);
  for (const int x : {60, 140}) EXPECT_EQ(QColor(Shot(view).pixel(x, 200)), QColor(Qt::white)) << x;
  for (const int x : {220, 300}) EXPECT_EQ(QColor(Shot(view).pixel(x, 200)), QColor(Qt::blue)) << x;
}

TEST_F(PictureViewOfASquare, ACopyHasTheTracesOfTrials) {
  LiveLayer live;
  live.Rectangle(0, 0, 1000, 1000, colorBlue, true);
  view.Show(SquareWithDot(), live, Picture());
  view.Copy();
  EXPECT_EQ(QColor(QApplication::clipboard()->image().pixel(1, 1)), QColor(Qt::blue));
}

// Counts how often it is painted.
class CountingView : public PictureView {
 public:
  int paints = 0;
  QRect painted;  // by the last one

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++paints;
    painted = event->rect();
    PictureView::paintEvent(event);
  }
};

TEST(PictureViewInARun, IsPaintedOnceAFrameAtMost) {
  CountingView view;
  view.resize(200, 200);
  view.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
  Picture picture;
  LiveLayer live;
  view.paints = 0;
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 160) {
    live.PSet(0, 0, colorRed);
    view.Show(picture, live, Picture());
    QApplication::processEvents();
  }
  const auto frames = static_cast<int>(clock.elapsed() / 16);
  EXPECT_GE(view.paints, 1);
  EXPECT_LE(view.paints, frames + 1);
}

// Processor time, which a busy machine does not change; what is measured in earnest, bench-window measures. A view that
// paints all traces again with each one would take hundreds of times as long.
TEST(PictureViewInARun, TheTwoThousandthTraceCostsWhatTheFirstOnesDo) {
  PictureView view;
  view.resize(640, 430);
  view.show();
  const Picture picture;
  const Picture mark;
  LiveLayer live;
  std::vector<Point> trace;
  for (int i = 0; i < 2050; ++i)
    trace.push_back({static_cast<f32>(i * 6), 4000 + 3000 * std::sin(0.01F * static_cast<f32>(i))});
  const auto trials = [&](int count) {
    const std::clock_t start = std::clock();
    for (int i = 0; i < count; ++i) {
      live.Polyline(trace, colorBlue);
      view.Show(picture, live, mark);
      view.repaint();
    }
    return static_cast<f64>(std::clock() - start);
  };
  constexpr int few = 20;
  trials(1);
  const f64 first = trials(few);
  for (int i = 0; i < 1950; ++i) live.Polyline(trace, colorBlue);
  trials(1);
  EXPECT_LT(trials(few), 3 * first);
}

TEST(PictureViewInARun, TheLastTraceIsShownWithoutAnotherAct) {
  CountingView view;
  view.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
  Picture picture;
  LiveLayer live;
  view.repaint();
  view.paints = 0;
  live.PSet(0, 0, colorRed);
  view.Show(picture, live, Picture());
  EXPECT_TRUE(QTest::qWaitFor([&view] { return view.paints > 0; }, 1000));
}

TEST_F(PictureViewOfASquare, ShowingTheSameAgainRepaintsNothing) {
  CountingView counting;
  Picture picture;
  picture.PSet(1, 1, colorRed);
  const LiveLayer live;
  const Picture mark;
  counting.Show(picture, live, mark);
  counting.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&counting));
  QTest::qWait(40);
  counting.paints = 0;
  counting.Show(picture, live, mark);
  QTest::qWait(40);
  EXPECT_EQ(counting.paints, 0);
}

// At a hundredth of the scale the trace lies from (26, 16) to (52, 32), and a mark is painted with all that is below
// it.
TEST(PictureViewInARun, ANewTraceHasItsPartPaintedAlone) {
  CountingView counting;
  counting.resize(260, 160);
  const Picture picture(Scale{0, 0, 13000, 8000});
  LiveLayer live;
  Picture mark;
  counting.Show(picture, live, mark);
  counting.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&counting));
  const auto painted = [&] {
    counting.painted = {};
    counting.Show(picture, live, mark);
    EXPECT_TRUE(QTest::qWaitFor([&counting] { return !counting.painted.isEmpty(); }));
    return counting.painted;
  };
  live.Line(100, 100, 200, 200, colorRed);
  EXPECT_EQ(painted(), counting.rect());
  live.Line(1300, 800, 2600, 1600, colorRed);
  const QRect part = painted();
  EXPECT_TRUE(part.contains(QRect(25, 15, 29, 19))) << part.left() << " " << part.top();
  EXPECT_LT(part.width(), 36);
  EXPECT_LT(part.height(), 26);
  live.Line(5200, 800, 6500, 1600, colorRed);
  EXPECT_GT(painted().left(), 90);
  mark.PSet(1, 1, colorRed);
  EXPECT_EQ(painted(), counting.rect());
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
    EXPECT_EQ(view.SaveAs(path).failure, "") << name;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    EXPECT_TRUE(file.readAll().startsWith(start)) << name;
  }
}

TEST_F(PictureViewOfASquare, NoFileIsWrittenThatItsNameBelies) {
  const QTemporaryDir folder;
  for (const char* name : {"p.jpg", "p.txt", "p"}) {
    EXPECT_FALSE(static_cast<bool>(view.SaveAs(folder.filePath(name)))) << name;
    EXPECT_FALSE(QFile::exists(folder.filePath(name))) << name;
  }
}

TEST_F(PictureViewOfASquare, AFileThatCannotBeWrittenIsTold) {
  for (const char* name : {"/nowhere/p.PNG", "/nowhere/p.SVG", "/nowhere/p.PDF"}) {
    EXPECT_EQ(view.SaveAs(name).failure, "there is no such folder") << name;
  }
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

class MenuOverThePlot : public DemoProgram {
 protected:
  MenuOverThePlot() { QTest::qWait(10); }
  // The test library remembers what is held beyond the test.
  ~MenuOverThePlot() override {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) QTest::mouseRelease(&desktop.window, button);
  }
  // The menu at the picture's middle, opened as the display server tells it and closed again.
  void OpenMenu() {
    Soon([] {
      if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    });
    const QPoint place = View().Paper().center().toPoint();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, View().mapToGlobal(place));
    QApplication::sendEvent(&View(), &event);
  }
  void Hold(Qt::MouseButton button) { QTest::mousePress(&View(), button, {}, View().Paper().center().toPoint()); }
  PictureView& View() { return *Widget<PictureView>("picPlot"); }
};

// The menu gets the release in the page's stead.
TEST_F(MenuOverThePlot, AHeldButtonIsReleased) {
  Hold(Qt::LeftButton);
  OpenMenu();
  EXPECT_THAT(Demo().log, ElementsAre("down 65 40", "up left"));
}

TEST_F(MenuOverThePlot, TheButtonThatOpensItIsReleased) {
  Hold(Qt::RightButton);
  OpenMenu();
  EXPECT_THAT(Demo().log, ElementsAre("down 65 40", "up right"));
}

TEST_F(MenuOverThePlot, BothButtonsAreReleasedWhenTheSecondOpensIt) {
  Hold(Qt::LeftButton);
  Hold(Qt::RightButton);
  OpenMenu();
  EXPECT_THAT(Demo().log, ElementsAre("down 65 40", "down 65 40", "up left", "up right"));
}

TEST_F(MenuOverThePlot, AButtonIsReleasedByItsOwnReleaseWhileAnotherIsHeld) {
  Hold(Qt::LeftButton);
  Hold(Qt::RightButton);
  QTest::mouseRelease(&View(), Qt::LeftButton, {}, View().Paper().center().toPoint());
  EXPECT_EQ(Demo().log.back(), "up left");
}

TEST_F(MenuOverThePlot, ASecondMenuReleasesNothing) {
  Hold(Qt::LeftButton);
  OpenMenu();
  OpenMenu();
  EXPECT_THAT(Demo().log, ElementsAre("down 65 40", "up left"));
}

// In no loop of its own, so that the page can go while it is open.
TEST_F(MenuOverThePlot, ItGoesWithThePage) {
  const QPoint place = View().Paper().center().toPoint();
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, View().mapToGlobal(place));
  QApplication::sendEvent(&View(), &event);
  const QPointer<QWidget> menu = QApplication::activePopupWidget();
  ASSERT_FALSE(menu.isNull());
  Widget<QAbstractButton>("cmdPlot")->click();  // a key that was pressed before acts now
  QTest::qWait(5);
  EXPECT_EQ(desktop.session.pages.Top()->Id(), PageId::Plotted);
  EXPECT_TRUE(menu.isNull());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

// Chooses "Save picture as..." and gives the dialog a name; what stands there is offered.
class SavingThePlot : public MenuOverThePlot {
 protected:
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
  static QLineEdit* NameBox() {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return dialog == nullptr ? nullptr : dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }
  void SaveAs(
      const char* name, const std::function<void()>& afterwards = [] {}) {
    Soon([this, name, afterwards] {
      ASSERT_NE(NameBox(), nullptr);
      offered = NameBox()->text();
      if (*name == 0) {
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
        return;
      }
      Soon(afterwards);
      NameBox()->setText(folder.filePath(QString::fromLatin1(name)));
      QTest::keyClick(NameBox(), Qt::Key_Return);
    });
    emit View().SaveRequested(0);
  }
  bool IsPng(const char* name) const {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) && file.readAll().startsWith("\x89PNG");
  }
  QString offered;
};

TEST_F(SavingThePlot, ANameIsOfferedAndTheStatusLineTellsWhatWasWritten) {
  desktop.session.identity.CircuitTitle = "My first filter";
  SaveAs("a.png");
  EXPECT_EQ(offered, "My first filter demo.png");
  EXPECT_TRUE(IsPng("a.png"));
  EXPECT_EQ(desktop.window.StatusRight(), "Wrote " + folder.filePath("a.png"));
}

TEST_F(SavingThePlot, APngIsNeverCalledJpg) {
  SaveAs("a.jpg");
  EXPECT_FALSE(QFile::exists(folder.filePath("a.jpg")));
  EXPECT_TRUE(IsPng("a.png"));
  EXPECT_EQ(desktop.window.StatusRight(), "Wrote " + folder.filePath("a.png"));
}

TEST_F(SavingThePlot, ANameThatWasPutRightReplacesNothingUnasked) {
  QFile there(folder.filePath("a.png"));
  ASSERT_TRUE(there.open(QIODevice::WriteOnly));
  there.write("kept");
  there.close();
  SaveAs("a.jpg", [] {
    auto* question = qobject_cast<MessageWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(question, nullptr);
    EXPECT_TRUE(question->Text().contains("a.png already exists"));
    Soon([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });  // the dialog, asked again
    question->reject();
  });
  EXPECT_FALSE(IsPng("a.png"));
}

TEST_F(SavingThePlot, ACancelledDialogTellsNothing) {
  SaveAs("");
  EXPECT_EQ(desktop.session.note, "");
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
