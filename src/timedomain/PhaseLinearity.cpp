#include "timedomain/PhaseLinearity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numeric>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "timedomain/SpectralLines.h"

namespace quilm {

namespace {

constexpr i16 linearSweep = 1;
constexpr f32 stepsToEdge = 2000;

constexpr std::array<f32, 13> phaseScales = {5,      2.5F,    1.25F,  0.5F,    0.25F,    0.125F, 0.05F,
                                             0.025F, 0.0125F, 0.005F, 0.0025F, 0.00125F, 0.0005F};
constexpr std::array<f32, 13> deviationScales = {0.25F,    0.125F,  0.05F,    0.025F,    0.0125F,  0.005F,   0.0025F,
                                                 0.00125F, 0.0005F, 0.00025F, 0.000125F, 0.00005F, 0.000025F};

// Steps beyond half a turn are the wrapping of the angle.
void Unwrap(const std::vector<LineResponse>& lines, PhaseLinearity& phase) {
  f64 previous = 0;
  f64 sum = 0;
  for (const LineResponse& line : lines) {
    f64 step = line.Angle - previous;
    if (step > 180) step -= 360;
    if (step < -180) step += 360;
    sum += step;
    phase.RespAngle.push_back(static_cast<f32>(line.Angle));
    phase.PhaseLin.push_back(static_cast<f32>(sum));
    previous = line.Angle;
  }
}

f64 Mean(const std::vector<f32>& values) {
  return std::accumulate(values.begin(), values.end(), f64{0}) / static_cast<f64>(values.size());
}

// Least squares about the means: a narrow sweep at a high frequency leaves nothing of the plain sums of squares.
void FitLine(PhaseLinearity& phase) {
  const f64 meanFrequency = Mean(phase.RespFreq);
  const f64 meanPhase = Mean(phase.PhaseLin);
  f64 A = 0;
  f64 B = 0;
  for (std::size_t i = 0; i < phase.RespFreq.size(); ++i) {
    const f64 f = static_cast<f64>(phase.RespFreq[i]) - meanFrequency;
    A += f * f;
    B += f * (static_cast<f64>(phase.PhaseLin[i]) - meanPhase);
  }
  if (A == 0) throw NumericFault("Division by zero");
  phase.PhaseSlope = B / A;
  phase.PhaseIntercept = meanPhase - phase.PhaseSlope * meanFrequency;
}

}  // namespace

PhaseLinearity ComputeLinearity(const DesignRecord& record) {
  PhaseLinearity phase;
  phase.RespFreq = FrequenciesOf({linearSweep, record.Fstart, record.Fstop, record.NrIntervals});
  Unwrap(ResponseAtLines(record, phase.RespFreq), phase);
  FitLine(phase);
  return phase;
}

std::vector<f32> PhaseValues(const PhaseLinearity& phase, i16 PhasePlotType) {
  if (PhasePlotType != phaseDeviation) return phase.PhaseLin;
  std::vector<f32> deviations(phase.PhaseLin.size());
  for (std::size_t i = 0; i < deviations.size(); ++i) deviations[i] = static_cast<f32>(phase.Deviation(i));
  return deviations;
}

std::span<const f32> PhaseScales(i16 PhasePlotType) {
  return PhasePlotType == phaseDeviation ? std::span<const f32>(deviationScales) : std::span<const f32>(phaseScales);
}

f32 PhaseSpan(f32 PhaseScale) { return stepsToEdge * PhaseScale; }

std::size_t FirstPhaseScale(std::span<const f32> values, i16 PhasePlotType) {
  f32 largest = 0;
  for (const f32 value : values) largest = std::max(largest, std::fabs(value));
  const std::span<const f32> scales = PhaseScales(PhasePlotType);
  const auto tooSmall =
      std::find_if(scales.begin(), scales.end(), [&](f32 scale) { return largest > PhaseSpan(scale); });
  const auto held = std::distance(scales.begin(), tooSmall);
  return held == 0 ? 0 : static_cast<std::size_t>(held - 1);
}

}  // namespace quilm
