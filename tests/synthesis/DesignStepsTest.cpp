#include "synthesis/DesignSteps.h"

#include <cmath>

#include "core/Fault.h"
#include "support/HandMadeDesign.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modCauer.h"
#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

// A third-order lowpass, or a bandpass about 10 MHz, of 1 MHz and 50 ohms.
DesignRecord Design(const std::string& topology) {
  DesignRecord design = HandMade(topology, {1, 2, 1});
  MakeNetwork(design);
  design.ResponsesValid = 1;
  return design;
}

TEST(StepWidth, MovesTheBandwidthAndThePartsWithIt) {
  DesignRecord design = Design("A");
  StepWidth(design, 1.25F, StepWay::Up);
  EXPECT_EQ(design.Width, 1.25e6F);
  ExpectParts(design, {{ShuntC, 0, farad / 1.25}, {SeriesL, 2 * henry / 1.25, 0}, {ShuntC, 0, farad / 1.25}});
  EXPECT_EQ(design.Family, familyButterworth);
  EXPECT_EQ(design.ResponsesValid, 0);
  StepWidth(design, 1.25F, StepWay::Down);
  EXPECT_EQ(design, [] {
    DesignRecord before = Design("A");
    before.ResponsesValid = 0;
    return before;
  }());
}

TEST(StepWidth, TheStopbandGoesWithIt) {
  for (const char* topology : {"A", "J"}) {
    DesignRecord design = Design(topology);
    design.FstopNorm = 2;
    StepWidth(design, 1.25F, StepWay::Up);
    EXPECT_EQ(design.Fstopband, 2.5e6F) << topology;
  }
}

TEST(StepWidth, OfANetworkByHandStepsItsPartsTheOtherWayRound) {
  DesignRecord design = Design("A");
  design.Family = familyManual;
  design.stage[3].Cval.value = -1e-9F;
  const DesignRecord before = design;
  StepWidth(design, 2, StepWay::Up);
  EXPECT_EQ(design.stage[1].Cval.value, 2 * before.stage[1].Cval.value);
  EXPECT_EQ(design.stage[2].Lval.value, 2 * before.stage[2].Lval.value);
  EXPECT_EQ(design.stage[3].Cval.value, -1e-9F);
  EXPECT_EQ(design.Width, 1e6F);
  EXPECT_EQ(design.NetworkEdited, 1);
  EXPECT_EQ(design.ResponsesValid, 0);
  StepWidth(design, 2, StepWay::Down);
  EXPECT_EQ(design.stage[1].Cval.value, before.stage[1].Cval.value);
}

TEST(StepWidth, AnAcceptedMatchKeepsItsNetwork) {
  DesignRecord design = Design("A");
  design.MatchAccepted = 1;
  const Network before = design;
  StepWidth(design, 1.25F, StepWay::Up);
  EXPECT_EQ(design.Width, 1.25e6F);
  EXPECT_EQ(static_cast<const Network&>(design), before);
}

TEST(StepWidth, WhatGivesNoNetworkLeavesTheDesignAsItWas) {
  DesignRecord wide = Design("A");
  wide.Width = 3e38F;
  DesignRecord none = Design("A");
  none.Gj = {};
  for (DesignRecord* design : {&wide, &none}) {
    const DesignRecord before = *design;
    EXPECT_THROW(StepWidth(*design, 2, StepWay::Up), Fault);
    EXPECT_EQ(*design, before);
  }
}

// 5 % of a bandwidth of 1 MHz about 10 MHz are 50 kHz.
TEST(StepCenter, GoesByAShareOfTheBandwidth) {
  DesignRecord design = Design("E");
  StepCenter(design, 5, StepWay::Up);
  EXPECT_NEAR(design.Fcenter, 10.05e6, 2);
  EXPECT_EQ(design.ResponsesValid, 0);
  for (int s = 1; s <= 3; ++s) {
    const f64 resonance = 1 / (2 * Pi * std::sqrt(f64{design.stage[s].Lval.value} * f64{design.stage[s].Cval.value}));
    EXPECT_NEAR(resonance, 10.05e6, 10);
  }
  StepCenter(design, 5, StepWay::Down);
  EXPECT_NEAR(design.Fcenter, 10.0002488e6, 2);  // the share of a higher centre is less
}

TEST(StepCenter, LeavesANetworkByHandAlone) {
  DesignRecord design = Design("E");
  design.Family = familyManual;
  const Network before = design;
  StepCenter(design, 5, StepWay::Up);
  EXPECT_NEAR(design.Fcenter, 10.05e6, 2);
  EXPECT_EQ(static_cast<const Network&>(design), before);
}

DesignRecord Chebyshev(f32 ripple) {
  DesignRecord design = HandMade("A", {1, 2, 1});
  design.Family = familyChebyshev;
  design.Apass = ripple;
  ComputeChebyshev(design);
  MakeNetwork(design);
  return design;
}

// Of order 3 at 0.2 dB the values of the tables are 1.2275, 1.1525, 1.2275.
TEST(StepRipple, MakesThePrototypeAnew) {
  DesignRecord design = Chebyshev(0.1F);
  StepRipple(design, 2, StepWay::Up);
  EXPECT_EQ(design.Apass, 0.2F);
  EXPECT_NEAR(design.Gj[1], 1.2275, 1e-4);
  EXPECT_NEAR(design.Gj[2], 1.1525, 1e-4);
  EXPECT_NEAR(design.stage[1].Cval.value, 1.2275 * farad, 1e-4 * farad);
  EXPECT_EQ(design.ResponsesValid, 0);
}

TEST(StepRipple, IsHeldWithinItsLimits) {
  DesignRecord highest = Chebyshev(10);
  StepRipple(highest, 2, StepWay::Up);
  EXPECT_EQ(highest.Apass, 10);
  DesignRecord lowest = Chebyshev(0.0001F);
  StepRipple(lowest, 2, StepWay::Down);
  EXPECT_EQ(lowest.Apass, 0.0001F);
}

TEST(StepRipple, OfACauerDesignGivesTheOneOfTheNewEntries) {
  const auto cauer = [](f32 ripple) {
    DesignRecord design = HandMade("A", {0, 0, 0, 0}, {}, 1);
    design.Family = familyCauer;
    design.CauerType = "B";
    design.Apass = ripple;
    design.Astop = 50;
    EXPECT_TRUE(TryCauer(design));
    MakeNetwork(design);
    return design;
  };
  DesignRecord design = cauer(0.1F);
  StepRipple(design, 2, StepWay::Up);
  const DesignRecord expected = cauer(0.2F);
  EXPECT_EQ(design.FstopNorm, expected.FstopNorm);
  for (int s = 1; s <= expected.Stages; ++s) EXPECT_EQ(design.stage[s], expected.stage[s]) << s;
}

}  // namespace
}  // namespace quilm
