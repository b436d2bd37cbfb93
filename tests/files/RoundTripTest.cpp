// What is written reads back: load, save, compare.

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <sstream>

#include "files/ReadDesign.h"
#include "files/SampleDesign.h"
#include "files/WriteDesign.h"

namespace quilm {
namespace {

DesignRecord ReadBack(const std::string& text) {
  DesignRecord record;
  auto responses = std::make_unique<Responses>();
  ClearCircuit(record, *responses);
  std::istringstream in(text);
  const ReadOutcome outcome = ReadDesign(in, record);
  EXPECT_FALSE(outcome.failed) << outcome.description << " at " << outcome.marker << ": " << outcome.lastLine;
  return record;
}

// Saving what was read gives the same file. (The first reading drops the values that a type does not use.)
void ExpectStable(DesignRecord record) {
  DesignRecord first = ReadBack(DesignText(record, "2026-01-02"));
  const std::string once = DesignText(first, "2026-01-02");
  DesignRecord second = ReadBack(once);
  EXPECT_TRUE(DesignText(second, "2026-01-02") == once) << once;
}

TEST(RoundTrip, EveryElementType) {
  DesignRecord record = DesignOfEveryType();
  const DesignRecord back = ReadBack(DesignText(record, "2026-01-02"));
  ASSERT_EQ(back.Stages, record.Stages);
  for (int s = 1; s <= record.Stages; ++s) {
    EXPECT_EQ(back.stage[s].ElementType, record.stage[s].ElementType);
  }
  EXPECT_EQ(back.stage[11].TLval, record.stage[11].TLval);
  EXPECT_EQ(back.stage[17].CoupledVal, record.stage[17].CoupledVal);
  EXPECT_EQ(back.stage[19].Rval, record.stage[19].Rval);
  ExpectStable(record);
}

TEST(RoundTrip, RandomDesigns) {
  std::mt19937 random(99);
  std::uniform_real_distribution<f32> unit(-1, 1);
  const auto value = [&] { return unit(random) * std::pow(10.0F, 8 * unit(random)); };
  for (int trial = 0; trial < 200; ++trial) {
    DesignRecord record = DesignOfEveryType();
    for (int s = 1; s <= record.Stages; ++s) {
      record.stage[s].Lval = {value(), std::abs(value())};
      record.stage[s].Cval = {value(), 1};
      record.stage[s].Rval = {value(), 2};
    }
    record.Family = static_cast<i16>(1 + trial % 7);
    record.CauerFlag = record.Family == familyCauer ? 1 : 0;
    record.FstopNorm = record.CauerFlag == 1 ? 1.5F : 0;
    record.Apass = 0.1F;
    record.MarkerFreq[1] = std::abs(value()) + 1;
    record.LimitShape[1][3] = 1;
    record.LimitTop[1][3] = value();
    ExpectStable(record);
  }
}

TEST(RoundTrip, FamilyEightComesBackAsAManualNetwork) {
  DesignRecord record = DesignOfEveryType();
  record.Family = familyGaussian12;
  const DesignRecord back = ReadBack(DesignText(record, "2026-01-02"));
  EXPECT_EQ(back.Family, familyManual);
  EXPECT_EQ(back.Stages, record.Stages);
}

TEST(RoundTrip, FewIntervalsComeBackAsTheFormatHoldsThem) {
  DesignRecord record = PlainDesign();
  record.NrIntervals = 5;
  EXPECT_EQ(ReadBack(DesignText(record, "d8")).NrIntervals, 10);
  record.SweepMode = 1;
  record.NrIntervals = 6;
  EXPECT_EQ(ReadBack(DesignText(record, "d8")).NrIntervals, 4);
  record.NrIntervals = 8;
  EXPECT_EQ(ReadBack(DesignText(record, "d8")).NrIntervals, 8);
}

TEST(RoundTrip, AnEmptyPlaceShiftsTheStagesBehindIt) {
  DesignRecord record = PlainDesign();
  record.Stages = 2;
  record.stage[1].ElementType = SeriesReactance;
  record.stage[2].ElementType = SeriesR;
  record.stage[2].Rval.value = 75;
  record.stage[3].ElementType = ShuntR;
  const std::string text = DesignText(record, "d8");
  // One line for two promised stages: the sweep line is taken for the second.
  DesignRecord back;
  std::istringstream in(text);
  ReadDesign(in, back);
  EXPECT_EQ(back.stage[1].ElementType, SeriesR);
}

}  // namespace
}  // namespace quilm
