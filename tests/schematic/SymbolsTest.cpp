#include "core/ElementTypes.h"
#include "schematic/Symbols.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

#include "schematic/LadderPicture.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

constexpr f32 x0 = 500;
constexpr f32 y0 = 2000;

const std::vector<i16> elements = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 19, 20, 21};

Picture StagePicture(i16 type, f32 gap = railGap) {
  Picture picture;
  DrawStage(picture, type, x0, y0, gap, colorBlack);
  return picture;
}

// All end points of lines, and the points on the axes of circles and arcs.
std::vector<Point> PointsOf(const Picture& picture) {
  std::vector<Point> points;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* line = std::get_if<PolylineOp>(&operation)) {
      points.insert(points.end(), line->points.begin(), line->points.end());
    } else if (const auto* circle = std::get_if<CircleOp>(&operation)) {
      const Point c = circle->center;
      points.insert(points.end(),
                    {{c.x - circle->r, c.y}, {c.x + circle->r, c.y}, {c.x, c.y - circle->r}, {c.x, c.y + circle->r}});
    }
  }
  return points;
}

bool Has(const Picture& picture, Point wanted) {
  const std::vector<Point> points = PointsOf(picture);
  return std::any_of(points.begin(), points.end(),
                     [wanted](Point p) { return std::hypot(p.x - wanted.x, p.y - wanted.y) < 1; });
}

// A line that comes down to the lower rail.
bool ReachesCommon(const Picture& picture) {
  constexpr f32 common = y0 + railGap;
  return std::any_of(picture.Operations().begin(), picture.Operations().end(), [](const auto& op) {
    const auto* line = std::get_if<PolylineOp>(&op);
    if (line == nullptr) return false;
    const auto on = [](Point p) { return std::fabs(p.y - common) < 1; };
    const auto above = [](Point p) { return p.y < common - 10; };
    return std::any_of(line->points.begin(), line->points.end(), on) &&
           std::any_of(line->points.begin(), line->points.end(), above);
  });
}

int Arcs(const Picture& picture) {
  return static_cast<int>(std::count_if(picture.Operations().begin(), picture.Operations().end(), [](const auto& op) {
    const auto* circle = std::get_if<CircleOp>(&op);
    return circle != nullptr && circle->start != circle->stop;
  }));
}

TEST(Symbols, EveryElementStaysWithinItsStage) {
  for (const i16 type : elements) {
    for (const Point p : PointsOf(StagePicture(type))) {
      EXPECT_GE(p.x, x0 - 1) << "type " << type;
      EXPECT_LE(p.x, x0 + StageWidth(type) + 1) << "type " << type;
      EXPECT_GE(p.y, y0 - 500) << "type " << type;
      EXPECT_LE(p.y, y0 + railGap + 1) << "type " << type;
    }
  }
}

// Stages are set side by side, so each must lead to both ends of both rails.
TEST(Symbols, EveryElementJoinsItsNeighboursOnBothRails) {
  for (const i16 type : elements) {
    const Picture picture = StagePicture(type);
    for (const f32 x : {x0, x0 + StageWidth(type)}) {
      EXPECT_TRUE(Has(picture, {x, y0})) << "type " << type;
      EXPECT_TRUE(Has(picture, {x, y0 + railGap})) << "type " << type;
    }
  }
}

TEST(Symbols, ShuntElementsReachCommonAndSeriesOnesDoNot) {
  for (const int type : {2, 4, 6, 8, 10, 14, 15, 20}) {
    EXPECT_TRUE(ReachesCommon(StagePicture(static_cast<i16>(type)))) << type;
  }
  for (const int type : {1, 3, 5, 7, 9, 11, 21})
    EXPECT_FALSE(ReachesCommon(StagePicture(static_cast<i16>(type)))) << type;
}

TEST(Symbols, AnInductorIsThreeArcs) {
  for (const int type : {1, 2, 5, 6, 7, 8, 20, 21}) EXPECT_EQ(Arcs(StagePicture(static_cast<i16>(type))), 3) << type;
  for (const int type : {16, 19}) EXPECT_EQ(Arcs(StagePicture(static_cast<i16>(type))), 6) << type;
  for (const int type : {3, 4, 9, 10}) EXPECT_EQ(Arcs(StagePicture(static_cast<i16>(type))), 0) << type;
}

