// quilm-monkey: does at random what users can do, looks after each act whether all is well, and shrinks what leads to a
// finding to a short script.
#include <CLI/CLI.hpp>
#include <chrono>
#include <fstream>
#include <iostream>

#include "monkey/MonkeyActs.h"
#include "monkey/Trial.h"
#include "script/Parser.h"

namespace {

using namespace quilm;
namespace fs = std::filesystem;

constexpr int exitFound = 1;
constexpr int mostTrials = 600;
constexpr int mostActsOfASession = 250;

struct Wanted {
  std::uint32_t seed = 1;
  int acts = 2000;
  int findings = 1;  // to stop after
  std::string folder = ".";
};

// A monkey of its own for each session, so that a session can be repeated without those before it.
MonkeyMind RandomMind(std::uint32_t seed, int acts) {
  const auto monkey = std::make_shared<MonkeyActs>(seed);
  const auto left = std::make_shared<int>(acts);
  MonkeyMind mind;
  mind.next = [monkey, left](ScriptRun& run) -> std::optional<std::string> {
    if ((*left)-- == 0) return std::nullopt;
    return monkey->Next(run);
  };
  mind.answer = [monkey](Asks what) { return monkey->Answer(what); };
  return mind;
}

Steps ShrinkIn(const fs::path& former, const MonkeyReport& report) {
  return Shrink(
      report.steps,
      [&](const Steps& steps) {
        const WorkFolder work(former);
        return TryOut(work.Path(), Repeating(steps), true).finding == report.finding;
      },
      mostTrials);
}

// The shortest script with the same finding, from an empty folder where that will do, else from the folder in which the
// session began, which is kept beside the script.
void Tell(const Wanted& wanted, int number, const fs::path& former, const MonkeyReport& report) {
  const WorkFolder empty;
  const bool alone = TryOut(empty.Path(), Repeating(report.steps), true).finding == report.finding;
  const Steps steps = ShrinkIn(alone ? fs::path() : former, report);
  // Gone through once more, since what was refused and asked may have become other than it was.
  const WorkFolder work(alone ? fs::path() : former);
  const MonkeyReport last = TryOut(work.Path(), Repeating(steps), true);
  const std::string name = "monkey-" + std::to_string(wanted.seed) + "-" + std::to_string(number);
  const fs::path script = fs::path(wanted.folder) / (name + ".qsc");
  fs::create_directories(wanted.folder);
  std::ofstream(script) << "# " << report.finding << "\n"
                        << ScriptOf(last.finding == report.finding ? last.steps : steps);
  std::cout << "finding " << number << ": " << report.finding << "\n  in " << report.steps.size() << " acts, shrunk to "
            << steps.size() << ": " << script.string() << "\n";
  std::cout << std::ifstream(script).rdbuf() << std::flush;
  if (alone) return;
  const fs::path kept = fs::path(wanted.folder) / name;
  fs::copy(former, kept, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  std::cout << "  from the files in " << kept.string() << " alone\n";
}

int RunSessions(const Wanted& wanted) {
  int done = 0;
  int found = 0;
  std::map<std::string, int> seen;
  auto work = std::make_unique<WorkFolder>();
  for (std::uint32_t session = 0; done < wanted.acts && found < wanted.findings; ++session) {
    const std::uint32_t seed = wanted.seed * 1000003U + session;
    // Every other session begins with what the one before has left.
    auto next = session % 2 == 1 ? std::make_unique<WorkFolder>(work->Path()) : std::make_unique<WorkFolder>();
    const WorkFolder former(next->Path());
    work = std::move(next);
    const MonkeyReport report =
        TryOut(work->Path(), RandomMind(seed, std::min(mostActsOfASession, wanted.acts - done)), false);
    done += std::max<int>(1, static_cast<int>(report.steps.size()));
    if (report.finding.empty() || seen[report.finding]++ > 0) continue;
    Tell(wanted, ++found, former.Path(), report);
  }
  std::cout << "seed " << wanted.seed << ": " << done << " acts, " << found << " findings\n";
  for (const auto& [finding, times] : seen) std::cout << "  " << times << " times: " << finding << "\n";
  return found == 0 ? 0 : exitFound;
}

// Goes through a script with a look after each act.
int Replay(const std::string& file) {
  std::ifstream in(file);
  Steps steps;
  std::vector<std::string> answers;
  for (std::string line; std::getline(in, line);) {
    constexpr std::string_view refused = "# refused: ";
    if (line.starts_with(refused)) line.erase(0, refused.size());
    const auto command = ParseLine(line, 0);
    if (!command) continue;
    if (command->name == "answer" || command->name == "file" || command->name == "printer") {
      answers.push_back(command->text);
    } else {
      steps.push_back({command->text, std::exchange(answers, {})});
    }
  }
  const WorkFolder work;
  const MonkeyReport report = TryOut(work.Path(), Repeating(steps), false);
  std::cout << (report.finding.empty() ? "nothing is wrong" : report.finding) << "\n";
  return report.finding.empty() ? 0 : exitFound;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Tries the program at random and looks after each act whether all is well.");
  Wanted wanted;
  std::string script;
  app.add_option("--seed", wanted.seed, "what the random acts depend on")->capture_default_str();
  app.add_option("--acts", wanted.acts, "how many to do")->capture_default_str();
  app.add_option("--findings", wanted.findings, "stop after so many different ones")->capture_default_str();
  app.add_option("--out", wanted.folder, "the folder for the scripts of findings")->capture_default_str();
  app.add_option("--replay", script, "do the acts of this script instead");
  CLI11_PARSE(app, argc, argv);
  return script.empty() ? RunSessions(wanted) : Replay(script);
}
