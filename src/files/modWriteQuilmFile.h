// Writes the design to disk.
#pragma once

#include <string>

namespace quilm {

class Session;

// Writes the design to DesignFileName, over any file there. False when that failed: after a beep, without a message,
// with the reason in the status line and with the old file as it was.
//
// With no network the program waits a moment and ends. The ways out of the program rest on it: a run that designed
// nothing leaves through the same call, and a save with no design ends likewise.
bool modWriteQuilmFile(Session& session);

// Asks for a file name and writes the design there. A cancelled dialog changes nothing.
bool SaveDesign(Session& session, const std::string& title);

// Stores the design as LASTSESSION.QLM in the program's folder. False when it was not stored: without a network, which
// is tested here so that the program goes on to its own end, or when writing fails.
bool StoreLastSession(Session& session);

}  // namespace quilm
