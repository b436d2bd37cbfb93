// The frequencies at which a network is analysed.
#pragma once

#include "core/Types.h"

namespace quilm {

struct SweepSettings {
  i16 SweepMode = 0;  // 1 linear, 2 logarithmic
  f32 Fstart = 0;
  f32 Fstop = 0;
  f32 NrIntervals = 0;  // N intervals give N + 1 points

  bool operator==(const SweepSettings&) const = default;
};

}  // namespace quilm
