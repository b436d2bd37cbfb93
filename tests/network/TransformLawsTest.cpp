// What the transforms of a network do to its response, by plain chain matrices in 64 bits.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/DesignRecord.h"
#include "network/Bisection.h"
#include "network/NetworkEdits.h"
#include "network/Norton.h"
#include "network/TeeToPi.h"
#include "support/ChainMatrix.h"
#include "support/LosslessLadder.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr std::array<i16, 8> reactive = {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};

f64 LossOf(const Network& network, f64 frequency) {
  DesignRecord record;
  static_cast<Network&>(record) = network;
  return LosslessLoss(record, frequency);
}

// 61 frequencies from `from` to `to`, evenly by ratio.
std::vector<f64> Frequencies(f64 from, f64 to) {
  constexpr int steps = 60;
  std::vector<f64> frequencies;
  for (int i = 0; i <= steps; ++i) frequencies.push_back(from * std::pow(to / from, f64{static_cast<f64>(i)} / steps));
  return frequencies;
}

f64 LargestDifference(const Network& a, const Network& b, const std::vector<f64>& frequencies, f64 expected = 0) {
  f64 largest = 0;
  for (const f64 f : frequencies) largest = std::max(largest, std::abs(LossOf(b, f) - LossOf(a, f) - expected));
  return largest;
}

TEST(ReversalLaw, KeepsTheTransmissionOfEveryLadder) {
  std::mt19937 random(11);
  for (int stages = 1; stages <= 9; ++stages) {
    const Network network = RandomLadder(random, stages, reactive);
    Network reversed = network;
    reversed.Rload[1] = 3 * reversed.Rsource[1];
    const Network before = reversed;
    SwapEndForEnd(reversed);
    EXPECT_NE(reversed, before);
    EXPECT_LT(LargestDifference(before, reversed, Frequencies(1e5, 1e7)), 1e-9) << stages;
    SwapEndForEnd(reversed);
    EXPECT_EQ(reversed, before);
  }
}

TEST(RescalingLaw, KeepsTheTransmissionAtAnyLevelOfImpedance) {
  std::mt19937 random(12);
  for (const f32 factor : {0.037F, 0.5F, 2.0F, 21.7F}) {
    const Network network = RandomLadder(random, 7, reactive);
    Network scaled = network;
    ScaleImpedance(scaled, factor);
    EXPECT_EQ(scaled.Rsource[1], network.Rsource[1] * factor);
    // Every part is rounded to 32 bits; a resonance multiplies what that changes.
    EXPECT_LT(LargestDifference(network, scaled, Frequencies(1e5, 1e7)), 1e-4) << factor;
  }
}

// A mesh of N resonators of 1 uH about 10 MHz, with capacitors of no symmetry.
Network Mesh(int order, std::mt19937& random) {
  std::uniform_real_distribution<f32> spread(0.8F, 1.25F);
  Network network;
  network.Stages = static_cast<i16>(2 * order - 1);
  network.Rsource[1] = 8;
  network.Rload[1] = 11;
  for (int s = 1; s <= network.Stages; ++s) {
    const bool resonator = s % 2 == 1;
    MakePart(network.stage[s], resonator ? SeriesSLC : ShuntC, resonator ? 1e-6F * spread(random) : 0,
             (resonator ? 2.8e-10F : 3e-9F) * spread(random));
  }
  return network;
}

// The network of pis with the parts as they are computed, before the record rounds them.
f64 LossOfPis(const Network& mesh, f64 frequency) {
  const ChainMatrix::Complex jw(0, 2 * Pi * frequency);
  ChainMatrix chain;
  chain.Series(jw * f64{mesh.stage[1].Lval.value});
  int resonator = 1;
  for (const CapacitorPi& pi : PisOfMesh(mesh)) {
    resonator += 2;
    chain.Shunt(jw * pi.first);
    chain.Series(1.0 / (jw * pi.series));
    chain.Shunt(jw * pi.second);
    chain.Series(jw * f64{mesh.stage[resonator].Lval.value});
  }
  const f64 rs = mesh.Rsource[1];
  const f64 rl = mesh.Rload[1];
  return 10 * std::log10(rl / (4 * rs * std::norm(chain.Gain(rs, rl))));
}

class TeeToPiLaw : public testing::TestWithParam<int> {};

