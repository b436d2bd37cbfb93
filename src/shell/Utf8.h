// Characters of UTF-8 texts.
#pragma once

#include <string_view>

namespace quilm {

// How many bytes the sequence at the front of `text` has, 0 when it is none (RFC 3629, section 4).
std::size_t SequenceLength(std::string_view text);

// Takes the first character off a text that is not empty; a byte that is none is U+FFFD.
char32_t TakeCharacter(std::string_view& text);

}  // namespace quilm
