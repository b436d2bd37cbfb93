// What a box shows of a value.
#pragma once

#include <string>

#include "core/Types.h"

namespace quilm {

// One of the display formats of modGeneral.
using Formatter = std::string (*)(f32);

// The value in display format, without the blanks around it.
std::string EntryText(f32 value, Formatter format);

// The same, but empty for 0: a box that nobody has filled yet stays blank.
std::string FilledText(f32 value, Formatter format);

// A count or an order as it is: 2049, not 2.049k.
std::string PlainText(f32 value);

}  // namespace quilm
