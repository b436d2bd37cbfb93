// Drawing plots of 2,050 points, and the readout over them, into retained pictures.
//
//   build/bench/bin/bench-plot

#include <benchmark/benchmark.h>

#include <memory>

#include "analysis/modAnalysis.h"
#include "display/PlotFrame.h"
#include "display/modPlot.h"
#include "display/modReadout.h"
#include "display/modSmith.h"
#include "shell/Picture.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;

DesignRecord SweptLadder(Responses& responses) {
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, 11, AnalysableTypes());
  record.NrXints = 10;
  record.NrYints = 6;
  record.LossBottom = -60;
  record.Rstandard = 50;
  record.SmithAspect = 1;
  record.PlotCode = 2;
  SweepLadder(record, responses);
  return record;
}

void DrawTwoTraces(benchmark::State& state) {
  const auto responses = std::make_unique<Responses>();
  const DesignRecord record = SweptLadder(*responses);
  Picture picture;
  for (auto _ : state) {
    DrawPlot(record, *responses, 2, TraceColors{}, picture);
    benchmark::DoNotOptimize(picture.Operations().size());
  }
}

void DrawSmith(benchmark::State& state) {
  const auto responses = std::make_unique<Responses>();
  const DesignRecord record = SweptLadder(*responses);
  Picture picture;
  for (auto _ : state) {
    DrawChart(record, *responses, smithCode, SmithView{}, TraceColors{}, picture);
    benchmark::DoNotOptimize(picture.Operations().size());
  }
}

void UpdateReadout(benchmark::State& state) {
  const auto responses = std::make_unique<Responses>();
  const DesignRecord record = SweptLadder(*responses);
  Picture mark(plotScale);
  i16 index = 0;
  for (auto _ : state) {
    mark.Clear();
    DrawReadout(record, *responses, SmithView{}, index, mark);
    index = static_cast<i16>((index + 1) % 2000);
    benchmark::DoNotOptimize(mark.Operations().size());
  }
}

BENCHMARK(DrawTwoTraces)->Unit(benchmark::kMicrosecond);
BENCHMARK(DrawSmith)->Unit(benchmark::kMicrosecond);
BENCHMARK(UpdateReadout)->Unit(benchmark::kMicrosecond);

}  // namespace
