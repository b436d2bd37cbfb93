#include "analysis/LaneFunctions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quilm {
namespace {

struct Plain {};
using One = Pack<Plain, 1, 1>;

f64 LogOf(f64 x) { return Log(One(x)).At(0); }
f64 ArcTangentOf(f64 y, f64 x) { return ArcTangent(One(y), One(x)).At(0); }

f64 UnitsApart(f64 a, f64 b) {
  const f64 unit = std::nextafter(std::fabs(b), std::numeric_limits<f64>::infinity()) - std::fabs(b);
  return std::fabs(a - b) / unit;
}

// The library's logarithm is right to less than one unit in the last place.
TEST(LaneMath, TheLogarithmIsGoodToTwoUnits) {
  for (f64 exponent = -300; exponent < 300; exponent += 0.37) {
    const f64 x = std::pow(10, exponent);
    EXPECT_LE(UnitsApart(LogOf(x), std::log(x)), 2) << x;
  }
}

TEST(LaneMath, TheLogarithmNearOneKeepsItsRelativePrecision) {
  for (f64 d = 1e-15; d < 0.4; d *= 1.7) {
    EXPECT_LE(UnitsApart(LogOf(1 + d), std::log(1 + d)), 3) << d;
    EXPECT_LE(UnitsApart(LogOf(1 - d), std::log(1 - d)), 3) << d;
  }
  EXPECT_EQ(LogOf(1), 0);
}

TEST(LaneMath, TheArcTangentIsGoodToThreeUnits) {
  for (f64 exponent = -20; exponent < 20; exponent += 0.011) {
    const f64 y = std::pow(10, exponent);
    EXPECT_LE(UnitsApart(ArcTangentOf(y, 1), std::atan(y)), 3) << y;
    EXPECT_LE(UnitsApart(ArcTangentOf(-y, 1), std::atan(-y)), 3) << y;
  }
}

TEST(LaneMath, TheArcTangentIsThatOfTheRatio) {
  EXPECT_EQ(ArcTangentOf(1, -1), -std::atan(1.0));
  EXPECT_EQ(ArcTangentOf(-1, -1), std::atan(1.0));
  EXPECT_EQ(ArcTangentOf(0, 5), 0);
}

TEST(LaneMath, MaskedOperations) {
  EXPECT_EQ(Abs(One(-2.5)).At(0), 2.5);
  EXPECT_EQ(TurnedBySign(One(3), One(-1)).At(0), -3);
  EXPECT_EQ(TurnedBySign(One(-3), One(-1)).At(0), 3);
  EXPECT_EQ(Select(One(1) < 2, One(5), One(6)).At(0), 5);
  EXPECT_EQ(Select(One(2) < 2, One(5), One(6)).At(0), 6);
}

}  // namespace
}  // namespace quilm
