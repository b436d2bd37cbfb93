// The verified netlist: its layout, and ngspice's figures beside those of the analysis.
#include "files/export/VerifiedNetlist.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/Kernel.h"
#include "core/DesignRecord.h"
#include "files/export/NgspiceBatch.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f32 Fq = 1e6F;
constexpr f64 deepest = -100;  // dB

// Equal steps whose frequencies are exact in 32 bits, so that both programs mean the same ones.
struct Steps {
  int points;
  f32 step;  // Hz, also the first frequency
};
constexpr Steps sweeps[] = {{10, 1e4F}, {40, 1e5F}, {20, 5e6F}};

std::vector<std::string> Analyses() {
  std::vector<std::string> texts;
  for (const auto& [points, step] : sweeps) {
    texts.push_back("lin " + std::to_string(points) + " " + std::to_string(step) + " " +
                    std::to_string(static_cast<f32>(points) * step));
  }
  return texts;
}

std::vector<f32> Frequencies() {
  std::vector<f32> all;
  for (const auto& [points, step] : sweeps) {
    for (int i = 1; i <= points; ++i) all.push_back(static_cast<f32>(i) * step);
  }
  return all;
}

f64 Decibels(std::complex<f64> voltage) { return 10 * std::log10(std::norm(voltage)); }

// Counts the points that are not too deep to be compared.
void ExpectAgreement(const DesignRecord& record, const Voltages& voltages, f64 tolerance, int& compared) {
  const std::vector<f32> frequencies = Frequencies();
  ASSERT_EQ(voltages.size(), frequencies.size());
  const Ladder ladder = Compile(record, Fq);
  for (std::size_t i = 0; i < voltages.size(); ++i) {
    const Figures ours = EvaluateOne(ladder, frequencies[i]);
    if (ours.transDB < deepest) continue;
    ++compared;
    EXPECT_NEAR(Decibels(voltages[i]), ours.transDB, tolerance) << frequencies[i];
    EXPECT_NEAR(std::remainder(std::arg(voltages[i]) * 180 / Pi - ours.angle, 360), 0, 1e-4) << frequencies[i];
  }
}

TEST(VerifiedNetlist, AgreesWithTheAnalysisOnAThousandRandomLadders) {
  std::mt19937 random(20);
  NgspiceBatch batch;
  std::vector<DesignRecord> records;
  for (int trial = 0; trial < 1000; ++trial) {
    records.push_back(RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes()));
    if (trial < 19) {
      records.back().Stages = 1;
      records.back().stage[1].ElementType = AnalysableTypes()[static_cast<std::size_t>(trial)];
    }
    const ExportText deck = VerifiedNetlist(records.back(), SpiceDialect::Ngspice, "2026-11-22");
    EXPECT_EQ(deck.failure, "");
    batch.Add(deck.text, Analyses(), "out");
  }
  const std::vector<Voltages> results = batch.Run();
  int compared = 0;
  for (std::size_t i = 0; i < records.size(); ++i) {
    std::string types;
    for (int k = 1; k <= records[i].Stages; ++k)
      types.append(" ").append(std::to_string(records[i].stage[k].ElementType));
    SCOPED_TRACE(testing::Message() << "ladder " << i << ":" << types);
    ExpectAgreement(records[i], results[i], 1e-5, compared);
  }
  EXPECT_GT(compared, 30000);  // of 70000
}

}  // namespace
}  // namespace quilm
