#include "monkey/Steps.h"

#include <algorithm>

namespace quilm {

namespace {

Steps Without(const Steps& steps, std::size_t first, std::size_t count) {
  Steps rest(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(first));
  const std::size_t next = std::min(first + count, steps.size());
  rest.insert(rest.end(), steps.begin() + static_cast<std::ptrdiff_t>(next), steps.end());
  return rest;
}

}  // namespace

std::string ScriptOf(const Steps& steps) {
  std::string script;
  for (const Step& step : steps) {
    const bool asks = std::any_of(step.answers.begin(), step.answers.end(), [](const std::string& answer) {
      return answer == "answer yes" || answer == "answer no";
    });
    for (const std::string& answer : step.answers) {
      if (answer != "answer ok" || asks) script += answer + "\n";
    }
    script += (step.refused ? "# refused: " : "") + step.act + "\n";
  }
  return script;
}

Steps Shrink(Steps steps, const std::function<bool(const Steps&)>& fails, int mostTrials) {
  std::size_t piece = std::max<std::size_t>(steps.size() / 2, 1);
  bool shrunk = true;
  while (piece > 1 || shrunk) {
    shrunk = false;
    // From the end: what came last is what matters least often twice, and most acts before it only led there.
    for (std::size_t end = steps.size(); end > 0 && mostTrials > 0;) {
      const std::size_t first = end > piece ? end - piece : 0;
      const Steps rest = Without(steps, first, end - first);
      --mostTrials;
      if (!rest.empty() && fails(rest)) {
        steps = rest;
        shrunk = true;
      }
      end = first;
    }
    if (mostTrials == 0) break;
    piece = std::max<std::size_t>(piece / 2, 1);
  }
  return steps;
}

}  // namespace quilm
