// Lowpass ladders made of lines: a rod of thin and thick sections in a round tube, in which a thin section stands for
// each series inductor and a thick one for each shunt capacitor.
#pragma once

#include <optional>

#include "core/Network.h"
#include "core/TubeData.h"

namespace quilm {

// What is amiss with the entries of a tube, in the order in which they are looked at.
enum class TubeFault {
  Frequency,
  Velocity,
  MinorDiameter,
  MajorDiameter,
  InteriorDiameter,
  InteriorWithinMajor,
  InteriorWithinMinor,
  MajorWithinMinor,
};
std::optional<TubeFault> FindTubeFault(const TubeData& tube);

// The lines of a ladder, by stage. A negative part has a negative length.
struct TubularLines {
  f32 ZInductors = 0;   // ohms
  f32 ZCapacitors = 0;  // ohms
  f32 WaveLength = 0;   // in the line, metres
  BoundedArray<f32, 0, stageBound> LineDegrees;
  BoundedArray<f32, 0, stageBound> LineMm;
  BoundedArray<f32, 0, stageBound> LineInches;
  f32 TotalMm = 0;
};

// The arcsine in radians; a quarter turn, with the sign of x, from a magnitude of 1 on: a part too large for a line
// gets the longest one.
f64 ArcSin(f64 x);

// The lines of the stages SeriesL and ShuntC; others get none. Of a short line with a high impedance the reactance in
// series is Z sin(theta), of one with a low impedance the susceptance to common sin(theta) / Z, which sets theta; the
// impedance of a rod in a tube is 60 ln(D / d) (G. L. Matthaei, L. Young, E. M. T. Jones, "Microwave Filters,
// Impedance-Matching Networks, and Coupling Structures", 1964, chapter 7). The entries must be without TubeFault.
// Throws NumericFault where a result leaves the range of numbers.
TubularLines ComputeTubularLines(const Network& network, const TubeData& tube);

// The network with those stages made transmission lines at the frequency (Hz); all others as they are.
Network ToTubular(const Network& network, const TubularLines& lines, f32 frequency);

}  // namespace quilm
