#include "shell/Utf8.h"

namespace quilm {

std::size_t SequenceLength(std::string_view text) {
  const auto byte = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
  const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
  const bool beyond = lead == 0xF4 && byte(1) >= 0x90;
  return overlong || surrogate || beyond ? 0 : length;
}

char32_t TakeCharacter(std::string_view& text) {
  constexpr char32_t replacement = 0xFFFD;
  const std::size_t length = SequenceLength(text);
  if (length == 0) {
    text.remove_prefix(1);
    return replacement;
  }
  // A lead byte of a longer sequence keeps as many bits as it has left.
  const auto lead = static_cast<unsigned char>(text[0]);
  char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) character = character << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
  text.remove_prefix(length);
  return character;
}

}  // namespace quilm
