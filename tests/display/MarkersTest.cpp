#include "display/Markers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/PlotFrame.h"
#include "display/SheetDrawing.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Session.h"
#include "support/PadDesign.h"

namespace quilm {
namespace {

class Markers : public testing::Test {
 protected:
  Markers() : platform(""), session(platform, {}) {
    DesignRecord& record = session.record;
    MakePad(record);
    record.Width = 1e6F;
    record.PlotCode = 1;
    Sweep();
  }

  void Sweep() { ASSERT_EQ(SweepLadder(session.record, session.responses), ""); }
  void AddShuntC() {
    AddCapacitorToPad(session.record);
    Sweep();
  }
  std::vector<MarkerReading> Read() { return ReadMarkers(session.record, session.responses); }

  std::vector<TextOp> Texts() {
    std::vector<TextOp> texts;
    for (const PictureOp& operation : session.plot.picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
    }
    return texts;
  }
  void Show() {
    session.record.MarkersShown = 1;
    RedrawPlot(session);
  }

  HeadlessPlatform platform;
  Session session;
};

TEST_F(Markers, ReadTheNetworkAtTheirFrequency) {
  session.record.MarkerFreq[3] = 1.2345e7F;
  const auto readings = Read();
  ASSERT_EQ(readings.size(), 1U);
  EXPECT_EQ(readings[0].number, 3);
  EXPECT_EQ(readings[0].freq, 1.2345e7F);
  EXPECT_NEAR(readings[0].trans, -3.52183F, 1e-4F);
  EXPECT_NEAR(readings[0].returnLoss, -9.54243F, 1e-4F);
  EXPECT_NEAR(readings[0].vswr, 2, 1e-5F);
  EXPECT_NEAR(readings[0].zin, 100, 1e-4F);
}

// A first-order lowpass of R = 100 || 50 ohms and 1 nF: the angle is -atan(2 Pi f R C).
TEST_F(Markers, TheAngleOfTheInputHasItsTrueSign) {
  AddShuntC();
  session.record.MarkerFreq[1] = 4.7746e6F;  // 1 / (2 Pi 33.333 1e-9)
  const auto readings = Read();
  EXPECT_NEAR(readings[0].angle, -45, 0.05F);
  EXPECT_NEAR(readings[0].trans, -3.52183F - 3.0103F, 0.01F);
  EXPECT_LT(readings[0].zinAngle, 0);  // 50 ohms with a capacitor behind
}

// RC / (1 + (f / f0)^2) with RC = 33.33 ns: 16.67 ns at f0.
TEST_F(Markers, TheDelayIsThatOfTheSweep) {
  session.record.NrIntervals = 2000;
  AddShuntC();
  session.record.MarkerFreq[1] = 4.7746e6F;
  EXPECT_NEAR(Read()[0].delay, 16.667e-9F, 0.1e-9F);
}

TEST_F(Markers, TheDelayLiesOnTheLineBetweenItsNeighbours) {
  for (int i = 0; i <= 20; ++i) session.responses.RespDelay[i] = static_cast<f32>(i) * 1e-9F;
  const f32 from = session.responses.RespFreq[7];
  const f32 to = session.responses.RespFreq[8];
  session.record.MarkerFreq[1] = from + 0.25F * (to - from);
  session.record.MarkerFreq[2] = from;
  EXPECT_NEAR(Read()[0].delay, 7.25e-9F, 1e-12F);
  EXPECT_EQ(Read()[1].delay, session.responses.RespDelay[7]);
}

TEST_F(Markers, AtTheEndsOfTheSweepTheDelayIsThatOfTheFirstAndTheLastPoint) {
  for (int i = 0; i <= 20; ++i) session.responses.RespDelay[i] = static_cast<f32>(i + 1) * 1e-9F;
  session.record.MarkerFreq[1] = session.record.Fstart;
  session.record.MarkerFreq[2] = session.record.Fstop;
  EXPECT_EQ(Read()[0].delay, session.responses.RespDelay[0]);
  EXPECT_EQ(Read()[1].delay, session.responses.RespDelay[20]);
}

TEST_F(Markers, RelativeToThePeakWhenThatIsChosen) {
  session.record.RelativeMode = 1;
  Sweep();
  session.record.MarkerFreq[1] = 1e7F;
  EXPECT_NEAR(Read()[0].trans, 0, 1e-5F);
}

TEST_F(Markers, ReadingLeavesNothingBehind) {
  AddShuntC();
  const auto before = std::make_unique<Responses>(session.responses);
  const DesignRecord record = session.record;
  session.record.MarkerFreq[1] = 3e6F;
  const DesignRecord marked = session.record;
  Read();
  EXPECT_EQ(session.record, marked);
  session.record = record;
  Sweep();
  EXPECT_TRUE(std::equal(before->RespDelay.begin(), before->RespDelay.end(), session.responses.RespDelay.begin()));
  EXPECT_TRUE(std::equal(before->RespTrans.begin(), before->RespTrans.end(), session.responses.RespTrans.begin()));
}

TEST_F(Markers, StandInRowsBelowTheHeadingsWithoutOverlap) {
  for (int m = 1; m <= 8; ++m) session.record.MarkerFreq[m] = m == 5 ? 0 : static_cast<f32>(m) * 1e6F;
  Show();
  f32 last = 7290;
  std::vector<std::string> numbers;
  for (const TextOp& text : Texts()) {
    if (text.text.size() != 1 || text.at.x > 1300 || text.at.y < 7290) continue;
    numbers.push_back(text.text);
    EXPECT_GE(text.at.y, last + session.plot.picture.TextHeight("0"));
    last = text.at.y;
  }
  EXPECT_EQ(numbers, (std::vector<std::string>{"1", "2", "3", "4", "6", "7", "8"}));
  const Scale scale = session.plot.picture.CurrentScale();
  EXPECT_LE(last + session.plot.picture.TextHeight("0"), scale.top + scale.height);
  EXPECT_EQ(session.plot.live.CurrentScale(), scale);
}

TEST_F(Markers, OutsideTheSweepHaveNoDelayAndNoTick) {
  session.record.MarkerFreq[1] = 2e8F;
  Show();
  const auto texts = Texts();
  const auto shows = [&texts](const std::string& text) {
    return std::any_of(texts.begin(), texts.end(), [&text](const TextOp& op) { return op.text == text; });
  };
  EXPECT_TRUE(shows("200M "));
  EXPECT_TRUE(shows("-----"));
  EXPECT_EQ(std::count_if(texts.begin(), texts.end(), [](const TextOp& op) { return op.text == "1"; }), 1);
}

// At 10 MHz, half way along the frame, and 3.52 dB below its top of 100 units a dB; VSWR 2 of 1 to 4.
TEST_F(Markers, HaveATickOnEachTrace) {
  session.record.MarkerFreq[2] = 1e7F;
  session.record.PlotCode = 13;
  Show();
  std::vector<Point> places;
  for (const TextOp& text : Texts()) {
    if (text.text == "2" && text.at.y < 7000) places.push_back(text.at);
  }
  std::erase_if(places, [](Point at) { return at.x < 2000 || at.x > 11000; });  // labels of the scales
  ASSERT_EQ(places.size(), 2U);
  EXPECT_NEAR(places[0].x, 6500 - 45, 1);
  EXPECT_NEAR(places[0].y, 5000 - 60, 1);
  EXPECT_NEAR(places[1].y, 1352 - 60, 1);
}

TEST_F(Markers, ChartsHaveTheRowsAlone) {
  session.record.MarkerFreq[2] = 1e7F;
  session.record.PlotCode = 11;
  Show();
  int ticks = 0;
  int rows = 0;
  for (const TextOp& text : Texts()) {
    if (text.text == "10M " && text.at.y > 7290) ++rows;
    if (text.text == "2" && text.at.x > 1300 && text.at.y < 7290 && std::fabs(text.at.y - 4000) > 200) ++ticks;
  }
  EXPECT_EQ(rows, 1);
  EXPECT_EQ(ticks, 0);
}

TEST_F(Markers, HiddenOnesLeaveThePlotAsItWas) {
  RedrawPlot(session);
  const Picture plain = session.plot.picture;
  session.record.MarkerFreq[1] = 1e7F;
  Show();
  EXPECT_FALSE(session.plot.picture == plain);
  session.record.MarkersShown = 0;
  RedrawPlot(session);
  EXPECT_EQ(session.plot.picture, plain);
}

}  // namespace
}  // namespace quilm
