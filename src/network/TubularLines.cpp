#include "network/TubularLines.h"

#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

namespace {

constexpr f64 speedOfLight = 299792458;  // metres a second
// Where 1000 millimetres a metre would be expected. Lengths that were cut by earlier drawings carry this factor, and
// new ones are to fit to them.
constexpr f64 mmPerMetre = 1005.4054;
constexpr f64 mmPerInch = 25.4;

f64 Wide(f32 x) { return static_cast<f64>(x); }

// 60 ln(D / d) ohms, of a round rod in a round tube filled with air.
f64 CoaxialImpedance(f32 interior, f32 rod) { return 60 * std::log(Wide(interior) / Wide(rod)); }

// The sine of the length of the line that stands for a stage; 0 for what is neither inductor nor capacitor.
f64 SineOf(const Stage& stage, const TubularLines& lines, f64 omega) {
  if (stage.ElementType == SeriesL) return omega * Wide(stage.Lval.value) / Wide(lines.ZInductors);
  if (stage.ElementType == ShuntC) return omega * Wide(stage.Cval.value) * Wide(lines.ZCapacitors);
  return 0;
}

void MakeLine(Stage& stage, PartValue& part, f32 degrees, f32 frequency, f32 impedance) {
  part = {};
  stage.ElementType = TransLine;
  stage.TLval.degrees = degrees;
  stage.TLval.freq = frequency;
  stage.TLval.impedance = impedance;
}

}  // namespace

std::optional<TubeFault> FindTubeFault(const TubeData& tube) {
  constexpr f32 leastVelocity = 0.01F;
  constexpr f32 mostVelocity = 2;
  if (!(tube.TubeFreq > 0)) return TubeFault::Frequency;
  if (tube.TubeVelocity < leastVelocity || tube.TubeVelocity > mostVelocity) return TubeFault::Velocity;
  if (!(tube.TubeDiaInductors > 0)) return TubeFault::MinorDiameter;
  if (!(tube.TubeDiaCapacitors > 0)) return TubeFault::MajorDiameter;
  if (!(tube.TubeDiaInterior > 0)) return TubeFault::InteriorDiameter;
  if (tube.TubeDiaInterior <= tube.TubeDiaCapacitors) return TubeFault::InteriorWithinMajor;
  if (tube.TubeDiaInterior <= tube.TubeDiaInductors) return TubeFault::InteriorWithinMinor;
  if (tube.TubeDiaCapacitors <= tube.TubeDiaInductors) return TubeFault::MajorWithinMinor;
  return std::nullopt;
}

f64 ArcSin(f64 x) {
  if (std::abs(x) < 1) return std::atan(x / std::sqrt(1 - x * x));
  return std::copysign(2 * std::atan(1.0), x);
}

TubularLines ComputeTubularLines(const Network& network, const TubeData& tube) {
  constexpr f64 fullTurn = 360;
  NumericFaultScope scope;
  TubularLines lines;
  lines.ZInductors = scope.Store(CoaxialImpedance(tube.TubeDiaInterior, tube.TubeDiaInductors));
  lines.ZCapacitors = scope.Store(CoaxialImpedance(tube.TubeDiaInterior, tube.TubeDiaCapacitors));
  lines.WaveLength = scope.Store(speedOfLight / Wide(tube.TubeVelocity) / Wide(tube.TubeFreq));
  f64 total = 0;
  for (int s = 1; s <= network.Stages; ++s) {
    const f64 x = SineOf(network.stage[s], lines, 2 * Pi * Wide(tube.TubeFreq));
    lines.LineDegrees[s] = scope.Store(ArcSin(scope.Checked(x)) * fullTurn / (2 * Pi));
    lines.LineMm[s] = scope.Store(Wide(lines.LineDegrees[s]) * mmPerMetre * Wide(lines.WaveLength) / fullTurn);
    lines.LineInches[s] = scope.Store(Wide(lines.LineMm[s]) / mmPerInch);
    total += Wide(lines.LineMm[s]);
  }
  lines.TotalMm = scope.Store(total);
  return lines;
}

Network ToTubular(const Network& network, const TubularLines& lines, f32 frequency) {
  Network tubular = network;
  for (int s = 1; s <= network.Stages; ++s) {
    Stage& stage = tubular.stage[s];
    if (network.stage[s].ElementType == SeriesL) {
      MakeLine(stage, stage.Lval, lines.LineDegrees[s], frequency, lines.ZInductors);
    } else if (network.stage[s].ElementType == ShuntC) {
      MakeLine(stage, stage.Cval, lines.LineDegrees[s], frequency, lines.ZCapacitors);
    }
  }
  return tubular;
}

}  // namespace quilm
