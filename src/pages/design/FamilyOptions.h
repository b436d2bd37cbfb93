// The nine family options.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "shell/Control.h"

namespace quilm {

class FamilyOptions {
 public:
  explicit FamilyOptions(Page& page);

  // The code of the option that is set, familyNone for none.
  i16 Chosen() const;

  // Sets the option of a family; none for a code that is no family.
  void Choose(i16 family);

  // Families whose prototype cannot be computed stay disabled.
  void Enable(bool enabled);

  // Runs after the user has chosen.
  void OnChoice(const std::function<void(i16 family)>& act);

  const std::vector<std::unique_ptr<OptionButton>>& Options() const { return options_; }

 private:
  OptionGroup group_;
  std::vector<std::unique_ptr<OptionButton>> options_;  // in the order of FamilyRules
};

}  // namespace quilm