TEST_P(TeeToPiLaw, KeepsTheResponse) {
  std::mt19937 random(13);
  const Network mesh = Mesh(GetParam(), random);
  ASSERT_TRUE(HasMeshForm(mesh, static_cast<f32>(GetParam())));
  const Network pis = MeshTeeToPi(mesh);
  EXPECT_EQ(pis.Stages, 4 * GetParam() - 3);
  for (const f64 f : Frequencies(8e6, 1.2e7)) {
    EXPECT_NEAR(LossOfPis(mesh, f), LossOf(mesh, f), 1e-9) << f;
    EXPECT_NEAR(LossOf(pis, f), LossOf(mesh, f), 1e-4) << f;
  }
}

INSTANTIATE_TEST_SUITE_P(AllOrders, TeeToPiLaw, testing::Values(2, 3, 4, 5, 6, 7, 8, 9, 10, 11));

// A ladder that looks the same from both ends: `half` stages, a middle one, and the half mirrored.
Network Symmetrical(int half, i16 middle, std::mt19937& random) {
  Network network = RandomLadder(random, 2 * half + 1, reactive);
  network.stage[half + 1].ElementType = middle;
  network.stage[half + 1].Lval.value = 3e-6F;
  network.stage[half + 1].Cval.value = 1e-9F;
  for (int s = 1; s <= half; ++s) network.stage[2 * half + 2 - s] = network.stage[s];
  network.Rsource[1] = network.Rload[1] = network.Rstandard = 50;
  return network;
}

class BisectionLaw : public testing::TestWithParam<i16> {};

TEST_P(BisectionLaw, AnOddCountLosesTheMismatchAndNothingElse) {
  std::mt19937 random(14);
  for (int half = 1; half <= 4; ++half) {
    const Network network = Symmetrical(half, GetParam(), random);
    ASSERT_TRUE(IsSymmetrical(network));
    for (const f32 load : {12.5F, 50.0F, 75.0F, 600.0F}) {
      const Network bisected = Bisect(network, load);
      EXPECT_EQ(bisected.Rsource[1], 50);
      const f64 loss = BisectionLoss(f64{load} / 50);
      // These ladders have notches everywhere, at which the rounding of the parts to 32 bits shows most.
      EXPECT_LT(LargestDifference(network, bisected, Frequencies(1e5, 1e7), loss), 1e-3)
          << load << " ohms, " << half << " stages before the middle";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllTypesInTheMiddle, BisectionLaw, testing::ValuesIn(reactive));

// A third-order shunt-input bandpass about 10 MHz by the textbook: resonators of one frequency, those at the ends
// alike.
Network ThreeResonators(f64 end, f64 middle, f64 ohms, f64 width) {
  constexpr f64 center = 1e7;
  const f64 w0 = 2 * Pi * center;
  const f64 C1 = end / (ohms * 2 * Pi * width);
  const f64 L2 = middle * ohms / (2 * Pi * width);
  Network network;
  network.Stages = 3;
  network.Rsource[1] = network.Rload[1] = static_cast<f32>(ohms);
  const auto L1 = static_cast<f32>(1 / (w0 * w0 * C1));
  for (const int s : {1, 3}) MakePart(network.stage[s], ShuntPLC, L1, static_cast<f32>(C1));
  MakePart(network.stage[2], SeriesSLC, static_cast<f32>(L2), static_cast<f32>(1 / (w0 * w0 * L2)));
  return network;
}

TEST(NortonLaw, TheInverseRatioKeepsTheResponse) {
  for (const f64 ohms : {50.0, 500.0, 2000.0}) {
    for (const f64 width : {2e5, 1e6, 3e6}) {
      // Butterworth, and Chebyshev of 0.5 dB (Matthaei, Young, Jones, table 4.05-2).
      for (const auto& [end, middle] : {std::pair{1.0, 2.0}, std::pair{1.5963, 1.0967}}) {
        const Network network = ThreeResonators(end, middle, ohms, width);
        const Network result = NortonTransform(network, NortonRatio::Level);
        EXPECT_LT(LargestDifference(network, result, Frequencies(5e6, 2e7)), 1e-3) << ohms << " " << width;
      }
    }
  }
}

TEST(NortonLaw, TheRatioOfTheCouplingDoesNot) {
  const Network network = ThreeResonators(1, 2, 500, 1e6);
  EXPECT_GT(LargestDifference(network, NortonTransform(network, NortonRatio::Coupling), Frequencies(9e6, 1.1e7)), 3);
}

}  // namespace
}  // namespace quilm
