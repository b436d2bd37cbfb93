// Writes the design to disk.
#pragma once

#include <string>

namespace quilm {

class Session;

// Writes the design to DesignFileName, over any file there. False when that failed: after a beep, with the file as far
// as it got and without a message. With no network the program waits a moment and ends: so does a save with no design.
// Meant, and kept.
bool modWriteQuilmFile(Session& session);

// Asks for a file name and writes the design there. A cancelled dialog changes nothing.
bool SaveDesign(Session& session, const std::string& title);

// Stores the design as LASTSESSION.QLM in the program's folder. False when it was not stored: without a network, which
// is tested here so that the program goes on to its own end, or when writing fails.
bool StoreLastSession(Session& session);

}  // namespace quilm
