// Reads a design file from disk into the session.
#pragma once

#include <string>

#include "shell/PageId.h"

namespace quilm {

class Session;

inline constexpr const char* quilmFileFilter = "Quilm files (*.QLM)|*.QLM";

enum class Got {
  Nothing,  // no path, the dialog was cancelled, or the file cannot be opened (OpenTextFile), of which the user was
            // told: nothing has changed
  Design,
  OlderDesign,  // a file of an older layout: the Schematic page shows what came of it
  Failure,      // the file could not be read to its end: there is no network
};

// Replaces the design by the one in the file, whose path DesignFileName takes; an empty path changes nothing. The pages
// that show the design are unloaded, so that they are rebuilt when they are next shown. A file of an older layout marks
// the design as changed.
//
// A failure, of the file or of the disk, is told in a message and leaves the path and DesignFileName empty and the
// session without a network. What was read so far stays, but for sweep, scales, Q and reference, which come back from
// the configuration; and the source termination is never stored as a preference.
Got modReadQuilmFiles(Session& session, std::string& path);

// Asks for a file and reads it.
Got GetDesign(Session& session, const std::string& title);

// The same for a main page, in whose place `target` shows the design, or which is then loaded afresh. After a failure
// the Design page takes its place, and the status line tells how the former design comes back; after an older design
// the Schematic page does.
void GetDesignFor(Session& session, PageId page, PageId target);
void GetDesignFor(Session& session, PageId page);

}  // namespace quilm
