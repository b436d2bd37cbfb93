// What is written beside a stage: values, tolerances and losses of its parts.
#pragma once

#include <string>
#include <vector>

#include "core/ElementCatalogue.h"

namespace quilm {

inline constexpr const char* ohmSign = "\u03A9";

struct StageLabel {
  std::string text;
  bool negative = false;        // the value is below 0, which no passive part has
  std::string unit = {};        // where the text has none
  std::string designator = {};  // the letters of the part that the label names first: "L", "C", "R", "TL" or "T"
};

// The format of resistances, which has no text for those below 0: sign and formatted magnitude.
std::string FormatSignedResistance(f32 Value);

// A value in the display format of its slot, without the blanks around it; a resistance with its sign.
std::string ValueText(const Slot& slot, f32 value);

// The values of the parts that the element type gives meaning to, in display format. `share` is the part of a value
// that each rail carries: series parts of a balanced network show half of it.
std::vector<StageLabel> ValueLabels(const Stage& stage, f32 share = 1);

// "L: 5%" for each part with a tolerance above 0.
std::vector<std::string> ToleranceLabels(const Stage& stage);

// The loss of a part as a resistance.
struct LossLabel {
  std::string heading;  // "L-rseries:" or "C-rshunt:"
  std::string value;    // in `ohmSign`
};

// Of an inductor 2 Pi Fq L / Qind in series, of a capacitor Qcap / (2 Pi Fq C) across it. Above 10 megohms a
// capacitor's is left out, as is one that cannot be computed.
std::vector<LossLabel> LossLabels(const Network& network, const Stage& stage, f32 Fq);

// Whether the type is parts or a stub in the line or a piece of line, which a balanced network has on both rails.
bool IsSeriesElement(i16 elementType);

// Whether any value of the stage is below 0, in use or not.
bool HasNegativeValue(const Stage& stage);

}  // namespace quilm
