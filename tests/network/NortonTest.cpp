#include "network/Norton.h"

#include <gtest/gtest.h>

#include "core/Fault.h"

namespace quilm {
namespace {

// A third-order Butterworth shunt-input bandpass between 500 ohms, 1 MHz wide at 10 MHz: 1 / (500 2 Pi 1E6) at the
// ends, 2 x 500 / (2 Pi 1E6) in the middle, each with what resonates with it.
Network Butterworth() {
  Network network;
  network.Stages = 3;
  network.Rsource[1] = network.Rload[1] = network.Rstandard = 500;
  network.stage[1].ElementType = network.stage[3].ElementType = ShuntPLC;
  network.stage[1].Cval = network.stage[3].Cval = {318.30989e-12F, 5};
  network.stage[1].Lval = network.stage[3].Lval = {0.79577472e-6F, 5};
  network.stage[2].ElementType = SeriesSLC;
  network.stage[2].Cval = {1.5915494e-12F, 5};
  network.stage[2].Lval = {159.15494e-6F, 5};
  return network;
}

void ExpectParts(const Network& network, const std::vector<f64>& C) {
  constexpr std::array<i16, 7> types = {ShuntPLC, SeriesC, ShuntC, SeriesL, ShuntC, SeriesC, ShuntPLC};
  ASSERT_EQ(network.Stages, 7);
  for (int s = 1; s <= 7; ++s) {
    const auto at = static_cast<std::size_t>(s - 1);
    const bool coil = s == 1 || s == 4 || s == 7;
    EXPECT_EQ(network.stage[s].ElementType, types[at]) << s;
    EXPECT_EQ(network.stage[s].Lval, (PartValue{coil ? 0.79577472e-6F : 0, 0})) << s;
    EXPECT_NEAR(network.stage[s].Cval.value, C[at], 1e-4 * std::abs(C[at])) << s;
    EXPECT_EQ(network.stage[s].Cval.tolerance, 0) << s;
  }
}

// By hand: n = sqrt(1.5915 / 318.31) = 0.0707107.
TEST(NortonTransform, TheRatioOfTheCoupling) {
  ExpectParts(NortonTransform(Butterworth(), NortonRatio::Coupling),
              {321.268e-12, 0.225079e-12, -0.209163e-12, 0, -0.209163e-12, 0.225079e-12, 321.268e-12});
}

// n = 14.14214.
TEST(NortonTransform, TheRatioOfTheLevel) {
  ExpectParts(NortonTransform(Butterworth(), NortonRatio::Level),
              {276.477e-12, 45.01582e-12, 591.602e-12, 0, 591.602e-12, 45.01582e-12, 276.477e-12});
}

TEST(NortonTransform, EachSideHasARatioOfItsOwnAndTheFirstInductorServesAll) {
  Network network = Butterworth();
  network.stage[1].Cval.value = 4e-12F;
  network.stage[2].Cval.value = 16e-12F;
  network.stage[3].Cval.value = 1e-12F;
  network.stage[3].Lval.value = 7e-6F;
  const Network result = NortonTransform(network, NortonRatio::Coupling);
  // n = 2: 4 - 2 x 16, 2 x 2 x 16, 2 x 2 x 16; n = 4: 2 x 3 x 4 x 16, 2 x 4 x 16, 1 - 2 x 3 x 16.
  const std::vector<f64> expected = {-28e-12, 64e-12, 64e-12, 0, 384e-12, 128e-12, -95e-12};
  ExpectParts(result, expected);
}

TEST(NortonTransform, EqualCapacitorsLeaveNothingBehindTheCoupling) {
  Network network = Butterworth();
  for (int s = 1; s <= 3; ++s) network.stage[s].Cval.value = 2e-10F;
  const Network result = NortonTransform(network, NortonRatio::Coupling);
  EXPECT_EQ(result.stage[2].Cval.value, 4e-10F);
  EXPECT_EQ(result.stage[3].Cval.value, 0);
  EXPECT_EQ(result.stage[1].Cval.value, 2e-10F);
}

TEST(NortonTransform, TerminationsAndOtherValuesStay) {
  Network network = Butterworth();
  network.stage[2].Rval = {5, 6};
  const Network result = NortonTransform(network, NortonRatio::Coupling);
  EXPECT_EQ(result.Rsource, network.Rsource);
  EXPECT_EQ(result.Rload, network.Rload);
  EXPECT_EQ(result.Rstandard, 500);
  EXPECT_EQ(result.stage[2].Rval, (PartValue{5, 6}));
}

TEST(NortonTransform, IsForThreeStagesWithCapacitors) {
  EXPECT_TRUE(HasNortonForm(Butterworth()));
  for (const i16 stages : {i16{0}, i16{2}, i16{4}}) {
    Network network = Butterworth();
    network.Stages = stages;
    EXPECT_FALSE(HasNortonForm(network));
    EXPECT_THROW(NortonTransform(network, NortonRatio::Coupling), BoundFault);
  }
  for (int s = 1; s <= 3; ++s) {
    for (const f32 C : {0.0F, -1e-12F}) {
      Network network = Butterworth();
      network.stage[s].Cval.value = C;
      EXPECT_FALSE(HasNortonForm(network)) << s;
    }
  }
}

TEST(NortonTransform, WhatLeavesTheRangeOfNumbersIsAFault) {
  Network network = Butterworth();
  network.stage[1].Cval.value = 1e-38F;
  network.stage[2].Cval.value = 1e30F;
  EXPECT_THROW(NortonTransform(network, NortonRatio::Coupling), NumericFault);
}

}  // namespace
}  // namespace quilm
