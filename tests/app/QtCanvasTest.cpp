// The painter's canvas, looked at pixel by pixel: 1000 by 500 user units on 200 by 100 pixels.
#include "app/QtCanvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>
#include <cmath>
#include <limits>
#include <numbers>

namespace quilm {
namespace {

constexpr f32 pi = std::numbers::pi_v<f32>;

class QtCanvasTest : public testing::Test {
 protected:
  QtCanvasTest() : QtCanvasTest(1) {}
  explicit QtCanvasTest(int density)
      : image(200 * density, 100 * density, QImage::Format_RGB32),
        painter((image.fill(Qt::white), image.setDevicePixelRatio(density), &image)),
        canvas(painter, Surface{.target = QRectF(0, 0, 200, 100), .density = static_cast<f64>(density)}) {
    canvas.SetScale({0, 0, 1000, 500});
  }

  QColor At(int x, int y) const { return QColor(image.pixel(x, y)); }
  bool Marked(int x, int y) const { return At(x, y) != QColor(Qt::white); }
  // Whether anything was drawn within a pixel of the place.
  bool Near(int x, int y) const {
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy) {
        if (Marked(x + dx, y + dy)) return true;
      }
    }
    return false;
  }
  int Count() const {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += Marked(x, y) ? 1 : 0;
    }
    return count;
  }

  QImage image;
  QPainter painter;
  QtCanvas canvas;
};

class DenseQtCanvasTest : public QtCanvasTest {
 protected:
  DenseQtCanvasTest() : QtCanvasTest(2) {}
};

TEST_F(QtCanvasTest, AnUprightLineFallsOnWholePixels) {
  canvas.Line(500, 100, 500, 400, colorBlack);
  for (int y = 20; y <= 80; ++y) EXPECT_EQ(At(100, y), QColor(Qt::black)) << y;
  for (int y = 20; y <= 80; ++y) EXPECT_FALSE(Marked(99, y) || Marked(101, y)) << y;
}

TEST_F(QtCanvasTest, ALineBetweenPixelsIsAsSharp) {
  canvas.Line(0, 252.3F, 1000, 252.3F, colorBlack);
  EXPECT_EQ(At(50, 50), QColor(Qt::black));
  EXPECT_FALSE(Marked(50, 49) || Marked(50, 51));
}

TEST_F(DenseQtCanvasTest, PensAreAsManyDevicePixelsWideAsTheScreenIsDense) {
  canvas.Line(500, 100, 500, 400, colorBlack);
  const int marked =
      (Marked(198, 100) ? 1 : 0) + (Marked(199, 100) ? 1 : 0) + (Marked(200, 100) ? 1 : 0) + (Marked(201, 100) ? 1 : 0);
  EXPECT_EQ(marked, 2);
  EXPECT_EQ(At(200, 100), QColor(Qt::black));
}

TEST_F(DenseQtCanvasTest, TheThinnestLineIsOneDevicePixel) {
  canvas.DrawWidth = 0;
  canvas.Line(500, 100, 500, 400, colorBlack);
  int marked = 0;
  for (int x = 190; x < 210; ++x) marked += Marked(x, 100) ? 1 : 0;
  EXPECT_EQ(marked, 1);
}

// A text at the right end of what it was laid out for, where the surface has half as long units of x: it keeps its
// shape and reaches twice as far to the left.
TEST_F(QtCanvasTest, ATextKeepsItsShapeAndTheEndThatItIsAnchoredAt) {
  const auto columns = [this](f32 anchor) {
    image.fill(Qt::white);
    canvas.SetScale({0, 0, 1000, 250});
    canvas.FontSize = 2.5F;  // 20 pixels
    canvas.Fit.anchor = anchor;
    canvas.PrintAt(500, 100, "HHH");
    int least = image.width();
    int most = 0;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        if (!Marked(x, y)) continue;
        least = std::min(least, x);
        most = std::max(most, x);
      }
    }
    return std::pair(least, most);
  };
  // Three letters of 0.722 em: 108.3 units laid out, 21.7 pixels; drawn 43.3 pixels.
  const auto [leftFrom, leftTo] = columns(0);
  const auto [rightFrom, rightTo] = columns(1);
  EXPECT_NEAR(leftFrom, 100, 3);
  EXPECT_NEAR(leftTo, 143, 3);
  EXPECT_NEAR(rightFrom, 78, 3);
  EXPECT_NEAR(rightTo, 121, 3);
}

