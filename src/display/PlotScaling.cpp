#include "display/PlotScaling.h"

#include <algorithm>

#include "display/PlotKinds.h"

namespace quilm {

namespace {

constexpr f32 highestLossBottom = -0.3F;  // dB
constexpr f32 highestVSWR = 7;

// The round plots have theirs in the corner.
bool HasDecibelScale(const PlotScales& scales) {
  if (!IsRectangular(scales.PlotCode)) return true;
  const PlotKind kind = KindOf(scales);
  return std::any_of(kind.axes.begin(), kind.axes.end(), [](const PlotAxis& axis) {
    return axis.quantity == Quantity::Transmission || axis.quantity == Quantity::Return;
  });
}

f32 LowestBelowZero(std::span<const f32> values) {
  f32 lowest = 0;
  for (const f32 value : values) lowest = std::min(lowest, value);
  return lowest;
}

f32 HighestAboveZero(std::span<const f32> values) {
  f32 highest = 0;
  for (const f32 value : values) highest = std::max(highest, value);
  return highest;
}

}  // namespace

void AutoScale(PlotScales& scales, const ResponseSpans& responses) {
  scales.LossBottom = LowestBelowZero(responses.trans);
  scales.DelayTop = HighestAboveZero(responses.delay);
  scales.VSWRTop = std::min(HighestAboveZero(responses.vswr), highestVSWR);
  scales.ImpedanceTop = HighestAboveZero(responses.zin);
}

void HoldLossBottom(PlotScales& scales) {
  if (!HasDecibelScale(scales)) return;
  scales.LossBottom = std::min(scales.LossBottom, highestLossBottom);
}

}  // namespace quilm
