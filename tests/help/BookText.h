// The text of the built book, as a reader sees it.
#pragma once

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace quilm {

namespace fs = std::filesystem;

inline std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

inline std::vector<std::string> AllOf(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at) found.push_back((*at)[1]);
  return found;
}

inline std::string WithoutContents(const std::string& page) {
  const std::size_t from = page.find("<main>");
  return from == std::string::npos ? std::string() : page.substr(from);
}

// A blank for each tag.
inline std::string WithoutTags(const std::string& html) {
  std::string text = std::regex_replace(html, std::regex("<[^>]*>"), " ");
  text = std::regex_replace(text, std::regex("&lt;"), "<");
  text = std::regex_replace(text, std::regex("&gt;"), ">");
  return std::regex_replace(text, std::regex("&amp;"), "&");
}

// What a reader sees, in small letters, with one blank between words.
inline std::string Plain(const std::string& html) {
  std::string text = std::regex_replace(WithoutTags(html), std::regex("\\s+"), " ");
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

inline bool IsWordPart(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }

// Whether the words stand in the text as words of their own.
inline bool Has(const std::string& text, const std::string& words) {
  for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1)) {
    const bool begins = at == 0 || !IsWordPart(text[at - 1]) || !IsWordPart(words.front());
    const std::size_t end = at + words.size();
    const bool ends = end >= text.size() || !IsWordPart(text[end]) || !IsWordPart(words.back());
    if (begins && ends) return true;
  }
  return false;
}

}  // namespace quilm
