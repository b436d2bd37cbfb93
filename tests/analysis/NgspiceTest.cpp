// The engine against an independent program: random ladders in ngspice's ac analysis, at the frequency at which the two
// loss models agree.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "analysis/Kernel.h"
#include "support/NgspiceNetlist.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f64 f0 = 1e6;  // where inductor Q is quoted

// The analysis of one frequency, its result in a file.
std::string Deck(const NgspiceNetlist& netlist, const std::string& result) {
  std::string text;
  for (const std::string& line : netlist.Lines()) text += line + "\n";
  return text + ".control\nset wr_singlescale\nset numdgt=15\nac lin 1 1e6 1e6\nwrdata " + result + " v(" +
         netlist.Output() + ")\nquit\n.endc\n.end\n";
}

class Ngspice : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() / ("quilm-ngspice-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder_);
    ASSERT_EQ(std::system("ngspice --version >/dev/null 2>&1"), 0)
        << "ngspice is not installed; tools/install-packages test installs it";
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  // The voltage across the load for a source of 1 V.
  std::complex<f64> OutputOf(const DesignRecord& record) {
    const std::string circuit = (folder_ / "ladder.cir").string();
    const std::string result = (folder_ / "ladder.data").string();
    std::filesystem::remove(result);
    std::ofstream(circuit) << Deck(NgspiceNetlist(record, f0), result);
    EXPECT_EQ(std::system(("ngspice -b " + circuit + " >/dev/null 2>&1").c_str()), 0);
    std::ifstream in(result);
    f64 frequency = 0;
    f64 re = 0;
    f64 im = 0;
    in >> frequency >> re >> im;
    EXPECT_TRUE(in) << "no result in " << result;
    return {re, im};
  }

  std::filesystem::path folder_;
};

TEST_F(Ngspice, AgreesOnRandomLaddersOfEveryElement) {
  std::mt19937 random(11);
  const f32 ratios[] = {0.25F, 0.5F, 2, 4};  // with exact reciprocals
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
    const Figures ours = EvaluateOne(Compile(record, static_cast<f32>(f0)), static_cast<f32>(f0));
    const std::complex<f64> V = OutputOf(record);
    const f64 available = static_cast<f64>(record.Rload[1]) / (4 * static_cast<f64>(record.Rsource[1]));
    EXPECT_NEAR(ours.transDB, 10 * std::log10(std::norm(V) / available), 1e-6) << "trial " << trial;
    EXPECT_NEAR(std::remainder(ours.angle - std::arg(V) * 180 / Pi, 360), 0, 1e-5) << "trial " << trial;
  }
}

}  // namespace
}  // namespace quilm
