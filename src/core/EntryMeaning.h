// What an entry says when it is read to the letter.
#pragma once

#include <optional>
#include <string_view>

#include "core/Types.h"

namespace quilm {

// The value of a text that is an entry from end to end: a number with a point or a comma, an exponent, a multiplier and
// a unit (Hz, H, F, ohm, R, s, dB), with blanks between them or around. Nothing for any other text; 0 for a blank one.
// ParseEntry forgives where this does not: it makes 0.05 of "50 Ohm", whose m it takes for milli, and 0 of "abc". An
// entry was understood when both say the same.
std::optional<f32> PlainMeaning(std::string_view text);

}  // namespace quilm
