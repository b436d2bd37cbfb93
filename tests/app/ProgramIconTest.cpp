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

}  // namespace
}  // namespace quilm
