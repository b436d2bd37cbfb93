// The table of what can be tuned in a network: one item for each number, with the step by which it moves. Tuning walks
// all of it, the entry of step sizes the values of the stages alone.
//
// A part's step has no place of its own: it rests in its tolerance, so that the tolerance of a Monte Carlo run, the
// travel of the optimiser and the step of tuning are one number; the steps of terminations and Q rest in element 2.
// Lines step by degrees, everything else by percent.
#pragma once

#include <vector>

#include "core/ElementCatalogue.h"

namespace quilm {

enum class TuneKind : i16 {
  Inductor = 1,
  Capacitor,
  Pair,  // L and C of a tuned circuit against each other: its resonance stays, its L/C ratio moves
  Resistor,
  LineLength,
  LineImpedance,
  TurnsRatio,
  Primary,
  Secondary,
  Coupling,
  Source,
  Load,
  InductorQ,
  CapacitorQ,
};

struct TuneItem {
  i16 TuneStage;  // 0 for what belongs to the network as a whole
  TuneKind kind;
  f32 TuneStep;  // percent, of a line's length degrees
  bool operator==(const TuneItem&) const = default;
};

using TuneList = std::vector<TuneItem>;

// The items in stage order, within a stage in the order of the catalogue with the pair of a tuned circuit behind its C,
// then both terminations and both Q. A coupling without a step has `couplingStep`, or 1 where that is 0, too.
TuneList ItemsForTuning(const Network& network, f32 couplingStep);

// The values of the stages alone: no pairs, no terminations, no Q.
TuneList ItemsOfStages(const Network& network);

// Clears up to four places behind the last stage, as far as the list has places, so that nothing of a longer network
// comes back where stages are added. Their turns ratios get a step of 2, which users' scripts know of the record.
void ClearPlacesBehind(Network& network);

// The values that an item stands for, as slots of its stage: L and C of a pair, none where it belongs to no stage.
std::vector<const Slot*> SlotsOfItem(TuneKind kind);

// Puts down the step of an item. Each part of a pair takes half, for the step of a pair is the sum of theirs.
void StoreStep(Network& network, const TuneItem& item, f32 step);

// Sets every step of all stages, those of values that a stage does not use included, so that they hold whatever the
// stage is changed into.
void StoreStepOfAll(Network& network, f32 percent);

enum class StepWay { Up, Down };

// 1 + step x 0.01 upward and its reciprocal downward, in 32 bits. Of a line's length the degrees that come off, so
// negative upward.
f32 TuneMultiplier(TuneKind kind, f32 step, StepWay way);

// Moves the item by a multiplier: multiplies its value, of a pair L by it and C by its reciprocal, and takes it off a
// line's length. Throws NumericFault where a value would leave the range of numbers at either end, with the network as
// it was.
void ApplyStep(Network& network, const TuneItem& item, f32 multiplier);

}  // namespace quilm
