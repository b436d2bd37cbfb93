// The program as a process in a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace quilm {

using nlohmann::json;

struct Ended {
  int status = -1;
  std::string out;
  std::string err;

  std::vector<json> Events() const {
    std::vector<json> events;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) events.push_back(json::parse(line));
    return events;
  }
};

inline std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Program : public testing::Test {
 protected:
  Program() {
    std::string name = (std::filesystem::temp_directory_path() / "quilm-test-XXXXXX").string();
    folder = mkdtemp(name.data());
    std::filesystem::create_directory(folder / "tmp");
  }
  ~Program() override { std::filesystem::remove_all(folder); }

  // Runs it in the test's folder, which also holds its temporary files.
  Ended Run(const std::string& arguments, const std::string& script = {}) {
    std::ofstream(folder / "stdin") << script;
    return RunInShell("\"$quilm\" " + arguments + " <stdin >stdout 2>stderr");
  }

  // Runs commands of the shell there; $quilm is the program.
  Ended RunInShell(const std::string& commands) {
    std::ofstream(folder / "commands") << "cd '" + folder.string() + "'\nexport TMPDIR='" + (folder / "tmp").string() +
                                              "'\nquilm='" QUILM_SCRIPT "'\n" + commands;
    const int status = std::system(("bash '" + (folder / "commands").string() + "'").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(folder / "stdout"), ContentOf(folder / "stderr")};
  }

  std::filesystem::path folder;
};

}  // namespace quilm
