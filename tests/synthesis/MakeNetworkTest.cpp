#include "synthesis/MakeNetwork.h"

#include <cmath>

#include "core/Fault.h"
#include "support/HandMadeDesign.h"
#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

// The load over the source for a ratio of 0.25: 1 source, 0.25 ratio, 4 inverse.
TEST(MakeNetwork, LoadByTopologyAndFamily) {
  struct Row {
    const char* topology;
    std::vector<f32> loads;  // families 1 to 8, then 11's neighbour 12, a code of no family
  };
  const std::vector<Row> table = {
      {"A", {1, 0.25F, 0.25F, 1, 1, 0.25F, 0.25F, 1, 1}},
      {"B", {1, 4, 4, 1, 1, 4, 4, 4, 1}},
      {"C", {1, 1, 1, 0.25F, 0.25F, 1, 1, 1, 0.25F}},
      {"D", {1, 1, 1, 0.25F, 0.25F, 1, 1, 1, 0.25F}},
      {"E", {1, 0.25F, 1, 1, 1, 1, 1, 1, 1}},
      {"F", {1, 4, 1, 1, 1, 1, 1, 1, 1}},
      {"G", {1, 1, 1, 4, 4, 1, 1, 4, 4}},
      {"I", {1, 4, 4, 1, 1, 4, 4, 4, 1}},
      {"J", {1, 0.25F, 0.25F, 1, 1, 0.25F, 0.25F, 0.25F, 1}},
      {"K", {1, 4, 4, 1, 1, 4, 4, 4, 1}},
      {"L", {1, 0.25F, 0.25F, 1, 1, 0.25F, 0.25F, 0.25F, 1}},
  };
  const std::vector<i16> families = {1, 2, 3, 4, 5, 6, 7, 8, 12};
  for (const Row& row : table) {
    for (std::size_t k = 0; k < families.size(); ++k) {
      DesignRecord record = HandMade(row.topology, {1, 2, 1});
      record.Family = families[k];
      record.Rratio = 0.25F;
      MakeNetwork(record);
      EXPECT_EQ(record.Rload[1], 50 * row.loads[k]) << row.topology << " family " << families[k];
      EXPECT_EQ(record.Rratio, 0.25F);
    }
  }
}

TEST(MakeNetwork, AMissingRatioIsOneInTheInductorInputLowpassOnly) {
  DesignRecord b = HandMade("B", {1, 2});
  b.Family = familyChebyshev;
  b.Rratio = 0;
  MakeNetwork(b);
  EXPECT_EQ(b.Rratio, 1);
  EXPECT_EQ(b.Rload[1], 50);
  DesignRecord f = HandMade("F", {1, 2});
  f.Family = familyChebyshev;
  f.Rratio = 0;
  EXPECT_THROW(MakeNetwork(f), NumericFault);
}

TEST(MakeNetwork, EvenChebyshevLoads) {
  for (int n = 2; n <= 20; n += 2) {
    DesignRecord record = HandMade("A", {});
    record.Family = familyChebyshev;
    record.Order = static_cast<f32>(n);
    record.Apass = 0.1F;
    ComputeChebyshev(record);
    MakeNetwork(record);
    EXPECT_NEAR(record.Rload[1], 50 / 1.35538, 1e-3) << n;
    record.Topology = "B";
    MakeNetwork(record);
    EXPECT_NEAR(record.Rload[1], 50 * 1.35538, 1e-3) << n;
    record.Topology = "C";
    record.Fcenter = 1e7F;
    MakeNetwork(record);
    EXPECT_EQ(record.Rload[1], 50) << n;
  }
}

