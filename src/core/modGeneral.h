// The one road for numbers between the user and the record: entry in engineering notation and the display formats.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Types.h"

namespace quilm {

// Reads an entry such as "1.2M", "1200k" or "1,2e6" into Result. Multipliers: p n u k g in either case, m milli, M
// mega, and the micro sign and the Greek mu count as u. A comma counts as a point; whatever makes no sense is dropped.
// Never fails: an entry without a number is 0, and the result is held within -1e10..1e10, and an underflow is 0. Each
// step rounds to 32 bits. Trims Text and cuts it to its first 12 characters.
void ParseEntry(std::string& Text, f32& Result);

// A text of an entry with a u for each micro sign (U+00B5) and each small Greek mu (U+03BC): keyboards have the one or
// the other, and nobody can tell them apart.
std::string WithLatinMicro(std::string_view text);

// The multiplier that a letter of an entry stands for; nothing for any other character.
std::optional<f32> MultiplierOf(char letter);

// Display formats: up to six significant places, followed by the multiplier and unit. The last blanks are part of the
// texts. The unit is chosen before the rounding, so just under 1 mH reads "1000uH". FormatFrequency serves any plain
// value with the multipliers G, M, k, m and looks at the sign; a resistance at or below 0.001 reads as zero.
std::string FormatFrequency(f32 Value);
std::string FormatInductance(f32 Value);   // empty for 0
std::string FormatCapacitance(f32 Value);  // empty for 0; uF from 0.01 uF up, pF below: no nanofarads
std::string FormatResistance(f32 Value);
std::string FormatTime(f32 Value);
std::string FormatValue(f32 Value);  // dB figures, scale limits and any general number

// The value as text, filled with blanks to 14 characters.
std::string PadCell(f32 Value);

// The number that a text begins with, after a plus sign if there is one; 0 where there is none. Infinite where it
// leaves the range of 64 bits, and 0 where it falls below.
f64 LeadingNumber(std::string_view text);

// The first `count` characters of a UTF-8 text. A cut between the bytes of one would leave a broken text. Of a text in
// another encoding at least as many bytes stay.
std::string FirstCharacters(std::string_view text, std::size_t count);

// The text without what stands at both its ends of `blanks`.
std::string Trimmed(std::string_view text, std::string_view blanks = " ");

f64 CosH(f64 x);
f64 CosH(f32 x);
f64 ArcCosh(f64 x);  // x at least 1, else NaN
f64 ArcCosh(f32 x);

// Exchanges two values through 32-bit floats.
void SwapValues(f32& a, f32& b);

}  // namespace quilm
