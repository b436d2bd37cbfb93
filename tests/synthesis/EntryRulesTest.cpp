#include "synthesis/EntryRules.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "core/Configuration.h"
#include "support/EntryCases.h"

namespace quilm {
namespace {

const Configuration settings;  // an empty one

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A design that passes every rule as it stands.
TEST(EntryRules, ASoundDesignPassesUntouched) {
  DesignRecord record = Sound();
  const EntryReport report = ExamineEntries(record, settings);
  EXPECT_TRUE(report.Passed());
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_THAT(report.boxes, IsEmpty());
  EXPECT_EQ(record, Sound());
}

struct RangeCase {
  const char* name;
  f32 entered;
  f32 held;
  void (*set)(DesignRecord&, f32);
  f32 (*get)(const DesignRecord&);
};

#define QUILM_FIELD(field)                                                                 \
  [](DesignRecord& r, f32 value) { r.field = static_cast<decltype(r.field + 0)>(value); }, \
      [](const DesignRecord& r) { return static_cast<f32>(r.field); }

TEST(EntryRules, SettingsAreHeldInTheirRangesWithoutAWord) {
  const std::vector<RangeCase> table = {
      {"NrYints", 3.9F, 4, QUILM_FIELD(NrYints)},
      {"NrYints", 4, 4, QUILM_FIELD(NrYints)},
      {"NrYints", 30, 30, QUILM_FIELD(NrYints)},
      {"NrYints", 31, 30, QUILM_FIELD(NrYints)},
      {"NrIntervals", 3, 4, QUILM_FIELD(NrIntervals)},
      {"NrIntervals", 2049, 2049, QUILM_FIELD(NrIntervals)},
      {"NrIntervals", 2050, 2049, QUILM_FIELD(NrIntervals)},
      {"Fstart", -5, 0.01F, QUILM_FIELD(Fstart)},
      {"Fstart", 1e10F, 9e9F, QUILM_FIELD(Fstart)},
      {"Fstart", 0.01F, 0.01F, QUILM_FIELD(Fstart)},
      {"Fstop", 0.001F, 0.02F, QUILM_FIELD(Fstop)},
      {"Fstop", 2e10F, 1e10F, QUILM_FIELD(Fstop)},
      {"VSWRTop", 0, 1.05F, QUILM_FIELD(VSWRTop)},
      {"VSWRTop", 7.5F, 7, QUILM_FIELD(VSWRTop)},
      {"Qind", 0, 200, QUILM_FIELD(Qind[1])},
      {"Qind", -3, 200, QUILM_FIELD(Qind[1])},
      {"Qind", 1, 2, QUILM_FIELD(Qind[1])},
      {"Qind", 2e7F, 1e7F, QUILM_FIELD(Qind[1])},
      {"Qcap", 0, 2000, QUILM_FIELD(Qcap[1])},
      {"Qcap", 1, 2, QUILM_FIELD(Qcap[1])},
      {"Qcap", 1e8F, 1e7F, QUILM_FIELD(Qcap[1])},
      {"ImpedanceTop", 49, 50, QUILM_FIELD(ImpedanceTop)},
      {"ImpedanceTop", 50, 50, QUILM_FIELD(ImpedanceTop)},
  };
  for (const RangeCase& row : table) {
    SCOPED_TRACE(testing::Message() << row.name << " " << row.entered);
    DesignRecord record = Sound();
    row.set(record, row.entered);
    const EntryReport report = ExamineEntries(record, settings);
    EXPECT_EQ(row.get(record), row.held);
    EXPECT_THAT(report.findings, IsEmpty());
    EXPECT_THAT(report.boxes, SizeIs(row.held == row.entered ? 0 : 1));
    EXPECT_EQ(record.ResponsesValid, row.held == row.entered ? 1 : 0);
  }
}

// At each limit, and one step of 32 bits to both sides of it.
TEST(EntryRules, BothLimitsBelongToTheRange) {
  const struct {
    const char* name;
    f32 lowest, highest;
    void (*set)(DesignRecord&, f32);
    f32 (*get)(const DesignRecord&);
  } table[] = {{"NrYints", 4, 30, QUILM_FIELD(NrYints)},     {"NrIntervals", 4, 2049, QUILM_FIELD(NrIntervals)},
               {"Fstart", 0.01F, 9e9F, QUILM_FIELD(Fstart)}, {"Fstop", 0.02F, 1e10F, QUILM_FIELD(Fstop)},
               {"VSWRTop", 1.05F, 7, QUILM_FIELD(VSWRTop)},  {"Qind", 2, 1e7F, QUILM_FIELD(Qind[1])},
               {"Qcap", 2, 1e7F, QUILM_FIELD(Qcap[1])}};
  constexpr f32 infinity = std::numeric_limits<f32>::infinity();
  for (const auto& row : table) {
    SCOPED_TRACE(row.name);
    const f32 below = std::nextafter(row.lowest, -infinity);
    const f32 above = std::nextafter(row.highest, infinity);
    const f32 inside[] = {std::nextafter(row.lowest, infinity), std::nextafter(row.highest, -infinity)};
    const auto held = [&row](f32 entered) {
      DesignRecord record = Sound();
      row.set(record, entered);
      ExamineEntries(record, settings);
      return row.get(record);
    };
    EXPECT_EQ(held(below), row.lowest);
    EXPECT_EQ(held(row.lowest), row.lowest);
    EXPECT_EQ(held(inside[0]), inside[0]);
    EXPECT_EQ(held(inside[1]), inside[1]);
    EXPECT_EQ(held(row.highest), row.highest);
    EXPECT_EQ(held(above), row.highest);
  }
}

// A repaired entry is told to its box as the limit reads, without blanks around it.
TEST(EntryRules, ALimitIsShownAsItReads) {
  const struct {
    const char* box;
    const char* lowest;
    const char* highest;
    void (*set)(DesignRecord&, f32);
    f32 (*get)(const DesignRecord&);
  } table[] = {{"lblNrYints", "4", "30", QUILM_FIELD(NrYints)},
               {"txtNrIntervals", "4", "2049", QUILM_FIELD(NrIntervals)},
               {"txtFstart", "10m", "9G", QUILM_FIELD(Fstart)},
               {"txtFstop", "20m", "10G", QUILM_FIELD(Fstop)},
               {"txtVSWRTop", "1.05", "7", QUILM_FIELD(VSWRTop)},
               {"txtQinductor", "2", "10000000", QUILM_FIELD(Qind[1])},
               {"txtQcapacitor", "2", "10000000", QUILM_FIELD(Qcap[1])}};
  for (const auto& row : table) {
    for (const bool high : {false, true}) {
      DesignRecord record = Sound();
      row.set(record, high ? 2e10F : 0.001F);
      EXPECT_THAT(ExamineEntries(record, settings).boxes,
                  ElementsAre(RepairedEntry{PageId::Analyze, row.box, high ? row.highest : row.lowest}));
    }
  }
}

TEST(EntryRules, EntriesCountAboveTheirLeast) {
  constexpr f32 infinity = std::numeric_limits<f32>::infinity();
  const f32 above = std::nextafter(0.01F, infinity);
  const f32 below = std::nextafter(0.01F, 0.0F);
  const auto passes = [](f32 source, bool edited) {
    DesignRecord record = Sound();
    record.Rsource[1] = source;
    record.NetworkEdited = edited ? 1 : 0;
    return ExamineEntries(record, settings).Passed();
  };
  EXPECT_TRUE(passes(above, false));
  EXPECT_FALSE(passes(0.01F, false));
  EXPECT_TRUE(passes(0.01F, true));
  EXPECT_FALSE(passes(below, true));
  DesignRecord narrow = Sound();
  narrow.Width = std::numeric_limits<f32>::min();
  EXPECT_TRUE(ExamineEntries(narrow, settings).Passed());
}

TEST(EntryRules, ACauerDepthIsFrom10To180) {
  constexpr f32 infinity = std::numeric_limits<f32>::infinity();
  const std::pair<f32, bool> rows[] = {{std::nextafter(10.0F, 0.0F), false},      {10.0F, true},
                                       {std::nextafter(10.0F, infinity), true},   {180.0F, true},
                                       {std::nextafter(180.0F, infinity), false}, {-60.0F, false}};
  for (const auto& [depth, passes] : rows) {
    DesignRecord record = Cauer(5);
    record.Astop = depth;
    EXPECT_EQ(ExamineEntries(record, settings).Passed(), passes) << depth;
  }
}

TEST(EntryRules, HorizontalIntervalsAreHeldFrom1To30) {
  for (const auto& [entered, held] : {std::pair<i16, i16>{0, 1}, {1, 1}, {30, 30}, {31, 30}, {-4, 1}}) {
    DesignRecord record = Sound();
    record.NrXints = entered;
    EXPECT_THAT(ExamineEntries(record, settings).findings, IsEmpty());
    EXPECT_EQ(record.NrXints, held);
  }
}

TEST(EntryRules, UnsetSweepLimitsFollowTheBand) {
  DesignRecord lowpass = Sound();
  lowpass.Fstart = lowpass.Fstop = 0;
  ExamineEntries(lowpass, settings);
  EXPECT_EQ(lowpass.Fstart, 5e5F);
  EXPECT_EQ(lowpass.Fstop, 2e6F);
  for (const std::string topology : {"C", "D", "E", "F", "G", "H", "K", "L"}) {
    DesignRecord bandpass = Sound();
    bandpass.Topology = topology;
    bandpass.Fcenter = 1e7F;
    bandpass.Fstart = bandpass.Fstop = 0;
    ExamineEntries(bandpass, settings);
    EXPECT_EQ(bandpass.Fstart, 8e6F) << topology;
    EXPECT_EQ(bandpass.Fstop, 1.2e7F) << topology;
  }
  DesignRecord wide = Sound();  // a band wider than half its centre would start below 0
  wide.Topology = "E";
  wide.Fcenter = 1e6F;
  wide.Fstart = 0;
  ExamineEntries(wide, settings);
  EXPECT_EQ(wide.Fstart, 0.01F);
}

struct CutCase {
  i16 family;
  f32 order;
  f32 held;
  std::vector<std::string> texts;
};

TEST(EntryRules, OrdersAreCutWithAMessageAndTheCheckGoesOn) {
  const std::string program = "The order has been reset to the program upper limit of 21";
  const std::string bessel = "Order has been reset to Bessel family upper limit of 17";
  const std::string gaussian = "Order has been reset to Gaussian family upper limit of 10";
  const std::string gaussian12 = "Order has been reset to Gaussian to 12 family upper limit of 10";
  const std::vector<CutCase> table = {
      {familyButterworth, 21, 21, {}},
      {familyButterworth, 22, 21, {program}},
      {familyBessel, 15, 15, {}},
      {familyBessel, 17, 17, {}},
      {familyBessel, 18, 17, {bessel}},
      {familyBessel, 30, 17, {program, bessel}},
      {familyGaussian, 10, 10, {}},
      {familyGaussian, 11, 10, {gaussian}},
      {familyGaussian12, 11, 10, {gaussian12}},
  };
  for (const CutCase& row : table) {
    DesignRecord record = Sound();
    record.Family = row.family;
    record.Order = row.order;
    const EntryReport report = ExamineEntries(record, settings);
    EXPECT_EQ(record.Order, row.held);
    EXPECT_TRUE(report.Passed());
    std::vector<std::string> texts;
    for (const EntryFinding& finding : report.findings) {
      EXPECT_EQ(finding.title, "");
      texts.push_back(finding.text);
    }
    EXPECT_EQ(texts, row.texts) << row.family << " " << row.order;
  }
}

TEST(EntryRules, StagesAreCutToTheirLimit) {
  DesignRecord record = Sound();
  record.Stages = 44;
  const EntryReport report = ExamineEntries(record, settings);
  EXPECT_THAT(report.findings, ElementsAre(EntryFinding{
                                   "", "The number of stages has been reset to the\r\nupper allowed limit of 43", ""}));
  EXPECT_EQ(record.Stages, 43);
  EXPECT_EQ(record.ResponsesValid, 0);
}

TEST(EntryRules, AnUnsetSweepModeBecomesLogarithmic) {
  DesignRecord record = Sound();
  record.SweepMode = 0;
  const EntryReport report = ExamineEntries(record, settings);
  EXPECT_THAT(report.findings,
              ElementsAre(EntryFinding{"Error checker 237", "Unspecified sweep mode set to logarithmic", ""}));
  EXPECT_TRUE(report.Passed());
  EXPECT_EQ(record.SweepMode, 2);
}

TEST(EntryRules, AMissingEntryFails) {
  for (const FailureCase& row : Failures()) {
    SCOPED_TRACE(row.finding.title + " topology " + row.record.Topology);
    DesignRecord record = row.record;
    const EntryReport report = ExamineEntries(record, settings);
    EXPECT_FALSE(report.Passed());
    ASSERT_THAT(report.findings, SizeIs(1));
    EXPECT_EQ(report.findings[0].title, row.finding.title);
    EXPECT_EQ(report.findings[0].text, row.finding.text);
    EXPECT_EQ(report.findings[0].focus, row.finding.focus);
  }
}

TEST(EntryRules, WhatTheFamilyOrTopologyDoesNotNeedMayBeMissing) {
  DesignRecord odd = Cauer(5);
  odd.Apass = 0;
  EXPECT_TRUE(ExamineEntries(odd, settings).Passed());
  DesignRecord even = Cauer(4);
  even.Fstopband = 0;
  EXPECT_TRUE(ExamineEntries(even, settings).Passed());
  for (const f32 depth : {10.0F, 180.0F}) {
    DesignRecord record = Cauer(3);
    record.Astop = depth;
    EXPECT_TRUE(ExamineEntries(record, settings).Passed());
  }
  for (const std::string topology : {"A", "B", "I", "J", "M"}) {
    DesignRecord record = Sound();
    record.Topology = topology;
    EXPECT_TRUE(ExamineEntries(record, settings).Passed()) << topology;
  }
  DesignRecord noReference = Sound();
  noReference.Rstandard = 0;
  EXPECT_TRUE(ExamineEntries(noReference, settings).Passed());
}

TEST(EntryRules, AnEditedNetworkNeedsNoBandwidth) {
  DesignRecord edited = Sound();
  edited.Width = 0;
  edited.NetworkEdited = 1;
  EXPECT_TRUE(ExamineEntries(edited, settings).Passed());
  DesignRecord manual = Sound();
  manual.Width = 0;
  manual.Family = familyManual;
  EXPECT_TRUE(ExamineEntries(manual, settings).Passed());
}

}  // namespace
}  // namespace quilm
