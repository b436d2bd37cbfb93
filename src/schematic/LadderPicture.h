// Networks as bare artwork, for buttons and guides.
#pragma once

#include <span>
#include <string_view>

#include "core/DesignRecord.h"
#include "shell/Picture.h"

namespace quilm {

// The stages side by side, with terminals at both ends.
Picture LadderPicture(std::span<const i16> elementTypes);

// The element types of a topology of order 3 (the Cauer bandpass with its split branch); empty for other letters.
std::span<const i16> TopologyElements(std::string_view letter);

Picture TopologyPicture(std::string_view letter);

}  // namespace quilm
