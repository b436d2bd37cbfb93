// Values brought to a handy size, with a multiplier or unit behind the number: the one road of display formats and of
// the texts in netlists.
#pragma once

#include <span>
#include <string>

#include "core/Types.h"

namespace quilm {

// The row's number of decimals is chosen by the scaled value.
inline constexpr int byMask = -1;

// From `threshold` up a value is divided by `divisor` and followed by `unit`. Thresholds compare in 32 bits.
struct ScaleRow {
  f32 threshold;
  f64 divisor;
  const char* unit;
  int decimals = byMask;
};

// Decimals of a scaled value above 1000, 100, 10, 1, and of the rest.
struct DecimalMask {
  int decimals[5];
};

// The row of a magnitude, first match wins; the last one serves everything below the others.
const ScaleRow& RowOf(f32 magnitude, std::span<const ScaleRow> rows);

// The value over the row's divisor, rounded to 32 bits and then to the decimals of row or mask, and the row's unit. A
// `signedMask` looks at the sign, so that a negative value has the decimals of the smallest.
std::string ScaledText(f32 value, const ScaleRow& row, const DecimalMask& mask, bool signedMask);

// By the row and the decimals of its magnitude; the sign stays.
std::string TextByMagnitude(f32 value, std::span<const ScaleRow> rows, const DecimalMask& mask);

}  // namespace quilm
