#include "optimise/Optimiser.h"

#include <vector>

#include "analysis/modAnalysis.h"
#include "optimise/TrialBench.h"

namespace quilm {
namespace {

class Optimising : public Trials {
 protected:
  Optimising() {
    AddGoals(record);
    random.Seed(1);
  }

  // Runs to the end, or for so many trials.
  void Run(Optimiser& optimiser, int most = Optimiser::mostTrials) const {
    ASSERT_EQ(optimiser.Start(), "");
    while (optimiser.GoesOn() && optimiser.TrialCount() < most) ASSERT_EQ(optimiser.Trial(), "");
    optimiser.WriteBest();
  }

  // The error of the design as it stands, swept afresh.
  f32 ErrorNow() const {
    DesignRecord copy = record;
    const auto fresh = std::make_unique<Responses>();
    SweepLadder(copy, *fresh);
    return LimitScore(copy, copy.DelayTop, SweptFrequencies(*fresh)).GetError(*fresh);
  }
};

TEST_F(Optimising, BringsTheResponseCloserToTheAreas) {
  Optimiser optimiser(record, *responses, random);
  Run(optimiser, 500);
  EXPECT_GT(optimiser.StartError(), 1);
  EXPECT_LT(optimiser.BestError(), optimiser.StartError() / 2);
  EXPECT_GT(optimiser.BetterCount(), 0);
}

TEST_F(Optimising, LeavesTheValuesOfTheBestTrial) {
  Optimiser optimiser(record, *responses, random);
  Run(optimiser, 200);
  EXPECT_EQ(ErrorNow(), optimiser.BestError());
}

TEST_F(Optimising, TheBestErrorNeverRises) {
  Optimiser optimiser(record, *responses, random);
  optimiser.Start();
  for (int i = 0; i < 300 && optimiser.GoesOn(); ++i) {
    const f32 best = optimiser.BestError();
    const f32 better = optimiser.BetterCount();
    optimiser.Trial();
    EXPECT_EQ(optimiser.BestError() < best, optimiser.BetterCount() == better + 1);
    EXPECT_LE(optimiser.BestError(), best);
  }
}

// A hair's breadth above the best values, not above those of the trial before: all trials lie within the travel of the
// best, which for this stepsize is one per cent.
TEST_F(Optimising, EachTrialStartsFromTheBest) {
  Optimiser optimiser(record, *responses, random);
  optimiser.Start();
  f32 bestC = record.stage[1].Cval.value;
  for (int i = 0; i < 300 && optimiser.GoesOn(); ++i) {
    const f32 better = optimiser.BetterCount();
    optimiser.Trial();
    EXPECT_NEAR(record.stage[1].Cval.value, bestC, bestC * 0.010001F);
    if (optimiser.BetterCount() > better) bestC = record.stage[1].Cval.value;
  }
}

TEST_F(Optimising, AResponseThatMeetsAllAreasNeedsNoTrial) {
  record.LimitCount[1] = 0;
  AddArea(record, 5, 1e5F, 2e5F, -3, -300);
  AddArea(record, 6, 9e6F, 1e7F, 0, -20);
  const Network before = record;
  Optimiser optimiser(record, *responses, random);
  Run(optimiser);
  EXPECT_EQ(optimiser.TrialCount(), 0);
  EXPECT_EQ(optimiser.ErrorSum(), 0);
  EXPECT_EQ(static_cast<const Network&>(record), before);
}

// The goal lies within reach, so the run ends before its last trial with the error that the scale can show.
TEST_F(Optimising, EndsAtTheGoal) {
  record.LimitCount[1] = 0;
  AddArea(record, 5, 1e5F, 9.6e5F, -2.4F, -300);
  AddArea(record, 6, 1.9e6F, 1e7F, 0, -17.5F);
  Optimiser optimiser(record, *responses, random);
  Run(optimiser);
  EXPECT_GT(optimiser.TrialCount(), 0);
  EXPECT_LT(optimiser.TrialCount(), Optimiser::mostTrials);
  EXPECT_LT(optimiser.BestError(), 0.0102);
  EXPECT_GE(optimiser.ErrorSum(), 0.01F);
  EXPECT_LT(optimiser.ErrorSum(), 0.0102);
  EXPECT_FALSE(optimiser.GoesOn());
}

TEST_F(Optimising, EndsAfter2000Trials) {
  AddArea(record, 5, 1e5F, 1e7F, -1, -300);  // no lowpass can
  AddArea(record, 6, 1e5F, 1e7F, 0, -50);
  Optimiser optimiser(record, *responses, random);
  Run(optimiser);
  EXPECT_EQ(optimiser.TrialCount(), 2000);
}

TEST_F(Optimising, AStopAtTheFirstTrialLeavesTheStartUnlessItWasBetter) {
  for (const unsigned seed : {1U, 2U, 3U, 4U, 5U, 6U}) {
    record = SmallDesign(5);
    AddGoals(record);
    const Network before = record;
    random.Seed(seed);
    Optimiser optimiser(record, *responses, random);
    optimiser.Start();
    optimiser.Trial();
    const Network tried = record;
    optimiser.WriteBest();
    EXPECT_EQ(static_cast<const Network&>(record), optimiser.BetterCount() == 1 ? tried : before) << seed;
  }
}

TEST_F(Optimising, ASeedReplaysARun) {
  const DesignRecord start = record;
  std::vector<Network> ends;
  for (int i = 0; i < 2; ++i) {
    record = start;
    random.Seed(42);
    Optimiser optimiser(record, *responses, random);
    Run(optimiser, 300);
    ends.push_back(record);
  }
  EXPECT_EQ(ends[0], ends[1]);
  EXPECT_NE(ends[0], static_cast<const Network&>(start));
}

TEST_F(Optimising, TheResponsesStayThoseOfTheLastTrial) {
  AddArea(record, 5, 1e5F, 1e7F, -1, -300);
  Optimiser optimiser(record, *responses, random);
  optimiser.Start();
  while (optimiser.TrialCount() < 20) optimiser.Trial();
  const ResponseArray last = responses->RespTrans;
  optimiser.WriteBest();
  EXPECT_EQ(responses->RespTrans, last);
  EXPECT_EQ(record.ResponsesValid, 1);
}

TEST_F(Optimising, FrequenciesAreWorkedOutOnce) {
  Optimiser optimiser(record, *responses, random);
  optimiser.Start();
  responses->table.frequency[50] += 1;  // a table made anew would lose the mark
  const f32 marked = responses->table.frequency[50];
  optimiser.Trial();
  EXPECT_EQ(responses->RespFreq[50], marked);
}

TEST_F(Optimising, ASweepThatCannotBeMadeIsToldByItsMark) {
  record.NrIntervals = 5000;
  Optimiser optimiser(record, *responses, random);
  EXPECT_EQ(optimiser.Start(), "48");
  record.NrIntervals = 100;
  EXPECT_EQ(optimiser.Start(), "");
  record.NrIntervals = 5000;
  EXPECT_EQ(optimiser.Trial(), "48");
  optimiser.WriteBest();
  EXPECT_EQ(record.stage[2].Lval, SmallDesign(5).stage[2].Lval);
}

}  // namespace
}  // namespace quilm