class EnlargingCanvas : public testing::Test {
 protected:
  // The pixels across that a text takes whose letters would be 4 pixels high, where 12 are the least.
  int Width(const TextFit& fit) {
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter painter(&image);
      QtCanvas canvas(painter, Surface{.target = QRectF(0, 0, 200, 100), .smallestText = 12});
      canvas.SetScale({0, 0, 1000, 500});
      canvas.FontSize = 1;
      canvas.Fit = fit;
      canvas.PrintAt(100, 100, "HHHH");
    }
    int least = image.width();
    int most = -1;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        if (QColor(image.pixel(x, y)) == QColor(Qt::white)) continue;
        least = std::min(least, x);
        most = std::max(most, x);
      }
    }
    return most - least + 1;
  }
};

// Four letters of 0.722 em of 12 pixels are 34.7 pixels wide, 173 units.
TEST_F(EnlargingCanvas, ATextIsEnlargedAsFarAsItHasRoom) {
  EXPECT_NEAR(Width({}), 34, 3);
  EXPECT_NEAR(Width({.anchor = 0, .room = 500}), 34, 3);
  EXPECT_NEAR(Width({.anchor = 0, .room = 100}), 20, 3);
  EXPECT_NEAR(Width({.anchor = 0, .room = 1}), 11, 3);  // never smaller than it was laid out
}

TEST_F(QtCanvasTest, WhatIsForPaperDoesNotReachTheScreen) {
  canvas.ShowOn = Medium::Paper;
  canvas.Rectangle(100, 100, 900, 400, colorBlack, true);
  canvas.PrintAt(100, 100, "paper");
  EXPECT_EQ(Count(), 0);
  canvas.ShowOn = Medium::Screen;
  canvas.Rectangle(100, 100, 900, 400, colorBlack, true);
  EXPECT_GT(Count(), 0);
}

TEST_F(QtCanvasTest, TracesAreDashedOnPaperAlone) {
  const auto gaps = [this](Medium medium) {
    image.fill(Qt::white);
    QtCanvas surface(painter, Surface{.target = QRectF(0, 0, 200, 100), .medium = medium});
    surface.SetScale({0, 0, 1000, 500});
    surface.DrawStyle = LineStyle::DashOnPaper;
    surface.Line(100, 250, 900, 250, colorBlack);
    int white = 0;
    for (int x = 25; x < 175; ++x) white += Marked(x, 50) ? 0 : 1;
    return white;
  };
  EXPECT_EQ(gaps(Medium::Screen), 0);
  EXPECT_GT(gaps(Medium::Paper), 30);
}

TEST_F(QtCanvasTest, ASlantedLineIsSmooth) {
  canvas.Line(100, 100, 900, 300, colorBlack);
  bool grey = false;
  for (int x = 20; x < 180; ++x) {
    for (int y = 15; y < 65; ++y) grey = grey || (Marked(x, y) && At(x, y) != QColor(Qt::black));
  }
  EXPECT_TRUE(grey);
  EXPECT_TRUE(Near(100, 40));
}

TEST_F(QtCanvasTest, ALineEndsAtItsPoints) {
  canvas.Line(100, 100, 900, 300, colorBlack);
  EXPECT_TRUE(Near(20, 20));
  EXPECT_TRUE(Near(180, 60));
  EXPECT_FALSE(Near(15, 19));
  EXPECT_FALSE(Near(185, 61));
}

TEST_F(QtCanvasTest, ColoursAreBlueGreenRedWords) {
  canvas.Rectangle(0, 0, 400, 400, 0x0000FF, true);
  canvas.Rectangle(600, 0, 1000, 400, 0xFF0000, true);
  EXPECT_EQ(At(40, 40), QColor(255, 0, 0));
  EXPECT_EQ(At(160, 40), QColor(0, 0, 255));
}

TEST_F(QtCanvasTest, AnOutlineLeavesItsInsideAlone) {
  canvas.Rectangle(100, 100, 900, 400, colorBlack, false);
  EXPECT_TRUE(Marked(20, 50) && Marked(180, 50) && Marked(100, 20) && Marked(100, 80));
  EXPECT_FALSE(Marked(100, 50));
}

TEST_F(QtCanvasTest, CornersMayComeInAnyOrder) {
  canvas.Rectangle(900, 400, 100, 100, colorBlack, true);
  EXPECT_TRUE(Marked(100, 50));
}

TEST_F(QtCanvasTest, ACircleIsRoundOnAnEvenScale) {
  canvas.Circle(500, 250, 150, colorBlack);
  EXPECT_TRUE(Near(130, 50) && Near(70, 50) && Near(100, 20) && Near(100, 80));
  EXPECT_FALSE(Near(100, 50));
}

TEST_F(QtCanvasTest, TheAspectIsHeightToWidth) {
  canvas.Circle(500, 250, 150, colorBlack, 0, 0, 0.5F);
  EXPECT_TRUE(Near(130, 50) && Near(70, 50) && Near(100, 35) && Near(100, 65));
  EXPECT_FALSE(Near(100, 20));
}

