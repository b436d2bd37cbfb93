// The engine against an independent program: random ladders in ngspice's ac analysis, at the frequency at which the two
// loss models agree.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <vector>

#include "analysis/Kernel.h"
#include "support/NgspiceBatch.h"
#include "support/NgspiceNetlist.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f64 f0 = 1e6;  // where inductor Q is quoted

NgspiceCircuit Circuit(const DesignRecord& record) {
  const NgspiceNetlist netlist(record, f0);
  std::string deck;
  for (const std::string& line : netlist.Lines()) deck += line + "\n";
  return {deck + ".end\n", "lin 1 1e6 1e6", netlist.Output()};
}

std::vector<DesignRecord> Ladders() {
  std::mt19937 random(11);
  const f32 ratios[] = {0.25F, 0.5F, 2, 4};  // with exact reciprocals
  std::vector<DesignRecord> ladders;
  for (int trial = 0; trial < 60; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial % 9, AnalysableTypes());
    // Every type stands in some ladder on its own, too.
    if (trial < 19) {
      record.Stages = 1;
      record.stage[1].ElementType = AnalysableTypes()[static_cast<std::size_t>(trial)];
    }
    for (int s = 1; s <= record.Stages; ++s) {
      record.stage[s].XfmrVal.value = ratios[static_cast<std::size_t>(random() % 4)];
      // The reciprocal of a shunt resistance rests in 32 bits; a power of two has an exact one.
      if (record.stage[s].ElementType == ShuntR) record.stage[s].Rval.value = 64;
    }
    ladders.push_back(record);
  }
  return ladders;
}

TEST(Ngspice, AgreesOnRandomLaddersOfEveryElement) {
  const std::vector<DesignRecord> ladders = Ladders();
  std::vector<NgspiceCircuit> circuits;
  for (const DesignRecord& record : ladders) circuits.push_back(Circuit(record));
  const auto results = RunNgspice(circuits);
  for (std::size_t trial = 0; trial < ladders.size(); ++trial) {
    const DesignRecord& record = ladders[trial];
    ASSERT_EQ(results[trial].size(), 1U) << "trial " << trial;
    const std::complex<f64> V = results[trial][0].voltage;
    const Figures ours = EvaluateOne(Compile(record, static_cast<f32>(f0)), static_cast<f32>(f0));
    const f64 available = static_cast<f64>(record.Rload[1]) / (4 * static_cast<f64>(record.Rsource[1]));
    EXPECT_NEAR(ours.transDB, 10 * std::log10(std::norm(V) / available), 1e-6) << "trial " << trial;
    EXPECT_NEAR(std::remainder(ours.angle - std::arg(V) * 180 / Pi, 360), 0, 1e-5) << "trial " << trial;
  }
}

// A name used twice is refused by ngspice; the figures of the circuit before must not stand in for it.
TEST(Ngspice, ARefusedCircuitHasNoFiguresAndTheNextOneHasItsOwn) {
  const std::string divider = "divider\nV1 1 0 AC 2\nR1 1 2 50\nR2 2 0 50\n";
  const std::string sweep = "dec 1 1000 10000";
  std::string log;
  const auto results =
      RunNgspice({{divider, sweep, "2"}, {divider + "R2 2 0 75\n", sweep, "2"}, {divider, sweep, "1"}}, &log);
  ASSERT_EQ(results.size(), 3U);
  ASSERT_EQ(results[0].size(), 2U) << log;
  EXPECT_EQ(results[0][1].frequency, 10000);
  EXPECT_NEAR(std::abs(results[0][1].voltage - 1.0), 0, 1e-12);
  EXPECT_TRUE(results[1].empty());
  EXPECT_NE(log.find("already exists"), std::string::npos);
  ASSERT_EQ(results[2].size(), 2U);
  EXPECT_NEAR(std::abs(results[2][0].voltage - 2.0), 0, 1e-12);
}

}  // namespace
}  // namespace quilm
