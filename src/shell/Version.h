#pragma once

#include <string>

namespace quilm {

// "Version 0.1.0", as the About page and printed reports show it.
std::string ProgramVersion();

}  // namespace quilm
