// The responses of a network that is driven at its load.
#pragma once

#include <string>

#include "core/RecordFwd.h"
#include "core/ResponseArray.h"

namespace quilm {

// What S12 and S22 are made of; index and units as in Responses.
struct ReverseResponses {
  ResponseArray RevTrans;
  ResponseArray RevAngle;
  ResponseArray RevReturn;
  ResponseArray RevZin;
  ResponseArray RevZinAngle;
};

// Sweeps the design end for end (SwapEndForEnd) over its own frequencies. It is done on a copy: neither the design nor
// its responses and extremes show anything of it. Returns the line mark of the step that failed, as SweepLadder does;
// `reverse` is then as it was.
std::string SweepReverse(const DesignRecord& record, ReverseResponses& reverse);

}  // namespace quilm
