#include "app/ProgramIcon.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace quilm {
namespace {

TEST(ProgramIcon, IsDrawnForEachSizeThatDesktopsShow) {
  const QIcon icon = ProgramIcon();
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
    const QImage image = icon.pixmap(QSize(side, side)).toImage();
    ASSERT_EQ(image.size(), QSize(side, side));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "its corners are round";
    // The tile above the stopband, and the curve's start in the passband.
    const QColor tile = image.pixelColor(side * 3 / 4, side / 4);
    EXPECT_EQ(tile.alpha(), 255);
    EXPECT_GT(tile.blue(), tile.red());
    int white = 0;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) white += image.pixelColor(x, y).lightness() > 220 ? 1 : 0;
    }
    EXPECT_GT(white, side) << "the curve goes from one side to the other at " << side;
    EXPECT_LT(white, side * side / 4) << side;
  }
}

// The document holds the places and colours that the pixels show; Debian's icon loaders read such plain SVG.
TEST(ProgramIcon, IsAnSvgDocumentToo) {
  const QByteArray svg = ProgramIconSvg();
  EXPECT_TRUE(svg.startsWith("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"64\" height=\"64\""));
  EXPECT_TRUE(svg.contains("<rect x=\"2\" y=\"2\" width=\"60\" height=\"60\" rx=\"12\" fill=\"#1f4e8c\"/>"));
  EXPECT_TRUE(svg.contains("d=\"M9 54L55 54M9 10L9 55\" stroke=\"#9db9dd\""));
  EXPECT_TRUE(svg.contains("M9 22C12 16 16 16 19 20C22 24 25 24 28 19C33 11 36 34 39 52C41 40 46 34 55 41"));
  EXPECT_TRUE(svg.endsWith("</svg>\n"));
}

}  // namespace
}  // namespace quilm
