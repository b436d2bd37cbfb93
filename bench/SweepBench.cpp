// A sweep with all its outputs, the ladder compiled anew each time, beside the plain evaluation of the formulas.
//
//   build/bench/bin/bench-sweep
//
// Every vector width that this machine has is measured; QUILM_VECTORS=512, 256 or 128 keeps to one. "ratio" is the
// plain evaluation's time over the engine's. Both are taken in short rounds by turns, the least of each, so that what
// else runs on the machine weighs on both alike. "ns_per_point_stage" shows that the cost grows with stages times
// points.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <memory>

#include "ByTurns.h"
#include "analysis/modAnalysis.h"
#include "support/PlainAnalysis.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;

constexpr std::array<i16, 8> lumpedTypes = {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};

DesignRecord LadderOf(std::span<const i16> types, int stages, int points) {
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, stages, types);
  record.NrIntervals = static_cast<f32>(points - 1);
  return record;
}

// Every type by turns, the same number of each but for one.
DesignRecord LadderOfAllTypes(int stages, int points) {
  DesignRecord record = LadderOf(AnalysableTypes(), stages, points);
  const std::span<const i16> types = AnalysableTypes();
  for (int s = 1; s <= stages; ++s) record.stage[s].ElementType = types[static_cast<std::size_t>(s - 1) % types.size()];
  return record;
}

void Sweep(benchmark::State& state) {
  const auto width = static_cast<VectorWidth>(state.range(0));
  const int stages = static_cast<int>(state.range(1));
  const int points = static_cast<int>(state.range(2));
  DesignRecord record = LadderOf(lumpedTypes, stages, points);
  const auto responses = std::make_unique<Responses>();
  const auto reference = std::make_unique<Responses>();
  for (auto _ : state) {
    SweepLadder(record, *responses, width);
    benchmark::DoNotOptimize(responses->RespTrans[0]);
  }
  Timed engine{[&] { SweepLadder(record, *responses, width); }, 8};
  Timed plain{[&] { plain::Sweep(record, responses->Fq, *reference); }, 2};
  ByTurns(60, engine, plain);
  state.counters["ratio"] = plain.seconds / engine.seconds;
  state.counters["us_per_sweep"] = engine.seconds * 1e6;
  state.counters["us_plain"] = plain.seconds * 1e6;
  state.counters["ns_per_point_stage"] = engine.seconds * 1e9 / (stages * points);
}

// What lines, stubs, transformers and coupled coils cost beside the lumped stages of the other benchmark.
void AllTypes(benchmark::State& state) {
  const auto width = static_cast<VectorWidth>(state.range(0));
  const int stages = static_cast<int>(state.range(1));
  const int points = static_cast<int>(state.range(2));
  DesignRecord all = LadderOfAllTypes(stages, points);
  DesignRecord lumped = LadderOf(lumpedTypes, stages, points);
  const auto responses = std::make_unique<Responses>();
  for (auto _ : state) {
    SweepLadder(all, *responses, width);
    benchmark::DoNotOptimize(responses->RespTrans[0]);
  }
  Timed first{[&] { SweepLadder(all, *responses, width); }, 8};
  Timed second{[&] { SweepLadder(lumped, *responses, width); }, 8};
  ByTurns(100, first, second);
  state.counters["times_lumped"] = first.seconds / second.seconds;
  state.counters["us_per_sweep"] = first.seconds * 1e6;
}

std::vector<VectorWidth> MeasuredWidths() {
  if (std::getenv("QUILM_VECTORS") != nullptr) return {DefaultWidth()};
  std::vector<VectorWidth> widths = {VectorWidth::Bits512, VectorWidth::Bits256, VectorWidth::Baseline};
  std::erase_if(widths, [](VectorWidth width) { return !HasVectors(width); });
  return widths;
}

void EachWidth(benchmark::internal::Benchmark* bench, const std::vector<int>& stages, const std::vector<int>& points) {
  bench->ArgNames({"width", "stages", "points"});
  for (const VectorWidth width : MeasuredWidths()) {
    for (const int s : stages) {
      for (const int p : points) bench->Args({static_cast<int>(width), s, p});
    }
  }
}

BENCHMARK(Sweep)->Apply([](auto* bench) { EachWidth(bench, {5, 11, 21, 43}, {201, 1001, 2050}); });
BENCHMARK(AllTypes)->Apply([](auto* bench) { EachWidth(bench, {43}, {2050}); });

}  // namespace
