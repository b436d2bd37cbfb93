// How the files for other programs reach the disk: the save dialog, what a cancel means, and what the user is told.
#pragma once

#include <functional>
#include <string>

#include "core/ExportChoices.h"
#include "core/TextFile.h"
#include "files/export/ExportText.h"

namespace quilm {

class Session;

// A kind of file as its dialog offers it.
struct ExportKind {
  const char* title;
  const char* filter;
  const char* defaultName;                  // of the first file of the kind
  const char* extension;                    // ".S2P"
  std::string ExportChoices::*path;         // where the last one is remembered
  const char* failure = "";                 // the message of a file that is not written; none tells path and reason
  OnFailure kept = OnFailure::KeepOldFile;  // also for a text that is not whole
};

// Asks for the file and writes what `make` gives. The dialog begins with the path that was last used for the kind, or
// with the default name in the folder that was last used for any, else in the program's folder; the path has the kind's
// extension. A name that is entered without an extension gets it, and one that the dialog has no filter for is replaced
// by it; a file that stands there is asked about.
//
// After a cancelled dialog the file is written under the name that was offered, as scripts count on, unless a file has
// that name. The note says what was written, and why nothing was.
void SaveExport(Session& session, const ExportKind& kind, const std::function<ExportText()>& make);

}  // namespace quilm
