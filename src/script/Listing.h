// What a script can use, listed for its author: the commands, and the controls of every page.
#pragma once

#include <string>

#include "shell/PageDesk.h"

namespace quilm {

// Every command with its form and its effect, in columns that a terminal of 80 characters holds.
std::string CommandListing();

// The controls of the pages: below a page's form name and title one control a line with name, kind and caption, or what
// screen readers speak where it has none. `form` is one page's form name, empty for all. The pages are made and not
// loaded, so that nothing of a design is in it: what only a design brings, as the named areas of pictures, is missing.
// Throws CommandFailure when there is no such page.
std::string ControlListing(const PageDirectory& directory, const std::string& form);

}  // namespace quilm
