// What other programs say.
#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace quilm {

// What a command writes to its standard output; fails with an empty text.
inline std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return output;
  std::array<char, 4096> block{};
  for (std::size_t got = 0; (got = fread(block.data(), 1, block.size(), pipe)) > 0;) output.append(block.data(), got);
  return pclose(pipe) == 0 ? output : std::string();
}

}  // namespace quilm
