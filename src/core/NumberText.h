// Numbers as text, the same in every locale.
#pragma once

#include <string>

#include "core/Types.h"

namespace quilm {

// The value rounded to 0..8 places after the decimal point, ties away from zero, and read back as 32 bits. The exact
// value of the f32 is what is rounded. Infinity and NaN come back as they are.
f32 RoundedTo(f32 value, int decimals);

// Whether a value below 1 shows the zero before its decimal point. Display texts keep it (0.5), files and printed
// numbers drop it (.5).
enum class LeadingZero { Keep, Drop };

// The value with at most seven significant digits and no trailing zeros. Exponent form (1.5E-05, 1.234567E-03, 1E+07)
// below 0.0001, from 1E+07 up, and where more than seven digits would stand after the point. A tie at the seventh digit
// goes away from zero. Minus zero is 0; what is not finite reads "Inf", "-Inf" or "NaN".
std::string ShortText(f32 value, LeadingZero zero);

// A number as files hold it: a blank or a minus in front, one blank behind, no zero before the point.
std::string NumText(f32 value);
std::string NumText(i16 value);

}  // namespace quilm
