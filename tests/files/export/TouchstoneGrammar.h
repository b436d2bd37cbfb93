// A reader of S-parameter files of version 2.0, as strict as their grammar: keywords in their order, each once, and as
// many rows and columns as they say.
#pragma once

#include <string>
#include <vector>

#include "core/Types.h"

namespace quilm {

struct TouchstoneV2 {
  std::string fault;  // what is wrong; empty for a file that is right
  int ports = 0;
  std::string unit;    // "MHz"
  std::string format;  // "DB"
  std::vector<f64> references;
  std::vector<std::vector<f64>> rows;
  std::vector<std::string> rowTexts;
};

TouchstoneV2 ParseTouchstoneV2(const std::string& text);

}  // namespace quilm