// A run depends on the entries alone: it clears whatever parts stood in the list, but for tolerances.
TEST(MakeNetwork, ASecondRunGivesTheSameNetwork) {
  for (const std::string topology : {"A", "B", "C", "D", "E", "F", "G", "I", "J", "K", "L"}) {
    DesignRecord once = HandMade(topology, {1, 2, 1});
    once.stage[2].Rval.value = 5;
    once.stage[2].TLval.freq = 5;
    once.stage[2].CoupledVal.k = 5;
    once.stage[46].XfmrVal.value = 5;
    once.stage[2].Lval.tolerance = 5;
    MakeNetwork(once);
    EXPECT_EQ(once.stage[2].Rval.value, 0);
    EXPECT_EQ(once.stage[2].TLval, LineValue{});
    EXPECT_EQ(once.stage[2].CoupledVal, CoupledValue{});
    EXPECT_EQ(once.stage[46].XfmrVal.value, 0);
    EXPECT_EQ(once.stage[2].Lval.tolerance, 5);
    DesignRecord twice = once;
    MakeNetwork(twice);
    EXPECT_EQ(once, twice) << topology;
  }
}

TEST(MakeNetwork, AnUnknownLetterDoesNothing) {
  for (const std::string letter : {"", "M", "a", "AB"}) {
    DesignRecord record = HandMade(letter, {1, 2, 1});
    record.Stages = 2;
    record.stage[1].Rval.value = 5;
    const DesignRecord before = record;
    MakeNetwork(record);
    EXPECT_EQ(record, before) << letter;
  }
}

// Bandstop of a prototype with a missing element: its place goes, the next stage moves down with its tolerances.
TEST(MakeNetwork, TheCleanUpTakesOutAnEmptyPlace) {
  DesignRecord record = HandMade("K", {1, 0, 3});
  record.stage[3].Lval.tolerance = 7;
  MakeNetwork(record);
  ASSERT_EQ(record.Stages, 2);
  EXPECT_EQ(record.stage[1].ElementType, SeriesPLC);
  EXPECT_EQ(record.stage[2].ElementType, SeriesPLC);
  EXPECT_EQ(record.stage[2].Lval.tolerance, 7);
  ExpectNear(record.stage[2].Cval.value, farad / 3);
  EXPECT_EQ(record.stage[3].Lval.value, 0);
  EXPECT_EQ(record.stage[3].ElementType, 0);
}

TEST(MakeNetwork, TheCleanUpTakesOutEmptyEnds) {
  DesignRecord first = HandMade("K", {0, 2, 3});
  MakeNetwork(first);
  ASSERT_EQ(first.Stages, 2);
  EXPECT_EQ(first.stage[1].ElementType, ShuntSLC);
  EXPECT_EQ(first.stage[2].ElementType, SeriesPLC);
  DesignRecord last = HandMade("K", {1, 2, 0});
  MakeNetwork(last);
  ASSERT_EQ(last.Stages, 2);
  EXPECT_EQ(last.stage[2].ElementType, ShuntSLC);
}

// Known: of two empty neighbours the second is passed over when the first is closed up. It is counted with the blank
// at the end, so the list ends before its last part.
TEST(MakeNetwork, TheCleanUpPassesOverTheSecondOfTwoEmptyNeighbours) {
  DesignRecord record = HandMade("K", {1, 0, 0, 4});
  MakeNetwork(record);
  ASSERT_EQ(record.Stages, 2);
  EXPECT_EQ(record.stage[1].ElementType, SeriesPLC);
  EXPECT_EQ(record.stage[2].ElementType, SeriesReactance);
  EXPECT_EQ(record.stage[3].ElementType, ShuntSLC);
}

TEST(MakeNetwork, OrderOneOfTheCouplingsFaultsAlsoAfterALongerDesign) {
  for (const std::string topology : {"D", "G"}) {
    DesignRecord record = HandMade(topology, {1, 2, 1});
    MakeNetwork(record);
    ComputePrototype(record, familyButterworth);
    record.Order = 1;
    ComputePrototype(record, familyButterworth);
    EXPECT_THROW(MakeNetwork(record), NumericFault);
    EXPECT_EQ(record.Stages, 0);
  }
}

TEST(MakeNetwork, AFaultKeepsThePlacesFilledSoFar) {
  DesignRecord record = HandMade("F", {1, 2, 0});
  EXPECT_THROW(MakeNetwork(record), NumericFault);
  ExpectNear(record.stage[1].Lval.value, henry);
  ExpectNear(record.stage[2].Cval.value, 2 * farad);
}

}  // namespace
}  // namespace quilm
