#include "shell/LiveLayer.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

void Trace(Canvas& canvas, std::size_t points, Color color = colorBlue) {
  canvas.Polyline(std::vector<Point>(points), color);
}

TEST(LiveLayer, IsEmptyBeforeItIsDrawnOn) {
  const LiveLayer layer;
  EXPECT_TRUE(layer.Empty());
  EXPECT_TRUE(layer.Present().kept.empty());
}

TEST(LiveLayer, HoldsWhatWasDrawnInOrder) {
  LiveLayer layer;
  layer.DrawWidth = 2;
  layer.Line(1, 2, 3, 4, colorRed);
  layer.PrintAt(5, 6, "trial");
  ASSERT_EQ(layer.Present().kept.size(), 2U);
  EXPECT_EQ(DumpOperation(layer.Present().kept[0]), "line (1, 2) (3, 4) color 0xff width 2");
  EXPECT_EQ(DumpOperation(layer.Present().kept[1]), "text (5, 6) \"trial\" color 0x0 Arial 9");
}

TEST(LiveLayer, DropsTheOldestBeyondItsBound) {
  LiveLayer layer(30);
  for (const Color color : {1U, 2U, 3U, 4U}) Trace(layer, 10, color);
  EXPECT_EQ(layer.Present().dropped, 1U);
  EXPECT_EQ(layer.Present().Drawn(), 4U);
  ASSERT_EQ(layer.Present().kept.size(), 3U);
  EXPECT_EQ(std::get<PolylineOp>(layer.Present().kept.front()).pen.color, 2U);
  EXPECT_FALSE(layer.Empty());
}

TEST(LiveLayer, WhatIsNoTraceCountsForOnePoint) {
  LiveLayer layer(3);
  for (int i = 0; i < 3; ++i) layer.PSet(0, 0, colorRed);
  EXPECT_EQ(layer.Present().dropped, 0U);
  layer.PSet(0, 0, colorRed);
  EXPECT_EQ(layer.Present().dropped, 1U);
}

TEST(LiveLayer, ATraceLongerThanTheBoundIsKeptAlone) {
  LiveLayer layer(10);
  Trace(layer, 5);
  Trace(layer, 11);
  EXPECT_EQ(layer.Present().kept.size(), 1U);
  EXPECT_EQ(layer.Present().dropped, 1U);
}

TEST(LiveLayer, TheTracesOfAWholeRunAreKept) {
  LiveLayer layer;
  for (int i = 0; i < 2000; ++i) Trace(layer, 2050);
  EXPECT_EQ(layer.Present().dropped, 0U);
}

TEST(LiveLayer, TheHundredThousandthTraceTakesNoMoreRoomThanTheThousandth) {
  LiveLayer layer(2050 * 100);
  for (int i = 0; i < 1000; ++i) Trace(layer, 2050);
  const std::size_t kept = layer.Present().kept.size();
  for (int i = 0; i < 99000; ++i) Trace(layer, 2050);
  EXPECT_EQ(kept, 100U);
  EXPECT_EQ(layer.Present().kept.size(), kept);
  EXPECT_EQ(layer.Present().Drawn(), 100000U);
}

TEST(LiveLayer, ClearBeginsAnotherRun) {
  LiveLayer layer(30);
  const auto held = layer.Drawing();
  Trace(layer, 20);
  layer.Clear();
  EXPECT_TRUE(layer.Empty());
  EXPECT_NE(layer.Drawing(), held);
  EXPECT_EQ(held->kept.size(), 1U);
  // The points of the run before do not count against the new one.
  Trace(layer, 20);
  layer.PSet(0, 0, colorRed);
  EXPECT_EQ(layer.Present().dropped, 0U);
}

}  // namespace
}  // namespace quilm
