#include "shell/EntryText.h"

#include "core/NumberText.h"
#include "core/modGeneral.h"

namespace quilm {

std::string EntryText(f32 value, Formatter format) { return Trimmed(format(value)); }

std::string FilledText(f32 value, Formatter format) { return value == 0 ? std::string() : EntryText(value, format); }

std::string PlainText(f32 value) { return ShortText(value, LeadingZero::Keep); }

}  // namespace quilm
