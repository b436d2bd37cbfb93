// Takes the lines of a design file one by one, and words off a line.
#pragma once

#include <istream>
#include <string>

#include "core/Fault.h"

namespace quilm {

// The file cannot be read on from here. what() is the run-time's word for it.
class ReadFault : public Fault {
 public:
  using Fault::Fault;
};

// Lines may end with CR LF, LF or CR, and the last one with nothing. Bytes beyond ASCII pass through. Of a line longer
// than any design needs only the beginning is kept, so that a damaged file cannot eat the memory.
class LineReader {
 public:
  explicit LineReader(std::istream& in) : in_(in) {}

  // The next line that is no comment, trimmed. A line is skipped when it is empty or when, trimmed, it begins with "!",
  // "*", "'", "/" or "\"; one that holds only blanks is not, and is handed on as empty text. Throws ReadFault at the
  // end of the file, and where the disk cannot be read on.
  const std::string& Take();

  // Whether nothing follows. Throws ReadFault where the disk cannot tell.
  bool AtEnd();

  // The last line that Take handed on, whole.
  const std::string& Last() const { return last_; }

 private:
  bool ReadRaw(std::string& line);
  int Get();   // the next byte, taken
  int Peek();  // the next byte

  std::istream& in_;
  std::string last_;
};

// Takes the words off a line. A word that is missing repeats the one before it, also over line ends: older files have
// fewer fields, and the readers of later fields rest on this.
class WordSplitter {
 public:
  explicit WordSplitter(std::string line = {}) : rest_(std::move(line)) {}

  void Continue(std::string line) { rest_ = std::move(line); }

  // The next word; blanks are the only delimiters.
  const std::string& Next();

  // Whether anything is left after the words taken so far.
  bool More() const { return !rest_.empty(); }

 private:
  std::string rest_;
  std::string word_;
};

}  // namespace quilm
