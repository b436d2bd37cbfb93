#include "timedomain/SpectralLines.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/DesignRecord.h"

namespace quilm {
namespace {

// One series inductor of 15.9155 uH (100 ohms at 1 MHz) between 50 ohms and 50 ohms, with next to no loss.
DesignRecord SeriesInductor() {
  DesignRecord record;
  record.Stages = 1;
  record.stage[1].ElementType = 1;
  record.stage[1].Lval.value = 15.9155e-6F;
  record.Qind[1] = record.Qcap[1] = 1e7F;
  record.Rsource[1] = record.Rload[1] = 50;
  record.Rstandard = 50;
  record.Width = 1e6F;
  return record;
}

TEST(SpectralLines, AnInductorFollowsItsFormulaOnBothSidesOfZero) {
  const DesignRecord record = SeriesInductor();
  const f32 lines[] = {1e6F, -1e6F, 2e6F};
  const auto found = ResponseAtLines(record, lines);
  ASSERT_EQ(found.size(), 3U);
  // H = 2 R / (2 R + j X) with X = 100 ohms at 1 MHz and 200 at 2 MHz.
  EXPECT_NEAR(found[0].TransDB, -10 * std::log10(2.0), 1e-5);
  EXPECT_NEAR(found[0].Angle, -45, 1e-4);
  EXPECT_NEAR(found[1].TransDB, -10 * std::log10(2.0), 1e-5);
  EXPECT_NEAR(found[1].Angle, 45, 1e-4);
  EXPECT_NEAR(found[2].TransDB, -10 * std::log10(5.0), 1e-5);
}

TEST(SpectralLines, ALineAtWhichTheLadderFailsRepeatsTheOneBefore) {
  DesignRecord record = SeriesInductor();
  record.stage[1].ElementType = 3;  // a capacitor in the line fails at exactly 0 Hz
  record.stage[1].Cval.value = 1e-9F;
  const f32 lines[] = {0, 1e6F, 0};
  const auto found = ResponseAtLines(record, lines);
  EXPECT_EQ(found[0].TransDB, 0);
  EXPECT_LT(found[1].TransDB, 0);
  EXPECT_EQ(found[2].TransDB, found[1].TransDB);
  EXPECT_EQ(found[2].Angle, found[1].Angle);
}

TEST(SpectralLines, WithoutStagesAllIsZero) {
  DesignRecord record = SeriesInductor();
  record.Stages = 0;
  const f32 lines[] = {1e6F};
  EXPECT_EQ(ResponseAtLines(record, lines)[0].TransDB, 0);
}

}  // namespace
}  // namespace quilm
