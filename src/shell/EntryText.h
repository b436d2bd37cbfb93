// Entry boxes and the fields behind them: what a box shows of a value, and what it gives back.
#pragma once

#include <string>

#include "core/Types.h"

namespace quilm {

class TextBox;

// One of the display formats of modGeneral.
using Formatter = std::string (*)(f32);

// The value in display format, without the blanks around it.
std::string EntryText(f32 value, Formatter format);

// The same, but empty for 0: a box that nobody has filled yet stays blank.
std::string FilledText(f32 value, Formatter format);

// Takes the box into the field. A box that just shows the field leaves it alone, so that reading back an echo of six
// digits never costs the others: 1.2345678M stays 1234567.8 while its box reads 1.23457M.
void ParseBox(const TextBox& box, f32& field, Formatter format);

// Shows what was understood, when the user leaves the box. A blank one stays blank.
void EchoBox(TextBox& box, f32 field, Formatter format);

}  // namespace quilm
