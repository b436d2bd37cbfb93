// What a writer of a file for another program makes: text, and why it is not whole.
#pragma once

#include <string>

namespace quilm {

struct ExportText {
  std::string text;     // with the line ends of a text file, CR LF; as far as it got where it is not whole
  std::string failure;  // empty when it is whole, else why it is not, in words for the user
};

}  // namespace quilm
