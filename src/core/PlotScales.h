// How the responses are shown: scales, grids and pens of the graphs.
#pragma once

#include "core/Types.h"

namespace quilm {

struct PlotScales {
  i16 NrXints = 0;
  f32 NrYints = 0;
  f32 LossBottom = 0;  // kept negative
  f32 DelayTop = 0;
  f32 DelayBottom = 0;
  f32 VSWRTop = 0;
  f32 ImpedanceTop = 0;
  i16 RelativeMode = 0;
  i16 AbsoluteMode = 1;
  i16 MagnifyMode = 0;
  i16 PlotLineWidth = 1;    // pixels
  f32 SmithAspect = 0.75F;  // of the round charts, 0.5..1.5; at 0.75 they are circles
  i16 PlotCode = 0;         // the plot on display: 1..7, 9..13

  bool operator==(const PlotScales&) const = default;
};

}  // namespace quilm
