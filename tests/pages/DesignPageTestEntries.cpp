// The entry boxes of the Design page: parsing, echo, limits, and what is typed wrongly.

#include <cmath>

#include "core/modGeneral.h"
#include "pages/DesignPageBench.h"
#include "pages/design/DesignControls.h"

namespace quilm {
namespace {

class DesignEntries : public DesignPageBench {};

TEST_F(DesignEntries, EachBoxEntersItsField) {
  SetCauer("H", 4);
  Open();
  Put("txtBandwidth", "200k");
  Put("txtCenterFrequency", "12.5M");
  Put("txtInputTerm", "75");
  Put("txtPassbandRipple", "0.25");
  Put("txtStopbandFreq", "350k");
  Put("txtStopbandDepth", "45");
  EXPECT_EQ(record.Width, 200e3F);
  EXPECT_EQ(record.Fcenter, 12.5e6F);
  EXPECT_EQ(record.Rsource[1], 75);
  EXPECT_EQ(record.Apass, 0.25F);
  EXPECT_EQ(record.Fstopband, 350e3F);
  EXPECT_EQ(record.Astop, 45);
}

TEST_F(DesignEntries, EachBoxForgetsTheNetwork) {
  for (const char* name : {"txtBandwidth", "txtCenterFrequency", "txtInputTerm", "txtPassbandRipple", "txtStopbandFreq",
                           "txtStopbandDepth"}) {
    SCOPED_TRACE(name);
    SetCauer("H", 4);
    record.MatchAccepted = 1;
    record.NetworkEdited = record.ResponsesValid = record.DesignChanged = 1;
    Open();
    Put(name, "12");
    EXPECT_EQ(record.MatchAccepted, 0);
    EXPECT_EQ(record.NetworkEdited, 0);
    EXPECT_EQ(record.ResponsesValid, 0);
    EXPECT_EQ(record.DesignChanged, 0);
    EXPECT_TRUE(Shown("txtDesignChange"));
  }
}

TEST_F(DesignEntries, LeavingABoxEchoesItsDisplayFormat) {
  SetCauer("H", 4);
  Open();
  const struct {
    const char* box;
    const char* typed;
    const char* echo;
  } rows[] = {{"txtBandwidth", "3500k", "3.5M"},
              {"txtBandwidth", "1,2e6", "1.2M"},
              {"txtCenterFrequency", "10e6", "10M"},
              {"txtInputTerm", "2200", "2.2k"},
              {"txtInputTerm", "75R", "75"},
              {"txtPassbandRipple", ".1", "0.1"},
              {"txtPassbandRipple", "-0.5", "0.5"},
              {"txtStopbandFreq", "1500000", "1.5M"},
              {"txtStopbandDepth", "60.125dB", "60.125"}};
  for (const auto& row : rows) {
    Enter(row.box, row.typed);
    EXPECT_EQ(TextOf(row.box), row.echo) << row.box << " " << row.typed;
  }
}

// The echo shows six digits; the record has what was typed.
TEST_F(DesignEntries, TheEchoCostsNoDigits) {
  OpenLowpass();
  Enter("txtBandwidth", "1.2345678M");
  EXPECT_EQ(TextOf("txtBandwidth"), "1.23457M");
  EXPECT_EQ(record.Width, 1234567.8F);
  Leave(session, Get<TextBox>("txtBandwidth"));
  Press("cmdPlot");
  EXPECT_EQ(record.Width, 1234567.8F);
  session.pages.ShowPage(PageId::Design);
  EXPECT_EQ(TextOf("txtBandwidth"), "1.23457M");
  Press("cmdPlot");
  EXPECT_EQ(record.Width, 1234567.8F);
}

TEST_F(DesignEntries, ABlankBoxStaysBlank) {
  Open();
  EXPECT_EQ(TextOf("txtBandwidth"), "");
  Leave(session, Get<TextBox>("txtBandwidth"));
  EXPECT_EQ(TextOf("txtBandwidth"), "");
}

// Whatever is typed becomes a number: what makes no sense is dropped, and the number stays within 1e10.
TEST_F(DesignEntries, MeaninglessEntriesBecomeNumbersWithoutAWord) {
  OpenLowpass();
  const struct {
    const char* typed;
    f32 value;
    const char* echo;
  } rows[] = {{"abc", 0, "0.0"},      {"k", 0, "0.0"},
              {"1e99", 1e10F, "10G"}, {"-1e99", -1e10F, nullptr},
              {"-5", -5, "-5000m"},   {"123456789012345", 1e10F, "10G"},
              {"12-3", 123, "123"},   {"1.2.3k", 1230, "1.23k"},
              {"1 2", 12, "12"},      {"0", 0, "0.0"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    Enter("txtBandwidth", row.typed);
    EXPECT_EQ(record.Width, row.value);
    if (row.echo != nullptr) {
      EXPECT_EQ(TextOf("txtBandwidth"), row.echo);
    }
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(DesignEntries, TheStopbandDepthIsHeldTo180) {
  SetCauer("A", 5);
  Open();
  const i32 before = Get<TextBox>("txtStopbandDepth").Repairs();
  Put("txtStopbandDepth", "180");
  EXPECT_EQ(Get<TextBox>("txtStopbandDepth").Repairs(), before);
  Put("txtStopbandDepth", "181");
  EXPECT_EQ(record.Astop, 180);
  EXPECT_EQ(TextOf("txtStopbandDepth"), "180");
  EXPECT_GT(Get<TextBox>("txtStopbandDepth").Repairs(), before);
}

// rho = sqrt(1 - 10^-0.01) = 0.150874: (1 + rho) / (1 - rho) = 1.35536 and 20 log10(rho) = -16.4277.
// 3.0103 dB halves the power: rho = 0.707107, 5.82843 and -3.0103. 0.01 dB: rho = 0.0479577, 1.10075, -26.3828.
TEST_F(DesignEntries, TheReadoutSaysWhatTheRippleMeansAtTheInput) {
  EXPECT_EQ(RippleReadout(0.1F), "VSWR: 1.3554   Return: -16.428 dB");
  EXPECT_EQ(RippleReadout(3.0103F), "VSWR: 5.8284   Return: -3.0103 dB");
  EXPECT_EQ(RippleReadout(0.01F), "VSWR: 1.1007   Return: -26.383 dB");
  EXPECT_EQ(RippleReadout(0), "");
  EXPECT_EQ(RippleReadout(10), "");
  EXPECT_EQ(RippleReadout(-1), "");
}

TEST_F(DesignEntries, TheReadoutFollowsWithTheNextLoadOnly) {
  SetLowpass();
  record.Family = familyChebyshev;
  record.Apass = 0.1F;
  Open();
  EXPECT_EQ(CaptionOf("lblVSWR"), "VSWR: 1.3554   Return: -16.428 dB");
  Enter("txtPassbandRipple", "0.01");
  EXPECT_EQ(CaptionOf("lblVSWR"), "VSWR: 1.3554   Return: -16.428 dB");
  session.pages.ShowPage(PageId::Design);
  EXPECT_EQ(CaptionOf("lblVSWR"), "VSWR: 1.1007   Return: -26.383 dB");
}

TEST_F(DesignEntries, LineWidthStepsBetweenOneAndSix) {
  OpenLowpass();
  for (int i = 0; i < 9; ++i) Spin("UpDown2", +1);
  EXPECT_EQ(record.PlotLineWidth, 6);
  EXPECT_EQ(CaptionOf("lblLineWidthInput"), "6");
  for (int i = 0; i < 9; ++i) Spin("UpDown2", -1);
  EXPECT_EQ(record.PlotLineWidth, 1);
  EXPECT_FALSE(Shown("txtDesignChange"));
}

TEST_F(DesignEntries, UnitsAreEnglishOrMetric) {
  OpenLowpass();
  EXPECT_TRUE(Set("optEnglish"));
  Press("optMetric");
  EXPECT_EQ(record.Units, 2);
  session.pages.ShowPage(PageId::Design);
  EXPECT_TRUE(Set("optMetric"));
  Press("optEnglish");
  EXPECT_EQ(record.Units, 1);
}

}  // namespace
}  // namespace quilm