// Leads, three half circles of radius 80 and leads again, on a rail.
TEST(Symbols, TheSeriesInductorIsTheModel) {
  const Picture picture = StagePicture(SeriesL);
  const f32 left = x0 + (StageWidth(SeriesL) - 640) / 2;
  std::vector<f32> centers;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* arc = std::get_if<CircleOp>(&operation)) {
      EXPECT_EQ(arc->r, 80);
      EXPECT_EQ(arc->center.y, y0);
      EXPECT_EQ(arc->start, 0);
      EXPECT_NEAR(arc->stop, Pi, 1e-6);
      centers.push_back(arc->center.x - left);
    }
  }
  EXPECT_EQ(centers, (std::vector<f32>{160, 320, 480}));
}

TEST(Symbols, NoTwoElementsLookAlike) {
  for (const i16 a : elements) {
    for (const i16 b : elements) {
      if (a >= b) continue;
      EXPECT_FALSE(StagePicture(a) == StagePicture(b)) << a << " and " << b;
    }
  }
}

TEST(Symbols, EmptyPlacesDrawNothing) {
  for (const int type : {0, 17, 18, 22}) {
    EXPECT_EQ(StageWidth(static_cast<i16>(type)), 0);
    EXPECT_TRUE(StagePicture(static_cast<i16>(type)).Empty());
  }
}

TEST(Symbols, NearerRailsBringTheSymbolsTogether) {
  for (const i16 type : elements) {
    for (const Point p : PointsOf(StagePicture(type, 640))) EXPECT_LE(p.y, y0 + 640 + 1) << type;
  }
}

TEST(TopologyElements, AreThoseOfAThirdOrderLadder) {
  const std::map<std::string, std::vector<i16>> expected = {
      {"A", {4, 1, 4}}, {"B", {1, 4, 1}}, {"C", {8, 3, 8, 3, 8}}, {"D", {8, 1, 8, 1, 8}},
      {"E", {8, 5, 8}}, {"F", {5, 8, 5}}, {"G", {5, 4, 5, 4, 5}}, {"H", {8, 7, 7, 8}},
      {"I", {3, 2, 3}}, {"J", {2, 3, 2}}, {"K", {7, 6, 7}},       {"L", {6, 7, 6}},
  };
  for (const auto& [letter, types] : expected) {
    const auto found = TopologyElements(letter);
    EXPECT_EQ(std::vector<i16>(found.begin(), found.end()), types) << letter;
  }
  EXPECT_TRUE(TopologyElements("M").empty());
}

TEST(LadderPicture, HoldsItsStagesSideBySide) {
  const std::vector<i16> types = {SeriesL, ShuntC, SeriesL};
  const Picture picture = LadderPicture(types);
  const f32 stages =
      std::accumulate(types.begin(), types.end(), 0.0F, [](f32 sum, i16 type) { return sum + SymbolWidth(type); });
  EXPECT_GT(picture.ScaleWidth, stages);
  EXPECT_EQ(Arcs(picture), 6);
  for (const Point p : PointsOf(picture)) {
    EXPECT_GE(p.x, 0);
    EXPECT_LE(p.x, picture.ScaleWidth);
    EXPECT_GE(p.y, 0);
    EXPECT_LE(p.y, picture.ScaleHeight);
  }
}

// Each branch to common has a ground of its own, and there is no rail along it.
TEST(Symbols, AGroundedStageHasNoLowerRail) {
  for (const i16 type : {SeriesL, ShuntC, SeriesC, ShuntL, SeriesSLC, ShuntPLC, SeriesPLC, ShuntSLC}) {
    constexpr f32 width = 960;
    Picture picture;
    DrawStage(picture, type, StageBox{x0, y0, width, railGap}, colorBlack, RailForm::Grounded);
    EXPECT_TRUE(Has(picture, {x0, y0}) && Has(picture, {x0 + width, y0})) << type;
    EXPECT_FALSE(Has(picture, {x0, y0 + railGap})) << type;
    const bool shunt = type == ShuntL || type == ShuntC || type == ShuntPLC || type == ShuntSLC;
    EXPECT_EQ(ReachesCommon(picture), shunt) << type;
    const auto points = PointsOf(picture);
    const bool below = std::any_of(points.begin(), points.end(), [](Point p) { return p.y > y0 + railGap + 50; });
    EXPECT_EQ(below, shunt) << type;
  }
}

}  // namespace
}  // namespace quilm
