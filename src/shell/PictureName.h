// What a picture of the design is called when it is saved.
#pragma once

#include <string>

namespace quilm {

struct Identity;

// The name of a file without its ending: the design's own name, its file's else its title, and what the picture shows,
// the title of its page: "my lowpass schematic". The program's own files lend no name, and a design without one is
// called by the program's.
std::string PictureName(const Identity& identity, const std::string& pageTitle);

}  // namespace quilm
