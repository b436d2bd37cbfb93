#include "desk/modCheckEntries.h"

#include <gmock/gmock.h>

#include "core/Configuration.h"
#include "support/DesignBench.h"
#include "support/EntryCases.h"

namespace quilm {
namespace {

using ::testing::SizeIs;

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

TEST(CheckEntries, TheCaretGoesToTheFailureNotToARepairToldBefore) {
  DesignBench bench;
  bench.record = Sound();
  bench.record.Order = 22;
  bench.record.Width = 0;
  EXPECT_FALSE(CheckEntries(bench.session));
  ASSERT_THAT(bench.platform.messages, SizeIs(2));
  EXPECT_EQ(bench.platform.messages[1].title, "Error checker 53");
  EXPECT_EQ(bench.Focus(), "txtBandwidth");
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

TEST(CheckEntries, RepairsShowInTheBoxesOfAnOpenPage) {
  DesignBench bench;
  bench.session.pages.ShowPage(PageId::Analyze);
  bench.record = Sound();
  bench.record.Fstart = bench.record.Fstop = 0;
  bench.record.NrIntervals = 5000;
  bench.record.NrXints = 40;
  bench.record.NrYints = 2;
  bench.record.VSWRTop = 0;
  bench.session.configuration.ConfigValue[lineQind] = 150;
  bench.record.Qind[1] = 0;
  bench.record.Qcap[1] = 1e9F;
  bench.record.ImpedanceTop = 0;
  EXPECT_TRUE(CheckEntries(bench.session));
  const auto text = [&bench](const char* name) { return bench.TextOf(PageId::Analyze, name); };
  EXPECT_EQ(text("txtFstart"), "500k");
  EXPECT_EQ(text("txtFstop"), "2M");
  EXPECT_EQ(text("txtNrIntervals"), "2049");
  EXPECT_EQ(text("lblNrXints"), "30");
  EXPECT_EQ(text("lblNrYints"), "4");
  EXPECT_EQ(text("txtVSWRTop"), "1.05");
  EXPECT_EQ(text("txtQinductor"), "150");
  EXPECT_EQ(text("txtQcapacitor"), "10000000");
  EXPECT_EQ(text("txtImpedanceTop"), "50");
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
