#include "shell/ShortDate.h"

#include <array>
#include <cstdio>

#include "shell/Platform.h"

namespace quilm {

std::string ShortDate(const DateTime& day) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", day.year, day.month, day.day);
  return text.data();
}

}  // namespace quilm
