// One run of the program, from its start to its end or to the first thing that is wrong, in the present folder.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "monkey/Steps.h"
#include "script/ScriptPlatform.h"
#include "shell/PageDesk.h"

namespace quilm {

class ScriptRun;

// Who says what is done: a monkey, or a list of steps that is gone through again.
struct MonkeyMind {
  std::function<std::optional<std::string>(ScriptRun& run)> next;  // nothing: the run ends
  std::function<std::string(Asks what)> answer;
};

// What goes through a list of steps again. What was not asked then is answered with No and Cancel.
MonkeyMind Repeating(Steps steps);

struct MonkeyReport {
  Steps steps;          // done, without those that were refused
  std::string finding;  // what is wrong; empty when all is well
};

// Runs over these pages, with "program" below the present folder as the program's. `start` starts the program. Acts and
// answers are told to `watch` before they are done, so that they are known when one of them crashes.
MonkeyReport RunMonkey(const PageDirectory& pages, const std::function<void(Session&)>& start, const MonkeyMind& mind,
                       const std::function<void(const std::string& line)>& watch = {});

}  // namespace quilm
