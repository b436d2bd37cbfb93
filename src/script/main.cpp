// quilm-script: the program without a window, driven by a script.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "script/ScriptRun.h"
#include "script/TemporaryFolder.h"

namespace {

using namespace quilm;

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

int UsageError(const std::string& reason) {
  std::cerr << "quilm-script: " << reason << '\n';
  return exitUsage;
}

void PrintLine(std::ostream& out, const Json& event) { out << JsonLine(event) << std::endl; }

int RunScript(std::istream& script, const std::string& folder) {
  ScriptRun run(script, folder, AllPages(), [](const Json& event) { PrintLine(std::cout, event); });
  try {
    run.Run(StartProgram);
  } catch (const ScriptError& error) {
    PrintLine(std::cerr, ErrorEvent(error));
    return exitFailed;
  }
  return 0;
}

int RunFile(const std::string& file, const std::string& folder) {
  if (file == "-") return RunScript(std::cin, folder);
  std::ifstream script(file, std::ios::binary);
  if (!script || std::filesystem::is_directory(file)) return UsageError(file + " cannot be read");
  return RunScript(script, folder);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Runs Quilm without a window: the commands of a script in, events as JSON out.");
  std::string folder;
  std::string file = "-";
  app.add_option("--folder", folder, "the program's folder, with its configuration (default: a temporary one)");
  app.add_option("FILE", file, "the script, - for standard input")->capture_default_str();
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : exitUsage;
  }
  if (folder.empty()) {
    const TemporaryFolder temporary;
    return RunFile(file, temporary.Path());
  }
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  if (!std::filesystem::is_directory(folder)) return UsageError(folder + " is no folder");
  return RunFile(file, folder);
}
