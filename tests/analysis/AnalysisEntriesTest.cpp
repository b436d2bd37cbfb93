// What the Analysis page fills in when it loads, and how it holds the entries before a plot: each limit at its figure
// and one step of 32 bits to both sides.
#include "analysis/AnalysisEntries.h"
#include "core/DesignRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quilm {
namespace {

constexpr f32 infinity = std::numeric_limits<f32>::infinity();

f32 JustBelow(f32 value) { return std::nextafter(value, -infinity); }
f32 JustAbove(f32 value) { return std::nextafter(value, infinity); }

class AnalysisEntries : public testing::Test {
 protected:
  AnalysisEntries() {
    ApplyDefaults(record, configuration);
    record.Width = 1e6F;
    record.Order = 5;
    record.Rsource[1] = 50;
  }

  void ExpectHeld(f32& field, f32 entered, f32 held) {
    field = entered;
    HoldAnalysisEntries(record, configuration);
    EXPECT_EQ(field, held) << "entered " << entered;
  }

  void ExpectRange(f32& field, f32 lowest, f32 highest) {
    ExpectHeld(field, lowest, lowest);
    ExpectHeld(field, JustBelow(lowest), lowest);
    ExpectHeld(field, JustAbove(lowest), JustAbove(lowest));
    ExpectHeld(field, highest, highest);
    ExpectHeld(field, JustAbove(highest), highest);
    ExpectHeld(field, JustBelow(highest), JustBelow(highest));
  }

