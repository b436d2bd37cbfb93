// The help pages, which the desktop's browser shows.
#pragma once

#include <string>
#include <string_view>

#include "shell/PageId.h"

namespace quilm {

class Session;

// The file that tells of a page of the program, "design.htm" for Design. A form that belongs to another page and holds
// little more than a box is told of in that one's file.
std::string_view HelpFile(PageId id);

// Opens the file of the page, or a file by its name. The status line tells where it lies, in case that no browser comes
// up; where the desktop knows of none a message does.
void OpenHelp(Session& session, PageId id);
void OpenHelp(Session& session, std::string_view file);

}  // namespace quilm
