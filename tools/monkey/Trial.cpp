#include "monkey/Trial.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

#include "core/Fault.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "script/ScriptRun.h"

namespace quilm {

namespace {

namespace fs = std::filesystem;

constexpr unsigned mostSecondsAnAct = 60;  // a sanitizer and a busy machine slow each other down
constexpr const char* logName = "monkey.log";

// The process that does it. Each line is in the file before what it says is done.
[[noreturn]] void RunHere(const fs::path& folder, const MonkeyMind& mind, bool quiet) {
  fs::current_path(folder);
  fs::create_directories("program");
  const int silence = quiet ? open("/dev/null", O_WRONLY) : -1;
  if (silence >= 0) dup2(silence, STDERR_FILENO);
  std::ofstream log(logName);
  const MonkeyReport report = RunMonkey(AllPages(), StartProgram, mind, [&log](const std::string& line) {
    log << line << std::endl;
    alarm(mostSecondsAnAct);
  });
  if (!report.finding.empty())
    log << "finding " << report.finding.substr(0, report.finding.find_first_of("\r\n")) << std::endl;
  log << "end" << std::endl;
  // By exit, so that the sanitizer looks for leaks.
  std::exit(0);
}

std::string Ending(int status, bool toTheEnd) {
  if (WIFSIGNALED(status)) {
    const int number = WTERMSIG(status);
    return number == SIGALRM ? "it hangs" : "it is ended by signal " + std::to_string(number);
  }
  if (WEXITSTATUS(status) == 0 && toTheEnd) return {};
  return "it ends with status " + std::to_string(WEXITSTATUS(status)) + (toTheEnd ? " after its end" : "");
}

MonkeyReport ReadLog(const fs::path& path, int status) {
  MonkeyReport report;
  std::ifstream log(path);
  bool toTheEnd = false;
  for (std::string line; std::getline(log, line);) {
    const std::string rest = line.substr(std::min(line.find(' ') + 1, line.size()));
    if (line.starts_with("act ")) report.steps.push_back({rest, {}});
    if (line.starts_with("says ") && !report.steps.empty()) report.steps.back().answers.push_back(rest);
    if (line == "refused" && !report.steps.empty()) report.steps.back().refused = true;
    if (line.starts_with("finding ")) report.finding = rest;
    toTheEnd = line == "end";
  }
  if (report.finding.empty()) report.finding = Ending(status, toTheEnd);
  return report;
}

}  // namespace

WorkFolder::WorkFolder(const fs::path& former) {
  std::string name = (fs::temp_directory_path() / "quilm-monkey-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw Fault("no temporary folder can be made at " + name);
  path_ = name;
  if (fs::is_directory(former)) fs::copy(former, path_, fs::copy_options::recursive);
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

MonkeyReport TryOut(const fs::path& folder, const MonkeyMind& mind, bool quiet) {
  const pid_t child = fork();
  if (child < 0) throw Fault("no process can be started");
  if (child == 0) RunHere(folder, mind, quiet);
  int status = 0;
  waitpid(child, &status, 0);
  MonkeyReport report = ReadLog(folder / logName, status);
  fs::remove(folder / logName);
  return report;
}

}  // namespace quilm
