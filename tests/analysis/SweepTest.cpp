#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <memory>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {
namespace {

// Two resistors make an attenuator that is the same at every frequency.
DesignRecord Attenuator() {
  DesignRecord record;
  record.Stages = 1;
  record.stage[1].ElementType = SeriesR;
  record.stage[1].Rval.value = 100;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  record.Width = 1e6F;
  record.SweepMode = 1;
  record.Fstart = 1e6F;
  record.Fstop = 2e6F;
  record.NrIntervals = 10;
  return record;
}

DesignRecord LowpassSection() {
  DesignRecord record = Attenuator();
  record.stage[1].ElementType = SeriesL;
  record.stage[1].Lval.value = 10e-6F;
  return record;
}

class Sweep : public testing::Test {
 protected:
  std::unique_ptr<Responses> r = std::make_unique<Responses>();
};

TEST_F(Sweep, LinearFrequencies) {
  DesignRecord record = Attenuator();
  EXPECT_EQ(SweepLadder(record, *r), "");
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(r->RespFreq[i], static_cast<f32>(1e6 + 1e5 * i));
  EXPECT_EQ(record.ResponsesValid, 1);
}

TEST_F(Sweep, LogarithmicFrequenciesAreGeometric) {
  DesignRecord record = Attenuator();
  record.SweepMode = 2;
  record.Fstart = 1e3F;
  record.Fstop = 1e8F;
  EXPECT_EQ(SweepLadder(record, *r), "");
  for (int i = 0; i <= 10; ++i) EXPECT_NEAR(r->RespFreq[i], 1e3 * std::pow(10, i / 2.0), 1e-6 * r->RespFreq[i]);
}

TEST_F(Sweep, AnyOtherModeIsLogarithmic) {
  DesignRecord record = Attenuator();
  record.SweepMode = 0;
  record.Fstart = 1;
  record.Fstop = 1e10F;
  EXPECT_EQ(SweepLadder(record, *r), "");
  EXPECT_NEAR(r->RespFreq[5], 1e5F, 0.1);
}

TEST_F(Sweep, TheNumberOfPointsIsRoundedAndTheDivisorIsNot) {
  DesignRecord record = Attenuator();
  record.NrIntervals = 4.4F;
  r->RespFreq[5] = -1;
  EXPECT_EQ(SweepLadder(record, *r), "");
  EXPECT_NEAR(r->RespFreq[4], 1e6 + 1e6 * 4 / 4.4, 0.2);
  EXPECT_EQ(r->RespFreq[5], -1);
}

TEST_F(Sweep, AMatchedAttenuator) {
  DesignRecord record = Attenuator();
  SweepLadder(record, *r);
  // 200 ohms in the loop, 50 of them the load: 20 log10(100 / 200) dB. Input 150 ohms, reflection 0.5.
  EXPECT_NEAR(r->RespTrans[3], -6.0205999, 1e-6);
  EXPECT_NEAR(r->RespZin[3], 150, 1e-4);
  EXPECT_NEAR(r->RespVSWR[3], 3, 1e-6);
  EXPECT_NEAR(r->RespReturn[3], -6.0205999, 1e-6);
}

TEST_F(Sweep, AngleDelayAndPhaseOfAReactance) {
  DesignRecord record = LowpassSection();
  record.Qind[1] = 1e7F;
  SweepLadder(record, *r);
  // Angle -atan(w L / 100), its derivative 1 / (2 Pi) d angle / d f taken over the step.
  const auto angle = [](f64 f) { return -std::atan(2 * Pi * f * 10e-6 / 100) * 180 / Pi; };
  EXPECT_NEAR(r->RespAngle[4], angle(1.4e6), 1e-4);
  EXPECT_NEAR(r->RespDelay[4], -(angle(1.4e6) - angle(1.3e6)) / (360 * 1e5), 1e-11);
  EXPECT_NEAR(r->RespDelay[0], 2 * r->RespDelay[1] - r->RespDelay[2], 1e-15);
  EXPECT_NEAR(r->RespPhase[9], angle(1.9e6), 1e-3);
}

TEST_F(Sweep, RelativeModeSubtractsThePeak) {
  DesignRecord record = LowpassSection();
  record.RelativeMode = 1;
  SweepLadder(record, *r);
  EXPECT_EQ(r->RespTrans[0], 0);
  EXPECT_LT(r->RespTrans[10], r->RespTrans[0]);
  EXPECT_LT(r->TransPeak, -0.3);  // keeps its absolute value
  EXPECT_EQ(r->TransPeakFreq, 1e6);
  EXPECT_EQ(static_cast<f64>(r->MaxTrans[10]), 0);  // extremes widen by absolute figures: still at their start
  EXPECT_LT(r->MinTrans[10], r->TransPeak);
}

TEST_F(Sweep, ExtremesOnlyWiden) {
  DesignRecord record = Attenuator();
  r->MaxTrans.Fill(-100);
  r->MinTrans.Fill(100);
  SweepLadder(record, *r);
  const f32 first = r->RespTrans[2];
  record.stage[1].Rval.value = 10;
  SweepLadder(record, *r);
  const f32 second = r->RespTrans[2];
  record.stage[1].Rval.value = 50;
  SweepLadder(record, *r);
  EXPECT_EQ(r->MinTrans[2], first);
  EXPECT_EQ(r->MaxTrans[2], second);
}

TEST_F(Sweep, WithoutStagesAllIsZero) {
  DesignRecord record = Attenuator();
  record.Stages = 0;
  record.RelativeMode = 1;
  r->RespTrans.Fill(5);
  EXPECT_EQ(SweepLadder(record, *r), "");
  EXPECT_EQ(r->RespTrans[4], 0);
  EXPECT_EQ(r->TransPeak, -300);
  EXPECT_EQ(record.ResponsesValid, 1);
}

TEST_F(Sweep, EqualLimitsGiveAHugeDelayAndNoFailure) {
  DesignRecord record = LowpassSection();
  record.Fstop = record.Fstart;
  EXPECT_EQ(SweepLadder(record, *r), "");
  // The former angle rests in 32 bits, this one in 64: their difference over 1e-27 Hz.
  EXPECT_GT(std::fabs(r->RespDelay[3]), 1e12F);
}

// A shunt capacitor fails at 0 Hz: the first point repeats what there was before the sweep, nothing.
TEST_F(Sweep, AFailingPointRepeatsTheFormerFigures) {
  DesignRecord record = Attenuator();
  record.stage[1].ElementType = ShuntC;
  record.stage[1].Cval.value = 1e-9F;
  record.Fstart = -1e6F;
  record.Fstop = 1e6F;
  EXPECT_EQ(SweepLadder(record, *r), "");
  ASSERT_EQ(r->RespFreq[5], 0);
  EXPECT_EQ(r->RespTrans[5], r->RespTrans[4]);
  EXPECT_EQ(r->RespZin[5], r->RespZin[4]);
  EXPECT_EQ(r->RespDelay[5], r->RespDelay[4]);
  // The old phase step is added once more.
  EXPECT_NEAR(r->RespPhase[5] - r->RespPhase[4], r->RespPhase[4] - r->RespPhase[3], 1e-4);
  EXPECT_NE(r->RespZinAngle[6], r->RespZinAngle[5]);
  // The next delay is taken from the failing point's frequency.
  EXPECT_NEAR(r->RespDelay[6], -(r->RespAngle[6] - r->RespAngle[5]) / (360 * 2e5), 1e-12);
}

TEST_F(Sweep, TheFrequencyOfQ) {
  DesignRecord record = Attenuator();
  EXPECT_EQ(QualityFrequency(record, record), 1e6F);
  record.Fcenter = 3e6F;
  EXPECT_EQ(QualityFrequency(record, record), 3e6F);
  record.Fcenter = 0;
  record.Width = 0;
  EXPECT_NEAR(QualityFrequency(record, record), std::sqrt(2e12), 1);
}

TEST_F(Sweep, ALineOf90Point0001DegreesReads90Afterwards) {
  DesignRecord record = Attenuator();
  record.stage[1].ElementType = TransLine;
  record.stage[1].TLval = {90.0001F, 1e6F, 50, 0, 0};
  SweepLadder(record, *r);
  EXPECT_EQ(record.stage[1].TLval.degrees, 90);
}

TEST_F(Sweep, FailuresOfTheSweepItselfNameTheirStep) {
  DesignRecord record = Attenuator();
  record.SweepMode = 2;
  record.Fstart = 0;
  EXPECT_EQ(SweepLadder(record, *r), "48");
  EXPECT_EQ(record.ResponsesValid, 0);

  record = Attenuator();
  record.NrIntervals = 2050;
  EXPECT_EQ(SweepLadder(record, *r), "48");
  record.NrIntervals = -3;
  EXPECT_EQ(SweepLadder(record, *r), "48");

  record = Attenuator();
  record.Width = 0;
  record.Fstart = -1e6F;
  EXPECT_EQ(SweepLadder(record, *r), "70");
}

class NetworkPage : public Page {
 public:
  explicit NetworkPage(Session& session) : Page(session, PageId::Schematic, "Schematic") {}
  Layout MakeLayout() override { return Column({}); }
};

TEST_F(Sweep, AFailureIsToldInAMessageAndShowsTheNetwork) {
  HeadlessPlatform platform(std::filesystem::temp_directory_path().string());
  Session session(platform, {{PageId::Schematic, [](Session& owner) -> std::unique_ptr<Page> {
                                return std::make_unique<NetworkPage>(owner);
                              }}});
  session.record = Attenuator();
  session.record.SweepMode = 2;
  session.record.Fstart = 0;
  AnalyzeSweep(session);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Error checker");
  EXPECT_EQ(platform.messages[0].icon, Icon::Critical);
  EXPECT_EQ(platform.messages[0].text,
            "We had a plotting routine problem.\r\nSee modAnalysis line 48\r\n"
            "Check analysis starting and stopping frequencies\r\nand check the network component values.");
  EXPECT_EQ(session.pages.Top()->Id(), PageId::Schematic);
}

TEST_F(Sweep, WithoutStagesAFrequencyChangesNothing) {
  DesignRecord record = Attenuator();
  record.Stages = 0;
  FrequencyResult result;
  result.TransDB = 12;
  AnalyzeFrequency(record, Compile(record, 1e6F), 0, 0, 1e6F, result);
  EXPECT_EQ(result.TransDB, 12);
}

}  // namespace
}  // namespace quilm
