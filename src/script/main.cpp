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
#include "script/Listing.h"
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

int PrintListing(const std::string& listing) {
  if (std::cout << listing << std::flush) return 0;
  std::cerr << "quilm-script: the output cannot be written\n";
  return exitFailed;
}

int PrintControls(const std::string& form) {
  try {
    return PrintListing(ControlListing(AllPages(), form));
  } catch (const CommandFailure& failure) {
    return UsageError(failure.reason);
  }
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Runs Quilm without a window: the commands of a script in, events as JSON out.");
  std::string folder;
  std::string file = "-";
  const CLI::Option* given =
      app.add_option("--folder", folder, "the program's folder, with its configuration (default: a temporary one)");
  const CLI::Option* script = app.add_option("FILE", file, "the script, - for standard input")->capture_default_str();
  bool listsCommands = false;
  app.add_flag("--commands", listsCommands, "list the commands of scripts and end");
  std::string form;
  CLI::Option* controls = app.add_option("--controls", form, "list the controls of every page, or of one, and end");
  controls->option_text("[PAGE]")->expected(0, 1);
  app.set_version_flag("--version", "quilm-script " QUILM_VERSION);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : exitUsage;
  }
  // Whoever reads the output may stop before its end: that is output which cannot be written, told like any other.
  std::signal(SIGPIPE, SIG_IGN);
  if (listsCommands || controls->count() > 0) {
    if (given->count() + script->count() > 0 || (listsCommands && controls->count() > 0)) {
      return UsageError("--commands and --controls stand alone");
    }
    return listsCommands ? PrintListing(CommandListing()) : PrintControls(form);
  }
  return given->count() == 0 ? RunInTemporaryFolder(file) : RunInFolder(file, folder);
}
