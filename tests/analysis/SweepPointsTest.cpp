// The sweep in blocks and vectors beside the analysis point by point: the same bits in every array.

#include "analysis/SweepPoints.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "analysis/modAnalysis.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

const std::vector<VectorWidth>& Widths() {
  static const std::vector<VectorWidth> widths = [] {
    std::vector<VectorWidth> present = {VectorWidth::Baseline, VectorWidth::Bits256, VectorWidth::Bits512};
    std::erase_if(present, [](VectorWidth width) { return !HasVectors(width); });
    return present;
  }();
  return widths;
}

// What a point-by-point analysis leaves, each point given the frequency and angle of the one before.
struct PointByPoint {
  std::vector<f32> trans, angle, delay, phase, loss, vswr, zin, zinAngle;
  f64 peak = -300;
  f64 peakFrequency = 0;

  PointByPoint(const DesignRecord& record, const Ladder& ladder, std::span<const f32> frequencies) {
    FrequencyResult result;
    f32 PrevFreq = 0;
    f32 PrevAngle = 0;
    f64 sum = 0;
    for (const f32 frequency : frequencies) {
      AnalyzeFrequency(record, ladder, PrevFreq, PrevAngle, frequency, result);
      sum += result.PhaseStep;
      trans.push_back(static_cast<f32>(result.TransDB));
      angle.push_back(static_cast<f32>(result.Angle));
      delay.push_back(result.Delay);
      phase.push_back(static_cast<f32>(sum));
      loss.push_back(static_cast<f32>(result.ReturnDB));
      vswr.push_back(static_cast<f32>(result.VSWR));
      zin.push_back(static_cast<f32>(result.ZinMag));
      zinAngle.push_back(static_cast<f32>(-result.ZinAngleRaw));
      PrevFreq = frequency;
      PrevAngle = angle.back();
      if (static_cast<f64>(trans.back()) > peak) {
        peak = static_cast<f64>(trans.back());
        peakFrequency = static_cast<f64>(frequency);
      }
    }
  }
};

// The first index at which the arrays differ in a bit, -1 for none. The sweep extrapolates the delay at its first
// point.
int FirstDifference(const ResponseArray& swept, const std::vector<f32>& expected, std::size_t from = 0) {
  for (std::size_t i = from; i < expected.size(); ++i) {
    if (std::memcmp(swept.data() + i, &expected[i], sizeof(f32)) != 0) return static_cast<int>(i);
  }
  return -1;
}

void ExpectSame(const Responses& r, const PointByPoint& points, const std::string& what) {
  EXPECT_EQ(FirstDifference(r.RespTrans, points.trans), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespAngle, points.angle), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespDelay, points.delay, 1), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespPhase, points.phase), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespReturn, points.loss), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespVSWR, points.vswr), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespZin, points.zin), -1) << what;
  EXPECT_EQ(FirstDifference(r.RespZinAngle, points.zinAngle), -1) << what;
  EXPECT_EQ(r.TransPeak, points.peak) << what;
  EXPECT_EQ(r.TransPeakFreq, points.peakFrequency) << what;
}

// Sweeps at every width and compares.
void ExpectEveryWidthTheSame(DesignRecord record, const std::string& what) {
  auto r = std::make_unique<Responses>();
  ASSERT_EQ(SweepLadder(record, *r), "") << what;
  const std::span<const f32> frequencies{r->RespFreq.data(), static_cast<std::size_t>(r->table.points)};
  const PointByPoint points(record, Compile(record, r->Fq), frequencies);
  for (const VectorWidth width : Widths()) {
    auto swept = std::make_unique<Responses>();
    ASSERT_EQ(SweepLadder(record, *swept, width), "") << what;
    ExpectSame(*swept, points, what + ", width " + std::to_string(static_cast<int>(width)));
  }
}

TEST(SweepPoints, AnyNumberOfPoints) {
  std::mt19937 random(3);
  const DesignRecord ladder = RandomLadder(random, 12, AnalysableTypes());
  for (int count = 1; count <= 600; ++count) {
    DesignRecord record = ladder;
    record.NrIntervals = static_cast<f32>(count - 1);
    if (count == 1) record.NrIntervals = 0.3F;
    ExpectEveryWidthTheSame(record, std::to_string(count) + " points");
  }
}

TEST(SweepPoints, AnyLadder) {
  std::mt19937 random(20260103);
  for (int trial = 0; trial < 60; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial * 5 % stagesLimit, AnalysableTypes());
    record.NrIntervals = static_cast<f32>(300 + trial);
    record.SweepMode = static_cast<i16>(1 + trial % 2);
    if (trial % 3 == 0) record.Qind[1] = -record.Qind[1];
    if (trial % 7 == 0) record.stage[1].Lval.value *= -1;
    ExpectEveryWidthTheSame(record, "trial " + std::to_string(trial));
  }
}

// 0 Hz stops all these stages; whole numbers of hertz make the frequency exact.
DesignRecord FailingAt(int point, int points) {
  std::mt19937 random(11);
  DesignRecord record = RandomLadder(random, 9, std::vector<i16>{SeriesC, ShuntC, SeriesPLC, ShuntSLC});
  record.SweepMode = 1;
  record.Fstart = static_cast<f32>(-65536 * point);
  record.Fstop = static_cast<f32>(65536 * (points - 1 - point));
  record.NrIntervals = static_cast<f32>(points - 1);
  return record;
}

