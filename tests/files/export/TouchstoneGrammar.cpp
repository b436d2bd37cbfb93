#include "files/export/TouchstoneGrammar.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace quilm {

namespace {

struct Wrong {
  std::string why;
};

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// The lines that are no comments, without what follows a "!".
std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = text.find("\r\n", begin);
    if (end == std::string::npos) throw Wrong{"a line without its end"};
    const std::string line = text.substr(begin, end - begin);
    const std::string content = line.substr(0, line.find('!'));
    if (content.find_first_not_of(" \t") != std::string::npos) lines.push_back(content);
    begin = end + 2;
  }
  return lines;
}

std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

f64 Number(const std::string& word) {
  std::size_t used = 0;
  const f64 value = std::stod(word, &used);
  if (used != word.size()) throw Wrong{"no number: " + word};
  return value;
}

class Parser {
 public:
  explicit Parser(std::vector<std::string> lines) : lines_(std::move(lines)) {}

  TouchstoneV2 Parse() {
    if (Argument("[version]") != " 2.0") throw Wrong{"not version 2.0"};
    ParseOptions();
    read_.ports = static_cast<int>(Number(Words(Argument("[number of ports]")).at(0)));
    if (read_.ports == 2) {
      const std::string order = Lower(Words(Argument("[two-port data order]")).at(0));
      if (order != "21_12" && order != "12_21") throw Wrong{"data order " + order};
    }
    const auto frequencies = static_cast<std::size_t>(Number(Words(Argument("[number of frequencies]")).at(0)));
    if (Lower(Here()).starts_with("[reference]")) {
      for (const std::string& word : Words(Argument("[reference]"))) read_.references.push_back(Number(word));
      if (read_.references.size() != static_cast<std::size_t>(read_.ports)) throw Wrong{"a reference for each port"};
    }
    if (!Argument("[network data]").empty()) throw Wrong{"something behind [Network Data]"};
    for (std::size_t i = 0; i < frequencies; ++i) ParseRow();
    if (!Argument("[end]").empty()) throw Wrong{"something behind [End]"};
    if (at_ != lines_.size()) throw Wrong{"something after [End]"};
    return read_;
  }

 private:
  const std::string& Here() const {
    if (at_ >= lines_.size()) throw Wrong{"the file ends too early"};
    return lines_[at_];
  }

  std::string Argument(const std::string& keyword) {
    const std::string& line = Here();
    if (!Lower(line).starts_with(keyword)) throw Wrong{keyword + " is not where it must be"};
    ++at_;
    return line.substr(keyword.size());
  }

  // "# MHz S DB R 50"
  void ParseOptions() {
    const std::vector<std::string> words = Words(Here());
    if (words.size() != 6 || words[0] != "#" || words[2] != "S" || words[4] != "R") throw Wrong{"no option line"};
    if (!(Number(words[5]) > 0)) throw Wrong{"no reference"};
    read_.unit = words[1];
    read_.format = words[3];
    ++at_;
  }

  void ParseRow() {
    const std::string& line = Here();
    std::vector<f64> row;
    for (const std::string& word : Words(line)) row.push_back(Number(word));
    const auto cells = static_cast<std::size_t>(1 + 2 * read_.ports * read_.ports);
    if (row.size() != cells) throw Wrong{std::to_string(row.size()) + " cells in a row"};
    if (!read_.rows.empty() && !(row[0] > read_.rows.back()[0])) throw Wrong{"frequencies do not rise"};
    read_.rows.push_back(std::move(row));
    read_.rowTexts.push_back(line);
    ++at_;
  }

  std::vector<std::string> lines_;
  std::size_t at_ = 0;
  TouchstoneV2 read_;
};

}  // namespace

TouchstoneV2 ParseTouchstoneV2(const std::string& text) {
  TouchstoneV2 wrong;
  try {
    return Parser(Lines(text)).Parse();
  } catch (const Wrong& fault) {
    wrong.fault = fault.why;
  } catch (const std::exception& fault) {  // a word that is no number, an argument that is missing
    wrong.fault = fault.what();
  }
  return wrong;
}

}  // namespace quilm
