// The palette of all elements, from which one is chosen by a press: two columns of bands, each with its symbol.
#pragma once

#include <limits>
#include <span>

#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

// The pages for editing and for entry by hand have their bands at slightly different places, which users' scripts of
// presses rest on.
enum class PaletteOf { EditPage, ManualPage };

// A press belongs to a band from `left` to `right`, both included, and from above `top`, which is excluded, to
// `bottom`, included. The last band of a column goes on downward.
struct PaletteBand {
  i16 element;
  f32 left;
  f32 right;
  f32 top;
  f32 bottom;

  static constexpr f32 open = std::numeric_limits<f32>::infinity();

  bool Contains(Point at) const { return at.x >= left && at.x <= right && at.y > top && at.y <= bottom; }
  // Where it ends to the eye.
  f32 ShownBottom() const;
};

// First column first, from the top.
std::span<const PaletteBand> PaletteBands(PaletteOf page);

// The element of the band at a place; 0 for none.
i16 PaletteElementAt(PaletteOf page, Point at);

// The palette in one colour: black while it can be pressed, grey while it cannot.
inline constexpr Color paletteOff = 0x666666;
void DrawPalette(PaletteOf page, Color color, Canvas& canvas);

}  // namespace quilm
