// Opens and writes the text files of the program: designs, the last session, the configuration, and whatever is
// exported.
#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace quilm {

// Opens the file at `path` to be read. A folder, a pipe and a device cannot be opened, nor can a link to one: reading
// them would fail, wait for somebody else, or never end. The stream of what cannot be opened is false.
std::ifstream OpenTextFile(const std::string& path);

// What a write that does not get to its end leaves at the path.
enum class OnFailure {
  KeepOldFile,         // the file that stood there, whole, or none if there was none
  KeepWhatWasWritten,  // the new text as far as it got; the old file where not even that was possible
};

// True when the file is written.
struct WriteOutcome {
  std::string failure = {};  // why it is not, in words for the user
  explicit operator bool() const { return failure.empty(); }
};

// Replaces the file at `path`, or makes it, with `text` byte for byte. Fails for whatever reason: no such folder, no
// permission, a full disk, a limit on the size of files.
//
// It is written to a temporary file beside the old one, flushed to the disk and renamed, so that whoever reads, a
// second instance or the next start after a power failure, finds the old text or the new one and never a part of a
// write that still goes on. Of several writers at once the last to end wins. An old file keeps its permissions, and one
// that is protected against writing is not replaced. A symbolic link stays, and what it leads to is replaced.
//
// It needs a folder in which files can be made. Where none can, a file that could be written in place is left as it is:
// a kill halfway would cost the user the old text and the new one, a failure that is told costs a second choice of
// folder.
//
// A failure leaves no temporary file behind. A kill can leave one, which the next write in that folder takes away.
//
// What is no regular file, such as a pipe or a terminal, has no text to lose and is written to as it stands.
WriteOutcome WriteTextFile(const std::string& path, std::string_view text,
                           OnFailure onFailure = OnFailure::KeepOldFile);

}  // namespace quilm
