#include "synthesis/CauerPrototype.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <vector>

#include "core/Fault.h"

namespace quilm {
namespace {

using Complex = std::complex<f64>;

// Loss in dB of the ladder between 1 ohm and Rratio ohms at w radian per second, against the available power. The load
// is next to position n.
f64 LossAt(const CauerPrototype& p, int order, f64 w) {
  Complex V = static_cast<f64>(p.Rratio);
  Complex I = 1;
  for (int j = order; j >= 1; --j) {
    const f64 G = p.Gj[j];
    if (j % 2 == 1) {
      I += Complex(0, w * G) * V;
    } else {
      V += I / Complex(0, w * G - 1 / (w * static_cast<f64>(p.Hj[j])));
    }
  }
  return 10 * std::log10(std::norm(V + I) / (4 * static_cast<f64>(p.Rratio)));
}

f64 LargestLoss(const CauerPrototype& p, int order, f64 from, f64 to) {
  f64 largest = 0;
  for (int i = 0; i <= 4000; ++i) largest = std::max(largest, LossAt(p, order, from + (to - from) * i / 4000));
  return largest;
}

f64 SmallestLoss(const CauerPrototype& p, int order, f64 from, f64 to) {
  f64 smallest = 1e9;
  for (int i = 0; i <= 4000; ++i)
    smallest = std::min(smallest, LossAt(p, order, from * std::pow(to / from, i / 4000.0)));
  return smallest;
}

std::vector<f64> Zeros(const CauerPrototype& p, int order) {
  std::vector<f64> zeros;
  for (int j = 2; j <= order; j += 2) {
    if (p.Gj[j] > 0) zeros.push_back(1 / std::sqrt(static_cast<f64>(p.Gj[j]) * static_cast<f64>(p.Hj[j])));
  }
  std::sort(zeros.begin(), zeros.end());
  return zeros;
}

// Published figures of a worked design: order 5, edges 1 : 1.5, depth 50 dB.
TEST(OddCauerPrototype, WorkedOrder5) {
  const CauerPrototype p = OddCauerPrototype(5, 1.5, 50);
  const f64 G[] = {1.50663, 0.16476, 2.05101, 0.46145, 1.27934};
  for (int j = 1; j <= 5; ++j) EXPECT_NEAR(p.Gj[j], G[j - 1], 6e-6) << j;
  EXPECT_NEAR(p.Hj[2], 1.11616, 6e-6);
  EXPECT_NEAR(p.Hj[4], 0.89346, 6e-6);
  EXPECT_EQ(p.Rratio, 1);
}

// The closed form of the ripple leaves out the higher terms of the nome, so it reads a little below the ladder's own.
TEST(OddCauerRipple, WorkedOrder5) { EXPECT_NEAR(OddCauerRipple(5, 1.5, 50), 0.43773, 6e-6); }

TEST(OddCauerRipple, IsZeroWhereItCannotBeFormed) {
  EXPECT_EQ(OddCauerRipple(21, 50, 60), 0);
  EXPECT_GT(OddCauerRipple(3, 1.5, 60), 0);
}

TEST(EvenCauerPrototype, WorkedOrder4EqualTerminations) {
  const CauerPrototype p = EvenCauerPrototype(4, 0.1, 40, CauerVariant::EqualTerminations);
  EXPECT_NEAR(p.FstopNorm, 2.21232, 6e-6);
  EXPECT_NEAR(p.Gj[1], 0.80615, 6e-6);
  EXPECT_NEAR(p.Gj[2], 0.14016, 6e-6);
  EXPECT_NEAR(p.Gj[3], 1.35396, 6e-6);
  EXPECT_EQ(p.Gj[4], 0);
  EXPECT_NEAR(p.Hj[2], 1.22695, 6e-6);
  EXPECT_NEAR(p.Hj[4], 0.93316, 6e-6);
  EXPECT_EQ(p.Rratio, 1);
}

TEST(EvenCauerPrototype, WorkedOrder4BestSelectivity) {
  const CauerPrototype p = EvenCauerPrototype(4, 0.1, 40, CauerVariant::BestSelectivity);
  EXPECT_NEAR(p.FstopNorm, 2.06621, 6e-6);
  // The ratio of every even-order equal-ripple ladder with its ripple at DC: (2 e^2 + 1) - 2 e sqrt(e^2 + 1).
  EXPECT_NEAR(p.Rratio, 0.73781, 6e-6);
  EXPECT_NEAR(p.Gj[1], 0.9615, 6e-6);
  EXPECT_NEAR(p.Hj[2], 1.10138, 6e-6);
}

// Elliptic prototypes of scipy 1.10 (signal.ellipap); the stopband edge is where its response first reaches the depth.
struct Reference {
  int order;
  f64 ripple;
  f64 depth;
  f64 edge;
  std::vector<f64> zeros;
  std::vector<f64> loss;  // at 0.3, 0.6 and 0.9
};

const Reference references[] = {
    {3, 0.5, 30, 1.9232035594, {2.17949765}, {0.28907724, 0.47137321, 0.00779631}},
    {5, 0.1, 40, 1.4176176058, {1.46909355, 2.17266287}, {0.09302618, 0.00990404, 0.07523027}},
    {7, 0.2, 60, 1.2683936028, {1.28803563, 1.49470240, 2.44029976}, {0.19601690, 0.06516611, 0.10800299}},
    {9, 0.05, 70, 1.1952118776, {1.20492860, 1.29751617, 1.59639263, 2.74613973}, {0.03738802, 0.04943070, 0.01324455}},
    {11,
     0.5,
     100,
     1.1776215747,
     {1.18373044, 1.23878179, 1.39023920, 1.78818901, 3.20151227},
     {0.17316587, 0.23030567, 0.47506709}},
};

TEST(OddCauerPrototype, AgreesWithAnIndependentEllipticPrototype) {
  for (const Reference& reference : references) {
    const CauerPrototype p = OddCauerPrototype(reference.order, reference.edge, reference.depth);
    const std::vector<f64> zeros = Zeros(p, reference.order);
    ASSERT_EQ(zeros.size(), reference.zeros.size());
    for (std::size_t i = 0; i < zeros.size(); ++i) {
      EXPECT_NEAR(zeros[i], reference.zeros[i], 2e-6 * zeros[i]) << "order " << reference.order;
    }
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(LossAt(p, reference.order, 0.3 * (i + 1)), reference.loss[static_cast<std::size_t>(i)], 2e-5)
          << "order " << reference.order;
    }
  }
}

// What rounding the parts to 32 bits may do to the loss at w: each part moves its resonances by some 2^-24, and the
// loss follows by its slope there. Steep designs of high order are that sensitive.
f64 RoundingAt(const CauerPrototype& p, int order, f64 w) {
  const f64 step = 1e-6;
  const f64 slope = std::fabs(LossAt(p, order, w * (1 + step)) - LossAt(p, order, w * (1 - step))) / (2 * step);
  return 1e-6 * LossAt(p, order, w) + slope * order * std::ldexp(1.0, -24);
}

// The ladder meets its own target: equal ripple with its peak at the edge, equal minima with the first at the stopband
// edge.
void ExpectEqualRipple(const CauerPrototype& p, int order, f64 edge, f64 depth) {
  const f64 ripple = LossAt(p, order, 1);
  EXPECT_NEAR(LargestLoss(p, order, 0, 1), ripple, 1e-5 + 2 * RoundingAt(p, order, 1)) << "order " << order;
  EXPECT_NEAR(LossAt(p, order, edge), depth, RoundingAt(p, order, edge)) << "order " << order;
  EXPECT_GE(SmallestLoss(p, order, edge, 100), depth - 2 * RoundingAt(p, order, edge)) << "order " << order;
}

TEST(OddCauerPrototype, MeetsItsTargetAtEveryOrder) {
  for (int order = 3; order <= 21; order += 2) {
    for (const f64 depth : {30.0, 60.0, 100.0}) {
      for (const f64 edge : {1.05, 1.3, 2.0}) {
        const f32 ripple = OddCauerRipple(order, edge, depth);
        if (!(ripple > 0.0001F) || ripple > 10) continue;
        const CauerPrototype p = OddCauerPrototype(order, edge, depth);
        ExpectEqualRipple(p, order, edge, depth);
        // The closed form is exact but for the third power of the nome.
        EXPECT_NEAR(ripple, LossAt(p, order, 1), 0.04 * static_cast<f64>(ripple)) << "order " << order;
      }
    }
  }
}

TEST(EvenCauerPrototype, MeetsItsTargetAtEveryOrder) {
  for (const CauerVariant variant : {CauerVariant::BestSelectivity, CauerVariant::EqualTerminations}) {
    for (int order = 4; order <= 20; order += 2) {
      for (const f64 ripple : {0.01, 0.1, 1.0}) {
        for (const f64 depth : {60.0, 100.0}) {
          const CauerPrototype p = EvenCauerPrototype(order, ripple, depth, variant);
          EXPECT_NEAR(LossAt(p, order, 1), ripple, 1e-6 + RoundingAt(p, order, 1)) << "order " << order;
          ExpectEqualRipple(p, order, static_cast<f64>(p.FstopNorm), depth);
        }
      }
    }
  }
}

// The lowest stopband edge for a ripple and depth: the degree equation for the natural function gives a still lower
// one, equal terminations cost selectivity.
TEST(EvenCauerPrototype, EqualTerminationsCostSelectivity) {
  for (int order = 4; order <= 10; order += 2) {
    const f32 best = EvenCauerPrototype(order, 0.1, 60, CauerVariant::BestSelectivity).FstopNorm;
    const f32 equal = EvenCauerPrototype(order, 0.1, 60, CauerVariant::EqualTerminations).FstopNorm;
    EXPECT_LT(best, equal);
  }
}

TEST(EvenCauerPrototype, AShallowDepthAtHighOrderHasNoLadder) {
  EXPECT_THROW(EvenCauerPrototype(6, 10, 10, CauerVariant::EqualTerminations), NumericFault);
  EXPECT_THROW(EvenCauerPrototype(6, 0.1, 0.05, CauerVariant::EqualTerminations), NumericFault);
}

}  // namespace
}  // namespace quilm
