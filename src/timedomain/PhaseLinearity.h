// The linearity of phase: the transmission phase over a linear sweep, and the straight line that fits it best.
#pragma once

#include <span>
#include <vector>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// What a plot of it shows.
inline constexpr i16 phaseAndLine = 1;
inline constexpr i16 phaseDeviation = 2;

struct PhaseLinearity {
  std::vector<f32> RespFreq;   // Hz
  std::vector<f32> RespAngle;  // degrees, -180..180
  std::vector<f32> PhaseLin;   // degrees, unwrapped
  // The line, in 64 bits: at 10 GHz the 32 bits of a slope alone would make a deviation of a thousandth of a degree and
  // more.
  f64 PhaseSlope = 0;      // degrees per hertz
  f64 PhaseIntercept = 0;  // degrees at 0 Hz

  // The line and the phase's distance from it at a point, degrees.
  f64 Line(std::size_t i) const { return PhaseSlope * static_cast<f64>(RespFreq[i]) + PhaseIntercept; }
  f64 Deviation(std::size_t i) const { return static_cast<f64>(PhaseLin[i]) - Line(i); }
};

// What a plot of the type (1 phase, 2 deviation) shows over RespFreq, degrees.
std::vector<f32> PhaseValues(const PhaseLinearity& phase, i16 PhasePlotType);

// Sweeps Fstart to Fstop of the design in NrIntervals equal steps, whatever its sweep mode, and fits the line by least
// squares over all points. Changes nothing. Throws NumericFault or BoundFault where there is no such sweep, and
// NumericFault when the frequency of the inductors' Q does not exist or start and stop are the same.
PhaseLinearity ComputeLinearity(const DesignRecord& record);

// The stepsizes of a plot of the type, from the largest down. One step is a 2000th of the way from the middle of the
// plot to its edge, in degrees.
std::span<const f32> PhaseScales(i16 PhasePlotType);

// How many degrees lie between the middle of a plot and its edge, at a stepsize.
f32 PhaseSpan(f32 PhaseScale);

// The index of the smallest stepsize whose plot holds all values; the largest one where none does.
std::size_t FirstPhaseScale(std::span<const f32> values, i16 PhasePlotType);

}  // namespace quilm
