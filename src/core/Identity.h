// What a design is: its family, topology and order, its names, and how far it has come.
#pragma once

#include <string>

#include "core/Types.h"

namespace quilm {

inline constexpr i16 orderLimit = 21;  // highest order of a prototype

// Family codes. 9 and 10 are not used.
enum FamilyCode : i16 {
  familyNone = 0,
  familyButterworth = 1,
  familyChebyshev = 2,
  familyCauer = 3,
  familyBessel = 4,
  familyGaussian = 5,
  familyConstantK = 6,
  familyMderived = 7,
  familyGaussian12 = 8,
  familyManual = 11,
};

struct Identity {
  i16 Family = familyNone;
  std::string Topology;  // "A" to "L", "M" for a network entered by hand, empty for none chosen yet
  f32 Order = 0;         // number of prototype elements, a whole number kept in a float
  i16 OrderMax = orderLimit;
  i16 NetworkEdited = 0;     // 1: the stage list is hand-made and is not recomputed from the entries
  f32 MatchAccepted = 0;     // 1: a matched network must not be overwritten by a recomputation
  i16 ResponsesValid = 0;    // 1 after a complete sweep
  i16 DesignChanged = 0;     // set by entries and by files of older layouts, for the pages that ask
  std::string CircuitTitle;  // at most 80 characters
  std::string AddedInfo;
  std::string DesignDate;
  std::string DesignFileName;
  i16 Units = 1;             // 1 English, 2 metric
  i16 TopologyHelpCode = 0;  // 1..12

  bool operator==(const Identity&) const = default;
};

// "Butterworth", ..., "Manual entry"; empty for a code that is no family.
std::string FamilyName(i16 family);

}  // namespace quilm
