#include "script/Parser.h"

namespace quilm {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view WithoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text;
}

}  // namespace

std::string WithoutBlanksAtEnd(std::string_view text) {
  const std::size_t last = text.find_last_not_of(blanks);
  return std::string(text.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

FirstWord SplitFirst(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  const std::size_t end = std::min(text.find_first_of(blanks), text.size());
  return {std::string(text.substr(0, end)), std::string(WithoutLeadingBlanks(text.substr(end)))};
}

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  FirstWord next = SplitFirst(text);
  while (!next.word.empty() && next.word.front() != '#') {
    words.push_back(next.word);
    next = SplitFirst(next.rest);
  }
  return words;
}

std::optional<Command> ParseLine(std::string_view line, int number) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  const std::string_view text = WithoutLeadingBlanks(line);
  if (text.empty() || text.front() == '#') return std::nullopt;
  const FirstWord split = SplitFirst(text);
  return Command{number, WithoutBlanksAtEnd(text), split.word, split.rest};
}

std::optional<Command> ScriptSource::Next() {
  std::string line;
  while (std::getline(in_, line)) {
    ++line_;
    std::string_view text = line;
    if (line_ == 1 && text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    if (auto command = ParseLine(text, line_)) return command;
  }
  return std::nullopt;
}

}  // namespace quilm
