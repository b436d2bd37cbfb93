// Networks as bare artwork, for buttons and guides.
#pragma once

#include <span>
#include <string_view>

#include "core/Types.h"
#include "shell/Picture.h"

namespace quilm {

// The stages side by side, with terminals at both ends. The picture is as wide as the symbols need, or `least` units
// where that is more; spare room goes evenly to the stages. Codes that are no element leave no gap.
Picture LadderPicture(std::span<const i16> elementTypes, f32 least = 0);

// The element types of a topology of order 3 (the Cauer bandpass with its split branch); empty for other letters.
std::span<const i16> TopologyElements(std::string_view letter);

// The ladder of a topology "A" to "L". All twelve are of one size, so that their symbols are, too. An empty picture for
// other letters.
Picture TopologyPicture(std::string_view letter);

}  // namespace quilm