TEST_F(QtCanvasTest, ArcsRunAnticlockwise) {
  canvas.Circle(500, 250, 150, colorBlack, 0, pi / 2);
  EXPECT_TRUE(Near(121, 29)) << "upper right";
  EXPECT_FALSE(Near(79, 29) || Near(79, 71) || Near(121, 71));
}

TEST_F(QtCanvasTest, AnArcMayPassTheRightHandSide) {
  canvas.Circle(500, 250, 150, colorBlack, 3 * pi / 2, pi / 2);
  EXPECT_TRUE(Near(130, 50) && Near(121, 29) && Near(121, 71));
  EXPECT_FALSE(Near(70, 50));
}

TEST_F(QtCanvasTest, APointIsOnePixelOrARoundDot) {
  canvas.PSet(500, 250, colorBlack);
  EXPECT_EQ(Count(), 1);
  canvas.DrawWidth = 10;
  canvas.PSet(250, 250, colorBlack);
  EXPECT_TRUE(Marked(46, 50) && Marked(54, 50));
  EXPECT_FALSE(Marked(45, 45)) << "its corner";
}

TEST_F(QtCanvasTest, DashedLinesHaveGaps) {
  canvas.DrawStyle = LineStyle::Dash;
  canvas.Line(0, 250, 1000, 250, colorBlack);
  int marked = 0;
  for (int x = 0; x < 200; ++x) marked += Marked(x, 50) ? 1 : 0;
  EXPECT_GT(marked, 100);
  EXPECT_LT(marked, 180);
}

TEST_F(QtCanvasTest, DrawingTwiceInExclusiveOrRestores) {
  canvas.Rectangle(0, 0, 500, 500, colorBlue, true);
  const QImage before = image.copy();
  canvas.DrawMode = PenMode::ExclusiveOr;
  canvas.DrawWidth = 10;
  const auto mark = [this] {
    canvas.PSet(500, 250, 0xFF44FF);
    canvas.Line(100, 100, 900, 300, 0xFF44FF);
    canvas.Rectangle(300, 300, 700, 450, 0xFF44FF, true);
    canvas.Circle(500, 250, 150, 0xFF44FF);
  };
  mark();
  EXPECT_NE(image, before);
  mark();
  EXPECT_EQ(image, before);
}

TEST_F(QtCanvasTest, TextHangsFromItsUpperLeftCorner) {
  canvas.SetScale({0, 0, 3000, 1500});  // 15 units a pixel, as on a screen
  canvas.FontSize = 12;
  canvas.CurrentX = 750;
  canvas.CurrentY = 600;
  canvas.Print("HHH");
  // 12 points are 16 pixels; a capital is some 11 of them high and stands on the baseline.
  int top = 100;
  int bottom = 0;
  int left = 200;
  int right = 0;
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 200; ++x) {
      if (!Marked(x, y)) continue;
      top = std::min(top, y);
      bottom = std::max(bottom, y);
      left = std::min(left, x);
      right = std::max(right, x);
    }
  }
  EXPECT_NEAR(left, 51, 1);
  EXPECT_NEAR(right - left, 3 * 16 * 0.722, 3);
  EXPECT_NEAR(bottom - top, 11, 1);
  EXPECT_GT(top, 40);
  EXPECT_LT(bottom, 40 + 18);
  EXPECT_EQ(canvas.CurrentY, 600 + canvas.TextHeight("HHH"));
}

TEST_F(QtCanvasTest, EveryLineOfATextIsDrawn) {
  canvas.SetScale({0, 0, 3000, 1500});
  canvas.FontSize = 12;
  canvas.Print("H\nH");
  EXPECT_TRUE(Near(4, 10));
  EXPECT_TRUE(Near(4, 28));
}

TEST_F(QtCanvasTest, ClearEmptiesThePicture) {
  canvas.Line(0, 0, 1000, 500, colorBlack);
  canvas.Clear();
  EXPECT_EQ(Count(), 0);
}

TEST_F(QtCanvasTest, WhatLiesFarOutsideIsCutNotBent) {
  canvas.Line(0, 0, 1e9F, 5e8F, colorBlack);
  EXPECT_TRUE(Near(50, 25) && Near(150, 75));
}

TEST_F(QtCanvasTest, APointWithoutAPlaceBreaksTheTrace) {
  const f32 nowhere = std::numeric_limits<f32>::quiet_NaN();
  const std::array<Point, 5> trace{Point{100, 100}, {200, 150}, {nowhere, nowhere}, {800, 100}, {900, 150}};
  canvas.Polyline(trace, colorBlack);
  EXPECT_TRUE(Near(30, 25) && Near(170, 25));
  EXPECT_FALSE(Near(100, 25));
}

