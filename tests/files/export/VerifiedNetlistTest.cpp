// The verified netlist: its layout, and ngspice's figures beside those of the analysis.
#include "files/export/VerifiedNetlist.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/Kernel.h"
#include "core/DesignRecord.h"
#include "support/NgspiceBatch.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f32 Fq = 1e6F;
constexpr f64 deepest = -100;  // dB

// Equal steps whose frequencies are exact in 32 bits, so that both programs mean the same ones.
constexpr const char* sweep = "lin 60 2e5 1.2e7";

f64 Decibels(std::complex<f64> voltage) { return 10 * std::log10(std::norm(voltage)); }

// Counts the points that are not too deep to be compared.
void ExpectAgreement(const DesignRecord& record, const std::vector<NgspicePoint>& points, f64 tolerance,
                     int& compared) {
  ASSERT_FALSE(points.empty());
  const Ladder ladder = Compile(record, Fq);
  for (const NgspicePoint& point : points) {
    const Figures ours = EvaluateOne(ladder, static_cast<f32>(point.frequency));
    if (ours.transDB < deepest) continue;
    ++compared;
    EXPECT_NEAR(Decibels(point.voltage), ours.transDB, tolerance) << point.frequency;
    EXPECT_NEAR(std::remainder(std::arg(point.voltage) * 180 / Pi - ours.angle, 360), 0, 1e-4) << point.frequency;
  }
}

std::string TypesOf(const Network& network) {
  std::string types;
  for (int s = 1; s <= network.Stages; ++s) types.append(" ").append(std::to_string(network.stage[s].ElementType));
  return types;
}

TEST(VerifiedNetlist, AgreesWithTheAnalysisOnAThousandRandomLadders) {
  std::mt19937 random(20);
  std::vector<DesignRecord> records;
  std::vector<NgspiceCircuit> circuits;
  for (int trial = 0; trial < 1000; ++trial) {
    DesignRecord& record = records.emplace_back(RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes()));
    // Every type stands in some ladder on its own, too.
    if (trial < 19) {
      record.Stages = 1;
      record.stage[1].ElementType = AnalysableTypes()[static_cast<std::size_t>(trial)];
    }
    const ExportText deck = VerifiedNetlist(record, SpiceDialect::Ngspice, "2026-11-22");
    EXPECT_EQ(deck.failure, "");
    circuits.push_back({deck.text, sweep, "out"});
  }
  const auto results = RunNgspice(circuits);
  int compared = 0;
  for (std::size_t i = 0; i < results.size(); ++i) {
    const DesignRecord& record = records[i];
    SCOPED_TRACE(testing::Message() << "ladder " << i << ":" << TypesOf(record));
    ExpectAgreement(record, results[i], 1e-5, compared);
  }
  EXPECT_GT(compared, 20000);  // of 60000
}

}  // namespace
}  // namespace quilm
