#include "synthesis/modCheckEntries.h"

#include "synthesis/DesignBench.h"

namespace quilm {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A design that passes every rule as it stands.
DesignRecord Sound() {
  DesignRecord record;
  record.Family = familyButterworth;
  record.Topology = "A";
  record.Order = 5;
  record.Width = 1e6F;
  record.Rsource[1] = 50;
  record.Rstandard = 50;
  record.SweepMode = 1;
  record.Fstart = 1e3F;
  record.Fstop = 1e7F;
  record.NrIntervals = 1000;
  record.NrXints = 10;
  record.NrYints = 6;
  record.ImpedanceTop = 1200;
  record.VSWRTop = 2.2F;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  record.ResponsesValid = 1;
  return record;
}

DesignRecord Cauer(f32 order) {
  DesignRecord record = Sound();
  record.Family = familyCauer;
  record.Order = order;
  record.Apass = 0.1F;
  record.Astop = 60;
  record.Fstopband = 2e6F;
  return record;
}

TEST(CheckEntries, ASoundDesignPassesUntouched) {
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

TEST(CheckEntries, SettingsAreHeldInTheirRangesWithoutAWord) {
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

TEST(CheckEntries, HorizontalIntervalsAreHeldFrom1To30) {
  for (const auto& [entered, held] : {std::pair<i16, i16>{0, 1}, {1, 1}, {30, 30}, {31, 30}, {-4, 1}}) {
    DesignRecord record = Sound();
    record.NrXints = entered;
    EXPECT_THAT(ExamineEntries(record).findings, IsEmpty());
    EXPECT_EQ(record.NrXints, held);
  }
}

TEST(CheckEntries, UnsetSweepLimitsFollowTheBand) {
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

TEST(CheckEntries, OrdersAreCutWithAMessageAndTheCheckGoesOn) {
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

TEST(CheckEntries, StagesAreCutToTheirLimit) {
  DesignRecord record = Sound();
  record.Stages = 44;
  const EntryReport report = ExamineEntries(record);
  EXPECT_THAT(report.findings, ElementsAre(EntryFinding{
                                   "", "The number of stages has been reset to the\r\nupper allowed limit of 43", ""}));
  EXPECT_EQ(record.Stages, 43);
  EXPECT_EQ(record.ResponsesValid, 0);
}

TEST(CheckEntries, AnUnsetSweepModeBecomesLogarithmic) {
  DesignRecord record = Sound();
  record.SweepMode = 0;
  const EntryReport report = ExamineEntries(record);
  EXPECT_THAT(report.findings,
              ElementsAre(EntryFinding{"Error checker 237", "Unspecified sweep mode set to logarithmic", ""}));
  EXPECT_TRUE(report.Passed());
  EXPECT_EQ(record.SweepMode, 2);
}

struct FailureCase {
  DesignRecord record;
  EntryFinding finding;
};

std::vector<FailureCase> Failures() {
  const auto changed = [](DesignRecord record, void (*change)(DesignRecord&)) {
    change(record);
    return record;
  };
  const EntryFinding width = {"Error checker 53", "Please enter a bandwidth", "txtBandwidth"};
  const EntryFinding source = {"Error checker 179", "Please enter an input termination greater than .01 ohms",
                               "txtInputTerm"};
  const EntryFinding center = {"Error checker 199", "Please enter a center frequency", "txtCenterFrequency"};
  const EntryFinding depth = {"Error checker 296",
                              "Please enter a stopband depth for the Cauer\r\nfamily of  10 minimum  to  180 maximum",
                              "txtStopbandDepth"};
  const EntryFinding reference = {"Error checker 346", "Please enter a value for return loss computation",
                                  "txtInputTerm"};
  std::vector<FailureCase> cases = {
      {changed(Sound(), [](DesignRecord& r) { r.Width = 0; }), width},
      {changed(Sound(), [](DesignRecord& r) { r.Width = -1; }), width},
      {changed(Sound(), [](DesignRecord& r) { r.Rsource[1] = 0.01F; }), source},
      {changed(Sound(), [](DesignRecord& r) { r.Family = familyChebyshev; }),
       {"Error checker 259", "Please enter a passband ripple for the Chebyshev filter family", "txtPassbandRipple"}},
      {changed(Cauer(4), [](DesignRecord& r) { r.Apass = 0; }),
       {"Error checker 268", "Please enter a passband ripple for the even-order Cauer filter family",
        "txtPassbandRipple"}},
      {changed(Cauer(5), [](DesignRecord& r) { r.Fstopband = 0; }),
       {"Error checker 283", "Please enter a stopband frequency for the Cauer filter family", "txtStopbandFreq"}},
      {changed(Cauer(5), [](DesignRecord& r) { r.Astop = 9.9F; }), depth},
      {changed(Cauer(5), [](DesignRecord& r) { r.Astop = 180.5F; }), depth},
      {Cauer(2), {"Error checker 305", "Cauer requires order of 3 minimum", "UpDown1"}},
      {changed(Sound(), [](DesignRecord& r) { r.Topology = "B", r.Rstandard = 0; }), reference},
      {changed(Sound(), [](DesignRecord& r) { r.Topology = "C", r.Fcenter = 1e7F, r.Rstandard = -1; }), reference},
  };
  for (const char* topology : {"C", "D", "E", "F", "G", "H", "K", "L"}) {
    FailureCase missing{Sound(), center};
    missing.record.Topology = topology;
    cases.push_back(missing);
  }
  return cases;
}

TEST(CheckEntries, AMissingEntryFails) {
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

TEST(CheckEntries, AFailureIsToldAndLeadsToItsBox) {
  for (const FailureCase& row : Failures()) {
    DesignBench bench;
    bench.record = row.record;
    EXPECT_FALSE(CheckEntries(bench.session));
    ASSERT_THAT(bench.platform.messages, SizeIs(1));
    EXPECT_EQ(bench.platform.messages[0].title, row.finding.title);
    EXPECT_EQ(bench.platform.messages[0].text, row.finding.text);
    EXPECT_EQ(bench.platform.messages[0].icon, Icon::Exclamation);
    EXPECT_EQ(bench.platform.messages[0].buttons, Buttons::Ok);
    EXPECT_EQ(bench.session.pages.Top()->Id(), PageId::Design);
    EXPECT_EQ(bench.Focus(), row.finding.focus);
  }
}

TEST(CheckEntries, WhatTheFamilyOrTopologyDoesNotNeedMayBeMissing) {
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

TEST(CheckEntries, AnEditedNetworkNeedsNoBandwidth) {
  DesignRecord edited = Sound();
  edited.Width = 0;
  edited.NetworkEdited = 1;
  EXPECT_TRUE(ExamineEntries(edited).Passed());
  DesignRecord manual = Sound();
  manual.Width = 0;
  manual.Family = familyManual;
  EXPECT_TRUE(ExamineEntries(manual).Passed());
}

TEST(CheckEntries, TheFirstFailureEndsTheCheck) {
  DesignBench bench;
  bench.record = Sound();
  bench.record.Width = 0;
  bench.record.Rsource[1] = 0;
  bench.record.SweepMode = 0;
  EXPECT_FALSE(CheckEntries(bench.session));
  ASSERT_THAT(bench.platform.messages, SizeIs(1));
  EXPECT_EQ(bench.platform.messages[0].title, "Error checker 53");
  EXPECT_EQ(bench.record.SweepMode, 0);
}

TEST(CheckEntries, ADesignPageOnTopIsNotLoadedAgain) {
  DesignBench bench;
  bench.session.pages.ShowPage(PageId::Design);
  bench.record = Sound();
  bench.record.Width = 0;
  EXPECT_FALSE(CheckEntries(bench.session));
  EXPECT_EQ(bench.designLoads, 1);
  EXPECT_EQ(bench.Focus(), "txtBandwidth");
}

TEST(CheckEntries, PassingStaysOnThePage) {
  DesignBench bench;
  bench.session.pages.ShowPage(PageId::Analyze);
  bench.record = Sound();
  bench.record.SweepMode = 0;
  EXPECT_TRUE(CheckEntries(bench.session));
  EXPECT_THAT(bench.platform.messages, SizeIs(1));
  EXPECT_EQ(bench.session.pages.Top()->Id(), PageId::Analyze);
  EXPECT_EQ(bench.designLoads, 0);
}

// A repaired entry shows in its box at once, in display format.
TEST(CheckEntries, RepairsShowInTheBoxesOfAnOpenPage) {
  DesignBench bench;
  bench.session.pages.ShowPage(PageId::Analyze);
  bench.record = Sound();
  bench.record.Fstart = bench.record.Fstop = 0;
  bench.record.NrIntervals = 5000;
  bench.record.NrXints = 40;
  bench.record.NrYints = 2;
  bench.record.VSWRTop = 0;
  bench.record.Qind[1] = 0;
  bench.record.Qcap[1] = 1e9F;
  bench.record.ImpedanceTop = 0;
  EXPECT_TRUE(CheckEntries(bench.session));
  const auto text = [&bench](const char* name) { return bench.TextOf(PageId::Analyze, name); };
  EXPECT_EQ(text("txtFstart"), "500k ");
  EXPECT_EQ(text("txtFstop"), "2M ");
  EXPECT_EQ(text("txtNrIntervals"), "2049");
  EXPECT_EQ(text("lblNrXints"), "30");
  EXPECT_EQ(text("lblNrYints"), "4");
  EXPECT_EQ(text("txtVSWRTop"), "1.05");
  EXPECT_EQ(text("txtQinductor"), "2");
  EXPECT_EQ(text("txtQcapacitor"), "10000000");
  EXPECT_EQ(text("txtImpedanceTop"), "50 ");
}

TEST(CheckEntries, ACutOrderShowsOnAnOpenDesignPage) {
  DesignBench bench;
  bench.session.pages.ShowPage(PageId::Design);
  bench.record = Sound();
  bench.record.Order = 22;
  EXPECT_TRUE(CheckEntries(bench.session));
  EXPECT_EQ(bench.TextOf(PageId::Design, "lblOrderInput"), "21");
}

}  // namespace
}  // namespace quilm
