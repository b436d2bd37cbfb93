#include "network/DesignStanding.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

// A design whose marks are all set.
Identity Marked() {
  Identity design;
  design.Family = familyChebyshev;
  design.Topology = "E";
  design.Order = 5;
  design.NetworkEdited = 1;
  design.MatchAccepted = 1;
  design.ResponsesValid = 1;
  design.DesignChanged = 1;
  return design;
}

TEST(ForgetResponses, LeavesTheNetworkStanding) {
  Identity design = Marked();
  Identity expected = Marked();
  expected.ResponsesValid = 0;
  ForgetResponses(design);
  EXPECT_EQ(design, expected);
}

TEST(ForgetNetwork, ClearsAllMarksAndNothingElse) {
  Identity design = Marked();
  Identity expected = Marked();
  expected.NetworkEdited = expected.ResponsesValid = expected.DesignChanged = 0;
  expected.MatchAccepted = 0;
  ForgetNetwork(design);
  EXPECT_EQ(design, expected);
}

TEST(ForgetNetwork, AManualFamilyKeepsItsNetwork) {
  Identity design = Marked();
  design.Family = familyManual;
  ForgetNetwork(design);
  EXPECT_TRUE(NetworkStands(design));
}

TEST(StandByHand, IsFamilyElevenWithAllThatGoesWithIt) {
  Identity design;
  design.Family = familyCauer;
  design.Topology = "B";
  design.ResponsesValid = 1;
  StandByHand(design);
  EXPECT_EQ(design.Family, 11);
  EXPECT_EQ(design.NetworkEdited, 1);
  EXPECT_EQ(design.ResponsesValid, 0);
  EXPECT_EQ(design.Topology, "B");
}

TEST(StandByHand, AnAcceptedMatchStaysOne) {
  Identity design = Marked();
  StandByHand(design);
  EXPECT_EQ(design.MatchAccepted, 1);
}

TEST(SettleByHand, KeepsTheResponsesOfANetworkThatHasNotChanged) {
  Identity design = Marked();
  design.NetworkEdited = 0;
  SettleByHand(design);
  EXPECT_EQ(design.Family, 11);
  EXPECT_EQ(design.NetworkEdited, 1);
  EXPECT_EQ(design.ResponsesValid, 1);
}

TEST(NetworkStands, ByHandByItsFamilyOrByAMatch) {
  Identity computed;
  computed.Family = familyBessel;
  EXPECT_FALSE(NetworkStands(computed));
  Identity edited = computed;
  edited.NetworkEdited = 1;
  Identity manual = computed;
  manual.Family = familyManual;
  Identity matched = computed;
  matched.MatchAccepted = 1;
  EXPECT_TRUE(NetworkStands(edited));
  EXPECT_TRUE(NetworkStands(manual));
  EXPECT_TRUE(NetworkStands(matched));
  EXPECT_TRUE(IsByHand(edited));
  EXPECT_TRUE(IsByHand(manual));
  EXPECT_FALSE(IsByHand(matched));
}

TEST(AcceptMatch, StandsByHandAndSaysWhy) {
  Identity design = Marked();
  design.NetworkEdited = 0;
  design.MatchAccepted = 0;
  Identity expected = Marked();
  expected.Family = familyManual;
  expected.ResponsesValid = 0;
  AcceptMatch(design);
  EXPECT_EQ(design, expected);
}

}  // namespace
}  // namespace quilm
