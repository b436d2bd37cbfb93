#include "timedomain/Waves.h"

#include <algorithm>
#include <cmath>

#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "timedomain/FourierSum.h"
#include "timedomain/WaveLines.h"

namespace quilm {

namespace {

constexpr f64 degreesPerRadian = 57.2958;  // as it is printed in tables, for the grid of degrees and all phases alike
constexpr int halfPeriod = 180;            // degrees
constexpr int before = 36;                 // degrees shown before the rising edge
constexpr int burstPoints = 2048;          // of a period

enum class Phases { Kept, Zero };

f64 AngleOf(f64 degrees, Phases phases) { return phases == Phases::Kept ? degrees / degreesPerRadian : 0; }

std::vector<f32> GridOfDegrees() {
  std::vector<f32> degrees;
  for (int a = -before; a <= 2 * halfPeriod; ++a) degrees.push_back(static_cast<f32>(a));
  return degrees;
}

// The imaginary part of the sum, the sine series, on the grid of degrees: computed over half a period, whose other half
// is its negative, and repeated before the rising edge.
std::vector<f32> WaveOnGrid(const Phasors& lines) {
  std::vector<f64> angles;
  for (int a = 0; a < halfPeriod; ++a) angles.push_back(a / degreesPerRadian);
  const Phasors sums = SumOfOddLines(lines, angles);
  NumericFaultScope scope;
  std::vector<f32> wave;
  for (int a = -before; a <= 2 * halfPeriod; ++a) {
    const int within = a + 2 * halfPeriod;
    const f64 sign = within / halfPeriod % 2 == 0 ? 1 : -1;
    wave.push_back(scope.Store(sign * sums.im[static_cast<std::size_t>(within % halfPeriod)]));
  }
  return wave;
}

std::vector<f32> Squarewave(const std::vector<WaveLine>& lines, Phases phases) {
  Phasors phasors(lines.size());
  for (std::size_t k = 0; k < lines.size(); ++k) {
    const f64 n = static_cast<f64>(2 * k + 1);
    phasors.SetPolar(k, static_cast<f64>(lines[k].LineAmp) / n, AngleOf(static_cast<f64>(lines[k].LinePhase), phases));
  }
  return WaveOnGrid(phasors);
}

// Adds lines to the odd ones of `phasors`, line n divided by n. `phaseOf` says the phase of a line in degrees.
template <class PhaseOf>
void AddSideband(const std::vector<WaveLine>& side, f64 weight, Phases phases, PhaseOf phaseOf, Phasors& phasors) {
  for (std::size_t k = 0; k < phasors.Count(); ++k) {
    const WaveLine& line = side[2 * k];  // number 2 k + 1
    const f64 angle = AngleOf(phaseOf(static_cast<f64>(line.LinePhase)), phases);
    const f64 magnitude = weight * static_cast<f64>(line.LineAmp) / static_cast<f64>(2 * k + 1);
    phasors.re[k] += magnitude * std::cos(angle);
    phasors.im[k] += magnitude * std::sin(angle);
  }
}

f64 Wrapped(f64 degrees) { return std::remainder(degrees, 360.0); }

// Both sidebands fold onto the line of the envelope. Their phases are those against the carrier, in the direction in
// which a delay of the network is a delay of the envelope.
std::vector<f32> Envelope(const BurstLines& lines, Phases phases) {
  const f64 carrier = static_cast<f64>(lines.carrier.LinePhase);
  Phasors phasors(burstLines / 2);
  AddSideband(
      lines.lower, 1, phases, [carrier](f64 phase) { return Wrapped(carrier - phase); }, phasors);
  AddSideband(
      lines.upper, 1, phases, [carrier](f64 phase) { return Wrapped(phase - carrier); }, phasors);
  return WaveOnGrid(phasors);
}

// A sine carrier times the squarewave that switches it, Pi / 4 + sum of sin(n t) / n over odd n:
//   sin(c t) sin(n t) = (cos((c - n) t) - cos((c + n) t)) / 2
// so that lower lines are added and upper ones subtracted. All of it is the real part of the carrier e^(j c t) times
// what does not turn with it, which has half-wave symmetry but for the carrier's own line.
class Burst {
 public:
  Burst(const BurstLines& lines, Phases phases) : lower_(burstPoints / 2), upper_(burstPoints / 2) {
    const auto asIs = [](f64 phase) { return phase; };
    // The lower lines turn backwards against the carrier: they are the conjugates of lines that turn forwards.
    Phasors lower(burstLines / 2);
    AddSideband(
        lines.lower, 0.5, phases, [](f64 phase) { return -phase; }, lower);
    Phasors upper(burstLines / 2);
    AddSideband(lines.upper, 0.5, phases, asIs, upper);
    std::vector<f64> angles;
    for (int k = 0; k < burstPoints / 2; ++k) angles.push_back(2 * Pi * k / burstPoints);
    lower_ = SumOfOddLines(lower, angles);
    upper_ = SumOfOddLines(upper, angles);
    // -j times the carrier's phasor, for a sine.
    carrier_.SetPolar(0, Pi / 4 * static_cast<f64>(lines.carrier.LineAmp),
                      AngleOf(static_cast<f64>(lines.carrier.LinePhase), phases) - Pi / 2);
  }

