// The start of the program.
#pragma once

namespace quilm {

class Session;

// Sets constants and defaults, reads the configuration and shows the opening page.
void StartProgram(Session& session);

}  // namespace quilm
