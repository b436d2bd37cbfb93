#include <gtest/gtest.h>

#include <memory>

#include "analysis/modAnalysis.h"

namespace quilm {
namespace {

class Peak : public testing::Test {
 protected:
  Peak() {
    record.Stages = 1;
    record.stage[1].ElementType = SeriesR;
    record.stage[1].Rval.value = 100;
    record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
    record.Qind[1] = record.Qcap[1] = 1000;
    record.Width = 1e6F;
    record.SweepMode = 1;
    record.Fstart = 1e6F;
    record.Fstop = 2e6F;
    record.NrIntervals = 10;
  }

  DesignRecord record;
  std::unique_ptr<Responses> r = std::make_unique<Responses>();
};

// An attenuator transmits alike everywhere: 2 * 50 of 50 + 100 + 50 ohms, -6.02 dB.
TEST_F(Peak, OfEqualPeaksTheFirstCounts) {
  SweepLadder(record, *r);
  EXPECT_NEAR(r->TransPeak, -6.0206, 1e-4);
  EXPECT_EQ(r->TransPeakFreq, 1e6);
}

// A capacitor in the line transmits better the higher the frequency.
TEST_F(Peak, ALaterHigherPeakReplacesAnEarlierOne) {
  record.stage[1].ElementType = SeriesC;
  record.stage[1].Cval.value = 1e-9F;
  SweepLadder(record, *r);
  EXPECT_EQ(r->TransPeakFreq, 2e6);
}

TEST_F(Peak, ASecondSweepKnowsNothingOfTheFirst) {
  SweepLadder(record, *r);
  record.stage[1].Rval.value = 300;
  record.Fstart = 1.5e6F;
  SweepLadder(record, *r);
  EXPECT_NEAR(r->TransPeak, -12.0412, 1e-4);  // 2 * 50 of 400 ohms
  EXPECT_EQ(r->TransPeakFreq, 1.5e6);
}

}  // namespace
}  // namespace quilm
