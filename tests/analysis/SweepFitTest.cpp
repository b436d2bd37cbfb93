#include "analysis/SweepFit.h"

#include <gtest/gtest.h>

#include "core/DesignRecord.h"

namespace quilm {
namespace {

DesignRecord Lowpass(f32 edge) {
  DesignRecord record;
  record.Topology = "A";
  record.Width = edge;
  record.Fcenter = 455000;  // of the design before
  return record;
}

DesignRecord Bandpass(f32 center, f32 width) {
  DesignRecord record;
  record.Topology = "C";
  record.Fcenter = center;
  record.Width = width;
  return record;
}

FrequencySpan Fitted(const DesignRecord& record) { return FittingSweep(record).value_or(FrequencySpan{}); }

TEST(SweepFit, ALowpassOrHighpassIsShownTwoDecadesAboutItsEdge) {
  EXPECT_EQ(Fitted(Lowpass(10e6F)), (FrequencySpan{1e6F, 100e6F}));
  EXPECT_EQ(Fitted(Lowpass(1)), (FrequencySpan{0.1F, 10}));
  DesignRecord highpass = Lowpass(1000);
  highpass.Topology = "I";
  EXPECT_EQ(Fitted(highpass), (FrequencySpan{100, 10000}));
}

TEST(SweepFit, AnEdgeThatIsNotRoundIsShownWithinRoundFigures) {
  EXPECT_EQ(Fitted(Lowpass(3.4e6F)), (FrequencySpan{300e3F, 40e6F}));
  EXPECT_EQ(Fitted(Lowpass(9.9e6F)), (FrequencySpan{900e3F, 100e6F}));
}

TEST(SweepFit, ABandpassOrBandstopIsShownFiveWidthsAboutItsCentre) {
  EXPECT_EQ(Fitted(Bandpass(10e6F, 1e6F)), (FrequencySpan{7.5e6F, 12.5e6F}));
  EXPECT_EQ(Fitted(Bandpass(10.7e6F, 200e3F)), (FrequencySpan{10.2e6F, 11.2e6F}));
  // 417.5 and 492.5 kHz, in steps of 5 kHz.
  EXPECT_EQ(Fitted(Bandpass(455e3F, 15e3F)), (FrequencySpan{415e3F, 495e3F}));
  DesignRecord bandstop = Bandpass(10e6F, 1e6F);
  bandstop.Topology = "K";
  EXPECT_EQ(Fitted(bandstop), (FrequencySpan{7.5e6F, 12.5e6F}));
}

// Five widths of 800 kHz about 1 MHz would begin below zero. The lower edge is sqrt(0.4^2 + 1) - 0.4 = 0.677 MHz.
TEST(SweepFit, ABandpassThatIsWideBeginsATenthBelowItsLowerEdge) {
  EXPECT_EQ(Fitted(Bandpass(1e6F, 800e3F)), (FrequencySpan{60e3F, 3e6F}));
}

TEST(SweepFit, EveryFittedSweepHoldsItsBand) {
  for (const f32 center : {0.2F, 1.0F, 60.0F, 455e3F, 1.23456e7F, 1e9F}) {
    for (const f32 share : {1e-4F, 0.01F, 0.3F, 0.37F, 0.39F, 0.4F, 0.41F, 0.8F, 3.0F, 20.0F}) {
      for (DesignRecord record : {Bandpass(center, center * share), Lowpass(center * share)}) {
        if (BandOf(record)->from < 0.1F || BandOf(record)->to > 9e9F) continue;  // the sweep's own limits
        const FrequencySpan fitted = Fitted(record);
        record.Fstart = fitted.from;
        record.Fstop = fitted.to;
        EXPECT_TRUE(HoldsBand(record)) << record.Topology << ' ' << record.Fcenter << ' ' << record.Width;
      }
    }
  }
}

TEST(SweepFit, TheSweepsLimitsHold) {
  EXPECT_EQ(Fitted(Lowpass(5e9F)), (FrequencySpan{500e6F, 1e10F}));
  EXPECT_EQ(Fitted(Lowpass(0.05F)).from, 0.01F);
}

TEST(SweepFit, WithoutABandThereIsNothingToFit) {
  EXPECT_FALSE(FittingSweep(Lowpass(0)).has_value());
  EXPECT_FALSE(FittingSweep(Bandpass(0, 1e6F)).has_value());
  EXPECT_FALSE(FittingSweep(DesignRecord{}).has_value());
  EXPECT_TRUE(HoldsBand(DesignRecord{}));
}

TEST(SweepFit, ANetworkWithoutATopologyGoesByItsFigures) {
  DesignRecord record = Bandpass(10e6F, 1e6F);
  record.Topology = "M";
  EXPECT_EQ(Fitted(record), (FrequencySpan{7.5e6F, 12.5e6F}));
  record.Fcenter = 0;
  EXPECT_EQ(Fitted(record), (FrequencySpan{100e3F, 10e6F}));
}

TEST(SweepFit, ABandAtTheSweepsEndIsNotHeld) {
  DesignRecord record = Lowpass(10e6F);
  record.Fstart = 1e3F;
  record.Fstop = 10e6F;
  EXPECT_FALSE(HoldsBand(record));
  record.Fstop = 10.1e6F;
  EXPECT_TRUE(HoldsBand(record));
  record.Fstart = 10e6F;
  EXPECT_FALSE(HoldsBand(record));
}

// The edges of 10 MHz and 1 MHz are 9.5125 and 10.5125 MHz.
TEST(SweepFit, ABandpassIsHeldWithBothEdges) {
  DesignRecord record = Bandpass(10e6F, 1e6F);
  record.Fstart = 9.5e6F;
  record.Fstop = 10.52e6F;
  EXPECT_TRUE(HoldsBand(record));
  record.Fstop = 10.51e6F;
  EXPECT_FALSE(HoldsBand(record));
  record.Fstop = 10.52e6F;
  record.Fstart = 9.52e6F;
  EXPECT_FALSE(HoldsBand(record));
}

TEST(SweepFit, AnEmptyOrTurnedSweepIsTold) {
  EXPECT_EQ(SweepFault({.Fstart = 1, .Fstop = 2}), "");
  EXPECT_EQ(SweepFault({.Fstart = 2, .Fstop = 2}), "Start and stop are equal");
  EXPECT_EQ(SweepFault({.Fstart = 3, .Fstop = 2}), "Stop is below start");
}

}  // namespace
}  // namespace quilm
