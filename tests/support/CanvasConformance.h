// What every canvas must do, said once. A canvas takes part with a probe:
//
//   struct MyProbe {
//     Canvas& Surface();                            // cleared, with the scale 1000 by 500 at its origin
//     bool Inked(const Box& box, Color color);      // whether anything of that colour lies in the box
//   };
//   INSTANTIATE_TYPED_TEST_SUITE_P(MyCanvas, CanvasConformance, MyProbe);
//
// All boxes looked at have some room (10 units and more), so that a probe may look at pixels of up to 5 units.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "shell/Canvas.h"

namespace quilm {

// In user scale.
struct Box {
  f64 left = 0;
  f64 top = 0;
  f64 right = 0;
  f64 bottom = 0;
};

inline Box Around(f64 x, f64 y, f64 room = 10) { return {x - room, y - room, x + room, y + room}; }

template <class Probe>
class CanvasConformance : public testing::Test {
 protected:
  Canvas& Surface() { return probe_.Surface(); }
  bool At(f64 x, f64 y, Color color = colorBlue) { return probe_.Inked(Around(x, y), color); }
  bool In(const Box& box, Color color = colorBlue) { return probe_.Inked(box, color); }

 private:
  Probe probe_;
};

TYPED_TEST_SUITE_P(CanvasConformance);

TYPED_TEST_P(CanvasConformance, ALineRunsFromEndToEnd) {
  this->Surface().Line(100, 100, 500, 300, colorBlue);
  for (const f64 t : {0.0, 0.25, 0.5, 0.75, 1.0}) EXPECT_TRUE(this->At(100 + 400 * t, 100 + 200 * t)) << t;
  EXPECT_FALSE(this->At(70, 85));
  EXPECT_FALSE(this->At(530, 315));
  EXPECT_FALSE(this->At(300, 150));
}

TYPED_TEST_P(CanvasConformance, ColoursAreBlueGreenRedWords) {
  this->Surface().Line(100, 100, 200, 100, colorRed);
  this->Surface().Line(100, 200, 200, 200, 0x00FF00);
  EXPECT_TRUE(this->At(150, 100, colorRed));
  EXPECT_FALSE(this->At(150, 100, colorBlue));
  EXPECT_TRUE(this->At(150, 200, 0x00FF00));
}

TYPED_TEST_P(CanvasConformance, ATraceGoesFromPointToPoint) {
  const Point points[] = {{100, 100}, {300, 100}, {300, 300}, {500, 300}};
  this->Surface().Polyline(points, colorBlue);
  for (const Point p : {Point{200, 100}, Point{300, 200}, Point{400, 300}, Point{500, 300}}) {
    EXPECT_TRUE(this->At(static_cast<f64>(p.x), static_cast<f64>(p.y))) << p.x << ' ' << p.y;
  }
  EXPECT_FALSE(this->At(300, 330));
  EXPECT_FALSE(this->At(200, 200));  // no line back to the start
}

TYPED_TEST_P(CanvasConformance, OnePointIsNoTrace) {
  const Point points[] = {{100, 100}};
  this->Surface().Polyline(points, colorBlue);
  EXPECT_FALSE(this->At(100, 100));
}

TYPED_TEST_P(CanvasConformance, ARectangleIsItsOutline) {
  this->Surface().Rectangle(100, 100, 400, 300, colorBlue, false);
  for (const Point p : {Point{100, 200}, Point{400, 200}, Point{250, 100}, Point{250, 300}, Point{100, 100}}) {
    EXPECT_TRUE(this->At(static_cast<f64>(p.x), static_cast<f64>(p.y))) << p.x << ' ' << p.y;
  }
  EXPECT_FALSE(this->In({120, 120, 380, 280}));
  EXPECT_FALSE(this->In({420, 50, 500, 350}));
}

TYPED_TEST_P(CanvasConformance, AFilledRectangleTakesItsCornersInAnyOrder) {
  this->Surface().Rectangle(400, 300, 100, 100, colorBlue, true);
  EXPECT_TRUE(this->At(250, 200));
  EXPECT_TRUE(this->At(115, 115));
  EXPECT_TRUE(this->At(385, 285));
  EXPECT_FALSE(this->In({420, 50, 500, 350}));
  EXPECT_FALSE(this->In({50, 50, 80, 350}));
}

TYPED_TEST_P(CanvasConformance, ACircleHasItsRadius) {
  this->Surface().Circle(500, 250, 100, colorBlue);
  for (int degrees = 0; degrees < 360; degrees += 15) {
    const f64 angle = degrees * std::numbers::pi / 180;
    EXPECT_TRUE(this->At(500 + 100 * std::cos(angle), 250 - 100 * std::sin(angle))) << degrees;
  }
  EXPECT_FALSE(this->In({450, 200, 550, 300}));
  EXPECT_FALSE(this->In({620, 200, 700, 300}));
}

TYPED_TEST_P(CanvasConformance, TheAspectOfACircleIsHeightOverWidth) {
  this->Surface().Circle(500, 250, 200, colorBlue, 0, 0, 0.5F);
  EXPECT_TRUE(this->At(700, 250));
  EXPECT_TRUE(this->At(300, 250));
  EXPECT_TRUE(this->At(500, 150));
  EXPECT_TRUE(this->At(500, 350));
  EXPECT_FALSE(this->At(500, 50));
  EXPECT_FALSE(this->At(500, 250));
}

TYPED_TEST_P(CanvasConformance, AnArcRunsAnticlockwise) {
  constexpr f32 quarter = std::numbers::pi_v<f32> / 2;
  this->Surface().Circle(500, 250, 100, colorBlue, 0, quarter);
  const f64 diagonal = 100 * std::numbers::sqrt2 / 2;
  EXPECT_TRUE(this->At(600, 250));
  EXPECT_TRUE(this->At(500 + diagonal, 250 - diagonal));
  EXPECT_TRUE(this->At(500, 150));
  EXPECT_FALSE(this->At(500 + diagonal, 250 + diagonal));
  EXPECT_FALSE(this->At(500 - diagonal, 250 - diagonal));
  EXPECT_FALSE(this->At(500 - diagonal, 250 + diagonal));
}

TYPED_TEST_P(CanvasConformance, AnArcMayBeMoreThanHalfATurn) {
  constexpr f32 quarter = std::numbers::pi_v<f32> / 2;
  this->Surface().Circle(500, 250, 100, colorBlue, 0, 3 * quarter);
  EXPECT_TRUE(this->At(500, 150));
  EXPECT_TRUE(this->At(400, 250));
  EXPECT_TRUE(this->At(500, 350));
  const f64 diagonal = 100 * std::numbers::sqrt2 / 2;
  EXPECT_FALSE(this->At(500 + diagonal, 250 + diagonal));
}

TYPED_TEST_P(CanvasConformance, AnArcMayPassTheZero) {
  constexpr f32 quarter = std::numbers::pi_v<f32> / 2;
  this->Surface().Circle(500, 250, 100, colorBlue, 3 * quarter, quarter);
  EXPECT_TRUE(this->At(600, 250));
  EXPECT_TRUE(this->At(500, 150));
  EXPECT_TRUE(this->At(500, 350));
  EXPECT_FALSE(this->At(400, 250));
}

TYPED_TEST_P(CanvasConformance, APointIsAtItsPlace) {
  this->Surface().DrawWidth = 2;
  this->Surface().PSet(300, 200, colorBlue);
  EXPECT_TRUE(this->At(300, 200));
  EXPECT_FALSE(this->At(330, 200));
}

TYPED_TEST_P(CanvasConformance, ATextHangsFromItsUpperLeftCorner) {
  Canvas& canvas = this->Surface();
  canvas.ForeColor = colorBlue;
  canvas.FontSize = 4;
  canvas.CurrentX = 200;
  canvas.CurrentY = 100;
  const f64 width = static_cast<f64>(canvas.TextWidth("HHHHHHHH"));
  const f64 height = static_cast<f64>(canvas.TextHeight("HHHHHHHH"));
  canvas.Print("HHHHHHHH");
  EXPECT_TRUE(this->In({200, 100, 220, 100 + height}));
  EXPECT_TRUE(this->In({200 + width - 20, 100, 200 + width, 100 + height}));
  EXPECT_FALSE(this->In({100, 50, 190, 300}));
  EXPECT_FALSE(this->In({210 + width, 50, 900, 300}));
  EXPECT_FALSE(this->In({100, 0, 900, 90}));
  EXPECT_FALSE(this->In({100, 110 + height, 900, 500}));
}

TYPED_TEST_P(CanvasConformance, TheNextTextStandsBelow) {
  Canvas& canvas = this->Surface();
  canvas.ForeColor = colorBlue;
  canvas.FontSize = 4;
  canvas.CurrentX = 200;
  canvas.CurrentY = 100;
  canvas.Print("H");
  const f64 next = static_cast<f64>(canvas.CurrentY);
  canvas.ForeColor = colorRed;
  canvas.Print("H");
  EXPECT_FALSE(this->In({200, 0, 900, next - 10}, colorRed));
  EXPECT_TRUE(this->In({200, next, 400, next + 100}, colorRed));
}

TYPED_TEST_P(CanvasConformance, ClearTakesAllAway) {
  this->Surface().Line(100, 100, 500, 300, colorBlue);
  this->Surface().Clear();
  EXPECT_FALSE(this->In({0, 0, 1000, 500}));
}

REGISTER_TYPED_TEST_SUITE_P(CanvasConformance, ALineRunsFromEndToEnd, ColoursAreBlueGreenRedWords,
                            ATraceGoesFromPointToPoint, OnePointIsNoTrace, ARectangleIsItsOutline,
                            AFilledRectangleTakesItsCornersInAnyOrder, ACircleHasItsRadius,
                            TheAspectOfACircleIsHeightOverWidth, AnArcRunsAnticlockwise, AnArcMayBeMoreThanHalfATurn,
                            AnArcMayPassTheZero, APointIsAtItsPlace, ATextHangsFromItsUpperLeftCorner,
                            TheNextTextStandsBelow, ClearTakesAllAway);

}  // namespace quilm
