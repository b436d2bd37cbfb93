// The compiled ladder: what of a network does not depend on frequency, worked out once before it is analysed.
//
// The losses are deliberately unlike: a capacitor has a constant Q, an inductor a constant series resistance, the one
// that gives it Qind at the frequency Fq. With w the angular frequency and q = |Qcap|:
//   inductor   Rs + j w L,  Rs = 2 Pi Fq L / Qind
//   capacitor  reactance Xc = -1 / (w C) with the parallel resistance q |Xc|, which in series form is
//              q / (q^2 + 1) |Xc| + j q^2 / (q^2 + 1) Xc;  a C of exactly 0 is a reactance of +1e11 ohms
#pragma once

#include <vector>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// The 19 element types come down to these forms. Single inductors and capacitors have forms of their own, which spare
// the kernel the sums with zeros.
enum class StageForm : i16 {
  SeriesArm,        // Z = r + rc |1/w| + j (x + xl w + xc / w) in the line
  SeriesInductor,   // r + j xl w
  SeriesCapacitor,  // rc |1/w| + j xc / w
  ShuntArm,         // Y = g + gc |w| + j (b + bc w) to common
  ShuntCapacitor,   // gc |w| + j bc w
  ShuntSeries,      // the reciprocal of such a Z to common
  ShuntInductor,
  SeriesTank,  // a lossy inductor beside conductances and a capacitor, in the line
  ShuntTank,   // the same to common
  Line,        // a piece of transmission line
  SeriesStub,  // j z tan t, or -j z / tan t when open, in the line
  ShuntStub,   // j tan t / z, or -j / (z tan t) when shorted, to common
  Transformer,
  Coupled,
};

// One stage. Which figures carry meaning follows from the form.
struct CompiledStage {
  StageForm form = StageForm::SeriesArm;
  bool failsAtZero = false;   // at w = 0
  bool guardsZeroX = false;   // ShuntSeries: a reactance of exactly 0 becomes 1e-10
  bool open = false;          // stubs: without a short at the end
  bool lossy = false;         // tanks, ShuntSeries: conductance or resistance is above 0 at every frequency
  f64 r = 0, rc = 0;          // ohms, ohms * rad/s
  f64 x = 0, xl = 0, xc = 0;  // ohms, henries, ohms * rad/s
  f64 g = 0, gc = 0;          // siemens, siemens per rad/s
  f64 b = 0, bc = 0;
  f64 Rs = 0, L = 0;                         // tanks: the inductor
  f64 capacitive = 0, capacitiveOffset = 0;  // tanks: 1 / Xc = capacitiveOffset + capacitive * w
  f64 t = 0, z = 0;                          // lines: radians per rad/s, ohms
  f64 n = 0, reciprocal = 0;                 // transformer: turns ratio and its reciprocal
  f64 l1M = 0, l2M = 0, leakage = 0, M = 0;  // coupled: L1 / M, L2 / M, (L1 L2 - M^2) / M, mutual inductance
};

struct Ladder {
  std::vector<CompiledStage> stages;  // from the load to the source, the order in which they are walked
  bool failsEverywhere = false;       // some stage divides by zero at every frequency
  bool failsAtZero = false;           // some stage does at w = 0
  f64 Rsource = 0;
  f64 Rload = 0;
  f64 Rstandard = 0;
};

// The frequency at which inductor Q is quoted: Fcenter if above 0, else Width if above 0, else the geometric mean of
// the sweep limits. Throws NumericFault when that mean does not exist.
f32 QualityFrequency(const Entries& entries, const SweepSettings& sweep);

// The delay of a line or stub, seconds, as it is analysed: a line of exactly 90 degrees as one of 90.0001 degrees, so
// that its tangent exists at the reference frequency. Not finite for a frequency of 0.
f64 LineDelay(const Stage& stage);

// Compiles the stage list. Never fails: what cannot be analysed is marked in the result.
Ladder Compile(const Network& network, f32 Fq);

}  // namespace quilm
