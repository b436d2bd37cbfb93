// The help pages, which the desktop's browser shows.
#pragma once

#include <string>

namespace quilm {

class Session;

// Opens "design.htm" or another one. The status line tells where it lies, in case that no browser comes up; where the
// desktop knows of none a message does.
void OpenHelp(Session& session, const std::string& page);

}  // namespace quilm
