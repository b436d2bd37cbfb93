// The kernel, built for several processors. Each gives the same bits.
#pragma once

#include "analysis/Kernel.h"

namespace quilm {

// A ladder at some points. Its stages stand apart as plain pointers: even the library's inline functions stay out of
// the kernels. Angular frequencies (rad/s) and reciprocals can be read up to the next multiple of sweepPadding.
struct PointRange {
  const Ladder& ladder;
  const CompiledStage* firstStage;
  const CompiledStage* lastStage;  // one beyond
  const f64* w;
  const f64* wInverse;
  int count;
};

inline PointRange RangeOf(const Ladder& ladder, const f64* w, const f64* wInverse, int count) {
  const CompiledStage* first = ladder.stages.data();
  return {ladder, first, first + ladder.stages.size(), w, wInverse, count};
}

// The figures of a range, each quantity an array of 32-bit numbers; the angle also in full, for the delay.
struct PointArrays {
  f32* transDB;
  f32* angle;
  f32* zinMag;
  f32* zinAngle;  // the true one
  f32* returnDB;
  f32* vswr;
  f64* exactAngle;
};

// Phase steps and delays of a range.
struct StepRange {
  int count;
  const f64* exactAngle;       // degrees
  const f32* angle;            // the same in 32 bits
  f32 angleBefore;             // of the point before the first
  const f64* degreesPerDelay;  // 360 times the step of frequency to each point, degrees per second
  f64* phaseStep;              // degrees, -180..180
  f32* delay;                  // seconds
};

struct ExtremesRange {
  const f32* value;
  f32* high;
  f32* low;
};

// What is summed up and compared over a range.
struct SumRange {
  int count;
  const f64* phaseStep;  // degrees
  f64 phase;             // the sum before the range, then after it
  f32* phaseSum;         // the sum at each point
  const f32* trans;      // dB
  f32 largest;           // of what was before the range, then with it
  ExtremesRange extremes[7];
};

struct Kernel {
  // Fills the arrays. Points that may fail, or that need more care than many lanes can give, become true in `doubtful`:
  // their figures are not valid, and they must be evaluated singly. Says whether there are any.
  bool (*evaluate)(const PointRange& range, const PointArrays& out, bool* doubtful);
  // The same with all of each point, doubtful ones having reached nothing.
  void (*evaluateFigures)(const PointRange& range, Figures* figures);
  void (*takeSteps)(const StepRange& range);
  void (*takeSums)(SumRange& range);  // raises each `high` and lowers each `low` to the values
};

const Kernel& KernelFor(VectorWidth width);

extern const Kernel kernelBaseline;
#if defined(__x86_64__)
extern const Kernel kernelAvx2;
extern const Kernel kernelAvx512;
#endif

// One point, in one lane, as far as it comes.
Figures EvaluateSingle(const Ladder& ladder, f64 w, f64 wInverse);

// e to the power of each number, in place; see Exp in LaneFunctions.h. `values` has room up to the next multiple of
// sweepPadding.
void ExponentialsOf(f64* values, int count);

}  // namespace quilm
