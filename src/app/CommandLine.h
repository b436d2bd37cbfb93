// What the program is called with.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace quilm {

struct CommandLine {
  std::string file;           // the design to open; empty for none
  std::string folder;         // for everything that the program keeps; empty for those of the desktop
  bool onlyLooks = false;     // for a display: the program ends when it has looked
  std::optional<int> status;  // the program ends with it at once: help or version was asked for, or a usage error told
};

// Help and version go to `out`, usage errors, with status 2, to `err`. The toolkit's own options are left to it, with
// their values: a session manager starts the program anew with one.
CommandLine ReadCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

}  // namespace quilm
