#include "synthesis/EntryRules.h"

#include <gmock/gmock.h>

#include "support/EntryCases.h"

namespace quilm {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A design that passes every rule as it stands.
TEST(EntryRules, ASoundDesignPassesUntouched) {
  DesignRecord record = Sound();
  const EntryReport report = ExamineEntries(record);
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
      {"Qind", 0, 2, QUILM_FIELD(Qind[1])},
      {"Qind", 2e7F, 1e7F, QUILM_FIELD(Qind[1])},
      {"Qcap", 1, 2, QUILM_FIELD(Qcap[1])},
      {"Qcap", 1e8F, 1e7F, QUILM_FIELD(Qcap[1])},
      {"ImpedanceTop", 49, 50, QUILM_FIELD(ImpedanceTop)},
      {"ImpedanceTop", 50, 50, QUILM_FIELD(ImpedanceTop)},
  };
  for (const RangeCase& row : table) {
    SCOPED_TRACE(testing::Message() << row.name << " " << row.entered);
    DesignRecord record = Sound();
    row.set(record, row.entered);
    const EntryReport report = ExamineEntries(record);
    EXPECT_EQ(row.get(record), row.held);
    EXPECT_THAT(report.findings, IsEmpty());
    EXPECT_THAT(report.boxes, SizeIs(row.held == row.entered ? 0 : 1));
    EXPECT_EQ(record.ResponsesValid, row.held == row.entered ? 1 : 0);
  }
}

TEST(EntryRules, HorizontalIntervalsAreHeldFrom1To30) {
  for (const auto& [entered, held] : {std::pair<i16, i16>{0, 1}, {1, 1}, {30, 30}, {31, 30}, {-4, 1}}) {
    DesignRecord record = Sound();
    record.NrXints = entered;
    EXPECT_THAT(ExamineEntries(record).findings, IsEmpty());
    EXPECT_EQ(record.NrXints, held);
  }
}

TEST(EntryRules, UnsetSweepLimitsFollowTheBand) {
  DesignRecord lowpass = Sound();
  lowpass.Fstart = lowpass.Fstop = 0;
  ExamineEntries(lowpass);
  EXPECT_EQ(lowpass.Fstart, 5e5F);
  EXPECT_EQ(lowpass.Fstop, 2e6F);
  for (const std::string topology : {"C", "D", "E", "F", "G", "H", "K", "L"}) {
    DesignRecord bandpass = Sound();
    bandpass.Topology = topology;
    bandpass.Fcenter = 1e7F;
    bandpass.Fstart = bandpass.Fstop = 0;
    ExamineEntries(bandpass);
    EXPECT_EQ(bandpass.Fstart, 8e6F) << topology;
    EXPECT_EQ(bandpass.Fstop, 1.2e7F) << topology;
  }
  DesignRecord wide = Sound();  // a band wider than half its centre would start below 0
  wide.Topology = "E";
  wide.Fcenter = 1e6F;
  wide.Fstart = 0;
  ExamineEntries(wide);
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
    const EntryReport report = ExamineEntries(record);
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
  const EntryReport report = ExamineEntries(record);
  EXPECT_THAT(report.findings, ElementsAre(EntryFinding{
                                   "", "The number of stages has been reset to the\r\nupper allowed limit of 43", ""}));
  EXPECT_EQ(record.Stages, 43);
  EXPECT_EQ(record.ResponsesValid, 0);
}

TEST(EntryRules, AnUnsetSweepModeBecomesLogarithmic) {
  DesignRecord record = Sound();
  record.SweepMode = 0;
  const EntryReport report = ExamineEntries(record);
  EXPECT_THAT(report.findings,
              ElementsAre(EntryFinding{"Error checker 237", "Unspecified sweep mode set to logarithmic", ""}));
  EXPECT_TRUE(report.Passed());
  EXPECT_EQ(record.SweepMode, 2);
}

TEST(EntryRules, AMissingEntryFails) {
  for (const FailureCase& row : Failures()) {
    SCOPED_TRACE(row.finding.title + " topology " + row.record.Topology);
    DesignRecord record = row.record;
    const EntryReport report = ExamineEntries(record);
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
  EXPECT_TRUE(ExamineEntries(odd).Passed());
  DesignRecord even = Cauer(4);
  even.Fstopband = 0;
  EXPECT_TRUE(ExamineEntries(even).Passed());
  for (const f32 depth : {10.0F, 180.0F}) {
    DesignRecord record = Cauer(3);
    record.Astop = depth;
    EXPECT_TRUE(ExamineEntries(record).Passed());
  }
  for (const std::string topology : {"A", "B", "I", "J", "M"}) {
    DesignRecord record = Sound();
    record.Topology = topology;
    EXPECT_TRUE(ExamineEntries(record).Passed()) << topology;
  }
  DesignRecord noReference = Sound();
  noReference.Rstandard = 0;
  EXPECT_TRUE(ExamineEntries(noReference).Passed());
}

TEST(EntryRules, AnEditedNetworkNeedsNoBandwidth) {
  DesignRecord edited = Sound();
  edited.Width = 0;
  edited.NetworkEdited = 1;
  EXPECT_TRUE(ExamineEntries(edited).Passed());
  DesignRecord manual = Sound();
  manual.Width = 0;
  manual.Family = familyManual;
  EXPECT_TRUE(ExamineEntries(manual).Passed());
}

// A repaired entry shows in its box at once, in display format.
}  // namespace
}  // namespace quilm
