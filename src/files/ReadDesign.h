// Reads a design file into the record: the format without any message.
#pragma once

#include <istream>
#include <string>

#include "core/RecordFwd.h"

namespace quilm {

// Which layout a file had. Blocks were appended to the format over time, and files may stop before them.
enum class FileLayout {
  Current,
  WithoutMarkers,  // ends after the limits
  WithoutZeros,    // ends after the markers
};

struct ReadOutcome {
  bool failed = false;
  FileLayout layout = FileLayout::Current;
  // Of a failure: the last line taken, the step it happened in, what happened.
  std::string lastLine;
  std::string marker;
  std::string description;
};

// Empties the design: the ladder, terminations, limits, markers, entries and the responses of the former sweep. The
// scales return to round figures.
void ClearCircuit(DesignRecord& record, Responses& responses);

// Reads all lines that follow into an emptied record. Never throws; after a failure the record holds what was read so
// far.
ReadOutcome ReadDesign(std::istream& in, DesignRecord& record);

}  // namespace quilm
