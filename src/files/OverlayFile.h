// The files of overlays: one response a file, one point a line, frequency and value as plain numbers with a decimal
// point, each followed by a blank. Lines end with CR LF; there is no heading.
#pragma once

#include <istream>
#include <span>
#include <string>

#include "display/OverlayCurves.h"

namespace quilm {

inline constexpr int overlaySlots = 10;

// The text of a file; as many values as frequencies.
std::string OverlayText(std::span<const f32> frequencies, std::span<const f32> values);

struct OverlayRead {
  StoredCurve curve;
  int unread = 0;  // lines that hold no point
};

// Reads up to 2050 lines. A line that does not begin with two numbers of a point, a frequency of 0 or above and a value
// that 32 bits hold, is left out and counted; a file that cannot be read on ends there. Never fails.
OverlayRead ReadOverlay(std::istream& in);

}  // namespace quilm
