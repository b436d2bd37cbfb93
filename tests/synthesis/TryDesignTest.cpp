#include "synthesis/TryDesign.h"

#include <gtest/gtest.h>

#include "core/DesignRecord.h"
#include "network/DesignStanding.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

DesignRecord Entered(i16 family, const std::string& topology, f32 order) {
  DesignRecord design;
  Configuration settings;
  ApplyDefaults(design, settings);
  design.Family = family;
  design.Topology = topology;
  design.Order = order;
  design.Width = 1e6F;
  design.Rsource[1] = 50;
  if (family == familyChebyshev) design.Apass = 0.1F;
  if (topology >= "C" && topology <= "G") design.Fcenter = 1e7F;
  return design;
}

DesignRecord OddCauer() {
  DesignRecord design = Entered(familyCauer, "A", 5);
  design.Fstopband = 1.5e6F;
  design.Astop = 50;
  return design;
}

std::string Try(DesignRecord design) { return TryDesign(design, Configuration()); }

// What the buttons make: the prototype of the family, then the network.
TEST(TryDesign, MakesTheNetworkThatTheButtonsMake) {
  for (const i16 family : {familyButterworth, familyChebyshev, familyBessel, familyGaussian, familyConstantK}) {
    for (const char* topology : {"A", "B", "E", "G", "I", "L"}) {
      SCOPED_TRACE(FamilyName(family) + " " + topology);
      DesignRecord made = Entered(family, topology, 5);
      if (*topology == 'L') made.Fcenter = 1e7F;
      DesignRecord tried = made;
      ComputePrototype(made, family);
      MakeNetwork(made);
      ASSERT_GT(made.Stages, 0);
      EXPECT_EQ(TryDesign(tried, Configuration()), "");
      EXPECT_EQ(static_cast<const Network&>(tried).stage, made.stage);
      EXPECT_EQ(tried.Stages, made.Stages);
      EXPECT_EQ(tried.Rload, made.Rload);
    }
  }
}

// The worked prototype of order 5, stopband at 1.5 times the edge, 50 dB: C1 = 1.50663 / (2 Pi 1e6 50).
TEST(TryDesign, MakesAnOddCauerDesign) {
  DesignRecord design = OddCauer();
  EXPECT_EQ(TryDesign(design, Configuration()), "");
  ASSERT_EQ(design.Stages, 5);
  EXPECT_NEAR(design.stage[1].Cval.value, 4.79575e-9, 1e-13);
  EXPECT_NEAR(design.Apass, 0.43773, 1e-5);
}

TEST(TryDesign, MakesAnEvenCauerDesign) {
  DesignRecord design = Entered(familyCauer, "A", 4);
  design.CauerType = "C";
  design.Apass = 0.1F;
  design.Astop = 40;
  EXPECT_EQ(TryDesign(design, Configuration()), "");
  EXPECT_NEAR(design.FstopNorm, 2.21232, 1e-5);
  EXPECT_EQ(design.Stages, 4);
}

TEST(TryDesign, SaysWhatIsMissing) {
  const struct {
    void (*spoil)(DesignRecord&);
    const char* reason;
  } rows[] = {
      {[](DesignRecord& d) { d.Family = familyNone; }, "No family has been chosen"},
      {[](DesignRecord& d) { d.Topology.clear(); }, "No topology has been chosen"},
      {[](DesignRecord& d) { d.Width = 0; }, "Please enter a bandwidth"},
      {[](DesignRecord& d) { d.Width = -1e6F; }, "Please enter a bandwidth"},
      {[](DesignRecord& d) { d.Rsource[1] = 0.01F; }, "Please enter an input termination"},
      {[](DesignRecord& d) { d.Topology = "E"; }, "Please enter a center frequency"},
      {[](DesignRecord& d) { d.Apass = 0; }, "Please enter a passband ripple for the Chebyshev filter family"},
      {[](DesignRecord& d) { d.Family = familyMderived; }, "Please enter the zeros of the M-derived design"},
      {[](DesignRecord& d) { d.Family = familyManual; }, "There is no network yet"},
  };
  for (const auto& row : rows) {
    DesignRecord design = Entered(familyChebyshev, "A", 3);
    row.spoil(design);
    EXPECT_EQ(Try(design), row.reason);
  }
}

TEST(TryDesign, SaysWhatIsWrongWithACauerDesign) {
  DesignRecord design = OddCauer();
  design.Fstopband = 0;
  EXPECT_EQ(Try(design), "Please enter a stopband");
  design.Fstopband = 1e6F;
  EXPECT_EQ(Try(design), "The stopband must be greater than the passband");
  design.Topology = "I";
  EXPECT_EQ(Try(design), "The stopband must be less than the passband");
  design.Fstopband = 0.5e6F;
  EXPECT_EQ(Try(design), "");
  // Order 9 with edges 1 : 4 and 50 dB: less ripple than can be built.
  design = OddCauer();
  design.Order = 9;
  design.Fstopband = 4e6F;
  EXPECT_EQ(Try(design), "The passband ripple of this Cauer design would be too low");
  design = OddCauer();
  design.Astop = 181;
  EXPECT_EQ(Try(design), "Please enter a stopband depth for the Cauer family of  10 minimum  to  180 maximum");
}

// A mesh-coupled bandpass of order 1 has nothing to couple.
TEST(TryDesign, SaysWhereNoNetworkComesOfTheEntries) {
  EXPECT_EQ(Try(Entered(familyButterworth, "G", 1)), "The parts values cannot be calculated from these entries");
}

TEST(TryDesign, LeavesANetworkThatStands) {
  DesignRecord design = Entered(familyButterworth, "A", 3);
  design.Width = 0;
  design.Stages = 2;
  StandByHand(design);
  const DesignRecord before = design;
  EXPECT_EQ(TryDesign(design, Configuration()), "");
  EXPECT_EQ(design, before);
}

TEST(TryDesign, HoldsEntriesAsTheChecksDo) {
  DesignRecord design = Entered(familyBessel, "A", 15);
  EXPECT_EQ(TryDesign(design, Configuration()), "");
  EXPECT_EQ(design.Order, 10);
  design = Entered(familyChebyshev, "A", 3);
  design.Apass = 50;
  EXPECT_EQ(TryDesign(design, Configuration()), "");
  EXPECT_EQ(design.Apass, 10);
  design = Entered(familyButterworth, "H", 3);
  design.Fcenter = 1e7F;
  EXPECT_EQ(TryDesign(design, Configuration()), "");
  EXPECT_EQ(design.Topology, "E");
}

}  // namespace
}  // namespace quilm
