// quilm-script: the program without a window, driven by a script.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include "core/Fault.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "script/ScriptRun.h"
#include "script/SignalWatch.h"
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

void PrintEvent(const Json& event) {
  PrintLine(std::cout, event);
  if (!std::cout) throw CommandFailure{"the output cannot be written"};
}

int RunScript(std::istream& script, const std::string& folder) {
  ScriptRun run(script, folder, AllPages(), PrintEvent);
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
  std::error_code failed;
  if (!script || std::filesystem::is_directory(file, failed)) return UsageError(file + " cannot be read");
  return RunScript(script, folder);
}

// The folder goes with the run, also with one that a signal ends.
int RunInTemporaryFolder(const std::string& file) {
  SignalWatch watch;
  std::optional<TemporaryFolder> temporary;
  try {
    temporary.emplace();
  } catch (const Fault& fault) {
    return UsageError(fault.what());
  }
  watch.Start([path = temporary->Path()] { RemoveFolder(path); });
  return RunFile(file, temporary->Path());
}

// A folder that cannot be written to will do: what is not stored there is told as it happens.
int RunInFolder(const std::string& file, const std::string& folder) {
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  if (!std::filesystem::is_directory(folder, failed))
    return UsageError(folder + " is no folder, and cannot be made one");
  if (access(folder.c_str(), R_OK | X_OK) != 0) return UsageError("the folder " + folder + " cannot be read");
  return RunFile(file, folder);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Runs Quilm without a window: the commands of a script in, events as JSON out.");
  std::string folder;
  std::string file = "-";
  const CLI::Option* given =
      app.add_option("--folder", folder, "the program's folder, with its configuration (default: a temporary one)");
  app.add_option("FILE", file, "the script, - for standard input")->capture_default_str();
  app.set_version_flag("--version", "quilm-script " QUILM_VERSION);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : exitUsage;
  }
  // Whoever reads the output may stop before its end: that is output which cannot be written, told like any other.
  std::signal(SIGPIPE, SIG_IGN);
  return given->count() == 0 ? RunInTemporaryFolder(file) : RunInFolder(file, folder);
}
