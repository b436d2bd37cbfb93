// The values and stepsizes of a network's parts beside the network: what a run of trials starts each trial from.
#pragma once

#include "core/BoundedArray.h"
#include "core/Network.h"
#include "core/Types.h"
#include "shell/UniformNumbers.h"

namespace quilm {

// Copies of L, C and R of the stages 1..Stages, each with its stepsize: the percentage that rests in the part's
// tolerance.
struct BestParts {
  i16 Stages = 0;
  BoundedArray<PartValue, 1, stageBound> BestL;
  BoundedArray<PartValue, 1, stageBound> BestC;
  BoundedArray<PartValue, 1, stageBound> BestR;
};

// Takes values and stepsizes of the network, or its values alone.
void TakeParts(const Network& network, BestParts& best);
void TakeValues(const Network& network, BestParts& best);

// Writes values and stepsizes back into the network, or the values alone.
void WriteParts(const BestParts& best, Network& network);
void WriteValues(const BestParts& best, Network& network);

// How far trials go from the best values: by times * (r - 0.5) * (stepsize * perPercent), r uniform in 0 <= r < 1.
struct Travel {
  f64 times;
  f64 perPercent;
};

// A walk for the better: each per cent of stepsize is up to 0.2 per cent of travel to either side.
inline constexpr Travel walkTravel = {2, 0.002};
// A tolerance: up to the stepsize to either side.
inline constexpr Travel toleranceTravel = {1, 0.02};

// Gives L, C and R of each stage, in this order, a new value about the best one with a fresh random number for each,
// rounded to 32 bits. All other values stay, and so does what has a stepsize of 0.
void TryValues(const BestParts& best, const Travel& travel, UniformNumbers& random, Network& network);

// Whether any value that a stage has is given a stepsize above 0. Those of lines, transformers and coupled inductors
// count, though no trial varies them.
bool HasStepsize(const Network& network);

}  // namespace quilm
