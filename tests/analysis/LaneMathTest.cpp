// The functions of packs against the library's in extended precision, over some hundred thousand numbers. Each test
// bounds the error in units of the last place: by one to two and a half, what a minimax polynomial leaves with the
// roundings of the steps around it. The outputs rest in 32 bits, of which one is half a thousand million of these
// units.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>

#include "analysis/LaneFunctions.h"

namespace quilm {
namespace {

struct Plain {};
using One = Pack<Plain, 1, 1>;
using Eight = Pack<Plain, 2, 4>;
using Extended = long double;

f64 LogOf(f64 x) { return Log(One(x)).At(0); }
f64 ArcTangentOf(f64 y, f64 x) { return ArcTangent(One(y), One(x)).At(0); }
f64 TangentOf(f64 x) { return Tangent(One(x)).At(0); }
f64 ExpOf(f64 x) { return Exp(One(x)).At(0); }
f64 SineOf(f64 x) {
  One sine, cosine;
  SineAndCosine(One(x), sine, cosine);
  return sine.At(0);
}
f64 CosineOf(f64 x) {
  One sine, cosine;
  SineAndCosine(One(x), sine, cosine);
  return cosine.At(0);
}

f64 UnitsApart(f64 ours, Extended exact) {
  const f64 near = std::fabs(static_cast<f64>(exact));
  const Extended unit =
      static_cast<Extended>(std::nextafter(near, std::numeric_limits<f64>::infinity())) - static_cast<Extended>(near);
  return static_cast<f64>(std::fabs(static_cast<Extended>(ours) - exact) / unit);
}

// The worst of a function over numbers, with the number.
class Worst {
 public:
  void Take(f64 x, f64 ours, Extended exact) {
    const f64 units = UnitsApart(ours, exact);
    if (units <= units_) return;
    units_ = units;
    at_ = x;
  }
  f64 Units() const { return units_; }
  f64 At() const { return at_; }

 private:
  f64 units_ = 0;
  f64 at_ = 0;
};

constexpr int trials = 200000;

// Numbers even by logarithm between 10^low and 10^high.
class Spread {
 public:
  Spread(f64 low, f64 high) : exponent_(low, high) {}
  f64 operator()() { return std::pow(10, exponent_(random_)); }

