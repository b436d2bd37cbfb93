#include "shell/Version.h"

namespace quilm {

std::string ProgramVersion() { return "Version " QUILM_VERSION; }

}  // namespace quilm
