// How far prototypes go.
#pragma once

#include "core/Types.h"

namespace quilm {

inline constexpr i16 orderLimit = 21;  // highest order of a prototype

}  // namespace quilm
