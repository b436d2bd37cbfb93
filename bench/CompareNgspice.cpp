// The same ladder in the engine and in ngspice's ac analysis, in one process and one run: a sweep, and the trials of
// the optimiser and of Monte Carlo without a window.
//
//   build/bench/bin/bench-compare

#include <array>
#include <cstdio>
#include <memory>

#include "NgspiceAnalysis.h"
#include "TrialLadder.h"
#include "analysis/modAnalysis.h"
#include "core/Responses.h"
#include "optimise/MonteCarlo.h"
#include "optimise/Optimiser.h"

namespace {

using namespace quilm;

void Tell(const char* what, int stages, int points, f64 spice, f64 own) {
  std::printf("%s, %d stages, %d points: ngspice %.3f ms, engine %.4f ms, ratio %.0f\n", what, stages, points,
              spice * 1e3, own * 1e3, spice / own);
}

void CompareSweeps() {
  constexpr int points = 2050;
  constexpr int stages = 43;
  std::mt19937 random(1);
  const std::array<i16, 8> types = {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  DesignRecord record = RandomLadder(random, stages, types);
  const auto responses = std::make_unique<Responses>();
  const f64 engine = ShortestSeconds(300, [&] { SweepLadder(record, *responses); });
  NgspiceAnalysis spice(record);
  constexpr int runs = 5;
  const f64 seconds = ShortestSeconds(runs, [&] { spice.Analyze(points); });
  spice.Drop();
  Tell("a sweep", stages, points, seconds, engine);
}

// The mean of many trials, in the best of some rounds: all that a trial takes, the score included.
template <class Trials>
f64 TrialSeconds(Trials& trials) {
  constexpr int rounds = 6;
  constexpr int count = 200;
  return ShortestSeconds(rounds,
                         [&] {
                           for (int i = 0; i < count; ++i) trials.Trial();
                         }) /
         count;
}

void CompareTrials() {
  DesignRecord record = TrialLadder();
  const auto responses = std::make_unique<Responses>();
  UniformNumbers random;
  random.Seed(1);
  Optimiser optimiser(record, *responses, random);
  optimiser.Start();
  const f64 walk = TrialSeconds(optimiser);
  optimiser.WriteBest();
  MonteCarlo spread(record, *responses, random);
  const f64 trial = TrialSeconds(spread);
  NgspiceAnalysis spice(record);
  const f64 seconds = NgspiceTrialSeconds(spice, trialPoints);
  Tell("a trial of the optimiser", trialStages, trialPoints, seconds, walk);
  Tell("a trial of Monte Carlo", trialStages, trialPoints, seconds, trial);
}

}  // namespace

int main() {
  CompareSweeps();
  CompareTrials();
  return 0;
}
