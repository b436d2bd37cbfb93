// What must hold after each act, whatever it was.
#pragma once

#include <optional>
#include <string>

#include "core/DesignRecord.h"

namespace quilm {

class Page;
class ScriptRun;

// Each gives what is wrong, or nothing.

// The shown boxes of the pages in sight say what the record holds, as far as their display formats can; the box that is
// typed in is left out.
std::string CheckBoxes(ScriptRun& run);

// No number of the record is infinite or none.
std::string CheckNumbers(ScriptRun& run);

// The design file at `path` can be read, and what was read is written as it stands there, but for the numbers that
// reading does not keep by its own rules.
std::string CheckSavedFile(const std::string& path);

// An undo and the redo that follows it give the record back. Told of the record before each act and after it.
class UndoCheck {
 public:
  // `act` as written; refused: it could not be done.
  std::string After(ScriptRun& run, const std::string& act, bool refused);

 private:
  DesignRecord last_;                       // after the act before
  std::optional<DesignRecord> beforeUndo_;  // when the act before was an undo
  bool typing_ = false;                     // a box had the focus after it, which undo leaves first
};

}  // namespace quilm
