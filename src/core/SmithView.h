// How the Smith chart is looked at.
#pragma once

#include "core/Types.h"

namespace quilm {

struct SmithView {
  f32 ZoomFactor = 1;    // 1, 2, 4, 8 or 16, about the centre
  f32 VSWRCircle = 2;    // 1..20
  i16 VSWRCircleOn = 0;  // 0 or 1
};

}  // namespace quilm
