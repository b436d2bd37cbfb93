// The text of a script: one command a line.
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quilm {

struct Command {
  int line = 0;           // from 1
  std::string text;       // the whole command as written, for reports
  std::string name;       // its first word
  std::string arguments;  // from the second word to the line's end
};

// The command of a line. Nothing for blank lines and those whose first word begins with "#".
std::optional<Command> ParseLine(std::string_view line, int number);

// The words of `text`, which blanks and tabs separate. A word that begins with "#" begins a comment.
std::vector<std::string> Words(std::string_view text);

// The first word, and what follows it from the next word to the end as it stands.
struct FirstWord {
  std::string word;
  std::string rest;
};
FirstWord SplitFirst(std::string_view text);

// `text` without blanks at its end.
std::string WithoutBlanksAtEnd(std::string_view text);

// The commands of a script one after the other. Lines end with LF or CR LF; a byte order mark is skipped.
class ScriptSource {
 public:
  explicit ScriptSource(std::istream& in) : in_(in) {}
  // Nothing at the end.
  std::optional<Command> Next();

 private:
  std::istream& in_;
  int line_ = 0;
};

}  // namespace quilm
