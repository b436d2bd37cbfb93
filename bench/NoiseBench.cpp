// The noise bandwidth of 43 stages in 10,000 steps, beside the evaluation of its frequencies one by one.
//
//   build/bench/bin/bench-noise

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

#include "ByTurns.h"
#include "analysis/modAnalysis.h"
#include "core/ElementTypes.h"
#include "support/RandomLadder.h"
#include "timedomain/NoiseBandwidth.h"

namespace {

using namespace quilm;

constexpr int stages = 43;
constexpr NoiseSweep sweep{1e3F, 1e7F, 10000};

DesignRecord Ladder43() {
  constexpr i16 types[] = {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  std::mt19937 random(1);
  return RandomLadder(random, stages, types);
}

// The sum of power over the same frequencies.
f64 OneByOne(const DesignRecord& record) {
  const Ladder ladder = Compile(record, QualityFrequency(record, record));
  const f64 step = (f64{sweep.NoiseStop} - f64{sweep.NoiseStart}) / sweep.NoiseSteps;
  FrequencyResult result;
  f64 sum = 0;
  for (int i = 0; i < sweep.NoiseSteps; ++i) {
    const auto frequency = static_cast<f32>(f64{sweep.NoiseStart} + (i + 0.5) * step);
    AnalyzeFrequency(record, ladder, 0, 0, frequency, result);
    sum += std::pow(10.0, result.TransDB / 10);
  }
  return sum;
}

void NoiseBandwidth(benchmark::State& state) {
  const DesignRecord record = Ladder43();
  for (auto _ : state) benchmark::DoNotOptimize(ComputeNoiseBandwidth(record, sweep));
  Timed study{[&] { benchmark::DoNotOptimize(ComputeNoiseBandwidth(record, sweep)); }, 4};
  Timed single{[&] { benchmark::DoNotOptimize(OneByOne(record)); }, 1};
  ByTurns(30, study, single);
  state.counters["ms"] = study.seconds * 1e3;
  state.counters["ms_one_by_one"] = single.seconds * 1e3;
  state.counters["ratio"] = single.seconds / study.seconds;
}

BENCHMARK(NoiseBandwidth)->Unit(benchmark::kMillisecond);

}  // namespace
