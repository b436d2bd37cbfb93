#include "schematic/Palette.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "core/ElementCatalogue.h"
#include "core/Network.h"
#include "schematic/ElementPicture.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

struct Place {
  PaletteOf page;
  f32 x;
  f32 y;
  i16 element;
};

// A band excludes its upper edge and includes its lower one; columns include both of theirs.
TEST(Palette, BandsBeginBelowTheirTopAndHoldTheirBottom) {
  const auto edit = PaletteOf::EditPage;
  const auto manual = PaletteOf::ManualPage;
  for (const Place& place : {Place{edit, 5000, 4337, 0},
                             {edit, 5000, 4337.5F, SeriesL},
                             {edit, 6250, 5217, SeriesL},
                             {edit, 5600, 5218, ShuntL},
                             {edit, 5600, 6922, ShuntC},
                             {edit, 5600, 8077, SeriesSLC},
                             {edit, 5600, 11004, ShuntR},
                             {edit, 5600, 11005, SeriesReactance},
                             {edit, 5600, 11573, ShuntReactance},
                             {edit, 5600, 99999, ShuntReactance},
                             {edit, 4999, 5000, 0},
                             {edit, 6251, 5000, 0},
                             {edit, 6549, 5000, 0},
                             {edit, 6550, 5000, TransLine},
                             {edit, 7790, 9400, CoupledInductors},
                             {edit, 7790, 9401, SeriesRLC},
                             {edit, 7791, 9401, 0},
                             {edit, 7000, 10201, ShuntRLC},
                             {manual, 5099, 5000, 0},
                             {manual, 5100, 4350, 0},
                             {manual, 5100, 4351, SeriesL},
                             {manual, 6310, 5201, ShuntL},
                             {manual, 5600, 6650, ShuntC},
                             {manual, 5600, 7750, SeriesSLC},
                             {manual, 5600, 10701, SeriesReactance},
                             {manual, 5600, 11251, ShuntReactance},
                             {manual, 6599, 5000, 0},
                             {manual, 6600, 5160, TransLine},
                             {manual, 7800, 8200, ShuntOpenStub},
                             {manual, 7801, 8200, 0}}) {
    EXPECT_EQ(PaletteElementAt(place.page, {place.x, place.y}), place.element) << place.x << ' ' << place.y;
  }
}

TEST(Palette, HasEveryElementOnce) {
  for (const PaletteOf page : {PaletteOf::EditPage, PaletteOf::ManualPage}) {
    std::set<i16> seen;
    for (const PaletteBand& band : PaletteBands(page)) EXPECT_TRUE(seen.insert(band.element).second) << band.element;
    EXPECT_EQ(seen.size(), Elements().size());
  }
}

// Lines, boxes and circles of a picture.
std::vector<Point> PointsOf(const Picture& picture) {
  std::vector<Point> points;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* line = std::get_if<PolylineOp>(&operation)) {
      points.insert(points.end(), line->points.begin(), line->points.end());
    } else if (const auto* circle = std::get_if<CircleOp>(&operation)) {
      const f32 high = circle->r * circle->aspect;
      points.push_back({circle->center.x - circle->r, circle->center.y - high});
      points.push_back({circle->center.x + circle->r, circle->center.y + high});
    }
  }
  return points;
}

TEST(Palette, EverySymbolStaysInItsBand) {
  for (const PaletteOf page : {PaletteOf::EditPage, PaletteOf::ManualPage}) {
    for (const PaletteBand& band : PaletteBands(page)) {
      Picture picture;
      DrawElement(picture, band.element, {band.left, band.top}, {band.right, band.ShownBottom()}, colorBlack);
      ASSERT_FALSE(picture.Empty()) << band.element;
      for (const Point p : PointsOf(picture)) {
        EXPECT_GE(p.x, band.left - 1) << band.element;
        EXPECT_LE(p.x, band.right + 1) << band.element;
        EXPECT_GE(p.y, band.top - 1) << band.element;
        EXPECT_LE(p.y, band.ShownBottom() + 1) << band.element;
      }
    }
  }
}

TEST(Palette, NoTwoSymbolsLookAlike) {
  std::set<std::string> seen;
  for (const Element& element : Elements()) {
    Picture picture;
    DrawElement(picture, element.code, {0, 0}, {1200, 600}, colorBlack);
    EXPECT_TRUE(seen.insert(picture.Dump()).second) << element.code;
  }
}

TEST(Palette, IsDrawnInOneColour) {
  for (const Color color : {colorBlack, paletteOff}) {
    Picture picture;
    DrawPalette(PaletteOf::EditPage, color, picture);
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* line = std::get_if<PolylineOp>(&operation)) {
        EXPECT_EQ(line->pen.color, color);
      }
      if (const auto* text = std::get_if<TextOp>(&operation)) {
        EXPECT_EQ(text->color, color);
      }
    }
  }
}

// Beside each band stands what it is, and no two read alike.
TEST(Palette, EveryBandHasItsCaption) {
  Picture picture;
  DrawPalette(PaletteOf::ManualPage, colorBlack, picture);
  std::set<std::string> texts;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) texts.insert(text->text);
  }
  texts.erase("jX");
  EXPECT_EQ(texts.size(), Elements().size());
  EXPECT_TRUE(texts.contains("L in line"));
}

// In the box (555, 3000)-(2800, 8600).
TEST(LargePicture, StaysInItsBox) {
  for (const Element& element : Elements()) {
    Picture picture;
    DrawLargePicture(element.code, picture);
    EXPECT_EQ(picture.Empty(), element.joint == Joint::Reactance) << element.code;
    for (const Point p : PointsOf(picture)) {
      EXPECT_GE(p.x, 555) << element.code;
      EXPECT_LE(p.x, 2800) << element.code;
      EXPECT_GE(p.y, 3000) << element.code;
      EXPECT_LE(p.y, 8600) << element.code;
    }
  }
}

TEST(LargePicture, SaysWhichStageItIsAndItsValues) {
  Network network;
  network.Stages = 2;
  network.Rsource[1] = 50;
  network.Rload[1] = 75;
  network.stage[2].ElementType = SeriesSLC;
  network.stage[2].Lval.value = 1e-6F;
  network.stage[2].Cval.value = 47e-12F;
  const auto texts = [&](int place) {
    Picture picture;
    DrawLargePicture(network, place, picture);
    std::set<std::string> found;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) found.insert(text->text);
    }
    return found;
  };
  EXPECT_TRUE(texts(2).contains("Stage 2"));
  EXPECT_TRUE(texts(2).contains("L = 1uH"));
  EXPECT_TRUE(texts(2).contains("C = 47pF"));
  EXPECT_TRUE(texts(0).contains("50"));
  EXPECT_TRUE(texts(3).contains("75"));
  EXPECT_TRUE(texts(1).empty()) << "a place without an element";
}

}  // namespace
}  // namespace quilm
