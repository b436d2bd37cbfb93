// What the values of a part must be. The page for entry by hand refuses what is not so, the Edit page puts another
// value in its place; their limits differ on purpose: who edits may need a negative length or resistance to see what it
// does, who enters a network from a list has mistyped it.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/Network.h"
#include "pages/edit/ValueBoxes.h"

namespace quilm {

struct PartRule {
  ValueBox box;
  bool (*fails)(f32 value);
  const char* message;
  f32 instead = 0;                // what an edited part has instead
  const char* boxText = nullptr;  // what its box then shows; nullptr leaves it
};

// In the order in which the values are checked.
std::span<const PartRule> ManualRules(i16 elementType);
std::span<const PartRule> EditRules(i16 elementType);

using BoxReader = std::function<f32(ValueBox)>;

struct EnteredPart {
  Stage stage;                        // complete where nothing is refused
  const PartRule* refused = nullptr;  // the first rule that fails
};

// The part of a type with the values of its boxes. A reactance becomes an inductor or a capacitor.
EnteredPart ReadEnteredPart(i16 elementType, const BoxReader& read);

// Takes the boxes of the stage's type into the stage, and returns the rules that have put another value in place. A
// reactance becomes an inductor or a capacitor; one of 0 ohms leaves the stage as it was, without a look at its
// frequency.
std::vector<const PartRule*> TakeEditedPart(Stage& stage, const BoxReader& read);

}  // namespace quilm
