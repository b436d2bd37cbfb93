// The families that the guide compares, and what it says of each.
#pragma once

#include <span>
#include <string_view>

#include "core/Types.h"

namespace quilm {

struct GuidedFamily {
  i16 code;
  std::string_view name;
  std::string_view text;
};

// In the order of the guide, which FamilyHelpCode counts from 1.
std::span<const GuidedFamily> GuidedFamilies();

// The place in that order, from 1, of the family that a design has. Gaussian to 12 stands with Gaussian; for a network
// by hand and for no family yet it is the first.
i16 GuideOf(i16 family);

}  // namespace quilm
