#include "desk/modComputeReals.h"

#include <cmath>

#include "support/DesignBench.h"
#include "support/HandMadeDesign.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

using ::testing::IsEmpty;

constexpr const char* faultText =
    "We could not calculate the parts values.\r\n"
    "Some critical design item is missing.\r\n"
    "Examine the entries on the Design page.";

TEST(ComputeReals, AHandMadeNetworkStandsAlsoWithoutABandwidth) {
  for (int guard = 0; guard < 3; ++guard) {
    DesignBench bench;
    bench.record = HandMade("A", {1, 2, 1});
    bench.record.Width = 0;
    bench.record.Stages = 1;
    bench.record.stage[1].Lval.value = 3;
    if (guard == 0) bench.record.NetworkEdited = 1;
    if (guard == 1) bench.record.Family = familyManual;
    if (guard == 2) bench.record.MatchAccepted = 1;
    const DesignRecord before = bench.record;
    EXPECT_TRUE(ComputeReals(bench.session));
    EXPECT_EQ(bench.record, before);
    EXPECT_THAT(bench.platform.messages, IsEmpty());
  }
}

TEST(ComputeReals, WithoutABandwidthItAsksForOne) {
  DesignBench bench;
  bench.record = HandMade("A", {1, 2, 1});
  bench.record.Width = 0;
  const DesignRecord before = bench.record;
  EXPECT_FALSE(ComputeReals(bench.session));
  ASSERT_EQ(bench.platform.messages.size(), 1U);
  EXPECT_EQ(bench.platform.messages[0].text, "We need a bandwidth entry; please enter the bandwidth");
  EXPECT_EQ(bench.designLoads, 1);
  EXPECT_EQ(bench.Focus(), "txtBandwidth");
  EXPECT_EQ(bench.record, before);
}

TEST(ComputeReals, ABandwidthBelowNoughtIsNone) {
  DesignBench bench;
  bench.record = HandMade("A", {1, 2, 1});
  bench.record.Width = -1e6F;
  EXPECT_FALSE(ComputeReals(bench.session));
  ASSERT_EQ(bench.platform.messages.size(), 1U);
  EXPECT_EQ(bench.platform.messages[0].text, "We need a bandwidth entry; please enter the bandwidth");
  EXPECT_THROW(MakeNetwork(bench.record), Fault);
  EXPECT_EQ(bench.record.Stages, 0);
}

TEST(ComputeReals, ADesignPageOnTopIsNotLoadedAgain) {
  DesignBench bench;
  bench.session.pages.ShowPage(PageId::Design);
  bench.record = HandMade("A", {1, 2, 1});
  bench.record.Width = 0;
  EXPECT_FALSE(ComputeReals(bench.session));
  EXPECT_EQ(bench.designLoads, 1);
  EXPECT_EQ(bench.Focus(), "txtBandwidth");
}

struct FaultCase {
  const char* what;
  DesignRecord record;
};

std::vector<FaultCase> Faults() {
  std::vector<FaultCase> cases = {
      {"inductor coupling of order 1", HandMade("D", {2})},
      {"mesh coupling of order 1", HandMade("G", {2})},
      {"no source", HandMade("A", {1, 2, 1})},
      {"no center", HandMade("E", {1, 2, 1})},
      {"a gap in a bandpass prototype", HandMade("F", {1, 0, 1})},
      {"no prototype", HandMade("A", {0, 0, 0})},
      {"no order", HandMade("A", {})},
      {"an order beyond the arrays", HandMade("A", {1, 2, 1})},
      {"parts beyond 32 bits", HandMade("A", {3e38F, 2, 1})},
  };
  cases[2].record.Rsource[1] = 0;
  cases[3].record.Fcenter = 0;
  cases[7].record.Order = 60;
  cases[8].record.Width = 1e-3F;
  cases[8].record.Rsource[1] = 1e-3F;
  return cases;
}

TEST(ComputeReals, AFaultIsToldAndLeavesNoNetwork) {
  for (const FaultCase& fault : Faults()) {
    SCOPED_TRACE(fault.what);
    DesignBench bench;
    bench.record = fault.record;
    bench.record.Stages = 7;
    bench.record.stage[7].Lval.value = 1;
    EXPECT_FALSE(ComputeReals(bench.session));
    ASSERT_EQ(bench.platform.messages.size(), 1U);
    EXPECT_EQ(bench.platform.messages[0].text, faultText);
    EXPECT_EQ(bench.record.Stages, 0);
    EXPECT_EQ(bench.record.stage[7].Lval.value, 0);
    EXPECT_EQ(bench.designLoads, 1);
    EXPECT_EQ(bench.session.pages.Top()->Id(), PageId::Design);
    for (const Stage& stage : bench.record.stage) {
      EXPECT_TRUE(std::isfinite(stage.Lval.value) && std::isfinite(stage.Cval.value));
    }
  }
}

TEST(ComputeReals, ARippleThatGivesNoPrototypeEndsInTheMessage) {
  DesignBench bench;
  bench.record = HandMade("A", {1, 2, 1});
  bench.session.familyOption = familyChebyshev;
  ComputeNormalized(bench.session);
  EXPECT_FALSE(ComputeReals(bench.session));
  ASSERT_EQ(bench.platform.messages.size(), 1U);
  EXPECT_EQ(bench.platform.messages[0].text, faultText);
}

// A third of the centre wide the couplings outgrow the middle node. The negative part stays, without a word.
TEST(ComputeReals, WideCoupledFormsKeepNegativeParts) {
  DesignBench bench;
  bench.record = HandMade("C", {1, 2, 1});
  bench.record.Width = 9e6F;
  EXPECT_TRUE(ComputeReals(bench.session));
  EXPECT_LT(bench.record.stage[3].Cval.value, 0);
  EXPECT_THAT(bench.platform.messages, IsEmpty());
}

}  // namespace
}  // namespace quilm
