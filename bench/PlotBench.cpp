// Drawing a plot of 2,050 points into a retained picture.
//
//   build/bench/bin/bench-plot

#include <benchmark/benchmark.h>

#include <memory>

#include "analysis/modAnalysis.h"
#include "display/modPlot.h"
#include "shell/Picture.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;

void DrawTwoTraces(benchmark::State& state) {
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, 11, AnalysableTypes());
  record.NrXints = 10;
  record.NrYints = 6;
  record.LossBottom = -60;
  const auto responses = std::make_unique<Responses>();
  SweepLadder(record, *responses);
  Picture picture;
  for (auto _ : state) {
    DrawPlot(record, *responses, 2, TraceColors{}, picture);
    benchmark::DoNotOptimize(picture.Revision());
  }
}

BENCHMARK(DrawTwoTraces)->Unit(benchmark::kMicrosecond);

}  // namespace
