// The noise bandwidth. Of a Butterworth lowpass of order 3 it is (Pi / 6) / sin(Pi / 6) = 1.0472 times the corner, with
// 1 % of power at 99^(1/6) = 2.1508 and 0.1 % at 999^(1/6) = 3.1617 times the corner.
#include <cmath>

#include "core/modGeneral.h"
#include "pages/StudyPageBench.h"

namespace quilm {
namespace {

class NoisePage : public StudyPageBench {
 protected:
  void Open() {
    AnalyseLowpass();
    Press("cmdNoise");
    ASSERT_EQ(Top().Id(), PageId::Noise);
  }
  void Put(const std::string& start, const std::string& stop, const std::string& steps) {
    Enter("txtStartingFrequency", start);
    Enter("txtStoppingFrequency", stop);
    Enter("txtNrIntervals", steps);
  }
  bool AdviceShows() {
    int shown = 0;
    for (const char* line : {"lblAdvice1", "lblAdvice2", "lblAdvice3", "lblAdvice4"}) {
      shown += Get<Label>(line).Shown() ? 1 : 0;
    }
    EXPECT_TRUE(shown == 0 || shown == 4);
    return shown == 4;
  }
  bool Empty() { return CaptionOf("lblNoiseBandwidth") == "Noise bandwidth: " && CaptionOf("lblNoiseHigh01").empty(); }
};

constexpr Color paleRed = 0xDDDDFF;

TEST_F(NoisePage, ALowpassIsSweptFromOneHertz) {
  Open();
  EXPECT_EQ(CaptionOf("lblHeading"), "Noise Bandwidth Routine");
  EXPECT_EQ(TextOf("txtStartingFrequency"), "1");
  EXPECT_EQ(TextOf("txtStoppingFrequency"), "10M");
  EXPECT_EQ(TextOf("txtNrIntervals"), "1000");
  EXPECT_FALSE(Get<Label>("lblBandpass").Shown());
  EXPECT_TRUE(Empty());
  EXPECT_FALSE(AdviceShows());
}

TEST_F(NoisePage, ABandpassFromTheStartOfItsSweep) {
  AnalyseBandpass();
  Enter("txtNrIntervals", "60");
  Press("cmdNoise");
  EXPECT_TRUE(Get<Label>("lblBandpass").Shown());
  EXPECT_EQ(CaptionOf("lblBandpass"), "This network appears to be a bandpass or highpass type.");
  EXPECT_EQ(TextOf("txtStartingFrequency"), "1k");
  EXPECT_EQ(TextOf("txtNrIntervals"), "100");
}

TEST_F(NoisePage, TellsSixFigures) {
  Open();
  Put("1", "10M", "10k");
  Press("cmdCompute");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(CaptionOf("lblNoiseBandwidth").starts_with("Noise bandwidth: 1.0471")) << CaptionOf("lblNoiseBandwidth");
  const auto figure = [this](const char* label) {
    std::string text = CaptionOf(label);
    f32 value = 0;
    ParseEntry(text, value);
    return value;
  };
  EXPECT_NEAR(figure("lblNoiseHigh1"), 2.15078e6, 1000);
  EXPECT_NEAR(figure("lblNoiseHigh01"), 3.16175e6, 1000);
  EXPECT_EQ(figure("lblNoiseLow01"), 501);  // the middle of the first step
  EXPECT_EQ(figure("lblNoiseLow1"), 501);
  EXPECT_LT(figure("lblNoisePeakFreq"), 1e5);
  EXPECT_TRUE(AdviceShows());
  EXPECT_EQ(CaptionOf("lblAdvice1"), "Lowpass filters should be swept starting from a very low frequency.");
  EXPECT_EQ(CaptionOf("lblAdvice4"), "to above the upper 0.1% frequency.");
  EXPECT_EQ(Get<TextBox>("txtStoppingFrequency").backColor, colorWhite);
}

TEST_F(NoisePage, AStartBelowOneHertzIsRefused) {
  Open();
  for (const char* start : {"0", "999m", "-1"}) {
    Enter("txtStartingFrequency", start);
    Press("cmdCompute");
    const MessageShown message = OnlyMessage();
    EXPECT_EQ(message.text, "The starting frequency entry is too low");
    EXPECT_EQ(message.title, "Entry examination");
    EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtStartingFrequency"));
    EXPECT_TRUE(Empty());
  }
}

TEST_F(NoisePage, AStopAtOrBelowTheStartIsRefused) {
  Open();
  for (const char* stop : {"1k", "999", "0"}) {
    Put("1k", stop, "50");
    Press("cmdCompute");
    const MessageShown message = OnlyMessage();
    EXPECT_EQ(message.text, "The stopping frequency entry is less than the starting frequency");
    EXPECT_EQ(message.title, "Entry examination");
    EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtStoppingFrequency"));
    EXPECT_EQ(TextOf("txtNrIntervals"), "50") << "looked at later";
  }
}

TEST_F(NoisePage, StepsAreHeldFromAHundredToTenThousand) {
  Open();
  for (const auto& [typed, held] :
       {std::pair{"99", "100"}, {"0", "100"}, {"100.9", "100"}, {"10k", "10000"}, {"1M", "10000"}}) {
    Enter("txtNrIntervals", typed);
    Press("cmdCompute");
    EXPECT_EQ(TextOf("txtNrIntervals"), held) << typed;
  }
}

TEST_F(NoisePage, ASweepThatEndsEarlyIsMarked) {
  Open();
  Put("1", "2M", "1000");
  Top().TakeFocusWish();
  Press("cmdCompute");
  EXPECT_EQ(Get<Label>("lblNoiseHigh01").backColor, paleRed);
  EXPECT_EQ(Get<TextBox>("txtStoppingFrequency").backColor, paleRed);
  EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtStoppingFrequency"));
  Enter("txtStoppingFrequency", "10M");
  Press("cmdCompute");
  EXPECT_EQ(Get<Label>("lblNoiseHigh01").backColor, colorWhite);
  EXPECT_EQ(Get<TextBox>("txtStoppingFrequency").backColor, colorWhite);
  EXPECT_EQ(Top().TakeFocusWish(), nullptr);
}

TEST_F(NoisePage, WithoutPowerTheResultsAreEmpty) {
  Open();
  Press("cmdCompute");
  EXPECT_FALSE(Empty());
  // Ten sections of 120 dB a decade each take what is left of 1 GHz below all numbers.
  session.record.Stages = 30;
  for (int s = 4; s <= 30; ++s) session.network.stage[s] = session.network.stage[1 + (s - 1) % 2];
  Put("9G", "10G", "100");
  Press("cmdCompute");
  EXPECT_TRUE(Empty());
  EXPECT_FALSE(Get<Label>("lblNoiseHigh01").Shown());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(NoisePage, NothingOfTheDesignChanges) {
  Open();
  const DesignRecord before = session.record;
  Put("5", "8M", "200");
  Press("cmdCompute");
  EXPECT_EQ(session.record, before);
  Press("cmdExit");
  EXPECT_EQ(session.record.Fstop, 1e7F);
  // Its entries are made anew each time.
  Press("cmdNoise");
  EXPECT_EQ(TextOf("txtStoppingFrequency"), "10M");
}

TEST_F(NoisePage, ANetworkThatCannotBeEvaluatedIsTold) {
  Open();
  session.record.Width = session.record.Fcenter = 0;
  session.record.Fstart = -1;
  Press("cmdCompute");
  EXPECT_EQ(OnlyMessage().title, "Error checker");
  EXPECT_TRUE(Empty());
}

}  // namespace
}  // namespace quilm
