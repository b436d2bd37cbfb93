// Where numbers stand along the horizontal axis of a plot, kept from drawing to drawing: a logarithmic axis takes a
// logarithm a point, and hundreds of traces over the same frequencies need them once.
#pragma once

#include <vector>

#include "core/Types.h"

namespace quilm {

// What decides about an axis. Two axes of the same settings are the same.
struct AxisSettings {
  bool logarithmic = false;
  f32 start = 0;
  f32 stop = 0;
  bool operator==(const AxisSettings&) const = default;
};

// The fractions belong to just these settings and these values; whoever uses them compares both (FractionsAlong in
// display/HorizontalAxis.h).
struct AxisPlaces {
  AxisSettings axis;
  std::vector<f32> values;
  std::vector<f64> fractions;  // 0 at the axis' start, 1 at its stop
};

}  // namespace quilm
