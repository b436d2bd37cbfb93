// What the boxes of the tuning dialogs said last.
#pragma once

#include <string>

namespace quilm {

struct StepTexts {
  std::string part = "1";
  std::string width = "1";
  std::string ripple = "1";
};

}  // namespace quilm
