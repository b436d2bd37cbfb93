// Where a failed check or computation leads: back to the entries.
#pragma once

#include <string_view>

namespace quilm {

class Session;

// Brings the Design page to the top, unless it is there already: its load step would rebuild controls that the user
// just works on. Puts the focus on the named control, if the page has it.
void ReturnToDesign(Session& session, std::string_view focus = {});

}  // namespace quilm
