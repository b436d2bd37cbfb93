#include "app/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <string_view>

namespace quilm {

namespace {

constexpr int exitUsage = 2;

// The words after the program's name that are none of the toolkit's, the last one first, as the parser takes them.
std::vector<std::string> OwnWords(int argc, const char* const* argv) {
  constexpr std::array<std::string_view, 5> toolkits{"-platform", "-style", "-session", "-display", "-geometry"};
  std::vector<std::string> words;
  for (int i = 1; i < argc; ++i) {
    const bool toolkit = std::find(toolkits.begin(), toolkits.end(), argv[i]) != toolkits.end();
    if (toolkit && i + 1 < argc) {
      ++i;
    } else {
      words.emplace_back(argv[i]);
    }
  }
  std::reverse(words.begin(), words.end());
  return words;
}

}  // namespace

CommandLine ReadCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
  CommandLine line;
  CLI::App app("Designs passive LC filters and shows how they behave.", "quilm");
  app.add_option("FILE", line.file, "the design to open");
  app.add_option("--folder", line.folder, "keep preferences, last session and window place in this folder");
  app.add_flag("--has-display", line.onlyLooks, "end at once, with status 0 if a window can be opened");
  app.set_version_flag("--version", "Quilm " QUILM_VERSION);
  try {
    app.parse(OwnWords(argc, argv));
  } catch (const CLI::ParseError& error) {
    line.status = app.exit(error, out, err) == 0 ? 0 : exitUsage;
  }
  return line;
}

}  // namespace quilm
