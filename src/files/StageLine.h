// The line of a stage in a design file, as reader and writer both walk it.
#pragma once

#include <vector>

#include "core/ElementCatalogue.h"

namespace quilm {

struct StageNumber {
  StageField field;
  bool optional = false;  // files of older layouts end before it
};

// What follows the type on the line, in order: nothing for a code that has no line. A type with an inductor or a
// capacitor has the places of both.
std::vector<StageNumber> StageLine(i16 elementType);

// An open stub in the line and a shorted one to common must not be 0 degrees long: the analysis divides by the tangent
// of their length. Raises a lesser one, also a negative one.
void HoldStubLength(Stage& stage);

}  // namespace quilm