 private:
  std::mt19937 random_{20260105};
  std::uniform_real_distribution<f64> exponent_;
};

TEST(LaneMath, TheLogarithmIsGoodToOneAndAHalfUnits) {
  Worst worst;
  Spread next(-300, 300);
  for (int i = 0; i < trials; ++i) {
    const f64 x = next();
    if (x > 0.5 && x < 2) continue;
    worst.Take(x, LogOf(x), std::log(static_cast<Extended>(x)));
  }
  EXPECT_LE(worst.Units(), 1.5) << worst.At();
}

TEST(LaneMath, TheLogarithmNearOneIsGoodToTwoUnits) {
  Worst worst;
  Spread next(-15, -0.5);
  for (int i = 0; i < trials; ++i) {
    const f64 x = i % 2 == 0 ? 1 + next() : 1 - next();
    if (x != 1) worst.Take(x, LogOf(x), std::log(static_cast<Extended>(x)));
  }
  EXPECT_LE(worst.Units(), 2) << worst.At();
  EXPECT_EQ(LogOf(1), 0);
}

TEST(LaneMath, TheArcTangentIsGoodToTwoAndAHalfUnits) {
  Worst worst;
  Spread next(-12, 12);
  for (int i = 0; i < trials; ++i) {
    const f64 y = i % 2 == 0 ? next() : -next();
    worst.Take(y, ArcTangentOf(y, 1), std::atan(static_cast<Extended>(y)));
  }
  EXPECT_LE(worst.Units(), 2.5) << worst.At();
}

TEST(LaneMath, TheArcTangentIsThatOfTheRatio) {
  EXPECT_EQ(ArcTangentOf(1, -1), -std::atan(1.0));
  EXPECT_EQ(ArcTangentOf(-1, -1), std::atan(1.0));
  EXPECT_EQ(ArcTangentOf(0, 5), 0);
  EXPECT_EQ(ArcTangentOf(3, 0), std::atan(std::numeric_limits<f64>::infinity()));
}

using Function = f64(f64);
using Exact = Extended(Extended);

Worst WorstOfAngles(Function* ours, Exact* exact) {
  Worst worst;
  Spread next(-9, 6);
  for (int i = 0; i < trials; ++i) {
    const f64 x = i % 2 == 0 ? next() : -next();
    worst.Take(x, ours(x), exact(static_cast<Extended>(x)));
  }
  // The numbers next to multiples of a quarter turn, where the angle left over is smallest.
  for (int n = 1; n < 20000; ++n) {
    const f64 x = n * 1.5707963267948966;
    worst.Take(x, ours(x), exact(static_cast<Extended>(x)));
    worst.Take(std::nextafter(x, 0), ours(std::nextafter(x, 0)), exact(static_cast<Extended>(std::nextafter(x, 0))));
  }
  return worst;
}

TEST(LaneMath, TheSineIsGoodToOneUnit) {
  const Worst worst = WorstOfAngles(SineOf, [](Extended x) { return std::sin(x); });
  EXPECT_LE(worst.Units(), 1.0) << worst.At();
}

TEST(LaneMath, TheCosineIsGoodToOneUnit) {
  const Worst worst = WorstOfAngles(CosineOf, [](Extended x) { return std::cos(x); });
  EXPECT_LE(worst.Units(), 1.0) << worst.At();
}

TEST(LaneMath, TheTangentIsGoodToTwoUnits) {
  const Worst worst = WorstOfAngles(TangentOf, [](Extended x) { return std::tan(x); });
  EXPECT_LE(worst.Units(), 2.0) << worst.At();
}

TEST(LaneMath, TheSineOfNothingIsNothing) {
  EXPECT_EQ(SineOf(0), 0);
  EXPECT_EQ(CosineOf(0), 1);
  EXPECT_EQ(TangentOf(0), 0);
}

TEST(LaneMath, TheExponentialIsGoodToOneUnit) {
  Worst worst;
  std::mt19937 random(20260106);
  std::uniform_real_distribution<f64> exponent(-700, 700);
  std::uniform_real_distribution<f64> small(-1, 1);
  for (int i = 0; i < trials; ++i) {
    const f64 x = i % 2 == 0 ? exponent(random) : small(random);
    worst.Take(x, ExpOf(x), std::exp(static_cast<Extended>(x)));
  }
  EXPECT_LE(worst.Units(), 1.0) << worst.At();
  EXPECT_EQ(ExpOf(0), 1);
  EXPECT_EQ(ExpOf(1000), ExpOf(700));
  EXPECT_EQ(ExpOf(-1000), ExpOf(-700));
}

// Several lanes and vectors give the bits of one lane.
TEST(LaneMath, EachLaneGivesTheBitsOfASingleOne) {
  Spread next(-5, 5);
  for (int i = 0; i < 2000; ++i) {
    f64 x[Eight::points];
    for (f64& each : x) each = next();
    const Eight pack = Eight::Load(x);
    Eight sine, cosine;
    SineAndCosine(pack, sine, cosine);
    const Eight results[] = {Log(pack), ArcTangent(-pack, Eight(3)), sine, cosine, Tangent(pack), Exp(pack),
                             Sqrt(pack)};
    const std::function<f64(f64)> singles[] = {
        LogOf, [](f64 y) { return ArcTangentOf(-y, 3); }, SineOf, CosineOf, TangentOf,
        ExpOf, [](f64 y) { return std::sqrt(y); }};
    for (std::size_t f = 0; f < std::size(singles); ++f) {
      for (int lane = 0; lane < Eight::points; ++lane) {
        const f64 single = singles[f](x[lane]);
        const f64 many = results[f].At(lane);
        EXPECT_EQ(std::memcmp(&single, &many, sizeof single), 0) << "function " << f << " of " << x[lane];
      }
    }
  }
}

TEST(LaneMath, MaskedOperations) {
  EXPECT_EQ(Abs(One(-2.5)).At(0), 2.5);
  EXPECT_EQ(TurnedBySign(One(3), One(-1)).At(0), -3);
  EXPECT_EQ(TurnedBySign(One(-3), One(-1)).At(0), 3);
  EXPECT_EQ(Select(One(1) < 2, One(5), One(6)).At(0), 5);
  EXPECT_EQ(Select(One(2) < 2, One(5), One(6)).At(0), 6);
  EXPECT_FALSE((One(2) < 2).Any());
  EXPECT_TRUE((One(2) <= 2).Any());
}

// Any finds a single lane, wherever it stands.
TEST(LaneMath, AnyLooksAtEveryLane) {
  for (int lane = 0; lane < Eight::points; ++lane) {
    f64 x[Eight::points] = {};
    x[lane] = 1;
    const auto mask = Eight::Load(x) > 0;
    EXPECT_TRUE(mask.Any());
    for (int i = 0; i < Eight::points; ++i) EXPECT_EQ(mask.At(i), i == lane);
  }
  EXPECT_FALSE((Eight(0) > 0).Any());
}

}  // namespace
}  // namespace quilm
