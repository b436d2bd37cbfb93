#include "schematic/Icons.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

std::vector<Sign> AllSigns() {
  std::vector<Sign> signs;
  for (int i = 0; i <= static_cast<int>(Sign::Manual); ++i) signs.push_back(static_cast<Sign>(i));
  return signs;
}

void ExpectInside(const Picture& picture) {
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* line = std::get_if<PolylineOp>(&operation)) {
      for (const Point p : line->points) {
        EXPECT_GE(p.x, 0);
        EXPECT_LE(p.x, picture.ScaleWidth);
        EXPECT_GE(p.y, 0);
        EXPECT_LE(p.y, picture.ScaleHeight);
      }
    }
  }
}

TEST(SignPicture, EverySignIsDrawnInsideItsSquare) {
  for (const Sign sign : AllSigns()) {
    SCOPED_TRACE(static_cast<int>(sign));
    EXPECT_FALSE(SignPicture(sign).Empty());
    ExpectInside(SignPicture(sign));
  }
}

TEST(SignPicture, NoTwoSignsAreAlike) {
  const std::vector<Sign> signs = AllSigns();
  for (std::size_t i = 0; i < signs.size(); ++i) {
    for (std::size_t j = i + 1; j < signs.size(); ++j) {
      EXPECT_FALSE(SignPicture(signs[i]) == SignPicture(signs[j])) << i << " and " << j;
    }
  }
}

TEST(CurvePicture, EveryPlotHasItsOwn) {
  for (int i = 1; i <= 12; ++i) {
    ExpectInside(CurvePicture(i));
    for (int j = i + 1; j <= 12; ++j) EXPECT_FALSE(CurvePicture(i) == CurvePicture(j)) << i << " and " << j;
  }
}

int TracesOf(const Picture& picture, Color color) {
  int traces = 0;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* line = std::get_if<PolylineOp>(&operation);
    if (line != nullptr && line->pen.color == color) ++traces;
  }
  return traces;
}

TEST(CurvePicture, TheSecondQuantityIsRed) {
  for (int i = 1; i <= 12; ++i) {
    EXPECT_EQ(TracesOf(CurvePicture(i), colorBlue), 1) << i;
    const bool single = i == 1 || i == 5 || i == 7 || i >= 11;
    EXPECT_EQ(TracesOf(CurvePicture(i), colorRed), single ? 0 : 1) << i;
  }
}

}  // namespace
}  // namespace quilm
