#include "timedomain/NoiseBandwidth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/DesignRecord.h"
#include "core/ElementTypes.h"
#include "timedomain/SpectralLines.h"

namespace quilm {

namespace {

f64 StepOf(const NoiseSweep& sweep) {
  return (static_cast<f64>(sweep.NoiseStop) - static_cast<f64>(sweep.NoiseStart)) / sweep.NoiseSteps;
}

// The middle of each step, counted from the start: added up in 32 bits ten thousand steps would go astray.
std::vector<f32> Midpoints(const NoiseSweep& sweep) {
  const f64 NoiseStep = StepOf(sweep);
  std::vector<f32> frequencies(static_cast<std::size_t>(sweep.NoiseSteps));
  f64 steps = 0.5;
  for (f32& frequency : frequencies) {
    frequency = static_cast<f32>(static_cast<f64>(sweep.NoiseStart) + steps * NoiseStep);
    steps += 1;
  }
  return frequencies;
}

std::vector<f64> PowerAt(const DesignRecord& record, const std::vector<f32>& frequencies) {
  std::vector<f64> power;
  power.reserve(frequencies.size());
  for (const LineResponse& line : ResponseAtLines(record, frequencies))
    power.push_back(std::pow(10.0, line.TransDB / 10));
  return power;
}

// The first and the last frequency at which power exceeds a part of the peak.
struct Edges {
  f64 least;
  f32& low;
  f32& high;
  bool found = false;

  void Take(f64 power, f32 frequency) {
    if (!(power > least)) return;
    if (!found) low = frequency;
    found = true;
    high = frequency;
  }
};

}  // namespace

std::optional<NoiseBand> ComputeNoiseBandwidth(const DesignRecord& record, const NoiseSweep& sweep) {
  const std::vector<f32> frequencies = Midpoints(sweep);
  const std::vector<f64> power = PowerAt(record, frequencies);
  NoiseBand band;
  for (std::size_t i = 0; i < power.size(); ++i) {
    const f32 P = static_cast<f32>(power[i]);
    if (P <= band.NoisePeak) continue;
    band.NoisePeak = P;
    band.NoisePeakFreq = frequencies[i];
  }
  if (band.NoisePeak == 0) return std::nullopt;
  const f64 peak = band.NoisePeak;
  Edges tenth{0.001 * peak, band.NoiseLow01, band.NoiseHigh01};
  Edges one{0.01 * peak, band.NoiseLow1, band.NoiseHigh1};
  f64 sum = 0;
  for (std::size_t i = 0; i < power.size(); ++i) {
    tenth.Take(power[i], frequencies[i]);
    one.Take(power[i], frequencies[i]);
    sum += power[i];
  }
  band.NoiseBandwidth = static_cast<f32>(sum * StepOf(sweep) / peak);
  return band;
}

bool LooksLikeLowpass(const Network& network) {
  // A reactance in the line stands for a capacitor as well as for an inductor.
  constexpr std::array<i16, 7> blocking = {ShuntL,         SeriesC,        SeriesSLC,      ShuntPLC,
                                           SeriesOpenStub, ShuntShortStub, SeriesReactance};
  for (int s = 1; s <= network.Stages; ++s) {
    if (std::find(blocking.begin(), blocking.end(), network.stage[s].ElementType) != blocking.end()) return false;
  }
  return true;
}

}  // namespace quilm
