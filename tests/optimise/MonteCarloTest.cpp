#include "optimise/MonteCarlo.h"

#include <algorithm>
#include <vector>

#include "analysis/modAnalysis.h"
#include "optimise/TrialBench.h"

namespace quilm {
namespace {

class Spreading : public Trials {
 protected:
  Spreading() {
    random.Seed(1);
    ResetExtremes(*responses);
  }
};

TEST_F(Spreading, LeavesTheRecordAsItWasToTheBit) {
  record.ResponsesValid = 1;
  AddGoals(record);
  record.LimitsShown = 1;
  const DesignRecord before = record;
  MonteCarlo run(record, *responses, random);
  for (int i = 0; i < 50; ++i) {
    run.Trial();
    EXPECT_FALSE(record == before);
  }
  run.WriteNominal();
  EXPECT_TRUE(record == before);
}

// Not from the values of the trial before: after many trials a value is still within its tolerance.
TEST_F(Spreading, EachTrialStartsFromTheNominalValues) {
  const f32 nominal = record.stage[2].Lval.value;
  MonteCarlo run(record, *responses, random);
  f32 lowest = nominal;
  f32 highest = nominal;
  for (int i = 0; i < 500; ++i) {
    run.Trial();
    lowest = std::min(lowest, record.stage[2].Lval.value);
    highest = std::max(highest, record.stage[2].Lval.value);
  }
  EXPECT_GE(lowest, nominal * 0.949999F);
  EXPECT_LE(highest, nominal * 1.050001F);
  EXPECT_LT(lowest, nominal * 0.952F);
  EXPECT_GT(highest, nominal * 1.048F);
}

// Evenly over the tolerance: the mean of 2,000 uniform numbers lies within 5 of its deviations, 5 / sqrt(12 x 2000) of
// the whole width, and as many lie in the outer half of the tolerance as in the inner one.
TEST_F(Spreading, TheSpreadIsUniform) {
  const f64 nominal = record.stage[2].Lval.value;
  MonteCarlo run(record, *responses, random);
  f64 sum = 0;
  int outer = 0;
  for (int i = 0; i < 2000; ++i) {
    run.Trial();
    const f64 place = (f64{record.stage[2].Lval.value} / nominal - 1) / 0.05;  // -1..1
    sum += place;
    if (std::abs(place) > 0.5) ++outer;
  }
  EXPECT_NEAR(sum / 2000, 0, 2 * 5 / std::sqrt(12.0 * 2000));
  EXPECT_NEAR(outer, 1000, 5 * std::sqrt(2000 * 0.25));
}

TEST_F(Spreading, TheEnvelopeIsThatOfTheTrialsAlone) {
  MonteCarlo run(record, *responses, random);
  std::vector<ResponseArray> seen;
  for (int i = 0; i < 20; ++i) {
    run.Trial();
    seen.push_back(responses->RespReturn);
  }
  for (int i = 0; i <= 100; ++i) {
    const auto [low, high] = std::minmax_element(
        seen.begin(), seen.end(), [i](const ResponseArray& a, const ResponseArray& b) { return a[i] < b[i]; });
    EXPECT_EQ(responses->MinReturn[i], (*low)[i]);
    EXPECT_EQ(responses->MaxReturn[i], (*high)[i]);
  }
}

TEST_F(Spreading, AnEnvelopeBeginsWithNothingInIt) {
  SweepLadder(record, *responses);
  ResetExtremes(*responses);
  for (const int i : {0, 100, responseBound}) {
    for (const ResponseArray* array : {&responses->MaxTrans, &responses->MaxAngle, &responses->MaxDelay,
                                       &responses->MaxReturn, &responses->MaxZin, &responses->MaxZinAngle}) {
      EXPECT_EQ((*array)[i], -1e10F);
    }
    EXPECT_EQ(responses->MaxVSWR[i], 0);
    for (const ResponseArray* array :
         {&responses->MinTrans, &responses->MinAngle, &responses->MinDelay, &responses->MinReturn, &responses->MinVSWR,
          &responses->MinZin, &responses->MinZinAngle}) {
      EXPECT_EQ((*array)[i], 1e10F);
    }
  }
}

// Which trials meet the areas is told here from the responses themselves.
TEST_F(Spreading, TheTrialsThatMeetAllAreasAreCounted) {
  AddArea(record, 5, 1e5F, 9.6e5F, -2.5F, -300);
  AddArea(record, 6, 1.9e6F, 1e7F, 0, -16.8F);
  record.LimitsShown = 1;
  MonteCarlo run(record, *responses, random);
  int met = 0;
  for (int trial = 0; trial < 200; ++trial) {
    run.Trial();
    bool meets = true;
    for (int i = 0; i <= 100; ++i) {
      const f32 f = responses->RespFreq[i];
      if (f <= 9.6e5F && responses->RespTrans[i] < -2.5F) meets = false;
      if (f >= 1.9e6F && responses->RespTrans[i] > -16.8F) meets = false;
    }
    if (meets) ++met;
  }
  EXPECT_TRUE(run.HasLimits());
  EXPECT_EQ(run.MetCount(), met);
  EXPECT_GT(met, 10);
  EXPECT_LT(met, 190);
}

TEST_F(Spreading, AreasThatAreHiddenDoNotCount) {
  AddGoals(record);
  MonteCarlo run(record, *responses, random);
  run.Trial();
  EXPECT_FALSE(run.HasLimits());
}

TEST_F(Spreading, ThereAreNoLimitsWithoutAreas) {
  record.LimitsShown = 1;
  MonteCarlo run(record, *responses, random);
  run.Trial();
  EXPECT_FALSE(run.HasLimits());
}

TEST_F(Spreading, ASeedReplaysARun) {
  std::vector<ResponseArray> ends;
  for (int i = 0; i < 2; ++i) {
    random.Seed(42);
    ResetExtremes(*responses);
    MonteCarlo run(record, *responses, random);
    while (run.TrialCount() < 30) run.Trial();
    run.WriteNominal();
    ends.push_back(responses->MaxTrans);
  }
  EXPECT_EQ(ends[0], ends[1]);
}

}  // namespace
}  // namespace quilm
