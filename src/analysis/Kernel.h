// Evaluates a compiled ladder at frequencies, many at a time.
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

// The figures at each frequency (Hz) into `figures`, which is as long. The same bits come out whatever the processor's
// vector width and however the frequencies are grouped.
void Evaluate(const Ladder& ladder, std::span<const f32> frequencies, std::span<Figures> figures);

// The same with a given implementation, for tests and benchmarks. Asking for one that this processor lacks is an error
// of the caller.
enum class VectorWidth { Baseline, Bits256, Bits512 };
bool HasVectors(VectorWidth width);
void EvaluateWith(VectorWidth width, const Ladder& ladder, std::span<const f32> frequencies,
                  std::span<Figures> figures);

// One frequency in a lane of its own.
Figures EvaluateOne(const Ladder& ladder, f32 frequency);

}  // namespace quilm
