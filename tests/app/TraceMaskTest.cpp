#include "app/TraceMask.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quilm {
namespace {

constexpr int side = 100;

// The coverage of every pixel by one trace, 0 to 255.
struct Cover {
  Cover(const std::vector<Point>& points, f32 width, const PixelBox& room = {0, 0, side, side}) {
    TraceMask mask(room);
    mask.AddTrace(points, width);
    mask.ForEachRun([this](int x, int y, const std::uint8_t* run, int count) {
      for (int i = 0; i < count; ++i) pixels.at(static_cast<std::size_t>(y * side + x + i)) = run[i];
    });
  }
  int At(int x, int y) const { return pixels.at(static_cast<std::size_t>(y * side + x)); }
  // In whole pixels.
  f64 Area() const {
    f64 sum = 0;
    for (const int pixel : pixels) sum += pixel;
    return sum / 255;
  }
  std::vector<int> pixels = std::vector<int>(side * side);
};

std::vector<Point> Arc(int points) {
  std::vector<Point> arc;
  for (int i = 0; i < points; ++i) {
    const f32 angle = std::numbers::pi_v<f32> * static_cast<f32>(i) / static_cast<f32>(points - 1);
    arc.push_back({50 + 35 * std::cos(angle), 50 + 35 * std::sin(angle)});
  }
  return arc;
}

TEST(TraceMask, ALineBetweenTwoRowsCoversBoth) {
  const Cover cover({{10, 50}, {90, 50}}, 2);
  for (int x = 10; x < 90; ++x) {
    ASSERT_EQ(cover.At(x, 49), 255) << x;
    ASSERT_EQ(cover.At(x, 50), 255) << x;
    ASSERT_EQ(cover.At(x, 48), 0) << x;
    ASSERT_EQ(cover.At(x, 51), 0) << x;
  }
}

TEST(TraceMask, ALineInTheMiddleOfAColumnHalfCoversItsNeighbours) {
  const Cover cover({{50.5F, 10}, {50.5F, 90}}, 2);
  for (int y = 10; y < 90; ++y) {
    ASSERT_EQ(cover.At(50, y), 255) << y;
    ASSERT_NEAR(cover.At(49, y), 128, 1) << y;
    ASSERT_NEAR(cover.At(51, y), 128, 1) << y;
  }
}

// Length times width, and the two half discs at the ends; a hundredth for the way that edges fall off.
TEST(TraceMask, ALineCoversItsAreaAtEverySlope) {
  for (const f32 width : {1.0F, 2.0F, 4.0F, 12.0F}) {
    for (int degrees = 0; degrees < 180; degrees += 7) {
      const f64 angle = degrees * std::numbers::pi / 180;
      const auto dx = static_cast<f32>(35 * std::cos(angle));
      const auto dy = static_cast<f32>(35 * std::sin(angle));
      const Cover cover({{50 - dx, 50 - dy}, {50 + dx, 50 + dy}}, width);
      const f64 w = static_cast<f64>(width);
      const f64 area = 70 * w + std::numbers::pi * w * w / 4;
      EXPECT_NEAR(cover.Area() / area, 1, 0.015) << width << " wide at " << degrees;
    }
  }
}

TEST(TraceMask, ShortLinesCoverAsMuchAsLongOnes) {
  const f64 coarse = Cover(Arc(200), 4).Area();
  EXPECT_NEAR(Cover(Arc(5000), 4).Area() / coarse, 1, 0.01);
  EXPECT_NEAR(coarse, std::numbers::pi * (35 * 4 + 4), 5);
}

TEST(TraceMask, AFineTraceHasNoGapsAndNoBeads) {
  const Cover cover(Arc(3000), 3);
  for (int i = 0; i <= 180; ++i) {
    const f64 angle = i * std::numbers::pi / 180;
    const int x = static_cast<int>(std::floor(50 + 35 * std::cos(angle)));
    const int y = static_cast<int>(std::floor(50 + 35 * std::sin(angle)));
    EXPECT_EQ(cover.At(x, y), 255) << i << " degrees";
  }
}

TEST(TraceMask, AJointIsRoundAndWhole) {
  const Cover cover({{20, 80}, {50, 20}, {80, 80}}, 6);
  EXPECT_EQ(cover.At(50, 20), 255);
  EXPECT_EQ(cover.At(50, 18), 255) << "no flat end at the tip";
  EXPECT_EQ(cover.At(50, 15), 0) << "no spike either";
}

TEST(TraceMask, ASpikeInAStraightStretchIsNotLost) {
  const Cover cover({{10, 60}, {30, 60}, {50, 60}, {50.2F, 20}, {50.4F, 60}, {70, 60}, {90, 60}}, 2);
  EXPECT_GT(cover.At(50, 22), 200);
  EXPECT_EQ(cover.At(30, 60), 255);
  EXPECT_EQ(cover.At(80, 60), 255);
}

TEST(TraceMask, ATraceThatTurnsBackReachesItsTurn) {
  const Cover cover({{10, 50}, {90, 50}, {30, 50}}, 2);
  EXPECT_EQ(cover.At(88, 50), 255);
}

TEST(TraceMask, ASlowBendIsFollowed) {
  std::vector<Point> bend;
  for (int i = 0; i <= 2000; ++i) {
    const f32 x = 10 + static_cast<f32>(i) * 0.04F;
    bend.push_back({x, 20 + (x - 10) * (x - 10) / 160});
  }
  const Cover cover(bend, 3);
  for (int x = 11; x < 89; ++x) {
    const f32 right = static_cast<f32>(x) + 0.5F - 10;
    EXPECT_EQ(cover.At(x, static_cast<int>(20 + right * right / 160)), 255) << x;
  }
}

TEST(TraceMask, APointIsADot) {
  const Cover cover({{50, 50}, {50, 50}}, 6);
  EXPECT_NEAR(cover.Area(), std::numbers::pi * 9, 1);
}

TEST(TraceMask, NothingIsCoveredOutsideItsRoom) {
  const Cover cover({{-500, 50}, {600, 50}}, 10, {20, 48, 77, 52});
  EXPECT_NEAR(cover.Area(), (77 - 20) * 4, 0.01);
  EXPECT_EQ(cover.At(19, 50), 0);
  EXPECT_EQ(cover.At(77, 50), 0);
  EXPECT_EQ(cover.At(50, 47), 0);
  EXPECT_EQ(cover.At(50, 52), 0);
}

TEST(TraceMask, ATraceBesideItsRoomCoversNothing) {
  EXPECT_EQ(Cover({{-50, -50}, {-10, 500}}, 10).Area(), 0);
  EXPECT_EQ(Cover({{10, 10}, {20, 20}}, 10, {50, 50, 50, 50}).Area(), 0);
}

}  // namespace
}  // namespace quilm
