#include "shell/PictureName.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "core/Identity.h"

namespace quilm {

namespace {

std::string DesignName(const Identity& identity) {
  std::string stem = std::filesystem::path(identity.DesignFileName).stem().string();
  if (!stem.empty() && stem != "LASTSESSION" && stem != "QuilmConfiguration") return stem;
  const std::string& title = identity.CircuitTitle;
  const std::size_t first = title.find_first_not_of(' ');
  if (first == std::string::npos || title == "Untitled") return "Quilm";
  return title.substr(first, title.find_last_not_of(' ') - first + 1);
}

// In every locale: the library's own knows no small letter for a Turkish I.
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

}  // namespace

std::string PictureName(const Identity& identity, const std::string& pageTitle) {
  std::string name = DesignName(identity) + " " + pageTitle;
  const auto shown = name.end() - static_cast<std::ptrdiff_t>(pageTitle.size());
  std::transform(shown, name.end(), shown, Lower);
  // A title is free text; a name of a file is not.
  std::replace(name.begin(), name.end(), '/', '-');
  std::erase_if(name, [](unsigned char c) { return std::iscntrl(c) != 0; });
  return name;
}

}  // namespace quilm
