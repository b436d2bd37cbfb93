// The units that dimensions of coils are entered and told in. Everything is computed in inches.
#pragma once

#include <string>

#include "core/Types.h"

namespace quilm {

// The codes of the record's Units.
inline constexpr i16 englishUnits = 1;
inline constexpr i16 metricUnits = 2;

// "in" or "cm", and how many of them an inch is.
std::string UnitName(i16 units);
f64 UnitsPerInch(i16 units);

// A length in inches as it is told in these units, without their name.
std::string LengthText(f32 inches, i16 units);

// Turns per inch, told for these units.
std::string TurnsPerUnitText(f32 turnsPerInch, i16 units);

}  // namespace quilm
