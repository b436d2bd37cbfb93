#include "files/LineReader.h"

#include <algorithm>
#include <string_view>

#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr std::size_t longestLine = 65536;
constexpr std::string_view commentStarts = "!*'/\\";
constexpr int end = std::char_traits<char>::eof();

// The buffer of a file throws where the disk fails.
template <class Read>
int FromDisk(Read read) {
  try {
    return read();
  } catch (const std::ios_base::failure&) {
    throw ReadFault("The file cannot be read on");
  }
}

}  // namespace

int LineReader::Get() {
  return FromDisk([this] { return in_.rdbuf()->sbumpc(); });
}

int LineReader::Peek() {
  return FromDisk([this] { return in_.rdbuf()->sgetc(); });
}

bool LineReader::ReadRaw(std::string& line) {
  line.clear();
  int c = Get();
  if (c == end) return false;
  for (; c != end && c != '\n' && c != '\r'; c = Get()) {
    if (line.size() < longestLine) line.push_back(static_cast<char>(c));
  }
  if (c == '\r' && Peek() == '\n') Get();
  return true;
}

const std::string& LineReader::Take() {
  std::string line;
  while (ReadRaw(line)) {
    if (line.empty()) continue;
    std::string text = Trimmed(line);
    if (!text.empty() && commentStarts.find(text.front()) != std::string_view::npos) continue;
    last_ = std::move(text);
    return last_;
  }
  throw ReadFault("Input past end of file");
}

bool LineReader::AtEnd() { return Peek() == end; }

const std::string& WordSplitter::Next() {
  const std::size_t first = rest_.find_first_not_of(' ');
  if (first == std::string::npos) {
    rest_.clear();
    return word_;
  }
  const std::size_t stop = std::min(rest_.find(' ', first), rest_.size());
  word_ = rest_.substr(first, stop - first);
  const std::size_t next = rest_.find_first_not_of(' ', stop);
  rest_ = next == std::string::npos ? std::string() : rest_.substr(next);
  return word_;
}

}  // namespace quilm
