// What a monkey did, in the words of a script.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quilm {

// An act, and what was answered to the boxes and dialogs that came before the next one.
struct Step {
  std::string act;                   // "press cmdPlot"
  std::vector<std::string> answers;  // "answer yes", "file open a.QLM", "file cancel", "printer ok"
  bool refused = false;              // the program did not let it be done, or not to its end
};
using Steps = std::vector<Step>;

// As a script that quilm-script runs: the answers stand before the act that they are for. A box with Ok alone needs
// none unless a question comes as well. What was refused, at which that would stop, is a comment.
std::string ScriptOf(const Steps& steps);

// The fewest steps, in their order, that still fail: pieces are left out as long as `fails` says so of the rest, down
// to single steps. `fails` is asked `mostTrials` times at most.
Steps Shrink(Steps steps, const std::function<bool(const Steps&)>& fails, int mostTrials);

}  // namespace quilm
