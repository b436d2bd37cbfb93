// A ladder between its terminations: what the analysis needs of a design, and what can stand without one.
#pragma once

#include "core/BoundedArray.h"
#include "core/ElementTypes.h"
#include "core/Types.h"

namespace quilm {

inline constexpr i16 stagesLimit = 43;  // most stages that a network may hold
inline constexpr int stageBound = 46;   // declared bound of the stage list, three spare places above stagesLimit

// A component value with its tolerance in percent. The tuning, optimiser and Monte Carlo routines keep a part's
// percentage step in the tolerance.
struct PartValue {
  f32 value = 0;
  f32 tolerance = 0;
  bool operator==(const PartValue&) const = default;
};

// A line or stub: electrical length at a frequency, and characteristic impedance.
struct LineValue {
  f32 degrees = 0;
  f32 freq = 0;
  f32 impedance = 0;
  f32 degreesTolerance = 0;
  f32 impedanceTolerance = 0;
  bool operator==(const LineValue&) const = default;
};

// A pair of coupled inductors.
struct CoupledValue {
  f32 primary = 0;
  f32 secondary = 0;
  f32 k = 0;
  f32 primaryTolerance = 0;
  f32 secondaryTolerance = 0;
  f32 kTolerance = 0;
  bool operator==(const CoupledValue&) const = default;
};

// One stage of the ladder. Every value exists in every stage; ElementType says which of them carry meaning.
//
// Where users' scripts and the design file speak of numbered columns, these are the fields in declared order:
// Lval, Cval, Rval, XfmrVal [1..2] = value, tolerance; TLval [1..5] = degrees, freq, impedance and the tolerances of
// length and impedance; CoupledVal [1..6] = primary, secondary, k and their tolerances.
struct Stage {
  i16 ElementType = 0;
  PartValue Lval;
  PartValue Cval;
  PartValue Rval;
  LineValue TLval;
  PartValue XfmrVal;
  CoupledValue CoupledVal;
  bool operator==(const Stage&) const = default;
};

// Element 1 is the value in use; element 2 is a working copy of the tuning and Monte Carlo pages.
using ValueAndCopy = BoundedArray<f32, 1, 2>;

struct Network {
  i16 Stages = 0;  // 0 means that no network exists
  i16 StagesMax = stagesLimit;
  ValueAndCopy Rsource;
  ValueAndCopy Rload;
  ValueAndCopy Qind;
  ValueAndCopy Qcap;
  f32 Rstandard = 0;  // reference of return loss, VSWR and the Smith chart

  // Stage 1 is next to the source, stage `Stages` next to the load.
  BoundedArray<Stage, 0, stageBound> stage;

  bool operator==(const Network&) const = default;
};

}  // namespace quilm
