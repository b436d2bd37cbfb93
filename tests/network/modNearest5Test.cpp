#include "network/modNearest5.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "core/Fault.h"

namespace quilm {
namespace {

// IEC 60063.
constexpr std::array<const char*, 24> series = {"1.0", "1.1", "1.2", "1.3", "1.5", "1.6", "1.8", "2.0",
                                                "2.2", "2.4", "2.7", "3.0", "3.3", "3.6", "3.9", "4.3",
                                                "4.7", "5.1", "5.6", "6.2", "6.8", "7.5", "8.2", "9.1"};

f32 SeriesValue(std::size_t k, int decade) {
  return std::strtof((std::string(series[k]) + "e" + std::to_string(decade)).c_str(), nullptr);
}

TEST(NearestE24, ValuesOfTheSeriesStayToTheBit) {
  for (int decade = -13; decade <= 9; ++decade) {
    for (std::size_t k = 0; k < series.size(); ++k) {
      EXPECT_EQ(NearestE24(SeriesValue(k, decade)), SeriesValue(k, decade)) << series[k] << "e" << decade;
    }
  }
}

TEST(NearestE24, NearnessIsARatio) {
  EXPECT_EQ(NearestE24(1.05e-6F), 1.1e-6F);  // 1.1 / 1.05 = 1.0476, 1.05 / 1 = 1.05: by difference they are alike
  EXPECT_EQ(NearestE24(1.04e-6F), 1.0e-6F);
  EXPECT_EQ(NearestE24(2.55e-9F), 2.7e-9F);  // 1.0588 up, 1.0625 down
  EXPECT_EQ(NearestE24(6.49e-3F), 6.2e-3F);  // 1.0478 up, 1.0468 down
}

TEST(NearestE24, AcrossTheBoundaryOfADecade) {
  EXPECT_EQ(NearestE24(9.5e-9F), 9.1e-9F);   // 1.0526 up, 1.0440 down
  EXPECT_EQ(NearestE24(9.54e-9F), 1.0e-8F);  // 1.0482 up, 1.0484 down
  EXPECT_EQ(NearestE24(0.999e-8F), 1.0e-8F);
  EXPECT_EQ(NearestE24(1.001e-8F), 1.0e-8F);
}

// No value of a 5 % series is more than the root of its largest step away; the largest is 15 over 13.
TEST(NearestE24, TheResultIsTheNearestOfAll) {
  std::mt19937 random(1);
  std::uniform_real_distribution<f64> exponent(-13, 9);
  for (int n = 0; n < 20000; ++n) {
    const f32 V = static_cast<f32>(std::pow(10, exponent(random)));
    const f64 ratio = std::abs(std::log(static_cast<f64>(NearestE24(V)) / V));
    EXPECT_LE(ratio, 0.5 * std::log(1.5 / 1.3) + 1e-6) << V;
    for (int decade = -14; decade <= 10; ++decade) {
      for (std::size_t k = 0; k < series.size(); ++k) {
        ASSERT_LE(ratio, std::abs(std::log(static_cast<f64>(SeriesValue(k, decade)) / V)) + 1e-6) << V;
      }
    }
  }
}

TEST(NearestE24, WhatHasNoNeighbourInTheSeries) {
  EXPECT_EQ(NearestE24(0), 0);
  EXPECT_EQ(NearestE24(std::numeric_limits<f32>::infinity()), std::numeric_limits<f32>::infinity());
  EXPECT_TRUE(std::isnan(NearestE24(std::numeric_limits<f32>::quiet_NaN())));
  EXPECT_EQ(NearestE24(3e38F), 3e38F);
  EXPECT_EQ(NearestE24(1e-20F), 9.1e-15F);
  EXPECT_EQ(NearestE24(-1e-9F), 9.1e-15F);
}

Network ThreeStages() {
  Network network;
  network.Stages = 3;
  network.stage[1].ElementType = ShuntC;
  network.stage[1].Cval = {1.05e-9F, 5};
  network.stage[2].ElementType = SeriesPLC;
  network.stage[2].Cval = {2.31e-9F, 1};
  network.stage[2].Lval = {1.04e-6F, 2};
  network.stage[3].ElementType = SeriesL;
  network.stage[3].Lval = {7.7e-6F, 3};
  return network;
}

Network After(NearestTransfer transfer) {
  Network network = ThreeStages();
  TransferNearest(network, RoundToNearest(network), transfer);
  return network;
}

TEST(TransferNearest, AllTakesBothKinds) {
  const Network network = After(NearestTransfer::All);
  EXPECT_EQ(network.stage[1].Cval.value, 1.1e-9F);
  EXPECT_EQ(network.stage[1].Lval.value, 0);
  EXPECT_EQ(network.stage[2].Cval.value, 2.4e-9F);
  EXPECT_EQ(network.stage[2].Lval.value, 1.0e-6F);
  EXPECT_EQ(network.stage[3].Lval.value, 7.5e-6F);
  EXPECT_EQ(network.stage[3].Cval.value, 0);
}

TEST(TransferNearest, OneKindLeavesTheOther) {
  const Network capacitors = After(NearestTransfer::Capacitors);
  EXPECT_EQ(capacitors.stage[2].Cval.value, 2.4e-9F);
  EXPECT_EQ(capacitors.stage[2].Lval.value, 1.04e-6F);
  EXPECT_EQ(capacitors.stage[3].Lval.value, 7.7e-6F);
  const Network inductors = After(NearestTransfer::Inductors);
  EXPECT_EQ(inductors.stage[1].Cval.value, 1.05e-9F);
  EXPECT_EQ(inductors.stage[2].Cval.value, 2.31e-9F);
  EXPECT_EQ(inductors.stage[2].Lval.value, 1.0e-6F);
}

TEST(TransferNearest, RetuningKeepsTheResonance) {
  const Network capacitors = After(NearestTransfer::CapacitorsRetuneInductors);
  EXPECT_EQ(capacitors.stage[2].Cval.value, 2.4e-9F);
  EXPECT_FLOAT_EQ(capacitors.stage[2].Lval.value, 2.31e-9F * 1.04e-6F / 2.4e-9F);
  EXPECT_EQ(capacitors.stage[1].Cval.value, 1.1e-9F);
  EXPECT_EQ(capacitors.stage[1].Lval.value, 0);
  EXPECT_EQ(capacitors.stage[3].Lval.value, 7.7e-6F);  // an inductor alone has no capacitor to follow
  const Network inductors = After(NearestTransfer::InductorsRetuneCapacitors);
  EXPECT_EQ(inductors.stage[2].Lval.value, 1.0e-6F);
  EXPECT_FLOAT_EQ(inductors.stage[2].Cval.value, 2.31e-9F * 1.04e-6F / 1.0e-6F);
  EXPECT_EQ(inductors.stage[1].Cval.value, 1.05e-9F);
  EXPECT_EQ(inductors.stage[3].Lval.value, 7.5e-6F);
}

TEST(TransferNearest, TolerancesStay) {
  for (const NearestTransfer transfer : {NearestTransfer::All, NearestTransfer::CapacitorsRetuneInductors}) {
    const Network network = After(transfer);
    EXPECT_EQ(network.stage[1].Cval.tolerance, 5);
    EXPECT_EQ(network.stage[2].Lval.tolerance, 2);
  }
}

TEST(TransferNearest, ARetunedPartBeyondAllNumbersLeavesTheNetworkAsItWas) {
  Network network = ThreeStages();
  network.stage[3].Cval.value = -1e20F;
  network.stage[3].Lval.value = 1e20F;
  const Network before = network;
  EXPECT_THROW(TransferNearest(network, RoundToNearest(network), NearestTransfer::CapacitorsRetuneInductors),
               NumericFault);
  EXPECT_EQ(network, before);
}

TEST(HasNegativeLC, LooksAtTheStagesInUse) {
  Network network = ThreeStages();
  EXPECT_FALSE(HasNegativeLC(network));
  network.stage[4].Lval.value = -1;
  EXPECT_FALSE(HasNegativeLC(network));
  network.stage[3].Cval.value = -1e-12F;
  EXPECT_TRUE(HasNegativeLC(network));
}

}  // namespace
}  // namespace quilm
