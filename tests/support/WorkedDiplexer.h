// The worked diplexers: of 1 MHz and of order 3, of 9.5 to 10.5 MHz and of order 2, both with 0.1 dB and 50 ohms.
#pragma once

#include "core/Diplexer.h"
#include "diplexer/DesignDiplexer.h"

namespace quilm {

inline Diplexer WorkedSplit(i16 order = 3) {
  Diplexer d;
  d.DipMode = 1;
  d.DipOrder = order;
  d.DipRipple = 0.1F;
  d.DipZ = 50;
  d.DipZsmall = 0.05F;
  d.DipCrossover = 1e6F;
  DesignDiplexer(d);
  return d;
}

inline Diplexer WorkedBands(i16 order = 2) {
  Diplexer d = WorkedSplit(order);
  d.DipMode = 2;
  d.DipFlower = 9.5e6F;
  d.DipFupper = 10.5e6F;
  DesignDiplexer(d);
  return d;
}

}  // namespace quilm