// How traces come out on an image, where they are set pixel by pixel, and on a pixmap, where the toolkit strokes them.
struct TracePen {
  int density;
  i16 width;
};

class TraceOnAnImage : public testing::TestWithParam<TracePen> {
 protected:
  static constexpr int width = 400;
  static constexpr int height = 200;

  void Draw(QPaintDevice& device) {
    QPainter painter(&device);
    const int density = GetParam().density;
    QtCanvas canvas(painter, Surface{.target = QRectF(0, 0, width, height), .density = static_cast<f64>(density)});
    canvas.SetScale({0, 0, 1000, 500});
    canvas.DrawWidth = GetParam().width;
    std::vector<Point> trace;
    for (int i = 0; i < 2050; ++i) {
      const f32 x = 50 + static_cast<f32>(i) * 900 / 2050;
      trace.push_back({x, 250 + 180 * std::sin(x / 60) * std::sin(x / 400)});
    }
    canvas.Polyline(trace, colorBlack);
    canvas.Line(100, 450, 140, 50, colorBlack);
  }

  template <class Device>
  Device Blank(Device device, QColor color) {
    device.setDevicePixelRatio(GetParam().density);
    device.fill(color);
    return device;
  }
  QSize Size() const { return QSize(width, height) * GetParam().density; }

  QImage Direct() {
    QImage image = Blank(QImage(Size(), QImage::Format_RGB32), Qt::white);
    Draw(image);
    return image;
  }
};

TEST_P(TraceOnAnImage, LooksAsTheToolkitStrokesIt) {
  QPixmap pixmap = Blank(QPixmap(Size()), Qt::white);
  Draw(pixmap);
  const QImage stroked = pixmap.toImage();
  const QImage set = Direct();
  f64 inkStroked = 0;
  f64 inkSet = 0;
  int inked = 0;
  int apart = 0;
  for (int y = 0; y < set.height(); ++y) {
    for (int x = 0; x < set.width(); ++x) {
      const int a = 255 - qRed(stroked.pixel(x, y));
      const int b = 255 - qRed(set.pixel(x, y));
      inkStroked += a;
      inkSet += b;
      inked += a + b > 0 ? 1 : 0;
      apart += std::abs(a - b) > 40 ? 1 : 0;
    }
  }
  EXPECT_GT(inkStroked, 0);
  EXPECT_NEAR(inkSet / inkStroked, 1, 0.02);
  // The toolkit's outline bulges here and there where short lines meet; nowhere else do the two differ.
  EXPECT_LT(apart, inked / 50) << inked;
}

TEST_P(TraceOnAnImage, ATransparentImageLaidOverPaperGivesTheSame) {
  QImage layer = Blank(QImage(Size(), QImage::Format_ARGB32_Premultiplied), Qt::transparent);
  Draw(layer);
  QImage paper = Blank(QImage(Size(), QImage::Format_RGB32), Qt::white);
  {
    QPainter painter(&paper);
    painter.drawImage(0, 0, layer);
  }
  const QImage direct = Direct();
  for (int y = 0; y < direct.height(); ++y) {
    for (int x = 0; x < direct.width(); ++x) {
      // Two traces that cross are rounded twice.
      ASSERT_NEAR(qRed(paper.pixel(x, y)), qRed(direct.pixel(x, y)), 3) << x << ' ' << y;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Pens, TraceOnAnImage,
                         testing::Values(TracePen{1, 2}, TracePen{1, 6}, TracePen{2, 1}, TracePen{2, 2},
                                         TracePen{2, 6}));

TEST_F(DenseQtCanvasTest, AWideTraceStaysWithinTheTarget) {
  painter.setClipping(false);
  QtCanvas corner(painter, Surface{.target = QRectF(0, 0, 50, 50), .density = 2});
  corner.SetScale({0, 0, 100, 100});
  corner.DrawWidth = 5;
  corner.Line(0, 40, 400, 60, colorBlack);
  EXPECT_TRUE(Marked(98, 42) || Marked(98, 44));
  for (int y = 0; y < 200; ++y) EXPECT_FALSE(Marked(100, y)) << y;
}

TEST_F(QtCanvasTest, NothingIsDrawnOutsideTheTarget) {
  painter.setClipping(false);
  QtCanvas corner(painter, Surface{.target = QRectF(0, 0, 50, 50)});
  corner.SetScale({0, 0, 100, 100});
  corner.Line(0, 50, 400, 50, colorBlack);
  EXPECT_TRUE(Marked(20, 25));
  EXPECT_FALSE(Marked(60, 25));
}

}  // namespace
}  // namespace quilm
