// Evaluates a compiled ladder at frequencies, many at a time. The same bits come out whatever the processor's vector
// width and however the frequencies are grouped.
#pragma once

#include <span>

#include "analysis/Ladder.h"
#include "core/Types.h"

namespace quilm {

// How far the evaluation of a point came. A division by zero, an overflow or a logarithm outside its domain ends it;
// figures after that step are not valid.
enum Reached : i32 {
  reachedNothing = 0,
  reachedTransmission = 1,  // transDB and angle are valid
  reachedImpedance = 2,     // zinMag and zinAngleRaw too
  reachedAll = 3,
};

// The response at a frequency.
struct Figures {
  f64 transDB = 0;      // dB, 0 = all available power reaches the load
  f64 angle = 0;        // degrees, -180..180
  f64 zinMag = 0;       // ohms
  f64 zinAngleRaw = 0;  // degrees, with the opposite sign of the true angle
  f64 returnDB = 0;     // dB, negative
  f64 vswr = 0;
  i32 reached = reachedNothing;
};

// The vectors that the kernel is built for: 2 lanes on any processor, 4, 8.
enum class VectorWidth { Baseline = 128, Bits256 = 256, Bits512 = 512 };

// Whether this processor has them.
bool HasVectors(VectorWidth width);

// The width that `wish` ("512", "256" or "128") names, if this processor has it; otherwise the widest that it has. A
// null pointer wishes nothing.
VectorWidth WidthFor(const char* wish);

// The width used unless told otherwise: WidthFor the environment variable QUILM_VECTORS, which narrows it for
// measurements and for looking into a difference between machines. Decided once in the program's run.
VectorWidth DefaultWidth();

// The figures at each frequency (Hz) into `figures`, which is as long. Asking for a width that this processor lacks is
// an error of the caller.
void Evaluate(const Ladder& ladder, std::span<const f32> frequencies, std::span<Figures> figures,
              VectorWidth width = DefaultWidth());

// One frequency in a lane of its own.
Figures EvaluateOne(const Ladder& ladder, f32 frequency);

// The angular frequency (rad/s) of a frequency, and the reciprocal that the kernel takes with it: 1 for 0.
inline f64 AngularFrequency(f32 frequency) { return 6.283185307179586 * static_cast<f64>(frequency); }
inline f64 ReciprocalForKernel(f64 w) { return 1 / (w == 0 ? 1 : w); }

}  // namespace quilm
