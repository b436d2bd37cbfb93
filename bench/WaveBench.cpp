// Waves over a period: all their lines in one call of the engine against one line at a time, and the whole of a
// transient analysis with its drawing.
//
//   build/bench/bin/bench-waves

#include <benchmark/benchmark.h>

#include "WideLowpass.h"
#include "analysis/Kernel.h"
#include "analysis/modAnalysis.h"
#include "display/WaveDrawing.h"
#include "shell/Picture.h"
#include "timedomain/SpectralLines.h"
#include "timedomain/Waves.h"

namespace {

using namespace quilm;

// The lines of a squarewave, or all that a burst takes.
std::vector<f32> LinesOf(i16 waveform) {
  std::vector<f32> frequencies;
  if (waveform == squareWave) {
    for (int n = 1; n < 512; n += 2) frequencies.push_back(static_cast<f32>(n) * squareFreq);
    return frequencies;
  }
  for (int n = -256; n <= 256; ++n) frequencies.push_back(carrierFreq + static_cast<f32>(n) * squareFreq);
  return frequencies;
}

void LinesTogether(benchmark::State& state) {
  const DesignRecord record = WideLowpass();
  const std::vector<f32> frequencies = LinesOf(static_cast<i16>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(ResponseAtLines(record, frequencies).data());
  state.counters["lines"] = static_cast<f64>(frequencies.size());
}

void LinesOneByOne(benchmark::State& state) {
  const DesignRecord record = WideLowpass();
  const std::vector<f32> frequencies = LinesOf(static_cast<i16>(state.range(0)));
  for (auto _ : state) {
    const Ladder ladder = Compile(record, QualityFrequency(record, record));
    FrequencyResult result;
    for (const f32 frequency : frequencies) {
      AnalyzeFrequency(record, ladder, 0, 0, frequency, result);
      benchmark::DoNotOptimize(result.TransDB);
    }
  }
  state.counters["lines"] = static_cast<f64>(frequencies.size());
}

void Transient(benchmark::State& state) {
  const DesignRecord record = WideLowpass();
  const WaveEntries signal{static_cast<i16>(state.range(0)), 'B', squareFreq, carrierFreq};
  for (auto _ : state) benchmark::DoNotOptimize(ComputeWaves(record, signal).WaveNormal.data());
}

void TransientDrawn(benchmark::State& state) {
  const DesignRecord record = WideLowpass();
  const WaveEntries signal{static_cast<i16>(state.range(0)), 'B', squareFreq, carrierFreq};
  Picture picture;
  for (auto _ : state) {
    PlotWaves(ComputeWaves(record, signal), 2, {}, picture);
    benchmark::DoNotOptimize(picture.Operations().size());
  }
}

BENCHMARK(LinesTogether)->ArgName("waveform")->Arg(squareWave)->Arg(burstWave)->Unit(benchmark::kMicrosecond);
BENCHMARK(LinesOneByOne)->ArgName("waveform")->Arg(squareWave)->Arg(burstWave)->Unit(benchmark::kMicrosecond);
BENCHMARK(Transient)->ArgName("waveform")->DenseRange(squareWave, envelopeWave)->Unit(benchmark::kMicrosecond);
BENCHMARK(TransientDrawn)->ArgName("waveform")->DenseRange(squareWave, envelopeWave)->Unit(benchmark::kMicrosecond);

}  // namespace