TEST(SweepPoints, AFailingPointAnywhereInABlock) {
  constexpr int points = 600;
  for (const int at : {0, 1, 7, 8, 31, 32, 100, 254, 255, 256, 257, 511, 512, 513, 598, 599}) {
    const DesignRecord record = FailingAt(at, points);
    auto r = std::make_unique<Responses>();
    DesignRecord swept = record;
    ASSERT_EQ(SweepLadder(swept, *r), "");
    ASSERT_EQ(r->RespFreq[at], 0);
    if (at > 0) {
      EXPECT_EQ(r->RespZin[at], r->RespZin[at - 1]);
    }
    ExpectEveryWidthTheSame(record, "failing at " + std::to_string(at));
  }
}

// A negative resistance that takes up just what the load draws: no current enters the network, at any frequency.
TEST(SweepPoints, PointsWithoutInputCurrentKeepTheTransmission) {
  std::mt19937 random(5);
  DesignRecord record = RandomLadder(random, 1, std::vector<i16>{ShuntR});
  record.NrIntervals = 300;
  record.Rload[1] = 64;
  record.stage[1].Rval.value = -64;
  ExpectEveryWidthTheSame(record, "no input current");
  auto r = std::make_unique<Responses>();
  SweepLadder(record, *r);
  EXPECT_NE(r->RespTrans[200], 0);
  EXPECT_EQ(r->RespZin[200], 0);
}

TEST(SweepPoints, ALadderThatFailsEverywhereIsZero) {
  std::mt19937 random(5);
  DesignRecord record = RandomLadder(random, 5, std::vector<i16>{ShuntL});
  record.Qind[1] = 0;
  record.NrIntervals = 300;
  ExpectEveryWidthTheSame(record, "Qind 0");
}

// Tanks whose reactances cancel at a point of the sweep as nearly as 32-bit parts and frequencies allow: within 1e-12
// the point is looked at alone.
TEST(SweepPoints, ResonanceOnThePoints) {
  std::mt19937 random(20260107);
  std::uniform_real_distribution<f32> inductance(0.02F, 0.04F);
  DesignRecord record = FailingAt(0, 2);
  record.Stages = 1;
  record.stage[1].Rval.value = 50;
  record.Qind[1] = record.Qcap[1] = 1e30F;
  record.Fstart = record.Fstop = 1;
  const f64 w = AngularFrequency(1);
  int near = 0;
  for (int i = 0; i < 2000000; ++i) {
    const f32 L = inductance(random);
    const f32 C = static_cast<f32>(1 / (w * w * static_cast<f64>(L)));
    if (std::fabs(static_cast<f64>(L) * static_cast<f64>(C) * w * w - 1) > 5e-13) continue;
    ++near;
    record.stage[1].Lval.value = L;
    record.stage[1].Cval.value = C;
    for (const i16 type : {SeriesPLC, ShuntPLC, SeriesRLC}) {
      record.stage[1].ElementType = type;
      ExpectEveryWidthTheSame(record, "type " + std::to_string(type) + ", " + std::to_string(i));
    }
  }
  EXPECT_GT(near, 0);
}

// Beyond 10^6 radians the library's functions take over, point by point.
TEST(SweepPoints, LinesOfVeryManyTurns) {
  std::mt19937 random(8);
  for (const i16 type : {TransLine, SeriesShortStub, SeriesOpenStub, ShuntShortStub, ShuntOpenStub}) {
    DesignRecord record = RandomLadder(random, 2, std::vector<i16>{type});
    record.stage[1].TLval.freq = 1;
    record.stage[2].TLval.freq = 1e-6F;
    record.NrIntervals = 400;
    ExpectEveryWidthTheSame(record, "type " + std::to_string(type));
  }
}

TEST(SweepPoints, TheSecondSweepEqualsTheFirst) {
  std::mt19937 random(21);
  DesignRecord record = RandomLadder(random, 20, AnalysableTypes());
  DesignRecord other = RandomLadder(random, 7, AnalysableTypes());
  auto first = std::make_unique<Responses>();
  auto second = std::make_unique<Responses>();
  SweepLadder(record, *first);
  SweepLadder(other, *second);
  SweepLadder(record, *second);
  for (const auto array : {&Responses::RespFreq, &Responses::RespTrans, &Responses::RespAngle, &Responses::RespDelay,
                           &Responses::RespPhase, &Responses::RespReturn, &Responses::RespVSWR, &Responses::RespZin,
                           &Responses::RespZinAngle}) {
    EXPECT_TRUE((*first).*array == (*second).*array);
  }
  EXPECT_EQ(first->TransPeak, second->TransPeak);
}

// Beyond the last point nothing is written, however wide the vectors.
TEST(SweepPoints, NothingIsWrittenBeyondTheLastPoint) {
  std::mt19937 random(2);
  DesignRecord record = RandomLadder(random, 5, AnalysableTypes());
  record.NrIntervals = 300;
  for (const VectorWidth width : Widths()) {
    auto r = std::make_unique<Responses>();
    for (const auto array : {&Responses::RespFreq, &Responses::RespTrans, &Responses::RespAngle, &Responses::RespDelay,
                             &Responses::RespPhase, &Responses::RespReturn, &Responses::RespVSWR, &Responses::RespZin,
                             &Responses::RespZinAngle, &Responses::MaxTrans, &Responses::MinZinAngle}) {
      ((*r).*array).Fill(-7);
    }
    SweepLadder(record, *r, width);
    for (const auto array : {&Responses::RespFreq, &Responses::RespTrans, &Responses::RespAngle, &Responses::RespDelay,
                             &Responses::RespPhase, &Responses::RespReturn, &Responses::RespVSWR, &Responses::RespZin,
                             &Responses::RespZinAngle, &Responses::MaxTrans, &Responses::MinZinAngle}) {
      const f32* values = ((*r).*array).data();
      EXPECT_TRUE(std::all_of(values + 301, values + responseBound + 1, [](f32 x) { return x == -7; }));
    }
  }
}

}  // namespace
}  // namespace quilm
