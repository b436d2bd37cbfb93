// The ways out of the program.
#pragma once

namespace quilm {

class Session;

// The close box of a main page is no cancel: keeps the preferences and stores the design as the last
// session, then ends the program at once.
[[noreturn]] void LeaveByCloseBox(Session& session);

}  // namespace quilm
