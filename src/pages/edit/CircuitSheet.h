// The picture of the pages on which elements are chosen: the strip of stages above, an enlarged view of what is
// selected at the left below it, and the palette.
#pragma once

#include <functional>
#include <optional>

#include "schematic/Palette.h"
#include "shell/Control.h"

namespace quilm {

struct Network;

// Where the strip of a network that fits is in the middle.
inline constexpr f32 sheetMiddle = 5250;
inline constexpr Scale sheetScale{-300, 300, 11100, 11900};
inline constexpr f32 sheetRight = sheetScale.left + sheetScale.width;

struct CircuitSheet {
  PaletteOf page;
  f32 origin = 0;                  // of the strip
  std::optional<int> marked = {};  // the cell with a mark
  std::string notice = {};         // above the strip at its left
  Color paletteColor = paletteOff;
  std::function<void(Canvas&)> largePicture = {};
};

void DrawCircuitSheet(const Network& network, const CircuitSheet& sheet, Canvas& canvas);

// The bands of the palette as named areas: "SeriesL" and so on.
HitAreas PaletteAreas(PaletteOf page, bool enabled);

// The cells of the strip as areas to be walked: "source", "stage1" and so on, "load".
HitAreas StripAreas(const Network& network, f32 origin, std::optional<int> present, bool enabled);

}  // namespace quilm
