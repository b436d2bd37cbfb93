// Keeps the user's preferences in QuilmConfiguration.CFG.
#pragma once

#include <string>

namespace quilm {

class Session;

inline constexpr const char* configurationFile = "QuilmConfiguration.CFG";
inline constexpr const char* lastSessionFile = "LASTSESSION.QLM";

// The path of a file in the program's folder, and that of the preferences in theirs.
std::string InProgramFolder(Session& session, const std::string& name);
std::string PreferencesPath(Session& session);

// Sets the defaults of a new session, then takes the settings of the configuration file if there is one. A file that
// is missing or cannot be read leaves the defaults, without a message.
void ReadConfig(Session& session);

// Writes the present settings. A setting that is 0 keeps what was read at start (see FormatConfiguration); the record
// takes that value too. Tells the user when the file cannot be written, and goes on; the old file stays then.
//
// Leaves the configuration's name in DesignFileName, which holds the name of the file that was last opened to be
// written: users' scripts that watch the record see it there. No design is written under it, since all that leave the
// program write the configuration before the last session, which sets the name again.
void WriteConfig(Session& session);

}  // namespace quilm
