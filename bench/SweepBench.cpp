// A sweep with all nine outputs, coefficients made anew each time, beside the plain evaluation of the formulas.
//
//   build/bench/bin/bench-sweep
//
// "ratio" is the plain evaluation's time over the engine's, both measured in this run; "ns_per_point_stage" shows that
// the cost grows with stages times points.

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <memory>

#include "analysis/modAnalysis.h"
#include "support/PlainAnalysis.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;
using Clock = std::chrono::steady_clock;

DesignRecord MixedLadder(int stages, int points) {
  static constexpr std::array<i16, 8> types = {SeriesL,   ShuntL,   SeriesC,   ShuntC,
                                               SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, stages, types);
  record.NrIntervals = static_cast<f32>(points - 1);
  return record;
}

template <class Act>
f64 ShortestSeconds(int runs, Act act) {
  f64 shortest = 1e9;
  for (int i = 0; i < runs; ++i) {
    const auto start = Clock::now();
    act();
    shortest = std::min(shortest, std::chrono::duration<f64>(Clock::now() - start).count());
  }
  return shortest;
}

void Sweep(benchmark::State& state) {
  const int stages = static_cast<int>(state.range(0));
  const int points = static_cast<int>(state.range(1));
  DesignRecord record = MixedLadder(stages, points);
  const auto responses = std::make_unique<Responses>();
  for (auto _ : state) {
    SweepLadder(record, *responses);
    benchmark::DoNotOptimize(responses->RespTrans[0]);
  }
  const f64 engine = ShortestSeconds(200, [&] { SweepLadder(record, *responses); });
  const f64 plainTime = ShortestSeconds(10, [&] { plain::Sweep(record, responses->Fq, *responses); });
  state.counters["ratio"] = plainTime / engine;
  state.counters["ns_per_point_stage"] = engine * 1e9 / (stages * points);
}

BENCHMARK(Sweep)->ArgNames({"stages", "points"})->ArgsProduct({{5, 11, 21, 43}, {201, 1001, 2050}});

}  // namespace
