// The ways out of the program.
#pragma once

namespace quilm {

class Session;

// The close box of a main page is no cancel: keeps the preferences and stores the design as the last
// session, then ends the program at once.
[[noreturn]] void LeaveByCloseBox(Session& session);

// The system ends the program: leaves like the close box. In the middle of an act that has taken the network away, a
// file that could not be read say, the design that the act found is the one to keep. The opening page has no
// preferences.
[[noreturn]] void LeaveBySystem(Session& session);

}  // namespace quilm