  DesignRecord record;
  Configuration configuration;
};

TEST_F(AnalysisEntries, ScalesAndQualitiesAreHeldInTheirRanges) {
  ExpectRange(record.NrIntervals, 4, 2049);
  ExpectRange(record.VSWRTop, 1.05F, 7);
  ExpectRange(record.Qind[1], 2, 1e7F);
  ExpectRange(record.Qcap[1], 2, 1e7F);
  ExpectRange(record.LossBottom, -120, -0.6F);
}

// A Q of 1 is an entry, if one that no plot takes; of 0 and below there is none.
TEST_F(AnalysisEntries, AMissingQualityIsTheConfiguredOneElseAFigure) {
  configuration.ConfigValue[lineQind] = 150;
  configuration.ConfigValue[lineQcap] = 900;
  for (const f32 missing : {0.0F, -1.0F, -1e9F}) {
    ExpectHeld(record.Qind[1], missing, 150);
    ExpectHeld(record.Qcap[1], missing, 900);
  }
  configuration.ConfigValue[lineQind] = configuration.ConfigValue[lineQcap] = 0;
  ExpectHeld(record.Qind[1], 0, 200);
  ExpectHeld(record.Qcap[1], 0, 2000);
  ExpectHeld(record.Qind[1], 1, 2);
  ExpectHeld(record.Qcap[1], JustAbove(0), 2);
}

TEST_F(AnalysisEntries, ALossIsBelowZero) {
  ExpectHeld(record.LossBottom, 60, -60);
  ExpectHeld(record.LossBottom, 0, -0.6F);
  ExpectHeld(record.LossBottom, 120, -120);
}

// Ties of the rounding go to the even neighbour, as every number of the record that becomes a whole one.
TEST_F(AnalysisEntries, GridIntervalsUpwardAreWholeNumbersFrom4To30) {
  const f32 rows[][2] = {{3.4F, 4}, {4, 4}, {4.5F, 4}, {5.5F, 6}, {30, 30}, {31, 30}, {30.4F, 30}, {30000, 30}};
  for (const auto& row : rows) ExpectHeld(record.NrYints, row[0], row[1]);
}

TEST_F(AnalysisEntries, GridIntervalsAcrossAreHeldFrom1To30) {
  const i16 rows[][2] = {{0, 1}, {1, 1}, {2, 2}, {29, 29}, {30, 30}, {31, 30}, {-4, 1}};
  for (const auto& row : rows) {
    record.NrXints = row[0];
    HoldAnalysisEntries(record, configuration);
    EXPECT_EQ(record.NrXints, row[1]);
  }
}

TEST_F(AnalysisEntries, ADelayEndsAtSixSeconds) {
  ExpectHeld(record.DelayTop, 6, 6);
  ExpectHeld(record.DelayTop, JustAbove(6), 6);
  ExpectHeld(record.DelayTop, JustBelow(6), JustBelow(6));
  ExpectHeld(record.DelayTop, 1e-12F, 1e-12F);
}

// Order 5 at 1 MHz: 5 * 0.3 / 1e6.
TEST_F(AnalysisEntries, AMissingDelayFollowsTheDesignThenTheConfigurationThenAFigure) {
  for (const f32 missing : {0.0F, -1.0F}) ExpectHeld(record.DelayTop, missing, 5 * 0.3F / 1e6F);
  record.Width = 0;
  configuration.ConfigValue[lineDelayTop] = 0.002F;
  ExpectHeld(record.DelayTop, 0, 0.002F);
  configuration.ConfigValue[lineDelayTop] = 0;
  ExpectHeld(record.DelayTop, 0, 0.0012F);
  ExpectHeld(record.DelayTop, -1, 0.0012F);
  // When the page loads the figure is another one, and a negative delay is an entry.
  record.DelayTop = 0;
  FillMissingEntries(record, configuration);
  EXPECT_EQ(record.DelayTop, 0.001F);
  record.DelayTop = -1;
  FillMissingEntries(record, configuration);
  EXPECT_EQ(record.DelayTop, -1);
}

TEST_F(AnalysisEntries, TheImpedanceScaleHoldsTheSource) {
  ExpectHeld(record.ImpedanceTop, 600000, 600000);
  ExpectHeld(record.ImpedanceTop, JustAbove(600000), 600000);
  ExpectHeld(record.ImpedanceTop, 50, 50);
  ExpectHeld(record.ImpedanceTop, JustBelow(50), 100);
  ExpectHeld(record.ImpedanceTop, -5, 100);
  record.Rsource[1] = JustAbove(0.01F);
  ExpectHeld(record.ImpedanceTop, 0.001F, 2 * JustAbove(0.01F));
}

// A source of 0.01 ohm and less is none: nothing to scale by.
TEST_F(AnalysisEntries, WithoutASourceTheImpedanceScaleStays) {
  record.Rsource[1] = 0.01F;
  ExpectHeld(record.ImpedanceTop, 0.001F, 0.001F);
  ExpectHeld(record.ImpedanceTop, 1e6F, 1e6F);
}

TEST_F(AnalysisEntries, TheReferenceFollowsTheSourceThenTheLoad) {
  const struct {
    f32 source, load, reference;
  } rows[] = {{75, 600, 75},
              {JustAbove(0.01F), 600, JustAbove(0.01F)},
              {0.01F, 600, 600},
              {0.01F, JustAbove(0.01F), JustAbove(0.01F)},
              {0.01F, 0.01F, 50}};
  for (const auto& row : rows) {
    record.Rsource[1] = row.source;
    record.Rload[1] = row.load;
    record.Rstandard = 0;
    FillMissingEntries(record, configuration);
    EXPECT_EQ(record.Rstandard, row.reference);
  }
}

TEST_F(AnalysisEntries, WhatIsMissingIsFilledFromTheConfigurationElseWithAFigure) {
  const auto clear = [this] {
    record.Fstart = record.Fstop = record.NrIntervals = record.LossBottom = record.ImpedanceTop = 0;
    record.NrYints = JustBelow(1);
    record.NrXints = 0;
    record.Qind[1] = record.Qcap[1] = 0;
  };
  clear();
  FillMissingEntries(record, configuration);
  EXPECT_EQ(record.Fstart, 1000);
  EXPECT_EQ(record.Fstop, 1e7F);
  EXPECT_EQ(record.NrYints, 6);
  EXPECT_EQ(record.ImpedanceTop, 1200);
  clear();
  for (int line = 1; line <= settingCount; ++line) configuration.ConfigValue[line] = 0;
  FillMissingEntries(record, configuration);
  EXPECT_EQ(record.Fstart, 100);
  EXPECT_EQ(record.Fstop, 1e8F);
  EXPECT_EQ(record.NrIntervals, 1000);
  EXPECT_EQ(record.NrXints, 10);
  EXPECT_EQ(record.NrYints, 6);
  EXPECT_EQ(record.LossBottom, -60);
  EXPECT_EQ(record.ImpedanceTop, 120);
  EXPECT_EQ(record.Qind[1], 200);
  EXPECT_EQ(record.Qcap[1], 2000);
}

TEST_F(AnalysisEntries, MoreIntervalsThanTheSpinControlHasAreHeldWhenThePageLoads) {
  for (const f32 upward : {30000.0F, 30001.0F, 9e9F}) {
    record.NrYints = upward;
    FillMissingEntries(record, configuration);
    EXPECT_EQ(record.NrYints, 30000);
  }
}

// 5 * 0.3 / 1e-39 seconds are more than 32 bits hold.
TEST_F(AnalysisEntries, ADelayBeyondAllNumbersIsNone) {
  record.Width = 1e-39F;
  record.DelayTop = 0;
  FillMissingEntries(record, configuration);
  EXPECT_EQ(record.DelayTop, 0.0001F);  // the configured one
}

// Loading the page holds little: a scale of one interval upward, or a Q of 1, is the user's until a plot asks.
TEST_F(AnalysisEntries, WhatIsThereStaysWhenThePageLoads) {
  record.NrYints = 1;
  record.Qind[1] = 1;
  record.NrIntervals = 3;
  record.VSWRTop = 99;
  FillMissingEntries(record, configuration);
  EXPECT_EQ(record.NrYints, 1);
  EXPECT_EQ(record.Qind[1], 1);
  EXPECT_EQ(record.NrIntervals, 3);
  EXPECT_EQ(record.VSWRTop, 99);
}

}  // namespace
}  // namespace quilm
