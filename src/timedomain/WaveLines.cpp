#include "timedomain/WaveLines.h"

#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "timedomain/SpectralLines.h"

namespace quilm {

namespace {

WaveLine LineOf(const LineResponse& response, f64 weight, NumericFaultScope& scope) {
  return {scope.Store(VoltageRatio(response) * weight), static_cast<f32>(response.Angle)};
}

f32 Frequency(f64 hertz) { return static_cast<f32>(hertz); }

}  // namespace

std::vector<WaveLine> SquarewaveLines(const DesignRecord& record, f32 SquareFreq) {
  constexpr f64 leastSeen = 0.001;
  constexpr int smallEnough = 5;
  std::vector<f32> frequencies;
  for (int h = 1; h < squareLinesEnd; h += 2) frequencies.push_back(Frequency(h * static_cast<f64>(SquareFreq)));
  const std::vector<LineResponse> responses = ResponseAtLines(record, frequencies);
  std::vector<WaveLine> lines;
  NumericFaultScope scope;
  int small = 0;
  for (const LineResponse& response : responses) {
    lines.push_back(LineOf(response, 4 / Pi, scope));
    small = static_cast<f64>(lines.back().LineAmp) < leastSeen ? small + 1 : 0;
    if (small > smallEnough) break;
  }
  return lines;
}

BurstLines LinesOfBurst(const DesignRecord& record, f32 SquareFreq, f32 CarrierFreq) {
  // The even lines weigh nothing in a sum. They are evaluated all the same, because a line at which the ladder fails
  // repeats the one before it.
  std::vector<f32> frequencies = {CarrierFreq};
  for (int n = 1; n <= burstLines; ++n) {
    const f64 distance = n * static_cast<f64>(SquareFreq);
    frequencies.push_back(Frequency(static_cast<f64>(CarrierFreq) - distance));
    frequencies.push_back(Frequency(static_cast<f64>(CarrierFreq) + distance));
  }
  const std::vector<LineResponse> responses = ResponseAtLines(record, frequencies);
  NumericFaultScope scope;
  BurstLines lines{LineOf(responses[0], 1, scope), {}, {}};
  for (std::size_t n = 1; n <= burstLines; ++n) {
    const f64 remaining = 1 - static_cast<f64>(n) / 1000;
    const f64 taper = remaining * remaining;
    const bool atZero = frequencies[2 * n - 1] == 0;
    lines.lower.push_back(atZero ? WaveLine{} : LineOf(responses[2 * n - 1], taper, scope));
    lines.upper.push_back(LineOf(responses[2 * n], taper, scope));
  }
  return lines;
}

}  // namespace quilm
