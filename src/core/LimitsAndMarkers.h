// The limit areas of the plots, and the marked frequencies.
#pragma once

#include "core/BoundedArray.h"
#include "core/Types.h"

namespace quilm {

inline constexpr int plotTypes = 6;  // transmission, return loss, transmission angle, group delay, VSWR, impedance
inline constexpr int limitsPerPlot = 10;
inline constexpr int markerCount = 8;

template <class T>
using LimitTable = BoundedArray<BoundedArray<T, 1, plotTypes>, 1, limitsPerPlot>;

struct LimitsAndMarkers {
  // By plot type. A shape above 0 means that the area exists.
  BoundedArray<i16, 1, plotTypes> LimitCount;
  LimitTable<f32> LimitShape;
  LimitTable<f32> LimitStart;
  LimitTable<f32> LimitStop;
  LimitTable<f32> LimitTop;
  LimitTable<f32> LimitBottom;
  BoundedArray<f32, 1, markerCount> MarkerFreq;  // 0: not set
  i16 LimitsShown = 0;
  i16 MarkersShown = 0;

  bool operator==(const LimitsAndMarkers&) const = default;
};

}  // namespace quilm
