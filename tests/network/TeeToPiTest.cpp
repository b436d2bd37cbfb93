#include "network/TeeToPi.h"

#include <gtest/gtest.h>

#include "core/Fault.h"
#include "network/NetworkEdits.h"

namespace quilm {
namespace {

// Inductors of 1, 2, ... uH and the given capacitors, in pF.
Network Mesh(const std::vector<f32>& picofarads) {
  Network network;
  network.Stages = static_cast<i16>(picofarads.size());
  for (int s = 1; s <= network.Stages; ++s) {
    const bool resonator = s % 2 == 1;
    MakePart(network.stage[s], resonator ? SeriesSLC : ShuntC, resonator ? 1e-6F * static_cast<f32>((s + 1) / 2) : 0,
             picofarads[static_cast<std::size_t>(s - 1)] * 1e-12F);
    network.stage[s].Cval.tolerance = 3;
  }
  return network;
}

void ExpectLadder(const Network& network, const std::vector<f64>& picofarads, f64 relative) {
  ASSERT_EQ(network.Stages, static_cast<int>(picofarads.size()));
  int coil = 0;
  for (int s = 1; s <= network.Stages; ++s) {
    const Stage& stage = network.stage[s];
    const f64 C = picofarads[static_cast<std::size_t>(s - 1)] * 1e-12;
    if (s % 4 == 1) {
      EXPECT_EQ(stage.ElementType, SeriesL) << s;
      EXPECT_EQ(stage.Lval, (PartValue{1e-6F * static_cast<f32>(++coil), 0})) << s;
      EXPECT_EQ(stage.Cval, PartValue{}) << s;
    } else {
      EXPECT_EQ(stage.ElementType, s % 4 == 3 ? SeriesC : ShuntC) << s;
      EXPECT_EQ(stage.Lval, PartValue{}) << s;
      EXPECT_NEAR(stage.Cval.value, C, relative * C) << s;
      EXPECT_EQ(stage.Cval.tolerance, 0) << s;
    }
  }
}

// Products over the sum: 20 x 300 / 338 and so on by hand, the capacitor between the tees counting 18 at either side.
TEST(TeeToPi, OrderThreeByHand) {
  ExpectLadder(MeshTeeToPi(Mesh({20, 300, 9, 280, 21})),
               {0, 6000 / 338.0, 360 / 338.0, 5400 / 338.0, 0, 5040 / 319.0, 378 / 319.0, 5880 / 319.0, 0}, 3e-7);
  ExpectLadder(MeshTeeToPi(Mesh({20, 300, 9, 280, 21})), {0, 17.751, 1.0651, 15.976, 0, 15.799, 1.185, 18.433, 0},
               4e-5);
}

TEST(TeeToPi, OrderTwoHasOneTeeOfWholeCapacitors) {
  ExpectLadder(MeshTeeToPi(Mesh({20, 60, 20})), {0, 12, 4, 12, 0}, 3e-7);
}

// Order 4: the tees in the middle have two shared capacitors.
TEST(TeeToPi, OrderFourByHand) {
  ExpectLadder(MeshTeeToPi(Mesh({10, 100, 20, 200, 30, 50, 15})),
               {0, 1000 / 150.0, 400 / 150.0, 4000 / 150.0, 0, 8000 / 300.0, 2400 / 300.0, 12000 / 300.0, 0,
                3000 / 125.0, 900 / 125.0, 750 / 125.0, 0},
               3e-7);
}

TEST(TeeToPi, TheRuleItself) {
  f64 x = 0;
  f64 y = 0;
  f64 z = 0;
  TeeToPi(1, 2, 3, x, y, z);
  EXPECT_DOUBLE_EQ(x, 2 / 6.0);
  EXPECT_DOUBLE_EQ(y, 3 / 6.0);
  EXPECT_DOUBLE_EQ(z, 6 / 6.0);
}

TEST(TeeToPi, IsForAMeshOfItsOrder) {
  EXPECT_TRUE(HasMeshForm(Mesh({20, 300, 9, 280, 21}), 3));
  EXPECT_FALSE(HasMeshForm(Mesh({20, 300, 9, 280, 21}), 4));
  EXPECT_FALSE(HasMeshForm(Mesh({20, 300, 9, 280}), 2.5F));
  EXPECT_FALSE(HasMeshForm(Mesh({20}), 1));
  for (int s = 1; s <= 5; ++s) {
    Network network = Mesh({20, 300, 9, 280, 21});
    network.stage[s].ElementType = s % 2 == 1 ? SeriesPLC : ShuntL;
    EXPECT_FALSE(HasMeshForm(network, 3)) << s;
    EXPECT_THROW(MeshTeeToPi(network), BoundFault) << s;
  }
}

TEST(TeeToPi, OrderElevenHasRoomAndTwelveHasNot) {
  EXPECT_EQ(MeshTeeToPi(Mesh(std::vector<f32>(21, 100))).Stages, 41);
  EXPECT_THROW(MeshTeeToPi(Mesh(std::vector<f32>(23, 100))), BoundFault);
}

TEST(TeeToPi, ATeeWithoutASumIsAFault) {
  EXPECT_THROW(MeshTeeToPi(Mesh({1, -2, 0.5F, 1, 1})), NumericFault);
  EXPECT_THROW(MeshTeeToPi(Mesh({0, 0, 0})), NumericFault);
}

}  // namespace
}  // namespace quilm