  // At point k of the period, where the carrier has turned by the angle whose cosine and sine these are.
  f64 At(int k, f64 cosine, f64 sine) const {
    constexpr int half = burstPoints / 2;
    const int within = (k + burstPoints) % burstPoints;
    const auto at = static_cast<std::size_t>(within % half);
    const f64 sign = within < half ? 1 : -1;
    const f64 re = carrier_.re[0] + sign * (lower_.re[at] - upper_.re[at]);
    const f64 im = carrier_.im[0] - sign * (lower_.im[at] + upper_.im[at]);
    return re * cosine - im * sine;
  }

 private:
  Phasors lower_;
  Phasors upper_;
  Phasors carrier_{1};
};

void FillBurst(const BurstLines& lines, Waves& waves) {
  const Burst normal(lines, Phases::Kept);
  const Burst equalized(lines, Phases::Zero);
  const f64 cyclesPerPoint =
      static_cast<f64>(waves.signal.CarrierFreq) / static_cast<f64>(waves.signal.SquareFreq) / burstPoints;
  NumericFaultScope scope;
  // The period's points, the end of the last one included so that the trace fills the frame, and the tenth before. A
  // carrier that is no multiple of the squarewave has another phase there than a period later.
  for (int k = -burstPoints / 10; k <= burstPoints; ++k) {
    const f64 angle = 2 * Pi * std::remainder(cyclesPerPoint * k, 1.0);
    const f64 cosine = std::cos(angle);
    const f64 sine = std::sin(angle);
    waves.degrees.push_back(static_cast<f32>(360.0 * k / burstPoints));
    waves.WaveNormal.push_back(scope.Store(normal.At(k, cosine, sine)));
    waves.WaveEqualized.push_back(scope.Store(equalized.At(k, cosine, sine)));
  }
}

enum class PeakOf { Value, Magnitude };

f32 Peak(const std::vector<f32>& wave, PeakOf what) {
  f32 peak = -1E+38F;
  for (const f32 value : wave) peak = std::max(peak, what == PeakOf::Value ? value : std::fabs(value));
  return peak;
}

// Divides a wave by its peak; one without any stays level.
f32 ScaleToPeak(std::vector<f32>& wave, PeakOf what) {
  const f32 peak = Peak(wave, what);
  if (peak == 0) return 0;
  for (f32& value : wave) value /= peak;
  return peak;
}

}  // namespace

Waves ComputeWaves(const DesignRecord& record, const WaveEntries& signal) {
  Waves waves;
  waves.signal = signal;
  PeakOf peak = PeakOf::Value;
  switch (signal.WaveformType) {
    case burstWave: {
      FillBurst(LinesOfBurst(record, signal.SquareFreq, signal.CarrierFreq), waves);
      peak = PeakOf::Magnitude;
      break;
    }
    case envelopeWave: {
      const BurstLines lines = LinesOfBurst(record, signal.SquareFreq, signal.CarrierFreq);
      waves.degrees = GridOfDegrees();
      waves.WaveNormal = Envelope(lines, Phases::Kept);
      waves.WaveEqualized = Envelope(lines, Phases::Zero);
      break;
    }
    default: {
      const std::vector<WaveLine> lines = SquarewaveLines(record, signal.SquareFreq);
      waves.degrees = GridOfDegrees();
      waves.WaveNormal = Squarewave(lines, Phases::Kept);
      waves.WaveEqualized = Squarewave(lines, Phases::Zero);
      break;
    }
  }
  waves.PeakNormal = ScaleToPeak(waves.WaveNormal, peak);
  waves.PeakEqualized = ScaleToPeak(waves.WaveEqualized, peak);
  return waves;
}

bool IsLow(f32 peak) {
  constexpr f32 lowest = 0.1F;
  return peak < lowest;
}

bool ShowsNormal(const WaveEntries& signal) { return signal.AnalysisType != 'E'; }

bool ShowsEqualized(const WaveEntries& signal) { return signal.AnalysisType != 'N'; }

}  // namespace quilm
