#include "shell/EntryText.h"

#include "core/modGeneral.h"
#include "shell/Control.h"

namespace quilm {

std::string EntryText(f32 value, Formatter format) { return Trimmed(format(value)); }

std::string FilledText(f32 value, Formatter format) { return value == 0 ? std::string() : EntryText(value, format); }

void ParseBox(const TextBox& box, f32& field, Formatter format) {
  if (Trimmed(box.text) == EntryText(field, format)) return;
  std::string text = box.text;
  ParseEntry(text, field);
}

void EchoBox(TextBox& box, f32 field, Formatter format) {
  if (field == 0 && Trimmed(box.text).empty()) return;
  box.text = EntryText(field, format);
}

}  // namespace quilm
