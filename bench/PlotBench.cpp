// Drawing plots of 2,050 points, and the readout over them, into retained pictures.
//
//   build/bench/bin/bench-plot

#include <benchmark/benchmark.h>

#include <memory>

#include "analysis/modAnalysis.h"
#include "display/PlotFrame.h"
#include "display/SheetDrawing.h"
#include "display/modReadout.h"
#include "shell/Picture.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;

// A ladder with its sweep and a plot of it, in the mode of a sweep: 1 linear, 2 logarithmic.
struct SweptLadder {
  explicit SweptLadder(i16 plotCode, i16 sweepMode) {
    std::mt19937 random(1);
    record = RandomLadder(random, 11, AnalysableTypes());
    record.SweepMode = sweepMode;
    record.NrXints = 10;
    record.NrYints = 6;
    record.LossBottom = -60;
    record.ImpedanceTop = 100;
    record.SmithAspect = 1;
    record.PlotCode = plotCode;
    SweepLadder(record, *responses);
  }

  PlotSetup Setup() const { return {HorizontalAxis(record), record, {}, {}, 50}; }
  ResponseSpans Spans() const { return SpansOf(*responses, LastPoint(record)); }

  DesignRecord record;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
};

// A whole plot of the code and sweep mode given.
void DrawWhole(benchmark::State& state) {
  const SweptLadder ladder(static_cast<i16>(state.range(0)), static_cast<i16>(state.range(1)));
  AxisPlaces places;
  Picture picture;
  for (auto _ : state) {
    DrawSheet(ladder.Setup(), ladder.Spans(), places, picture);
    benchmark::DoNotOptimize(picture.Operations().size());
  }
}

// Its traces alone, as a trial adds them.
void AddTrial(benchmark::State& state) {
  const SweptLadder ladder(static_cast<i16>(state.range(0)), static_cast<i16>(state.range(1)));
  AxisPlaces places;
  Picture picture;
  for (auto _ : state) {
    picture.Clear();
    AddTraces(ladder.Setup(), ladder.Spans(), places, picture);
    benchmark::DoNotOptimize(picture.Operations().size());
  }
}

void UpdateReadout(benchmark::State& state) {
  const SweptLadder ladder(2, 2);
  Picture mark(plotScale);
  std::size_t index = 0;
  for (auto _ : state) {
    mark.Clear();
    DrawReadout(ladder.Setup(), ladder.Spans(), index, mark);
    index = (index + 1) % 2000;
    benchmark::DoNotOptimize(mark.Operations().size());
  }
}

BENCHMARK(DrawWhole)->ArgNames({"plot", "sweep"})->ArgsProduct({{2, 10, 11}, {1, 2}})->Unit(benchmark::kMicrosecond);
BENCHMARK(AddTrial)->ArgNames({"plot", "sweep"})->ArgsProduct({{2, 10, 11}, {1, 2}})->Unit(benchmark::kMicrosecond);
BENCHMARK(UpdateReadout)->Unit(benchmark::kMicrosecond);

}  // namespace
