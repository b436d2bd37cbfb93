#include "timedomain/FourierSum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>

namespace quilm {
namespace {

using Complex = std::complex<f64>;

TEST(FourierSum, IsTheSumOfItsLinesTermByTerm) {
  std::mt19937 random(5);
  std::uniform_real_distribution<f64> part(-1, 1);
  constexpr std::size_t lineCount = 256;
  Phasors lines(lineCount);
  for (std::size_t k = 0; k < lineCount; ++k) {
    lines.re[k] = part(random);
    lines.im[k] = part(random);
  }
  // Two blocks of angles and a bit of a third.
  std::vector<f64> angles;
  for (int i = 0; i < 70; ++i) angles.push_back(7 * part(random));
  const Phasors sums = SumOfOddLines(lines, angles);
  ASSERT_EQ(sums.Count(), angles.size());
  for (std::size_t i = 0; i < angles.size(); ++i) {
    Complex sum = 0;
    for (std::size_t k = 0; k < lineCount; ++k) {
      sum += Complex(lines.re[k], lines.im[k]) * std::polar(1.0, static_cast<f64>(2 * k + 1) * angles[i]);
    }
    EXPECT_NEAR(sums.re[i], sum.real(), 1e-11) << i;
    EXPECT_NEAR(sums.im[i], sum.imag(), 1e-11) << i;
  }
}

TEST(FourierSum, OfNoLinesIsZero) {
  const std::vector<f64> angles = {0, 1};
  EXPECT_EQ(SumOfOddLines(Phasors(0), angles).re, std::vector<f64>(2));
}

}  // namespace
}  // namespace quilm
